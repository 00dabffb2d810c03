#include "forms/english_readings.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "forms/english_contractions.h"

using namespace Qt::StringLiterals;

namespace {

using enum angol_szófaj;

constexpr qsizetype legrövidebb_tő = 3;
/// A word of its own is likelier than the inflected form of another when texts have it so many times as often.
constexpr int sokkal_gyakoribb = 3;

/// An ending and what stands in its place in the base.
struct végződés {
    QStringView alak;
    QStringView alap;
};

bool mássalhangzó(QChar betű) {
    return betű.isLetter() && !QStringView(u"aeiou").contains(betű);
}

bool kettőzött(const QString &szó) {
    const qsizetype hossz = szó.size();
    return hossz > legrövidebb_tő && szó.at(hossz - 1) == szó.at(hossz - 2) && mássalhangzó(szó.back());
}

/// One syllable that ends in a vowel and a consonant: such a stem doubles its last letter, so "hoped" is not of "hop".
bool kettőzne(const QString &tő) {
    const auto magánhangzó = [](QChar betű) { return QStringView(u"aeiou").contains(betű); };
    const qsizetype hossz = tő.size();
    if (hossz < legrövidebb_tő || std::ranges::count_if(tő, magánhangzó) != 1)
        return false;
    return magánhangzó(tő.at(hossz - 2)) && mássalhangzó(tő.back()) && !QStringView(u"wxy").contains(tő.back());
}

/// The stems that may have taken the ending: "mak-" is "make" or "mak", "stopp-" is "stop", too.
QStringList tövek(const QString &alak, QStringView vég) {
    if (!alak.endsWith(vég))
        return {};
    const QString tő = alak.chopped(vég.size());
    if (tő.size() + 1 < legrövidebb_tő)
        return {};
    QStringList mind{tő + u'e'};
    if (!kettőzne(tő))
        mind.prepend(tő);
    if (tő.endsWith(u'i'))
        mind.prepend(tő.chopped(1) + u'y');
    if (kettőzött(tő))
        mind.append(tő.chopped(1));
    if (tő.endsWith(u"ck"))
        mind.append(tő.chopped(1));
    return mind;
}

/// What takes an "s" has taken it off: "watches" is "watch", "cities" is "city".
QStringList s_nélkül(const QString &alak) {
    static constexpr végződés végek[] = {
        {u"ies", u"y"},   {u"sses", u"ss"}, {u"xes", u"x"}, {u"zzes", u"z"}, {u"zes", u"z"},
        {u"ches", u"ch"}, {u"shes", u"sh"}, {u"ses", u"s"}, {u"oes", u"o"},  {u"s", u""},
    };
    if (!alak.endsWith(u's') || alak.endsWith(u"ss"))
        return {};
    QStringList mind;
    for (const auto &[vég, alap] : végek) {
        if (alak.endsWith(vég))
            mind.append(alak.chopped(vég.size()) + alap.toString());
    }
    return mind;
}

/// Plurals that came with the word from Latin and Greek.
QStringList idegen_többes_alapjai(const QString &alak) {
    static constexpr végződés végek[] = {
        {u"a", u"um"}, {u"a", u"on"}, {u"i", u"us"}, {u"ae", u"a"}, {u"ices", u"ex"}, {u"ices", u"ix"}, {u"es", u"is"},
    };
    QStringList mind;
    for (const auto &[vég, alap] : végek) {
        if (alak.endsWith(vég) && alak.size() > vég.size() + 1)
            mind.append(alak.chopped(vég.size()) + alap.toString());
    }
    return mind;
}

/// Degrees that WordNet takes for words of their own.
QStringList fok_alapjai(const QString &alak) {
    static const QHash<QString, QStringList> tábla{
        {u"farther"_s, {u"far"_s}},
        {u"farthest"_s, {u"far"_s}},
        {u"further"_s, {u"far"_s}},
        {u"furthest"_s, {u"far"_s}},
        {u"elder"_s, {u"old"_s}},
        {u"eldest"_s, {u"old"_s}},
        {u"less"_s, {u"little"_s}},
        {u"least"_s, {u"little"_s}},
        {u"more"_s, {u"much"_s, u"many"_s}},
        {u"most"_s, {u"much"_s, u"many"_s}},
        {u"worse"_s, {u"bad"_s, u"badly"_s}},
        {u"worst"_s, {u"bad"_s, u"badly"_s}},
    };
    return tábla.value(alak);
}

bool igenévi(const QString &alak) {
    return alak.endsWith(u'n') || alak.endsWith(u"ne");
}

QString u_helyett_a(QString alak) {
    return alak.replace(u'u', u'a');
}

}  // namespace

