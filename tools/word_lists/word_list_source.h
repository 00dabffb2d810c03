#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <QVector>
#include <variant>

#include "platform/files.h"
#include "wordlist/word_pair_list.h"

// The source of a word list that comes with the program: text in UTF-8, a line an entry, lines ended by LF. Lines that
// are blank or begin with "#" are passed over.
//
//     name: A2 Család
//     family | család
//     Where do you live? | Hol laksz? | a sentence, not a headword
//
// The first line names the list, as its file will be called without its ending. A pair is English, Hungarian and, where
// the dictionary does not have it so, the reason.
namespace word_lists {

struct Source {
    /// Holds none of \ / : * ? " < > | and no full stop, so that every system and the program take it for a file's.
    QString name;
    QVector<szópár> pairs;
    /// Parallel to the pairs: why the dictionary does not have one; "" where it does.
    QStringList reasons;
};

/// The source in these bytes; a failure that names `file` and the line when one is not as above, or when an English or
/// Hungarian text stands twice.
[[nodiscard]] std::variant<Source, Failure> parse(QByteArrayView bytes, const QString &file);

}  // namespace word_lists
