#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <vector>

#include "dictionary/dictionary_search.h"

/// A dictionary file and the texts that are looked up in it, the same at every run.
struct BenchDictionary {
    QString path;
    std::vector<QByteArray> texts;
};

/// The staged program folder, which holds the two dictionaries.
[[nodiscard]] QString staged_program();

/// The dictionary `file` of the staged program folder, with 1,000 random beginnings, of 1 to 8 bytes, of its headwords
/// without their "to ". No text begins with "to ": those are searched in another way.
[[nodiscard]] BenchDictionary real_dictionary(const QString &file);

/// `dictionary` ten times over, made in `folder`: each copy has a digit in front of its headwords, and each text has
/// the digit of one copy. So a text has exactly the hits that it has in `dictionary`, in a file of ten times the size.
[[nodiscard]] BenchDictionary tenfold(const BenchDictionary &dictionary, const QString &folder);

/// The bytes of the file `path`; ends the program when it cannot be read.
[[nodiscard]] QByteArray bytes_of(const QString &path);

/// Calls `take` with each entry of a dictionary of these bytes, in file order.
void each_entry(const QByteArray &bytes, const std::function<void(const szócikk &)> &take);