angol_olvasatkészítő::angol_olvasatkészítő(const angol_adatok &adatok, const QMultiHash<QString, hozott_alak> &hozottak,
                                           const címszókérdések &kérdések, QString alak)
    : adatok_(adatok), hozottak_(hozottak), kérdések_(kérdések), alak_(std::move(alak)) {}

std::vector<olvasat> angol_olvasatkészítő::olvasatok() {
    összevonást_olvas();
    birtokost_olvas();
    rendhagyót_olvas();
    hozottat_olvas();
    főnevet_olvas();
    igét_olvas();
    melléknevet_olvas();
    önmagát_felveszi();
    bizonytalanokat_jelöl();
    std::ranges::stable_sort(jelöltek_, [](const jelölt &egyik, const jelölt &másik) {
        return egyik.mennyire != másik.mennyire ? egyik.mennyire < másik.mennyire : egyik.gyakoriság > másik.gyakoriság;
    });
    std::vector<olvasat> sorban;
    for (jelölt &egy : jelöltek_)
        sorban.push_back(std::move(egy.mit));
    return sorban;
}

void angol_olvasatkészítő::bizonytalanokat_jelöl() {
    const auto ismert = [](const jelölt &egy) { return egy.gyakoriság >= 0; };
    const auto ritka = [&](const jelölt &egy) { return egy.mennyire == bizonyosság::szabályos && !ismert(egy); };
    // Beside an irregular form a rare word is a coincidence: "lying" is not of "to lye".
    if (std::ranges::any_of(jelöltek_, [](const jelölt &egy) { return egy.mennyire == bizonyosság::rendhagyó; })) {
        std::erase_if(jelöltek_, ritka);
        return;
    }
    if (std::ranges::none_of(jelöltek_, ismert))
        return;
    for (jelölt &egy : jelöltek_) {
        if (ritka(egy))
            egy.mennyire = bizonyosság::bizonytalan;
    }
}

void angol_olvasatkészítő::összevonást_olvas() {
    for (const olvasat &lehetséges : összevont_alakok(alak_)) {
        if (kérdések_.van(lehetséges.alapalak))
            felvesz({.mit = lehetséges, .mennyire = bizonyosság::összevonás, .gyakoriság = 0});
    }
}

void angol_olvasatkészítő::birtokost_olvas() {
    // "let's" owns nothing.
    if (!jelöltek_.empty())
        return;
    if (alak_.endsWith(u"'s")) {
        const QString tő = alak_.chopped(2);
        for (const QString &egyes : rendhagyó_többes_alapjai(tő))
            főnév(egyes, english::többes_szám + u", "_s + english::birtokos_eset, bizonyosság::összevonás);
        főnév(tő, english::birtokos_eset, bizonyosság::rendhagyó);
    } else if (alak_.endsWith(u"s'")) {
        const QString többes = alak_.chopped(1);
        for (const QString &egyes : s_nélkül(többes) + rendhagyó_többes_alapjai(többes))
            főnév(egyes, english::többes_birtokos, bizonyosság::szabályos);
        főnév(többes, english::birtokos_eset, bizonyosság::bizonytalan);
    }
}

QStringList angol_olvasatkészítő::rendhagyó_többes_alapjai(const QString &többes) const {
    QStringList mind = adatok_.alapalakok(angol_szófaj::főnév, többes);
    // "policemen", "Englishmen"
    if (többes.endsWith(u"men") && többes.size() >= legrövidebb_tő)
        mind.append(többes.chopped(3) + u"man"_s);
    mind.removeDuplicates();
    return mind;
}

