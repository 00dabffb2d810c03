#include "forms/hungarian_tags.h"

#include <QHash>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

struct címkesor {
    címkefajta fajta = címkefajta::rag;
    QString szöveg;
};

using enum címkefajta;

const QHash<QString, címkesor> &jelek_és_ragok() {
    static const QHash<QString, címkesor> sorok{
        {u"SG"_s, {néma, {}}},
        // An adverb of place of its own, misspelt in the data.
        {u"SodabL"_s, {néma, {}}},
        {u"PRES_INDIC_INDEF"_s, {néma, {}}},
        {u"PLUR"_s, {rag, u"többes szám"_s}},
        {u"PL"_s, {rag, u"többes szám"_s}},
        {u"POSSESSEE"_s, {rag, u"-é (kié?)"_s}},
        {u"FAM"_s, {rag, u"-ék (és családja, társai)"_s}},
        {u"ék_FAMILIAR_noun"_s, {rag, u"-ék (és családja, társai)"_s}},
        {u"POSS"_s, {rag, u"birtokos névmás (kié?)"_s}},
        {u"ACC"_s, {rag, u"-t (kit? mit?)"_s}},
        {u"DAT"_s, {rag, u"-nak/-nek (kinek? minek?)"_s}},
        {u"INSTR"_s, {rag, u"-val/-vel (kivel? mivel?)"_s}},
        {u"INE"_s, {rag, u"-ban/-ben (hol?)"_s}},
        {u"ELA"_s, {rag, u"-ból/-ből (honnan?)"_s}},
        {u"ILL"_s, {rag, u"-ba/-be (hová?)"_s}},
        {u"SUE"_s, {rag, u"-n/-on/-en/-ön (hol?)"_s}},
        {u"SBL"_s, {rag, u"-ra/-re (hová?)"_s}},
        {u"DEL"_s, {rag, u"-ról/-ről (honnan? miről?)"_s}},
        {u"ADE"_s, {rag, u"-nál/-nél (hol? kinél?)"_s}},
        {u"ALL"_s, {rag, u"-hoz/-hez/-höz (hová? kihez?)"_s}},
        {u"ABL"_s, {rag, u"-tól/-től (honnan? kitől?)"_s}},
        {u"TERM"_s, {rag, u"-ig (meddig?)"_s}},
        {u"CAUS/FIN"_s, {rag, u"-ért (miért?)"_s}},
        {u"TRANS"_s, {rag, u"-vá/-vé (mivé?)"_s}},
        {u"FORM"_s, {rag, u"-ként (miként?)"_s}},
        {u"ESS"_s, {rag, u"-ul/-ül (hogyan?)"_s}},
        {u"TEMP"_s, {rag, u"-kor (mikor?)"_s}},
        {u"EMPH"_s, {rag, u"nyomatékos alak"_s}},
        {u"SUBS"_s, {rag, u"népies vagy régies alak"_s}},
        {u"-e"_s, {rag, u"-e (kérdés)"_s}},
    };
    return sorok;
}

