#include "media/settings_lines.h"

#include "platform/code_page.h"
#include "platform/text_lines.h"

using namespace Qt::StringLiterals;

namespace beállítássorok {

std::optional<bool> kapcsoló(const QString &sor) {
    bool szám = false;
    const int érték = sor.trimmed().toInt(&szám);
    return szám ? std::optional(érték != 0) : std::nullopt;
}

QString kapcsolósor(bool be) {
    return be ? u" 1"_s : u" 0"_s;
}

std::variant<QStringList, Failure> olvas(const QString &fájl) {
    if (!files::exists(fájl))
        return QStringList();
    const FileContent tartalom = files::read_whole(fájl);
    if (const auto *hiba = std::get_if<Failure>(&tartalom))
        return *hiba;
    QStringList sorok;
    for (QByteArrayView rest = std::get<QByteArray>(tartalom); !rest.isEmpty();)
        sorok.append(code_page::decode(take_line(rest)));
    return sorok;
}

FileContent bájtok(const QStringList &sorok) {
    QByteArray bytes;
    for (const QString &sor : sorok) {
        if (sor.contains(u'\n')) {
            return Failure{
                u"A(z) „%1” nevű fájl nem kerülhet a listára, mert a nevében sortörés van."_s.arg(sor.simplified())};
        }
        const auto kódolt = code_page::encode(sor);
        if (!kódolt) {
            return Failure{
                u"A(z) „%1” nevű fájl nem kerülhet a listára, mert a nevében a(z) „%2” betű "
                "nem írható le a közép-európai kódlapon."_s.arg(sor, code_page::first_missing(sor))};
        }
        bytes += *kódolt + "\r\n";
    }
    return bytes;
}

}  // namespace beállítássorok