void angol_olvasatkészítő::rendhagyót_olvas() {
    const QStringList szabályosak = s_nélkül(alak_);
    for (const QString &tő : rendhagyó_többes_alapjai(alak_)) {
        // WordNet lists what the rules tell, too.
        const bool szabályos = szabályosak.contains(tő);
        főnév(tő, english::többes_szám, szabályos ? bizonyosság::szabályos : bizonyosság::rendhagyó);
    }
    for (const QString &tő : idegen_többes_alapjai(alak_))
        főnév(tő, english::többes_szám, bizonyosság::bizonytalan);
    for (const QString &tő : fok_alapjai(alak_))
        melléknév(tő, alak_.endsWith(u"st") ? english::felsőfok : english::középfok, bizonyosság::rendhagyó);
    for (const QString &tő : adatok_.alapalakok(angol_szófaj::ige, alak_))
        ige(tő, igealak(tő), bizonyosság::rendhagyó);
    for (const auto szófaj : {angol_szófaj::melléknév, angol_szófaj::határozó}) {
        for (const QString &tő : adatok_.alapalakok(szófaj, alak_)) {
            const bool felső = alak_.endsWith(u"st");
            melléknév(tő, felső ? english::felsőfok : english::középfok, bizonyosság::rendhagyó);
        }
    }
}

QString angol_olvasatkészítő::igealak(const QString &tő) const {
    if (alak_.endsWith(u"ing"))
        return english::ing_alak;
    if (alak_ == u"am" || alak_ == u"are")
        return alak_ == u"am" ? u"jelen idő, én"_s : u"jelen idő, te, mi, ti, ők"_s;
    if (alak_.endsWith(u's') && alak_ != u"was")
        return english::harmadik_személy;
    const auto [első, utolsó] = hozottak_.equal_range(alak_);
    const auto hozott = std::find_if(első, utolsó, [&](const hozott_alak &h) { return h.alapalak == u"to "_s + tő; });
    if (hozott != utolsó)
        return hozott->magyarázat;
    QStringList többi = adatok_.alakok(angol_szófaj::ige, tő);
    többi.removeIf([](const QString &alak) { return alak.endsWith(u"ing") || alak.endsWith(u's'); });
    if (std::ranges::none_of(többi, igenévi)) {
        if (alak_ != u_helyett_a(alak_) && többi.contains(u_helyett_a(alak_)))
            return english::múlt_idejű_igenév;
        return többi.size() > 1 && alak_.contains(u'a') ? english::múlt_idő : english::múlt_vagy_igenév;
    }
    if (igenévi(alak_))
        return english::múlt_idejű_igenév;
    return english::múlt_idő;
}

void angol_olvasatkészítő::hozottat_olvas() {
    const auto [első, utolsó] = hozottak_.equal_range(alak_.toLower());
    for (auto hozott = első; hozott != utolsó; ++hozott) {
        const bool ige = hozott->alapalak.startsWith(u"to ");
        const auto szófaj = ige ? angol_szófaj::ige : angol_szófaj::főnév;
        const QString tő = ige ? hozott->alapalak.mid(3) : hozott->alapalak;
        // What WordNet does not know of is rare at best: "typed" of "to typewrite".
        const bool ismert = adatok_.alapalakok(szófaj, alak_.toLower()).contains(tő);
        felvesz({.mit = {.alapalak = hozott->alapalak, .magyarázat = hozott->magyarázat},
                 .mennyire = ismert ? bizonyosság::rendhagyó : bizonyosság::bizonytalan,
                 .gyakoriság = adatok_.gyakoriság(szófaj, tő)});
    }
}

void angol_olvasatkészítő::főnevet_olvas() {
    for (const QString &tő : s_nélkül(alak_)) {
        const bool más_szófaj =
            adatok_.gyakoriság(angol_szófaj::főnév, tő) < 0 &&
            (adatok_.gyakoriság(angol_szófaj::ige, tő) > 0 || adatok_.gyakoriság(angol_szófaj::melléknév, tő) > 0 ||
             adatok_.gyakoriság(angol_szófaj::határozó, tő) > 0);
        if (tő.size() >= legrövidebb_tő)
            főnév(tő, english::többes_szám, más_szófaj ? bizonyosság::bizonytalan : bizonyosság::szabályos);
    }
}