/// Endings of words that are no cases: degrees, adverbs, numerals, participles, "-hat".
const QHash<QString, címkesor> &végződések() {
    static const QHash<QString, címkesor> sorok{
        {u"bb_COMPARATIVE_adj"_s, {rag, u"középfok"_s}},
        {u"bbik_DESIGNATE_adj"_s, {rag, u"-bbik (melyik?)"_s}},
        {u"leg_SUPERLATIVE_adj"_s, {rag, u"felsőfok"_s}},
        {u"legesleg_SUPERLATIVE_adj"_s, {rag, u"túlzó felsőfok"_s}},
        {u"legeslegesleg_SUPERLATIVE_adj"_s, {rag, u"túlzó felsőfok"_s}},
        {u"An_MODE_adv"_s, {rag, u"-an/-en (hogyan?)"_s}},
        {u"Ul_MODE_adv"_s, {rag, u"-ul/-ül (hogyan?)"_s}},
        {u"lAg_MODE_adv"_s, {rag, u"-lag/-leg (hogyan?)"_s}},
        {u"képp_MODE_adv"_s, {rag, u"-képp/-képpen (miként?)"_s}},
        {u"képpen_MODE_adv"_s, {rag, u"-képp/-képpen (miként?)"_s}},
        {u"stUl_COMITATIVE_adv"_s, {rag, u"-stul/-stül (mivel együtt?)"_s}},
        {u"nként_PERIOD_adv"_s, {rag, u"-nként (milyen gyakran?)"_s}},
        {u"kénti_FORM_adj"_s, {rag, u"-kénti (valamiként való)"_s}},
        {u"szOr_MULTIPLICATION_adv"_s, {rag, u"-szor/-szer/-ször (hányszor?)"_s}},
        {u"szOr_MULTIPLICATE_adv"_s, {rag, u"-szor/-szer/-ször (hányszor?)"_s}},
        {u"szOrtA_MULTORD_adv"_s, {rag, u"-szorta/-szerte/-szörte (mennyivel?)"_s}},
        {u"d_FRACTION_num"_s, {rag, u"törtszám (-d)"_s}},
        {u"d_FRjACTION_num"_s, {rag, u"törtszám (-d)"_s}},
        {u"dik_ORDINAL_adj"_s, {képző, u"sorszám (-dik)"_s}},
        {u"dik_ORDINAL_adj]"_s, {képző, u"sorszám (-dik)"_s}},
        {u"dikA_DATE_noun"_s, {rag, u"a hónap napja (-dika/-dike)"_s}},
        {u"i_PLACE/TIME_adj"_s, {képző, u"-i (valahová, valamikorra való)"_s}},
        {u"i_PLACETIME_adj"_s, {képző, u"-i (valahová, valamikorra való)"_s}},
        {u"jÚ_PROPERTY_adj"_s, {képző, u"-ú/-ű, -jú/-jű (valamilyennel rendelkező)"_s}},
        {u"nyi_MEASURE_adj"_s, {képző, u"-nyi (mennyi?)"_s}},
        {u"nék_WISH_noun_poss"_s, {rag, u"-nék (kedv valamire)"_s}},
        {u"ni_INFINITIVE_inf"_s, {rag, u"főnévi igenév (-ni)"_s}},
        {u"vA_PART_adv"_s, {rag, u"határozói igenév (-va/-ve)"_s}},
        {u"vÁn_PART_adv"_s, {rag, u"határozói igenév (-ván/-vén)"_s}},
        {u"hAt_MODAL_vrb"_s, {rag, u"-hat/-het (lehetőség)"_s}},
        {u"tAt_FACTITIVE_vrb_tr"_s, {képző, u"műveltetés (-at/-et, -tat/-tet)"_s}},
        {u"Ó_PRESPART_adj"_s, {képző, u"folyamatos melléknévi igenév (-ó/-ő)"_s}},
        {u"tt_PASTPART_adj"_s, {képző, u"befejezett melléknévi igenév (-t/-tt)"_s}},
        {u"AndÓ_FUTPART_adj"_s, {képző, u"beálló melléknévi igenév (-andó/-endő)"_s}},
    };
    return sorok;
}

const QHash<QString, címkesor> &képzők() {
    static const QHash<QString, címkesor> sorok{
        {u"Ás_PROCESS/RESULT_noun"_s, {képző, u"-ás/-és (cselekvés, eredmény)"_s}},
        {u"sÁg_ABSTRACT_noun"_s, {képző, u"-ság/-ség (elvont főnév)"_s}},
        {u"s_ATTRIBUTE_adj"_s, {képző, u"-s (valamivel ellátott vagy foglalkozó)"_s}},
        {u"s_OCCUPATION_noun"_s, {képző, u"-s (valamivel ellátott vagy foglalkozó)"_s}},
        {u"tAlAn_LESS_adj"_s, {képző, u"-talan/-telen, -tlan/-tlen (valami nélküli)"_s}},
        {u"mentes_FREE_adj"_s, {képző, u"-mentes (valami nélküli)"_s}},
        {u"hAtÓ_ABLE_(adj,present_part)"_s, {képző, u"-ható/-hető (amit lehet)"_s}},
        {u"hAtAtlAn_UNABLE_adj"_s, {képző, u"-hatatlan/-hetetlen (amit nem lehet)"_s}},
        {u"sít_SUPPLY_vrb_tr"_s, {képző, u"-sít (valamivel ellát, valamilyenné tesz)"_s}},
        {u"Ít_TRANSITIVE_vrb"_s, {képző, u"-ít (valamilyenné tesz)"_s}},
        {u"Odik_MEDIAL_vrb_it"_s, {képző, u"-odik/-edik/-ödik (valamilyenné válik)"_s}},
        {u"Ódik_PASSIVE_vrb_it"_s, {képző, u"-ódik/-ődik (magától megy végbe)"_s}},
        {u"gAt_FREQ_vrb"_s, {képző, u"-gat/-get (ismétlődő cselekvés)"_s}},
        {u"z_ACTION_vrb"_s, {képző, u"-z (valamivel cselekszik)"_s}},
        {u"né_MRS_noun"_s, {képző, u"-né (valakinek a felesége)"_s}},
        {u"cskA_DIMINUTIVE_(noun,adj)"_s, {képző, u"kicsinyítés (-cska/-cske)"_s}},
        {u"kA_DIMINUTIVE_(noun,adj)"_s, {képző, u"kicsinyítés (-ka/-ke)"_s}},
        {u"szerű_SORT_adj"_s, {képző, u"-szerű (hasonló)"_s}},
        {u"féle_SORT_adj"_s, {képző, u"-féle (valamilyen fajta)"_s}},
        {u"fajta_SORT_adj"_s, {képző, u"-fajta (valamilyen fajta)"_s}},
        {u"forma_FORMAL_adj"_s, {képző, u"-forma (hasonló)"_s}},
        {u"beli_LOCATIVE_adj"_s, {képző, u"-beli (valahol lévő)"_s}},
    };
    return sorok;
}

