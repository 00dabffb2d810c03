#include "suggestions/suggester.h"

#include <algorithm>

#include "dictionary/dictionary_search.h"
#include "platform/code_page.h"
#include "suggestions/accentless_forms.h"
#include "suggestions/spelling_search.h"
#include "suggestions/spelling_variants.h"
#include "suggestions/text_words.h"
#include "suggestions/torn_units.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longest_text = 100;

/// What is known of one direction.
struct Side {
    bool from_english;
    címszólista &headwords;
    alakelemző *forms;
    [[nodiscard]] címszólista::nyelv language() const {
        return from_english ? címszólista::nyelv::angol : címszólista::nyelv::magyar;
    }
};

/// The text without what surrounds it: quotation marks, brackets, the full stop of its sentence. The apostrophe of
/// "parents'" is a part of the word.
QString trimmed(const QString &text) {
    qsizetype first = 0;
    qsizetype behind = text.size();
    while (first < behind && !text[first].isLetterOrNumber())
        ++first;
    while (behind > first && !text[behind - 1].isLetterOrNumber())
        --behind;
    static constexpr QStringView apostrophes = u"'’";
    const bool owned = first == 0 && behind > 0 && behind < text.size() && text[behind - 1].toLower() == u's';
    if (owned && apostrophes.contains(text[behind]))
        ++behind;
    return text.sliced(first, behind - first).simplified().normalized(QString::NormalizationForm_C);
}

/// The text without an article at its beginning, and without the "to " of a verb.
QString without_article(const QString &text, bool english) {
    static const QStringList articles[] = {{u"a "_s, u"az "_s, u"egy "_s}, {u"the "_s, u"a "_s, u"an "_s, u"to "_s}};
    for (const QString &article : articles[english ? 1 : 0]) {
        if (text.startsWith(article, Qt::CaseInsensitive))
            return text.sliced(article.size());
    }
    return text;
}

/// The offers on their way.
class Offers final {
  public:
    [[nodiscard]] const QVector<ajánlat> &all() const { return offers_; }
    [[nodiscard]] bool empty() const { return offers_.isEmpty(); }
    [[nodiscard]] qsizetype count(ajánlatfajta kind) const {
        return std::ranges::count(offers_, kind, &ajánlat::fajta);
    }

    /// Unless there is one for the headword; "go" and "to go" are one, as the search finds both.
    void add(const ajánlat &offer) {
        const bool twice = std::ranges::any_of(offers_, [&](const ajánlat &other) {
            const bool explained = offer.fajta == ajánlatfajta::alak && other.fajta == ajánlatfajta::alak;
            return other.angolról == offer.angolról &&
                   (other.címszó == offer.címszó ||
                    (!explained && offer.angolról && keresőkulcs(other.címszó) == keresőkulcs(offer.címszó)));
        });
        if (!twice)
            offers_.append(offer);
    }

    void add_headword(ajánlatfajta kind, const QString &headword, bool from_english) {
        add({.fajta = kind,
             .szöveg = headword,
             .hivatkozás = {0, headword.size()},
             .címszó = headword,
             .angolról = from_english});
    }

    void sort() { std::ranges::stable_sort(offers_, {}, &ajánlat::fajta); }

  private:
    QVector<ajánlat> offers_;
};

QString headword_of(const közelítés &near, const Side &side) {
    const QString key = code_page::decode(near.kulcs);
    return side.from_english && near.csak_ige ? u"to "_s + key : key;
}

/// A headword of these letters, the noun before the verb; empty when there is none.
QString exact_headword(const QString &text, const Side &side) {
    if (side.headwords.van(text))
        return text;
    const QString verb = u"to "_s + text;
    return side.from_english && side.headwords.van(verb) ? verb : QString();
}

ajánlat explained(const QString &form, const olvasat &reading, const Side &side) {
    const QString line = side.forms->sor(form, reading);
    const QString bare = keresőkulcs(QStringView(reading.alapalak)).toString();
    const qsizetype from = std::max<qsizetype>(0, line.indexOf(u" = "_s));
    const qsizetype link = line.indexOf(bare, std::min(line.size(), from + 3));
    return {.fajta = ajánlatfajta::alak,
            .szöveg = line,
            .hivatkozás = link < 0 ? szövegrész{0, line.size()} : szövegrész{link, bare.size()},
            .címszó = reading.alapalak,
            .angolról = side.from_english};
}

