#include "wordlist/word_list_files.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <new>
#include <utility>

#include "platform/files.h"
#include "wordlist/recent_files.h"
#include "wordlist/szs_file.h"

using namespace Qt::StringLiterals;

namespace {

const QString kilépéscím = u"Kilépés"_s;
const QString mentéskérdés = u"Akarja menteni a változtatásokat?"_s;
const QString csillag = u"*"_s;
const QString nincs_neve =
    u"A változtatások nincsenek elmentve, mert a „Ment másként...” ablaka név nélkül zárult be. Adjon nevet a "
    "szószedetnek a „Fájl” menü „Ment másként...” pontjában, aztán próbálja újra."_s;

/// "*" in front of the current file's name says that its naming was cancelled.
bool menthető(const QString &fájl) {
    return !fájl.isEmpty() && !fájl.startsWith(csillag);
}

/// A dot is allowed only in the extension's place, among the last four characters.
bool van_benne_pont(const QString &út) {
    return út.chopped(std::min<qsizetype>(4, út.size())).contains(u'.');
}

}  // namespace

szószedetfájlok::szószedetfájlok(global::programállapot &állapot, szópárlista &lista, szószedetablak &ablak,
                                 MessageBoxes &üzenetek, FileDialogs &fájlablakok, QString legutóbbi)
    : állapot_(állapot),
      lista_(lista),
      ablak_(ablak),
      üzenetek_(üzenetek),
      fájlablakok_(fájlablakok),
      legutóbbi_(std::move(legutóbbi)) {}

void szószedetfájlok::fájlmegnyit(const QString &út, const QVector<szópár> &párok) {
    állapot_.aktuálisfájl = út;
    lista_.hozzáfűz(párok);
    állapot_.változott = 0;
    ablak_.változást_mutat();
    címbeállít();
    ablak_.listához_igazít();
}

void szószedetfájlok::parancssorból(const QString &parancssor) {
    if (parancssor.isEmpty())
        return;
    // The quotation marks stand there on Windows; a shell or a desktop has taken them already.
    const bool idézett = parancssor.size() >= 2 && parancssor.startsWith(u'"') && parancssor.endsWith(u'"');
    const QString út = idézett ? parancssor.mid(1, parancssor.size() - 2) : parancssor;
    if (!files::exists(út)) {
        üzenetek_.tell(u"Sikertelen fájlmegnyitás!"_s);
        return;
    }
    if (const auto párok = párokat(út))
        fájlmegnyit(QDir::toNativeSeparators(QFileInfo(út).absoluteFilePath()), *párok);
}

bool szószedetfájlok::elengedhető() {
    return !mentetlen() || üzenetek_.ask_yes_no(kilépéscím, mentéskérdés) == Answer::no || kérésre_ment();
}

bool szószedetfájlok::kérésre_ment() {
    // Nothing else is said when such a list is saved.
    if (állapot_.aktuálisfájl.startsWith(csillag))
        üzenetek_.tell(nincs_neve);
    mentésmégse_ = false;
    szószedetmentés();
    return !mentésmégse_;
}

void szószedetfájlok::ürít() {
    lista_.kiürít();
    ablak_.szövegmezőketürít();
}

void szószedetfájlok::mnufájlúj() {
    if (!elengedhető())
        return;
    ürít();
    fájllistír();
    ablak_.listához_igazít();
}

void szószedetfájlok::mnufájlmegnyit() {
    if (!elengedhető())
        return;
    fájllistír();
    const QString javaslat = menthető(állapot_.aktuálisfájl) ? állapot_.aktuálisfájl : programkönyvtárminta();
    const auto út = meglévőfájl(javaslat);
    if (út && lecserél(*út))
        fájllistír();
}

void szószedetfájlok::mnufájlfájl(const QString &út) {
    if (!files::exists(út) || !elengedhető())
        return;
    fájllistír();
    if (lecserél(út))
        fájllistír();
}

bool szószedetfájlok::lecserél(const QString &út) {
    const auto párok = párokat(út);
    if (!párok)
        return false;
    ürít();
    fájlmegnyit(út, *párok);
    return true;
}

std::optional<QVector<szópár>> szószedetfájlok::párokat(const QString &út) {
    const FileContent tartalom = files::read_whole(út);
    if (const auto *hiba = std::get_if<Failure>(&tartalom)) {
        üzenetek_.tell(hiba->sentence);
        return std::nullopt;
    }
    try {
        return szsfájl::olvas(std::get<QByteArray>(tartalom));
    } catch (const std::bad_alloc &) {
        üzenetek_.tell(files::cannot_read(út, files::no_memory()).sentence);
        return std::nullopt;
    }
}

std::optional<QString> szószedetfájlok::meglévőfájl(const QString &javaslat) {
    std::optional<QString> út;
    do {
        út = fájlablakok_.open(javaslat);
    } while (út && !files::exists(*út));
    return út;
}

QString szószedetfájlok::programkönyvtárminta() const {
    return állapot_.programkönyvtár + QDir::separator() + u"*.szs"_s;
}

