#include "suggestions/torn_units.h"

#include <QSet>
#include <algorithm>

#include "suggestions/text_words.h"

using namespace Qt::StringLiterals;

namespace szétvált_egységek {
namespace {

constexpr qsizetype most_words = 16;
constexpr qsizetype words_between = 3;

QSet<QString> set_of(const QString &words) {
    const QStringList list = words.split(u' ');
    return {list.begin(), list.end()};
}

void add(QStringList &found, const QString &headword) {
    if (!found.contains(headword))
        found.append(headword);
}

/// The bases of a word that `fits`; the word itself where there is no analyser.
template <typename Fits>
QStringList bases_of(const szövegszó &word, alakelemző *forms, Fits fits) {
    QStringList bases;
    if (fits(word.kicsi))
        bases.append(word.kicsi);
    if (forms) {
        for (const olvasat &reading : forms->olvasatok(word.kicsi)) {
            if (fits(reading.alapalak) && !bases.contains(reading.alapalak))
                bases.append(reading.alapalak);
        }
    }
    return bases;
}

// English ---------------------------------------------------------------------------------------------------------

/// What may stand behind the object of a verb.
bool is_adverb(const QString &word) {
    static const QSet<QString> list = set_of(
        u"up off on out in down away back over through along around round about across by apart aside ahead together "
        "forward forth under open loose aback astray behind"_s);
    return list.contains(word);
}

/// What goes with a verb when it stands behind it.
bool is_particle(const QString &word) {
    static const QSet<QString> list = set_of(u"to for after into at with without upon of from against onto past"_s);
    return is_adverb(word) || list.contains(word);
}

/// What does not stand between a verb and its particle: another clause or another verb begins with it, or it governs
/// what stands behind it.
bool parts_clauses(const QString &word) {
    static const QSet<QString> list = set_of(
        u"and or but if that which who whom whose when where while because so than as to of for at with from into "
        "after before against between during without is are was were am be been being has have had do does did will "
        "would can could shall should may might must not then how why what until since"_s);
    return list.contains(word);
}

/// What a preposition governs begins with one of these, so the word before is no adverb.
bool begins_object(const QString &word) {
    static const QSet<QString> list = set_of(
        u"the a an my your his her its our their this that these those some any no every each another all me you him "
        "it us them what which one two three"_s);
    return list.contains(word);
}

/// The letters of a verb without its "to "; the auxiliary be makes no unit.
QStringList english_verbs(const szövegszó &word, címszólista &headwords, alakelemző *forms) {
    QStringList verbs;
    const auto plain = [&](const QString &text) { return headwords.van(QString(u"to "_s + text)); };
    for (const QString &base : bases_of(word, forms, [&](const QString &text) {
             return text.startsWith(u"to ") || (text == word.kicsi && plain(text));
         })) {
        const QString verb = base.startsWith(u"to ") ? base.sliced(3) : base;
        if (verb != u"be" && !verb.contains(u' ') && !verbs.contains(verb))
            verbs.append(verb);
    }
    return verbs;
}

/// The headword of a verb and its particle as it stands in the dictionary, with or without somebody or something.
QString english_unit(címszólista &headwords, const QString &verb, const QString &particle) {
    const QString forms[] = {u"to %1 %2"_s,    u"to %1 sg %2"_s, u"to %1 sy %2"_s,
                             u"to %1 %2 sg"_s, u"to %1 %2 sy"_s, u"to %1 oneself %2"_s};
    for (const QString &form : forms) {
        const QString headword = form.arg(verb, particle);
        if (headwords.van(headword))
            return headword;
    }
    return {};
}

/// Somebody and something for the words between: "took him in" is "to take sy in" as well.
bool may_stand_between(const QVector<szövegszó> &words, qsizetype verb, qsizetype particle) {
    for (qsizetype i = verb + 1; i < particle; ++i) {
        if (words[i].elválasztva || parts_clauses(words[i].kicsi) || is_adverb(words[i].kicsi))
            return false;
    }
    return !words[particle].elválasztva;
}

bool is_torn(const QVector<szövegszó> &words, qsizetype verb, qsizetype particle) {
    if (!may_stand_between(words, verb, particle))
        return false;
    if (particle == verb + 1)
        return is_particle(words[particle].kicsi);
    const bool governs =
        particle + 1 < words.size() && !words[particle + 1].elválasztva && begins_object(words[particle + 1].kicsi);
    return is_adverb(words[particle].kicsi) && !governs;
}

/// A particle and a preposition behind it: "looked forward to", "put up with".
void add_with_second(QStringList &found, const QVector<szövegszó> &words, qsizetype particle, const QString &verb,
                     címszólista &headwords) {
    if (particle + 1 >= words.size() || words[particle + 1].elválasztva || !is_particle(words[particle + 1].kicsi))
        return;
    const QString both = words[particle].kicsi + u' ' + words[particle + 1].kicsi;
    if (const QString headword = english_unit(headwords, verb, both); !headword.isEmpty())
        add(found, headword);
}

}  // namespace

QStringList angol(const QString &szöveg, címszólista &címszavak, alakelemző *alakok) {
    const QVector<szövegszó> words = szavai(szöveg, most_words);
    QStringList found;
    for (qsizetype verb = 0; verb + 1 < words.size(); ++verb) {
        const qsizetype last = std::min(words.size() - 1, verb + 1 + words_between);
        QStringList verbs;
        bool asked = false;
        for (qsizetype particle = verb + 1; particle <= last; ++particle) {
            if (!is_torn(words, verb, particle))
                continue;
            if (!asked)
                verbs = english_verbs(words[verb], címszavak, alakok);
            asked = true;
            for (const QString &one : verbs) {
                add_with_second(found, words, particle, one, címszavak);
                if (const QString headword = english_unit(címszavak, one, words[particle].kicsi); !headword.isEmpty())
                    add(found, headword);
            }
        }
    }
    return found;
}

// Hungarian -------------------------------------------------------------------------------------------------------

namespace {

bool is_preverb(const QString &word) {
    static const QSet<QString> list = set_of(
        u"meg el fel föl ki be le át össze vissza szét ide oda haza rá hozzá neki bele végig tovább túl elő előre "
        u"hátra "
        "félre körül külön közbe újra utána szembe keresztül együtt agyon abba alá fölé mellé közé ellen helyre "
        "jóvá tönkre észre véghez hozzá idő rajta vele fenn fent benn bent itt ott hazafelé széjjel tele teli le "
        "létre közre számon részt fenn életbe kölcsön viszont ketté körbe fölül felül alul cserben nagyot egybe"_s);
    return list.contains(word);
}

/// What stands between a preverb and the infinitive of its verb.
bool is_auxiliary(const QString &word) {
    static const QSet<QString> whole = set_of(
        u"kell kellett kellene kéne kellhet lehet lehetett lehetne lehetetlen szabad szabadna muszáj illik tilos "
        "érdemes jó ideje sikerült sikerül tetszik tetszett hadd"_s);
    static const QStringList beginnings =
        u"fog akar tud bír mer szeretn szeretném szokt szokás próbál kezd készül kíván óhajt képes kényszerül "
        "hajland igyek igyekez hagy segít"_s.split(u' ');
    return whole.contains(word) ||
           std::ranges::any_of(beginnings, [&](const QString &beginning) { return word.startsWith(beginning); });
}

/// What may stand between a preverb and its verb, and between an auxiliary and the infinitive.
bool is_little_word(const QString &word) {
    static const QSet<QString> list = set_of(
        u"is sem se nem ne már még csak majd is tehát azt ezt én te ő mi ti ők engem téged őt minket titeket őket most "
        "ma akkor nekem neked neki nekünk nektek nekik ugye volna hát"_s);
    return list.contains(word);
}

/// The headword of a preverb and a verb; empty when there is none. Verbs only: "felház" is a house.
QString hungarian_unit(címszólista &headwords, const QString &preverb, const QString &verb) {
    const auto bytes = betűk::kódolva(preverb + verb);
    if (!bytes)
        return {};
    for (const auto &item : headwords.egyezők(*bytes)) {
        if (item.ige)
            return preverb + verb;
    }
    return {};
}

class HungarianSearch final {
  public:
    HungarianSearch(QVector<szövegszó> words, címszólista &headwords, alakelemző *forms)
        : words_(std::move(words)), headwords_(headwords), forms_(forms) {}