/// Moods and tenses, by how the tag of a finite ending begins.
QString igemód(QStringView címke) {
    static constexpr std::pair<QStringView, QStringView> módok[] = {
        {u"PRES_INDIC_", u"jelen idő"},  {u"PAST_INDIC_", u"múlt idő"},       {u"PRES_COND_", u"feltételes mód"},
        {u"FUTURE_INDIC_", u"jövő idő"}, {u"SUBJ/IMPER_", u"felszólító mód"},
    };
    for (const auto &[kezdet, név] : módok) {
        if (címke.startsWith(kezdet) && !személye(címke).isEmpty())
            return név.toString();
        if (címke.startsWith(kezdet) && címke.endsWith(u"_SG_1_OBJ_2"))
            return név.toString();
    }
    return {};
}

QString igealak(QStringView címke) {
    const QString mód = igemód(címke);
    if (mód.isEmpty())
        return {};
    if (címke.endsWith(u"_OBJ_2"))
        return mód + u", én téged (-lak/-lek)"_s;
    const QStringView ragozás = címke.contains(u"_INDEF_") ? u"alanyi ragozás" : u"tárgyas ragozás";
    return mód + u", "_s + személye(címke) + u", "_s + ragozás.toString();
}

/// Tags that end in a person but for those of finite verbs, and the postpositions, which stand in brackets.
QString személyes_alak(QStringView címke) {
    if (címke.startsWith(u"POSTP("))
        return u"névutó"_s;
    const QString személy = személye(címke);
    if (személy.isEmpty())
        return {};
    if (címke.startsWith(u"INF_"))
        return u"főnévi igenév (-ni), "_s + személy;
    if (címke.startsWith(u"POSS_") || címke.startsWith(u"noun_ref_"))
        return u"birtokos: "_s + személy;
    if (címke.size() == 4)
        return u"személy: "_s + személy;
    return {};
}

bool véges(const QString &címke) {
    return címke.startsWith(u"is:") && !igemód(QStringView(címke).mid(3)).isEmpty();
}

std::optional<címkesor> sora(const QString &címke) {
    const QString érték = címke.mid(3);
    // The data run it together with what follows.
    if (érték.startsWith(u"NOM"))
        return címkesor{.fajta = néma, .szöveg = {}};
    for (const auto *tábla : {&jelek_és_ragok(), &végződések(), &képzők()}) {
        const auto sor = tábla->constFind(érték);
        if (sor != tábla->constEnd())
            return *sor;
    }
    if (const QString ige = igealak(érték); !ige.isEmpty()) {
        // The form under which a verb stands in a dictionary.
        const bool szótári = érték == u"PRES_INDIC_INDEF_SG_3";
        return címkesor{.fajta = szótári ? néma : rag, .szöveg = ige};
    }
    if (const QString alak = személyes_alak(érték); !alak.isEmpty())
        return címkesor{.szöveg = alak};
    return std::nullopt;
}

