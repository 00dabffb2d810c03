#include "forms/hungarian_readings.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "forms/hungarian_exceptions.h"
#include "forms/hungarian_tags.h"

using namespace Qt::StringLiterals;

namespace {

// How much less likely a reading is than a plain one.
constexpr int minden_címke = 2;
constexpr int felszólítás = 1;
constexpr int ritka_rag = 12;
constexpr int képzés = 20;
constexpr int régies = 10;
constexpr int összetétel = 200;
constexpr int előtaggal = 60;
constexpr int név = 6;
constexpr int leggyakoribb = 4;
constexpr int szokatlan = 6;
constexpr int ritkább_ige = 1;
constexpr int képzett_alap = 1;
/// A form that is a headword, but not as a word of the Hungarian dictionary, stands behind what it is made of.
constexpr int képzett_önmaga = 30;
/// What is less likely than the first reading by more than this only confuses.
constexpr int legfeljebb = 34;

std::vector<elemzés> elemzései(const QString &szó, const szóelemző &elemző) {
    std::vector<elemzés> mind;
    for (const QByteArray &szöveg : elemző.elemzések(szó.toUtf8())) {
        for (elemzés &egy : elemzések_szövegből(szöveg))
            mind.push_back(std::move(egy));
    }
    return mind;
}

QString kisbetűs(const QString &szó) {
    return szó.toLower();
}

QString nagy_kezdőbetűs(const QString &szó) {
    return szó.left(1).toUpper() + szó.mid(1);
}

/// With a short vowel at its end: "alma" of "almá".
QString rövid_végű(QString szó) {
    if (szó.endsWith(u'á'))
        szó.back() = u'a';
    else if (szó.endsWith(u'é'))
        szó.back() = u'e';
    return szó;
}

bool képzőcímke(const QString &címke) {
    return fajtája(címke) == címkefajta::képző;
}

int súlya(const QString &címke) {
    int súly = minden_címke;
    const QString érték = címke.mid(3);
    if (érték == u"POSSESSEE" || érték == u"FAM" || érték == u"ék_FAMILIAR_noun" || érték == u"FORM")
        súly += ritka_rag;
    if (érték == u"EMPH" || érték == u"SUBS")
        súly += régies;
    if (érték.startsWith(u"SUBJ/"))
        súly += felszólítás;
    if (érték.startsWith(u"bb_"))
        súly -= leggyakoribb;
    if (képzőcímke(címke))
        súly += képzés;
    return súly;
}

int súlyuk(const QStringList &címkék) {
    int összesen = 0;
    for (const QString &címke : címkék)
        összesen += súlya(címke);
    return összesen;
}

/// The commonest verbs of all: their forms are likelier than words that are written alike.
bool leggyakoribb_ige(const QString &tő) {
    static const QStringList igék{u"van"_s,  u"megy"_s, u"jön"_s,  u"lesz"_s,  u"tesz"_s,
                                  u"vesz"_s, u"visz"_s, u"hisz"_s, u"eszik"_s, u"iszik"_s};
    return igék.contains(tő);
}

/// The adjective of "jobban" has the ending of an adverb rather than that of a place, that of "vártunk" is a verb.
bool melléknévhez_illik(const QString &címke) {
    static const QStringList ritka{u"is:INE"_s, u"is:SUE"_s};
    return !ritka.contains(címke) && !címke.startsWith(u"is:POSS_");
}

/// A verb "-tat" or "-tet" that makes others do something is rarer than the one that it comes from.
bool műveltető(const elemzés &elemzés) {
    return elemzés.szófaj == u"vrb" && (elemzés.tő.endsWith(u"tat") || elemzés.tő.endsWith(u"tet"));
}

int elemzés_súlya(const elemzés &elemzés, const QStringList &címkék) {
    int súly = súlyuk(címkék) + static_cast<int>(elemzés.előtagok.size()) * összetétel;
    if (elemzés.szófaj == u"noun_prs")
        súly += név;
    if (elemzés.szófaj == u"adj" && !std::ranges::all_of(címkék, melléknévhez_illik))
        súly += szokatlan;
    if (műveltető(elemzés))
        súly += ritkább_ige;
    if (elemzés.szófaj.startsWith(u"noun_pron") || elemzés.szófaj.startsWith(u"noun_ref"))
        súly -= leggyakoribb;
    const bool véges = std::ranges::any_of(címkék, [](const QString &c) { return c.contains(u"_INDIC_"); });
    // "vagy" is hardly ever "you are".
    const bool vagy = elemzés.tő == u"van" && címkék.contains(u"is:PRES_INDIC_INDEF_SG_2"_s);
    if (véges && !vagy && elemzés.igekötő.isEmpty() && leggyakoribb_ige(elemzés.tő))
        súly -= leggyakoribb;
    return súly;
}

/// True of "is:SG_1" to "is:PL_3".
bool személyt_mond(const QString &címke) {
    return címke.size() == 7 && !személye(címke).isEmpty();
}

/// What the base is and what stands in front of it.
struct alap {
    QString előtag;
    QString tő;
};

/// The bases that an analysis may mean, the longest first: of "ab" + "c" + "d" these are "abcd", "cd", "d".
std::vector<alap> lehetséges_alapok(const elemzés &elemzés) {
    std::vector<alap> mind;
    const QString tő = elemzés.igekötő + elemzés.tő;
    for (qsizetype i = 0; i <= elemzés.előtagok.size(); ++i) {
        const QString előtte = elemzés.előtagok.mid(0, i).join(QString());
        mind.push_back({.előtag = előtte, .tő = elemzés.előtagok.mid(i).join(QString()) + tő});
    }
    if (!elemzés.igekötő.isEmpty()) {
        const QString előtte = elemzés.előtagok.join(QString()) + elemzés.igekötő;
        mind.push_back({.előtag = előtte, .tő = elemzés.tő});
    }
    return mind;
}

/// A compound that the Hungarian dictionary has as one word and ours has not, taken apart where both parts are
/// headwords: the longest tail is the base.
std::optional<alap> szétszedve(const QString &tő, const címszókérdések &kérdések) {
    constexpr qsizetype legrövidebb_előtag = 2;
    constexpr qsizetype legrövidebb_alap = 3;
    for (qsizetype hol = legrövidebb_előtag; hol + legrövidebb_alap <= tő.size(); ++hol) {
        if (kérdések.van(QStringView(tő).sliced(hol)) && kérdések.van(QStringView(tő).first(hol)))
            return alap{.előtag = tő.first(hol), .tő = tő.sliced(hol)};
    }
    return std::nullopt;
}

/// Two equal but for the conjugation, as "láttam", are one.
QString közös_ragozás(const QString &magyarázat) {
    static const QString kettő = u"alanyi vagy tárgyas ragozás"_s;
    QString közös = magyarázat;
    if (!közös.contains(kettő))
        közös.replace(u"alanyi ragozás"_s, kettő).replace(u"tárgyas ragozás"_s, kettő);
    return közös.replace(u"alanyi vagy alanyi vagy"_s, u"alanyi vagy"_s);
}

}  // namespace