/// The readings with those of one base in one: "mentek" is "megy", now of you or in the past of them. No more than two
/// of a base, the likelier.
std::vector<olvasat> one_for_each_base(const std::vector<olvasat> &readings) {
    std::vector<olvasat> bases;
    std::vector<int> counts;
    for (const olvasat &reading : readings) {
        const auto same = std::ranges::find_if(bases, [&](const olvasat &other) {
            return other.alapalak == reading.alapalak && other.előtag == reading.előtag;
        });
        if (same == bases.end()) {
            bases.push_back(reading);
            counts.push_back(1);
        } else if (!reading.magyarázat.isEmpty() && !same->magyarázat.isEmpty() &&
                   counts[static_cast<size_t>(same - bases.begin())]++ < 2) {
            same->magyarázat += u" vagy "_s + reading.magyarázat;
        }
    }
    return bases;
}

/// One question.
class Question final {
  public:
    Question(QString text, const std::function<bool()> &out_of_date)
        : text_(std::move(text)), out_of_date_(out_of_date) {}

    /// All kinds but slips. `own`: the text was asked about in this language.
    void ask(const Side &side, bool own, Offers &offers) const {
        const qsizetype before = offers.all().size();
        QStringList texts{text_, without_article(text_, side.from_english)};
        texts.removeDuplicates();
        for (const QString &text : texts) {
            if (out_of_date_() || offers.all().size() > before)
                break;
            add_forms(text, side, offers);
            if (!out_of_date_())
                add_spellings(text, side, offers);
        }
        if (own && !out_of_date_() && !is_likely(side, offers))
            add_accentless_forms(side, offers);
        if (!out_of_date_())
            add_units(side, offers);
    }

    /// The text as it is, which was asked in the wrong direction.
    void ask_other(const Side &other, Offers &offers) const {
        if (const QString headword = exact_headword(text_, other); !headword.isEmpty())
            offers.add_headword(ajánlatfajta::írásmód, headword, other.from_english);
        ask_forms_too(other, offers);
    }

    void add_slips(const Side &side, qsizetype most, bool near_only, Offers &offers) const {
        const auto bytes = betűk::kódolva(without_article(text_, side.from_english));
        if (!bytes || most <= 0 || out_of_date_())
            return;
        for (const közelítés &near :
             íráskereső::elírások(side.headwords, side.language(), *bytes, most, out_of_date_)) {
            if (!near_only || near.költség <= one_letter)
                offers.add_headword(ajánlatfajta::elírás, headword_of(near, side), side.from_english);
        }
    }

    /// True when the text is a usual word and spelt as it should be, in a form that the analysis knows. What is made of
    /// English forms by rules is no proof: "begining".
    [[nodiscard]] bool is_spelt_right(const Side &side) const {
        if (side.from_english || !side.forms)
            return false;
        const auto readings = side.forms->olvasatok(text_);
        return !readings.empty() && readings.front().előtag.isEmpty() &&
               side.headwords.gyakoriság(readings.front().alapalak) >= common;
    }

  private:
    static constexpr int one_letter = 10;
    /// How common a word that people use is at least.
    static constexpr int common = 110;

    void ask_forms_too(const Side &side, Offers &offers) const {
        const bool known = !offers.empty();
        Offers more;
        ask(side, false, more);
        for (const ajánlat &offer : more.all()) {
            if (!known || offer.fajta == ajánlatfajta::alak)
                offers.add(offer);
        }
    }

    void add_forms(const QString &text, const Side &side, Offers &offers) const {
        if (!side.forms)
            return;
        const auto readings = one_for_each_base(side.forms->olvasatok(text));
        const bool itself_only = readings.size() == 1 && readings.front().alapalak == text;
        for (const olvasat &reading : readings) {
            if (!itself_only)
                offers.add(explained(text, reading, side));
        }
    }

    /// True when one of the offers is a word that people use.
    static bool is_likely(const Side &side, const Offers &offers) {
        return std::ranges::any_of(offers.all(), [&](const ajánlat &offer) {
            return offer.angolról == side.from_english && side.headwords.gyakoriság(offer.címszó) >= common;
        });
    }

    /// "kutyaimmal", typed where there is no á.
    void add_accentless_forms(const Side &side, Offers &offers) const {
        if (side.from_english || !side.forms || !exact_headword(text_, side).isEmpty())
            return;
        for (const QString &form : ékezetes_alakok(text_, side.headwords, *side.forms, out_of_date_))
            add_forms(form, side, offers);
    }