/// A form "-dika" has no owner, though the dictionary may see one in it.
void napok(QStringList &címkék) {
    for (qsizetype i = 0; i + 1 < címkék.size(); ++i) {
        const bool birtok = címkék.at(i + 1) == u"is:POSSESSEE" || címkék.at(i + 1) == u"is:POSS_SG_3";
        if (címkék.at(i).startsWith(u"is:dik_ORDINAL_adj") && birtok) {
            címkék[i] = u"is:dikA_DATE_noun"_s;
            címkék.removeAt(i + 1);
        }
    }
}

/// The superlative has the comparative's ending, which says nothing more.
void fokok(QStringList &címkék) {
    if (címkék.isEmpty() || !címkék.first().startsWith(u"ip:leg"))
        return;
    const auto közép =
        std::ranges::find_if(címkék, [](const QString &c) { return c.endsWith(u":bb_COMPARATIVE_adj"); });
    if (közép != címkék.end()) {
        *közép = címkék.first();
        címkék.removeFirst();
    }
}

bool lehetetlen(const elemzés &elemzés, QStringView alak) {
    const QStringList &címkék = elemzés.címkék;
    if (std::ranges::count_if(címkék, véges) > 1)
        return true;
    // "legjobb" is of "jó", not of "jobb".
    if (elemzés.tő.endsWith(u"bb") && !címkék.isEmpty() && címkék.first().startsWith(u"ip:leg"))
        return true;
    // Pronouns have none: "engem".
    const bool névmás = elemzés.szófaj == u"noun_pron";
    if (!névmás && !címkék.isEmpty() && címkék.last() == u"is:ACC" && !alak.endsWith(u't', Qt::CaseInsensitive))
        return true;
    // "mi" of "mit" is the question, not "we".
    const qsizetype alany = címkék.indexOf(u"is:NOM"_s);
    return névmás && alany >= 0 && alany + 1 < címkék.size();
}

}  // namespace

QString személye(QStringView címke) {
    static constexpr std::pair<QStringView, QStringView> személyek[] = {
        {u"SG_1", u"én"}, {u"SG_2", u"te"}, {u"SG_3", u"ő"}, {u"PL_1", u"mi"}, {u"PL_2", u"ti"}, {u"PL_3", u"ők"},
    };
    for (const auto &[vég, személy] : személyek) {
        if (címke.endsWith(vég))
            return személy.toString();
    }
    return {};
}

std::optional<címkefajta> fajtája(const QString &címke) {
    const auto sor = sora(címke);
    return sor ? std::optional(sor->fajta) : std::nullopt;
}

std::optional<QStringList> beszédes_címkék(const elemzés &elemzés, QStringView alak) {
    if (lehetetlen(elemzés, alak))
        return std::nullopt;
    QStringList címkék;
    for (qsizetype i = 0; i < elemzés.címkék.size(); ++i) {
        const QString &címke = elemzés.címkék.at(i);
        const auto toldalék = [](const QString &c) { return c.startsWith(u"is:") || c.startsWith(u"ds:"); };
        const bool folytatódik = std::any_of(elemzés.címkék.begin() + i + 1, elemzés.címkék.end(), toldalék);
        // What the stem in front of an ending is says nothing of the form: "lov-" is a plural's stem in "lovam", too.
        if (címke.startsWith(u"ts:") && folytatódik)
            continue;
        if (const auto fajta = fajtája(címke); fajta && *fajta != néma)
            címkék.append(címke);
    }
    if (const QString személy = személye(elemzés.szófaj); !személy.isEmpty() && személy != u"ő")
        címkék.prepend(u"is:"_s + elemzés.szófaj.mid(elemzés.szófaj.indexOf(u"noun_ref")));
    napok(címkék);
    fokok(címkék);
    return címkék;
}

QString címkék_magyarázata(const QStringList &címkék, const QString &szófaj) {
    QStringList részek;
    for (const QString &címke : címkék) {
        const auto sor = sora(címke);
        if (!sor || sor->szöveg.isEmpty())
            continue;
        const bool hányan = szófaj.startsWith(u"adj_num") && címke.endsWith(u":An_MODE_adv");
        részek.append(hányan ? u"-an/-en (hányan?)"_s : sor->szöveg);
    }
    return részek.join(u" + ");
}