olvasatkészítő::olvasatkészítő(const szóelemző &szóelemző, const címszókérdések &kérdések, QString alak)
    : szóelemző_(szóelemző), kérdések_(kérdések), alak_(std::move(alak)) {}

std::vector<olvasat> olvasatkészítő::olvasatok() {
    elemzések_ = elemzései(alak_, szóelemző_);
    if (const auto kivétel = kivételes_olvasat(alak_); kivétel && kérdések_.van(kivétel->alapalak))
        felvesz(*kivétel, -minden_címke);
    for (const elemzés &elemzés : elemzések_)
        elemzést_olvas(elemzés);
    önmagát_felveszi();
    return rendezve();
}

void olvasatkészítő::elemzést_olvas(const elemzés &nyers) {
    const elemzés elemzés = szótári_tővel(nyers, alak_);
    const auto címkék = beszédes_címkék(elemzés, alak_);
    if (!címkék)
        return;
    if (elemzés.szófaj == u"noun_pron" && std::ranges::any_of(*címkék, személyt_mond))
        return névmást_olvas(*címkék, elemzés.szófaj);
    képzett_alapot_keres(elemzés, *címkék);
    std::vector<alap> alapok = lehetséges_alapok(elemzés);
    auto választott = std::ranges::find_if(alapok, [this](const alap &a) { return kérdések_.van(a.tő); });
    if (választott == alapok.end()) {
        auto részek = szétszedve(elemzés.igekötő + elemzés.tő, kérdések_);
        if (!részek)
            return;
        részek->előtag.prepend(elemzés.előtagok.join(QString()));
        választott = alapok.insert(alapok.end(), *std::move(részek));
    }
    // The form itself is a reading of its own, and nothing can be said of another base without an ending.
    if (választott->előtag.isEmpty() && címkék->isEmpty())
        return;
    int súly = elemzés_súlya(elemzés, *címkék);
    súly += választott->előtag.isEmpty() ? 0 : előtaggal;
    felvesz({.alapalak = választott->tő,
             .magyarázat = címkék_magyarázata(*címkék, elemzés.szófaj),
             .előtag = választott->előtag},
            súly, *címkék);
}