void szószedetfájlok::mnufájlhozzáfűz() {
    const auto út = meglévőfájl(programkönyvtárminta());
    if (!út)
        return;
    const auto párok = párokat(*út);
    if (!párok)
        return;
    lista_.hozzáfűz(*párok);
    állapot_.változott = 1;
    ablak_.változást_mutat();
    if (állapot_.aktuálisfájl.isEmpty()) {
        állapot_.aktuálisfájl = *út;
        címbeállít();
    }
    ablak_.listához_igazít();
}

void szószedetfájlok::mnufájlment() {
    szószedetmentés();
    fájllistír();
}

void szószedetfájlok::mnufájlmentmásként() {
    const QString előző = állapot_.aktuálisfájl;
    állapot_.aktuálisfájl = névmegadás();
    if (!menthető(állapot_.aktuálisfájl)) {
        if (!előző.startsWith(csillag))
            állapot_.csillagelőtt = előző;
        return;
    }
    mentésmégse_ = false;
    szószedetmentés();
    if (mentésmégse_) {
        állapot_.aktuálisfájl = előző;
        címbeállít();
        return;
    }
    fájllistír();
}

void szószedetfájlok::szószedetmentés() {
    const QString előző = állapot_.aktuálisfájl;
    if (előző.isEmpty())
        állapot_.aktuálisfájl = névmegadás();
    if (!menthető(állapot_.aktuálisfájl) || !kiír(állapot_.aktuálisfájl)) {
        állapot_.aktuálisfájl = előző;
        mentésmégse_ = true;
    } else {
        állapot_.változott = 0;
        ablak_.változást_mutat();
    }
    címbeállít();
}

bool szószedetfájlok::kiír(const QString &út) {
    const FileContent tartalom = szsfájl::ír(lista_.párok());
    const auto *hiba = std::get_if<Failure>(&tartalom);
    const auto írási = hiba ? *hiba : files::replace_whole(út, std::get<QByteArray>(tartalom));
    if (írási)
        üzenetek_.tell(u"A szószedet mentése nem sikerült. "_s + írási->sentence);
    return !írási;
}

QString szószedetfájlok::névmegadás() {
    // Not the current file before it is chosen: a request to end the program may come while the dialog is open, and
    // would save under a name that nobody has confirmed.
    const QString előző = állapot_.aktuálisfájl.isEmpty() ? javasoltnév() : állapot_.aktuálisfájl;
    QString javaslat = előző;
    while (javaslat.startsWith(csillag))
        javaslat.remove(0, 1);
    while (true) {
        const auto név = fájlablakok_.save(javaslat);
        if (!név)
            return csillag + előző;
        javaslat = *név;
        if (név->isEmpty() || van_benne_pont(*név))
            continue;
        if (!files::exists(*név) ||
            üzenetek_.ask_yes_no(u"Fájl felülírása"_s, u"A %1 szószedet fájl már létezik. Felülírja?"_s.arg(*név)) ==
                Answer::yes)
            return *név;
    }
}

QString szószedetfájlok::javasoltnév() const {
    // A proposal with one of these could not be accepted, or would name another folder.
    static const QRegularExpression tiltott(uR"([\\/:*?"<>|.\x00-\x1f])"_s);
    QString első = lista_.üres() ? QString() : lista_.pár(0).angol.left(100);
    első.replace(tiltott, u"_"_s);
    return állapot_.programkönyvtár + QDir::separator() + első + u".szs"_s;
}

void szószedetfájlok::fájllistír() {
    const legutóbbifájlok::írott fájl = legutóbbifájlok::ír(állapot_.aktuálisfájl, fájllist_);
    // The folder may have been removed while the program runs.
    auto hiba = files::make_folder(QFileInfo(legutóbbi_).path());
    if (!hiba)
        hiba = files::replace_whole(legutóbbi_, fájl.bytes);
    if (hiba)
        egyszer_szól(*hiba);
    for (const Failure &kimaradt : fájl.kimaradtak)
        egyszer_szól(kimaradt);
    fájlistolvas();
}

void szószedetfájlok::egyszer_szól(const Failure &miről) {
    if (elmondott_.contains(miről.sentence))
        return;
    elmondott_.append(miről.sentence);
    üzenetek_.tell(miről.sentence);
}

void szószedetfájlok::fájlistolvas() {
    const FileContent tartalom = files::read_whole(legutóbbi_);
    const auto *bytes = std::get_if<QByteArray>(&tartalom);
    if (!bytes && files::is_taken(legutóbbi_))
        egyszer_szól(std::get<Failure>(tartalom));
    fájllist_ = bytes ? legutóbbifájlok::olvas(*bytes, files::exists) : QStringList();
    ablak_.fájllistmutat(fájllist_);
}

bool szószedetfájlok::kilépéskérdés() {
    if (!mentetlen())
        return true;
    switch (üzenetek_.ask_yes_no_cancel(kilépéscím, mentéskérdés)) {
        case Answer::yes:
            return kérésre_ment();
        case Answer::no:
            return true;
        case Answer::cancel:
            break;
    }
    return false;
}

void szószedetfájlok::címbeállít() {
    ablak_.címbeállít(u"Zimbora Angol-Magyar szótár - %1 szószedet"_s.arg(állapot_.aktuálisfájl));
}