    void add_spellings(const QString &text, const Side &side, Offers &offers) const {
        const auto bytes = betűk::kódolva(text);
        if (!bytes)
            return;
        // Letters that the dictionaries do not have: õ for ő, ï for i.
        const QString usual = code_page::decode(*bytes);
        if (const QString headword = exact_headword(usual, side); usual != text && !headword.isEmpty())
            offers.add_headword(ajánlatfajta::írásmód, headword, side.from_english);
        for (const közelítés &near : íráskereső::írásmódok(side.headwords, side.language(), *bytes, out_of_date_)) {
            if (offers.count(ajánlatfajta::írásmód) < ajánló::legtöbb)
                offers.add_headword(ajánlatfajta::írásmód, headword_of(near, side), side.from_english);
        }
        if (side.from_english)
            add_variants(text, side, offers);
    }

    /// The English of another country, inflected or not.
    static void add_variants(const QString &text, const Side &side, Offers &offers) {
        for (const QString &variant : angol_változatok(text)) {
            if (const QString headword = exact_headword(variant, side); !headword.isEmpty())
                offers.add_headword(ajánlatfajta::írásmód, headword, true);
        }
    }

    void add_units(const Side &side, Offers &offers) const {
        const QStringList units = side.from_english ? szétvált_egységek::angol(text_, side.headwords, side.forms)
                                                    : szétvált_egységek::magyar(text_, side.headwords, side.forms);
        for (const QString &unit : units)
            offers.add_headword(ajánlatfajta::egység, unit, side.from_english);
    }

    QString text_;
    const std::function<bool()> &out_of_date_;
};

/// The first offers, kind by kind; the units, which stand last, keep two places.
QVector<ajánlat> chosen(Offers &offers) {
    offers.sort();
    const QVector<ajánlat> all = offers.all();
    const qsizetype units = offers.count(ajánlatfajta::egység);
    const qsizetype others = all.size() - units;
    const qsizetype kept_units = std::min(units, std::max<qsizetype>(2, ajánló::legtöbb - others));
    const qsizetype kept_others = std::min(others, ajánló::legtöbb - kept_units);
    return all.first(kept_others) + all.sliced(others, kept_units);
}

}  // namespace

void ajánló::betölt(bool angolról) {
    if (!betöltők_.empty())
        return;
    // The analysis of Hungarian takes as long as all the rest.
    if (alakelemző *hungarian = források_.magyar_alakok)
        betöltők_.emplace_back([hungarian] { static_cast<void>(hungarian->hiányok()); });
    címszólista &other = angolról ? források_.magyar_címszavak : források_.angol_címszavak;
    betöltők_.emplace_back([&other] { static_cast<void>(other.hiányok()); });
    címszólista &own = angolról ? források_.angol_címszavak : források_.magyar_címszavak;
    static_cast<void>(own.hiányok());
    if (források_.kifejezések)
        static_cast<void>(források_.kifejezések->hiányok());
}

ajánlás ajánló::ajánl(const ajánlókérdés &kérdés, const std::function<bool()> &elavult) {
    const QString text = trimmed(kérdés.szöveg);
    if (text.isEmpty() || text.size() > longest_text || elavult())
        return {};
    betölt(kérdés.angolról);
    const Side english{true, források_.angol_címszavak, források_.angol_alakok};
    const Side hungarian{false, források_.magyar_címszavak, források_.magyar_alakok};
    const Side &own = kérdés.angolról ? english : hungarian;
    const Side &other = kérdés.angolról ? hungarian : english;
    const Question question(text, elavult);
    const bool known = !exact_headword(text, own).isEmpty();
    Offers offers;
    if (known && text != kérdés.szöveg)
        offers.add_headword(ajánlatfajta::írásmód, exact_headword(text, own), own.from_english);
    question.ask(own, true, offers);
    const bool found = known || !offers.empty();
    if (!found)
        question.ask_other(other, offers);
    // Beside what is certain a slip only confuses: "to turn it on" for "turn it off".
    if (!known && offers.count(ajánlatfajta::egység) == 0 && !question.is_spelt_right(own)) {
        const bool explained = offers.count(ajánlatfajta::alak) > 0;
        question.add_slips(own, legtöbb, explained || (!found && !offers.empty()), offers);
        if (offers.empty())
            question.add_slips(other, legtöbb, false, offers);
    }
    ajánlás answer;
    answer.ajánlatok = chosen(offers);
    if (források_.kifejezések && !elavult())
        answer.kifejezések = források_.kifejezések->egész_szavak_száma(text);
    return answer;
}

QStringList ajánló::hiányok() {
    QStringList missing = források_.angol_címszavak.hiányok() + források_.magyar_címszavak.hiányok();
    for (alakelemző *analyser : {források_.angol_alakok, források_.magyar_alakok}) {
        if (analyser)
            missing += analyser->hiányok();
    }
    if (források_.kifejezések)
        missing += források_.kifejezések->hiányok();
    missing.removeDuplicates();
    return missing;
}
