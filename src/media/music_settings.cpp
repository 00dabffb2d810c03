#include "media/music_settings.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <iterator>
#include <utility>

#include "media/settings_lines.h"

using namespace Qt::StringLiterals;

zenebeállítások::zenebeállítások(DriveC meghajtó, QString programkönyvtár)
    : meghajtó_(std::move(meghajtó)), programkönyvtár_(std::move(programkönyvtár)) {}

QString zenebeállítások::zenemappa() const {
    return programkönyvtár_ + u"/zenemid"_s;
}

QString zenebeállítások::saját_fájl() const {
    return meghajtó_.path(u"c:\\zbrmk\\kavaro\\zenebeáll.ini"_s);
}

std::optional<Failure> zenebeállítások::betölt() {
    engedélyezve = true;
    lista.feltölt({});
    const QString saját = saját_fájl();
    const QString fájl = files::is_taken(saját) ? saját : programkönyvtár_ + u"/kavaro/zenebeáll.ini"_s;
    if (!files::is_taken(fájl))
        return std::nullopt;
    const auto olvasott = beállítássorok::olvas(fájl);
    if (const auto *baj = std::get_if<Failure>(&olvasott))
        return *baj;
    QStringList sorok = std::get<QStringList>(olvasott);
    const auto kapcsoló = sorok.isEmpty() ? std::nullopt : beállítássorok::kapcsoló(sorok.first());
    if (kapcsoló) {
        engedélyezve = *kapcsoló;
        sorok.removeFirst();
    }
    QStringList nevek;
    std::copy_if(sorok.begin(), sorok.end(), std::back_inserter(nevek), mappa_nélküli);
    lista.feltölt(nevek);
    if (kapcsoló)
        return std::nullopt;
    return Failure{
        u"A(z) „%1” fájl első sora nem a zene kapcsolója. A zene engedélyezve marad; a fájlt "
        "a zenei beállítások ablakának „Ok” gombja írja újra."_s.arg(QDir::toNativeSeparators(fájl))};
}

std::optional<Failure> zenebeállítások::ment() const {
    const FileContent tartalom =
        beállítássorok::bájtok(QStringList(beállítássorok::kapcsolósor(engedélyezve)) + lista.nevek());
    if (const auto *baj = std::get_if<Failure>(&tartalom))
        return *baj;
    if (auto baj = files::make_folder(QFileInfo(saját_fájl()).path()))
        return baj;
    return files::replace_whole(saját_fájl(), std::get<QByteArray>(tartalom));
}