void angol_olvasatkészítő::igét_olvas() {
    for (const QString &tő : s_nélkül(alak_)) {
        if (tő.size() >= legrövidebb_tő || tő == u"do" || tő == u"go")
            ige(tő, english::harmadik_személy, bizonyosság::szabályos);
    }
    QStringList ing = tövek(alak_, u"ing");
    if (alak_.endsWith(u"ying"))
        ing.prepend(alak_.chopped(4) + u"ie"_s);
    for (const QString &tő : ing) {
        if (tő.size() >= 2 && !tő.endsWith(u"ee") == !alak_.endsWith(u"eeing"))
            ige(tő, english::ing_alak, bizonyosság::szabályos);
    }
    for (const QString &tő : tövek(alak_, u"ed"))
        ige(tő, english::múlt_vagy_igenév, bizonyosság::szabályos);
}

void angol_olvasatkészítő::melléknevet_olvas() {
    for (const QString &tő : tövek(alak_, u"er"))
        melléknév(tő, english::középfok, bizonyosság::szabályos);
    for (const QString &tő : tövek(alak_, u"est"))
        melléknév(tő, english::felsőfok, bizonyosság::szabályos);
    // Adverbs are mostly headwords; the others follow from their adjectives.
    if (!alak_.endsWith(u"ly") || alak_.size() <= legrövidebb_tő || kérdések_.van(alak_))
        return;
    const QString tő = alak_.chopped(2);
    for (const QString &lehetséges : {tő, tő + u"le"_s, tő.chopped(1) + u'y'})
        melléknév(lehetséges, english::ly_határozó, bizonyosság::bizonytalan);
}

void angol_olvasatkészítő::önmagát_felveszi() {
    int legtöbb = -1;
    for (const auto szófaj : {angol_szófaj::főnév, angol_szófaj::melléknév, angol_szófaj::határozó})
        legtöbb = std::max(legtöbb, adatok_.gyakoriság(szófaj, alak_));
    const auto szabályos = [](const jelölt &egy) { return egy.mennyire >= bizonyosság::szabályos; };
    int más = 0;
    for (const jelölt &egy : jelöltek_)
        más = std::max(más, egy.gyakoriság);
    const bool gyakoribb = std::ranges::all_of(jelöltek_, szabályos) && legtöbb > sokkal_gyakoribb * más;
    if (kérdések_.van(alak_)) {
        felvesz({.mit = {.alapalak = alak_, .magyarázat = {}},
                 .mennyire = gyakoribb ? bizonyosság::összevonás : bizonyosság::önmaga,
                 .gyakoriság = legtöbb});
    }
    if (const QString mint_ige = u"to "_s + alak_; kérdések_.van(mint_ige)) {
        felvesz({.mit = {.alapalak = mint_ige, .magyarázat = {}},
                 .mennyire = bizonyosság::önmaga,
                 .gyakoriság = adatok_.gyakoriság(angol_szófaj::ige, alak_)});
    }
}

void angol_olvasatkészítő::főnév(const QString &tő, const QString &magyarázat, bizonyosság mennyire) {
    if (kérdések_.van(tő)) {
        felvesz({.mit = {.alapalak = tő, .magyarázat = magyarázat},
                 .mennyire = mennyire,
                 .gyakoriság = adatok_.gyakoriság(angol_szófaj::főnév, tő)});
    }
}

void angol_olvasatkészítő::ige(const QString &tő, const QString &magyarázat, bizonyosság mennyire) {
    if (const QString alapalak = u"to "_s + tő; kérdések_.van(alapalak)) {
        felvesz({.mit = {.alapalak = alapalak, .magyarázat = magyarázat},
                 .mennyire = mennyire,
                 .gyakoriság = adatok_.gyakoriság(angol_szófaj::ige, tő)});
    }
}

void angol_olvasatkészítő::melléknév(const QString &tő, const QString &magyarázat, bizonyosság mennyire) {
    const int gyakoriság =
        std::max(adatok_.gyakoriság(angol_szófaj::melléknév, tő), adatok_.gyakoriság(angol_szófaj::határozó, tő));
    if ((gyakoriság >= 0 || mennyire == bizonyosság::rendhagyó) && kérdések_.van(tő)) {
        felvesz({.mit = {.alapalak = tő, .magyarázat = magyarázat}, .mennyire = mennyire, .gyakoriság = gyakoriság});
    }
}

void angol_olvasatkészítő::felvesz(jelölt új) {
    const auto azonos = std::ranges::find(jelöltek_, új.mit, &jelölt::mit);
    if (azonos == jelöltek_.end())
        jelöltek_.push_back(std::move(új));
    else
        azonos->mennyire = std::min(azonos->mennyire, új.mennyire);
}
