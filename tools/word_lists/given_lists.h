#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>
#include <variant>

#include "platform/files.h"

// The word lists that a folder has been given are its user's from then on: one that was changed or deleted is left as
// it is. What was given is kept in a record, a line a list in UTF-8:
//
//     SHA-256 of the bytes in hexadecimal digits  blank  name of the file  LF
namespace word_lists {

struct File {
    QString name;
    QByteArray bytes;
};

/// Gives `folder` the lists: those that it has not been given yet, and those that lie there as they were given before.
/// A file of that name that somebody else has put there stays. Makes the folder; returns how many were written.
[[nodiscard]] std::variant<int, Failure> give(const QVector<File> &lists, const QString &folder, const QString &record);

}  // namespace word_lists
