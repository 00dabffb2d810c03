#include "media/settings_lines.h"

#include "platform/code_page.h"
#include "platform/names_in_files.h"
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
    if (!files::is_taken(fájl))
        return QStringList();
    const FileContent tartalom = files::read_whole(fájl);
    if (const auto *hiba = std::get_if<Failure>(&tartalom))
        return *hiba;
    QStringList sorok;
    for (QByteArrayView rest = std::get<QByteArray>(tartalom); !rest.isEmpty();) {
        const QByteArrayView sor = take_line(rest);
        if (sor.size() <= names_in_files::longest_line)
            sorok.append(code_page::decode(sor));
    }
    return sorok;
}

FileContent bájtok(const QStringList &sorok) {
    QByteArray bytes;
    for (const QString &sor : sorok) {
        const auto kódolt = names_in_files::line_of(sor);
        if (const auto *akadály = std::get_if<names_in_files::Obstacle>(&kódolt)) {
            return Failure{
                u"A(z) „%1” nevű fájl nem kerülhet a listára, mert %2."_s.arg(sor.simplified(), akadály->reason)};
        }
        bytes += std::get<QByteArray>(kódolt) + "\r\n";
    }
    return bytes;
}

}  // namespace beállítássorok