void olvasatkészítő::névmást_olvas(const QStringList &címkék, const QString &szófaj) {
    const auto személy = std::ranges::find_if(címkék, személyt_mond);
    const auto névutó = std::ranges::find_if(címkék, [](const QString &c) { return c.startsWith(u"is:POSTP("); });
    QStringList többi = címkék;
    QString alapalak = személye(*személy);
    if (névutó != címkék.end()) {
        // "mellettem" is "mellett" with a person.
        alapalak = névutó->mid(9);
        alapalak.chop(1);
        többi.removeOne(*névutó);
    } else {
        // "velem" is "én" with a case.
        többi.removeOne(*személy);
    }
    if (kérdések_.van(alapalak) && kisbetűs(alapalak) != kisbetűs(alak_))
        felvesz({.alapalak = alapalak, .magyarázat = címkék_magyarázata(többi, szófaj)}, súlyuk(többi) - leggyakoribb);
}

void olvasatkészítő::képzett_alapot_keres(const elemzés &elemzés, const QStringList &címkék) {
    const auto utolsó = std::ranges::find_if(címkék.rbegin(), címkék.rend(), képzőcímke);
    if (utolsó == címkék.rend() || utolsó == címkék.rbegin())
        return;
    constexpr qsizetype legrövidebb = 3;
    const QString eleje = elemzés.előtagok.join(QString());
    const QString szó = kisbetűs(alak_).mid(eleje.size());
    for (qsizetype hossz = szó.size() - 1; hossz >= legrövidebb; --hossz) {
        for (const QString &kezdet : {szó.first(hossz), rövid_végű(szó.first(hossz))}) {
            const bool egészben = kérdések_.van(eleje + kezdet);
            const bool címszó = egészben || kérdések_.van(kezdet);
            const qsizetype képzők = címszó ? egyező_képzők(kezdet, elemzés, címkék) : 0;
            if (képzők == 0)
                continue;
            const QStringList vége = címkék.sliced(képzők);
            int súly = súlyuk(vége) + képzett_alap + static_cast<int>(elemzés.előtagok.size()) * összetétel;
            súly += egészben ? 0 : előtaggal;
            felvesz({.alapalak = egészben ? eleje + kezdet : kezdet,
                     .magyarázat = címkék_magyarázata(vége, elemzés.szófaj),
                     .előtag = egészben ? QString() : eleje},
                    súly, vége);
            return;
        }
    }
}

