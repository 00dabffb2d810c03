#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>
#include <variant>

#include "platform/files.h"

// The two files of a dictionary in dictd's format.
//
// The index (".index") is UTF-8 text, one definition a line, the last line ended too:
//
//     headword  TAB  offset  TAB  length  LF
//
// The headword is a normalised form made for searching (small letters, without punctuation); the true one stands in the
// definition. Offset and length count the bytes of the unpacked data. Both are numbers in base 64 with the digits A-Z
// a-z 0-9 + / for 0 to 63, the most significant first, without padding: "c" is 28, "hf" is 33 * 64 + 31.
//
// The data (".dict.dz") is one gzip member. Its header carries an extra field ("RA") with the places at which a reader
// could start in the middle; whoever reads the whole file needs nothing of it.
namespace freedict {

/// One line of the index with the definition it points at. Both views lie in the bytes given to definitions().
struct Definition {
    QByteArrayView index_word;
    QByteArrayView text;
};

/// The unpacked bytes of a gzip file; a failure when they are broken, cut off, or followed by anything.
/// `file` is the name that the failure gives.
[[nodiscard]] FileContent unpacked(QByteArrayView gzip, const QString &file);

/// The definitions in the order of the index; a failure that names `index_file` and the line when a line is not as
/// above or points outside `data`.
[[nodiscard]] std::variant<QVector<Definition>, Failure> definitions(QByteArrayView index, QByteArrayView data,
                                                                     const QString &index_file);

/// The failure of a file that can be read but holds what it must not; `reason` is the end of a sentence.
[[nodiscard]] Failure damaged(const QString &file, const QString &reason);

}  // namespace freedict
