#include "forms/form_data.h"

#include <QCryptographicHash>
#include <QDir>
#include <QHash>
#include <variant>

#include "platform/files.h"

using namespace Qt::StringLiterals;

namespace {

const QString összegek_fájlja = u"osszegek.txt"_s;

QHash<QString, QByteArray> összegek(const QByteArray &szöveg) {
    QHash<QString, QByteArray> mind;
    for (const QByteArray &sor : szöveg.split('\n')) {
        if (const qsizetype köz = sor.indexOf(' '); köz > 0)
            mind.insert(QString::fromUtf8(sor.sliced(köz + 1)).trimmed(), sor.first(köz));
    }
    return mind;
}

QString sérült(const QString &út) {
    return u"A(z) „%1” fájl sérült."_s.arg(QDir::toNativeSeparators(út));
}

}  // namespace

QStringList hibás_alakfájlok(const QString &mappa, const QStringList &nevek) {
    const QDir hely(mappa);
    const FileContent lista = files::read_whole(hely.filePath(összegek_fájlja));
    if (const auto *hiba = std::get_if<Failure>(&lista))
        return {hiba->sentence};
    const auto várt = összegek(std::get<QByteArray>(lista));
    QStringList hibák;
    for (const QString &név : nevek) {
        const QString út = hely.filePath(név);
        const FileContent tartalom = files::read_whole(út);
        if (const auto *hiba = std::get_if<Failure>(&tartalom)) {
            hibák.append(hiba->sentence);
            continue;
        }
        const QByteArray összeg = QCryptographicHash::hash(std::get<QByteArray>(tartalom), QCryptographicHash::Md5);
        if (összeg.toHex() != várt.value(név))
            hibák.append(sérült(út));
    }
    return hibák;
}
