#pragma once

#include <QByteArrayView>
#include <QVector>
#include <cstdint>

// What the search data are made of: the dictionary files as they were imported (dictionary/dictionary_search.h).
namespace search_data {

struct Meaning {
    QByteArrayView text;
    /// Where it begins in its line.
    qsizetype place;
};

struct Line {
    QByteArrayView headword;
    QVector<Meaning> meanings;
    /// Where it begins in the file.
    qsizetype place;
};

/// The lines behind the notice, those without ":" too, so that a line's number is its place in what is returned. They
/// are views of the bytes.
[[nodiscard]] QVector<Line> lines_of(QByteArrayView dictionary);

/// The words of a text in small letters, in the code page: runs of letters and digits.
[[nodiscard]] QVector<QByteArray> words_of(QByteArrayView text);

}  // namespace search_data
