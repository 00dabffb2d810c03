#pragma once

#include <vector>

#include "search/hits.h"
#include "search/numbers.h"
#include "support/bench_dictionary.h"

/// The program's search in the file `path`, which is opened for each text as the main window does.
void search_file(const QString &path, const QByteArray &text, Hits &hits);

/// What the program's search of each text of a dictionary reads and finds.
struct Counts {
    Numbers bytes;
    Numbers reads;
    /// The bytes of the lines that the search looks at: what it would read if it never read ahead.
    Numbers needed;
    std::vector<size_t> hits;
};

[[nodiscard]] Counts count(const BenchDictionary &dictionary);
