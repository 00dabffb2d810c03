#include "dictionary/word_lookup.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>

#include "dictionary/byte_source.h"
#include "dictionary/dictionary_check.h"
#include "dictionary/meanings.h"
#include "platform/code_page.h"
#include "state/program_folder.h"

using namespace Qt::StringLiterals;

namespace {

/// How long a search may go on before other events get their turn, in milliseconds. A key that is held down repeats
/// every 30 ms or so; a shorter time only makes long searches longer.
constexpr qint64 events_after = 10;

}  // namespace

void találatlista::felvesz(const QString &címszó, const QString &jelentések) {
    beginInsertRows({}, darab(), darab());
    cikkek_.append({címszó, jelentések});
    endInsertRows();
}

void találatlista::kiürít() {
    if (cikkek_.isEmpty())
        return;
    beginResetModel();
    cikkek_.clear();
    endResetModel();
}

int találatlista::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : darab();
}

int találatlista::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : oszlopszám;
}

QVariant találatlista::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    return index.column() == címszó_oszlop ? címszó(index.row()) : jelentések(index.row());
}

szókereső::szókereső(const global::programállapot &állapot) : állapot_(állapot) {}

void szókereső::irányt_vált(bool angolról) {
    angolról_ = angolról;
    // A search in the other dictionary must not go on filling the lists.
    ürít();
}

void szókereső::ürít() {
    ++keresés_;
    találatok_.kiürít();
    jelentések_.setStringList({});
}

QString szókereső::szótárfájl() const {
    return állapot_.programkönyvtár + u'/' + (angolról_ ? english_hungarian_file : hungarian_english_file);
}

std::optional<Failure> szókereső::szótárhiba() const {
    FileSource forrás(szótárfájl());
    if (!forrás.is_open())
        return std::nullopt;
    const auto mi = ::szótárhiba(forrás);
    if (!mi)
        return std::nullopt;
    return Failure{
        u"A(z) „%1” szótárfájl sérült: %2 Emiatt a keresés hiányos lehet, vagy semmit sem talál. "
        "Segíthet a program újratelepítése."_s.arg(QDir::toNativeSeparators(szótárfájl()), *mi)};
}

std::variant<keresésvége, Failure> szókereső::keres(const QString &szöveg, const megszakító &megálljon) {
    ürít();
    const int ez_a_keresés = keresés_;
    FileSource forrás(szótárfájl());
    if (!forrás.is_open())
        return files::cannot_read(szótárfájl(), files::reason_not_readable(szótárfájl()));
    // A text that the code page cannot hold stands in no dictionary.
    const auto bytes = code_page::encode(szöveg);
    if (!bytes)
        return keresésvége{};
    const QString kulcs = keresőkulcs(QStringView(szöveg)).toString();
    QElapsedTimer óra;
    óra.start();
    const keresésfigyelő figyelő{.találat =
                                     [this](const szócikk &cikk) {
                                         találatok_.felvesz(code_page::decode(cikk.címszó),
                                                            code_page::decode(cikk.jelentések));
                                     },
                                 .megálljon =
                                     [&] {
                                         if (óra.elapsed() >= events_after) {
                                             QCoreApplication::processEvents();
                                             óra.restart();
                                         }
                                         return ez_a_keresés != keresés_ || megálljon(kulcs);
                                     }};
    return szótárkereső(forrás).keres(*bytes, figyelő);
}

void szókereső::kijelöl(const QString &címszó) {
    for (int i = 0; i < találatok_.darab(); ++i) {
        const QString egyik = találatok_.címszó(i);
        if (egyik == címszó || egyik.startsWith(címszó + u',')) {
            kijelölt_találat_.setCurrentIndex(találatok_.index(i, 0), QItemSelectionModel::ClearAndSelect);
            return;
        }
    }
}

void szókereső::jelentéseket_mutat() {
    const QModelIndex melyik = kijelölt_találat_.currentIndex();
    jelentések_.setStringList(melyik.isValid() ? ::jelentések(találatok_.jelentések(melyik.row())) : QStringList());
    const QModelIndex első = jelentések_.index(0);
    kijelölt_jelentés_.setCurrentIndex(első, QItemSelectionModel::ClearAndSelect);
}

std::optional<szókereső::választás> szókereső::választott() const {
    const QModelIndex találat = kijelölt_találat_.currentIndex();
    const QModelIndex jelentés = kijelölt_jelentés_.currentIndex();
    if (!találat.isValid() || !jelentés.isValid())
        return std::nullopt;
    return választás{találatok_.címszó(találat.row()), jelentés.data().toString()};
}