    QStringList found() {
        for (qsizetype i = 0; i < words_.size(); ++i) {
            if (is_preverb(words_[i].kicsi)) {
                before(i);
                behind(i);
            }
        }
        return found_;
    }

  private:
    /// "hívta fel", "veszem meg", "hívta már fel".
    void before(qsizetype preverb) {
        if (words_[preverb].elválasztva)
            return;
        if (preverb >= 1 && joined(preverb - 1, preverb))
            return;
        if (preverb >= 2 && !words_[preverb - 1].elválasztva && is_little_word(words_[preverb - 1].kicsi))
            static_cast<void>(joined(preverb - 2, preverb));
    }

    /// "fel fogom hívni", "meg sem nézte", "el nem ment".
    void behind(qsizetype preverb) {
        bool auxiliary = false;
        const qsizetype last = std::min(words_.size() - 1, preverb + 1 + words_between);
        for (qsizetype i = preverb + 1; i <= last && !words_[i].elválasztva; ++i) {
            const QString &word = words_[i].kicsi;
            const bool infinitive = word.endsWith(u"ni") || word.endsWith(u"nia") || word.endsWith(u"nie") ||
                                    word.endsWith(u"nom") || word.endsWith(u"nem") || word.endsWith(u"nöm") ||
                                    word.endsWith(u"nod") || word.endsWith(u"ned") || word.endsWith(u"nöd") ||
                                    word.endsWith(u"nunk") || word.endsWith(u"nünk") || word.endsWith(u"niuk") ||
                                    word.endsWith(u"niük");
            if (auxiliary && infinitive && joined(i, preverb))
                return;
            const bool little = is_little_word(word);
            if (i > preverb + 1 && !auxiliary && !is_auxiliary(word) && !little) {
                static_cast<void>(joined(i, preverb));
                return;
            }
            auxiliary = auxiliary || is_auxiliary(word);
            if (!auxiliary && !little)
                return;
        }
    }

    bool joined(qsizetype verb, qsizetype preverb) {
        const auto fits = [](const QString &text) { return !text.contains(u' '); };
        bool any = false;
        for (const QString &base : bases_of(words_[verb], forms_, fits)) {
            const QString headword = hungarian_unit(headwords_, words_[preverb].kicsi, base);
            if (headword.isEmpty())
                continue;
            add(found_, headword);
            any = true;
        }
        return any;
    }

    QVector<szövegszó> words_;
    címszólista &headwords_;
    alakelemző *forms_;
    QStringList found_;
};

}  // namespace

QStringList magyar(const QString &szöveg, címszólista &címszavak, alakelemző *alakok) {
    return HungarianSearch(szavai(szöveg, most_words), címszavak, alakok).found();
}

}  // namespace szétvált_egységek
