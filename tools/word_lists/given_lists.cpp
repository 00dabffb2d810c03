#include "word_lists/given_lists.h"

#include <QCryptographicHash>
#include <QDir>
#include <QMap>
#include <QStringList>
#include <optional>

using namespace Qt::StringLiterals;

namespace word_lists {
namespace {

using Record = QMap<QString, QByteArray>;

QByteArray sum_of(const QByteArray &bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

/// An unreadable record is one of a folder that has been given nothing yet.
Record read(const QString &path) {
    Record record;
    const FileContent content = files::read_whole(path);
    const auto *bytes = std::get_if<QByteArray>(&content);
    if (!bytes)
        return record;
    for (const QByteArray &line : bytes->split('\n')) {
        const qsizetype blank = line.indexOf(' ');
        if (blank > 0)
            record.insert(QString::fromUtf8(line.sliced(blank + 1)), line.first(blank));
    }
    return record;
}

QByteArray written(const Record &record) {
    QByteArray lines;
    for (auto one = record.cbegin(); one != record.cend(); ++one)
        lines += one.value() + ' ' + one.key().toUtf8() + '\n';
    return lines;
}

/// Whether the list may be written: nobody has touched what was given, or nothing was given and nothing is there.
bool is_ours(const QString &path, const std::optional<QByteArray> &given) {
    if (!QFileInfo::exists(path))
        return !given;
    const FileContent content = files::read_whole(path);
    const auto *bytes = std::get_if<QByteArray>(&content);
    return given && bytes && sum_of(*bytes) == *given;
}

}  // namespace

std::variant<int, Failure> give(const QVector<File> &lists, const QString &folder, const QString &record_path) {
    if (const auto failure = files::make_folder(folder))
        return *failure;
    Record record = read(record_path);
    int count = 0;
    for (const File &list : lists) {
        const QString path = QDir(folder).filePath(list.name);
        const bool known = record.contains(list.name);
        if (is_ours(path, known ? std::optional(record.value(list.name)) : std::nullopt)) {
            if (const auto failure = files::replace_whole(path, list.bytes))
                return *failure;
            record.insert(list.name, sum_of(list.bytes));
            ++count;
        } else if (!known) {
            record.insert(list.name, sum_of(list.bytes));
        }
    }
    if (const auto failure = files::replace_whole(record_path, written(record)))
        return *failure;
    return count;
}

}  // namespace word_lists
