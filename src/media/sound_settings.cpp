#include "media/sound_settings.h"

#include <QDir>
#include <QFileInfo>
#include <utility>
#include <vector>

#include "media/settings_lines.h"

using namespace Qt::StringLiterals;

namespace {

const QString gratulafájl = u"grathang.ini"_s;
const QString helyesfájl = u"helyeshang.ini"_s;
const QString hibafájl = u"hibahang.ini"_s;

Failure nem_öt_kapcsoló(const QString &fájl) {
    return {
        u"A(z) „%1” fájl nem öt kapcsolóval kezdődik. A hiányzó kapcsolók bekapcsolva maradnak; a "
        "fájlt a hangbeállítások ablakának „Ok” gombja írja újra."_s.arg(QDir::toNativeSeparators(fájl))};
}

}  // namespace

QString hangbeállítások::hangmappa() const {
    return programkönyvtár_ + u"/hangok"_s;
}

QString hangbeállítások::fájl(const QString &név) const {
    return programkönyvtár_ + u"/kavaro/"_s + név;
}

/// Those of which the folder has a file, each once.
QStringList hangbeállítások::meglévők(const QStringList &nevek) const {
    QStringList vannak;
    for (const QString &név : nevek) {
        if (!név.isEmpty() && mappa_nélküli(név) && !vannak.contains(név) && files::exists(hangmappa() + u'/' + név))
            vannak.append(név);
    }
    return vannak;
}

std::optional<Failure> hangbeállítások::betölt() {
    kapcsolók = be;
    for (névlista *lista : {&gratula, &helyes, &hiba})
        lista->feltölt({});
    const QString gratulaút = fájl(gratulafájl);
    std::optional<Failure> mi_a_hiba;
    const auto olvasott = beállítássorok::olvas(gratulaút);
    if (const auto *sorok = std::get_if<QStringList>(&olvasott)) {
        size_t hányadik = 0;
        for (; hányadik < kapcsolók.size() && static_cast<qsizetype>(hányadik) < sorok->size(); ++hányadik) {
            const auto érték = beállítássorok::kapcsoló(sorok->at(static_cast<qsizetype>(hányadik)));
            if (!érték)
                break;
            kapcsolók[hányadik] = *érték;
        }
        gratula.feltölt(meglévők(sorok->sliced(static_cast<qsizetype>(hányadik))));
        if (hányadik < kapcsolók.size() && files::exists(gratulaút))
            mi_a_hiba = nem_öt_kapcsoló(gratulaút);
    } else {
        mi_a_hiba = std::get<Failure>(olvasott);
    }
    for (const auto &[név, lista] : {std::pair(helyesfájl, &helyes), std::pair(hibafájl, &hiba)}) {
        if (const auto a_listáé = listát_betölt(név, *lista); a_listáé && !mi_a_hiba)
            mi_a_hiba = a_listáé;
    }
    return mi_a_hiba;
}

std::optional<Failure> hangbeállítások::listát_betölt(const QString &név, névlista &lista) {
    const auto olvasott = beállítássorok::olvas(fájl(név));
    if (const auto *mi_a_hiba = std::get_if<Failure>(&olvasott))
        return *mi_a_hiba;
    lista.feltölt(meglévők(std::get<QStringList>(olvasott)));
    return std::nullopt;
}

std::optional<Failure> hangbeállítások::ment() const {
    QStringList gratulasorok;
    for (const bool be_van : kapcsolók)
        gratulasorok.append(beállítássorok::kapcsolósor(be_van));
    gratulasorok += gratula.nevek();
    // Nothing is replaced before everything is known to be writable in this code page.
    std::vector<std::pair<QString, QByteArray>> mind;
    for (const auto &[név, sorok] : {std::pair(gratulafájl, gratulasorok), std::pair(helyesfájl, helyes.nevek()),
                                     std::pair(hibafájl, hiba.nevek())}) {
        const FileContent tartalom = beállítássorok::bájtok(sorok);
        if (const auto *mi_a_hiba = std::get_if<Failure>(&tartalom))
            return *mi_a_hiba;
        mind.emplace_back(fájl(név), std::get<QByteArray>(tartalom));
    }
    if (auto mi_a_hiba = files::make_folder(QFileInfo(fájl(gratulafájl)).path()))
        return mi_a_hiba;
    for (const auto &[út, bájtok] : mind) {
        if (auto mi_a_hiba = files::replace_whole(út, bájtok))
            return mi_a_hiba;
    }
    return std::nullopt;
}

void hangbeállítások::elfelejt(const QString &név) {
    for (névlista *lista : {&gratula, &helyes, &hiba})
        lista->töröl(név);
}