qsizetype olvasatkészítő::egyező_képzők(const QString &kezdet, const elemzés &egész, const QStringList &címkék) const {
    for (const elemzés &egy : elemzései(kezdet, szóelemző_)) {
        const auto övéi = beszédes_címkék(egy, kezdet);
        const bool azonos = egy.tő == egész.tő && egy.igekötő == egész.igekötő && egy.előtagok.isEmpty();
        if (azonos && övéi && !övéi->isEmpty() && övéi->size() < címkék.size() && képzőcímke(övéi->last()) &&
            std::ranges::equal(*övéi, címkék.first(övéi->size())))
            return övéi->size();
    }
    return 0;
}

void olvasatkészítő::önmagát_felveszi() {
    for (const QString &címszó : {alak_, kisbetűs(alak_), nagy_kezdőbetűs(kisbetűs(alak_))}) {
        if (!kérdések_.van(címszó))
            continue;
        const bool szó = elemzések_.empty() || std::ranges::any_of(elemzések_, [&](const elemzés &elemzés) {
                             const auto címkék = beszédes_címkék(elemzés, alak_);
                             return címkék && címkék->isEmpty() && elemzés.előtagok.isEmpty() &&
                                    kisbetűs(elemzés.igekötő + elemzés.tő) == kisbetűs(címszó);
                         });
        felvesz({.alapalak = címszó, .magyarázat = {}}, szó ? 0 : képzett_önmaga);
        return;
    }
}

void olvasatkészítő::felvesz(olvasat mit, int súly, const QStringList &címkék) {
    const QString közös = közös_ragozás(mit.magyarázat);
    for (súlyozott &másik : jelöltek_) {
        if (másik.mit.alapalak != mit.alapalak || közös_ragozás(másik.mit.magyarázat) != közös)
            continue;
        if (másik.mit.magyarázat != mit.magyarázat)
            másik.mit.magyarázat = közös;
        másik.súly = std::min(másik.súly, súly);
        return;
    }
    jelöltek_.push_back({.mit = std::move(mit), .súly = súly, .címkék = címkék});
}

namespace {

/// Makes a word whose meaning does not tell what it was made of, unlike "-dik" and "-tat".
bool szóalkotó(const QString &címke) {
    return képzőcímke(címke) && !címke.contains(u"_ORDINAL_") && !címke.contains(u"_FACTITIVE_");
}

}  // namespace

void olvasatkészítő::felbontottakat_elhagy() {
    const auto ugyanaz_képzővel = [](const súlyozott &hosszabb, const súlyozott &rövidebb) {
        const qsizetype képzők = hosszabb.címkék.size() - rövidebb.címkék.size();
        return képzők > 0 && !rövidebb.címkék.isEmpty() && rövidebb.súly <= hosszabb.súly &&
               rövidebb.mit.előtag == hosszabb.mit.előtag &&
               std::ranges::all_of(hosszabb.címkék.first(képzők), szóalkotó) &&
               hosszabb.címkék.sliced(képzők) == rövidebb.címkék;
    };
    const std::vector<súlyozott> mind = jelöltek_;
    std::erase_if(jelöltek_, [&](const súlyozott &hosszabb) {
        return std::ranges::any_of(mind,
                                   [&](const súlyozott &rövidebb) { return ugyanaz_képzővel(hosszabb, rövidebb); });
    });
}

std::vector<olvasat> olvasatkészítő::rendezve() {
    felbontottakat_elhagy();
    const auto gyakoriság = [this](const súlyozott &jelölt) {
        return kérdések_.gyakoriság ? kérdések_.gyakoriság(jelölt.mit.alapalak) : 0;
    };
    std::ranges::stable_sort(jelöltek_, [&](const súlyozott &egyik, const súlyozott &másik) {
        return egyik.súly != másik.súly ? egyik.súly < másik.súly : gyakoriság(egyik) > gyakoriság(másik);
    });
    std::vector<olvasat> sorban;
    for (súlyozott &jelölt : jelöltek_) {
        if (jelölt.súly <= jelöltek_.front().súly + legfeljebb)
            sorban.push_back(std::move(jelölt.mit));
    }
    return sorban;
}
