#include "platform/unfinished_files.h"

#include <QCryptographicHash>
#include <QRandomGenerator>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace unfinished_files {
namespace {

constexpr qsizetype digits_of_name = 16;

QString beginning_for(const QString &name) {
    // Small letters, because some file systems take them and capitals for the same.
    const QByteArray digits = QCryptographicHash::hash(name.toLower().toUtf8(), QCryptographicHash::Sha1).toHex();
    return u".zimbora-"_s + QString::fromLatin1(digits.first(digits_of_name)) + u'-';
}

}  // namespace

QString new_name_for(const QString &name) {
    return beginning_for(name) + u"%1.tmp"_s.arg(QRandomGenerator::system()->generate(), 8, 16, QChar(u'0'));
}

bool is_name_for(const QString &name, const QString &other) {
    static const QRegularExpression ending(u"^[0-9a-f]{8}\\.tmp$"_s);
    const QString beginning = beginning_for(name);
    return other.startsWith(beginning) && ending.match(other.mid(beginning.size())).hasMatch();
}

}  // namespace unfinished_files
