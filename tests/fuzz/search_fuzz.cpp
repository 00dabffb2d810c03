// Searches arbitrary bytes for an arbitrary text: the first line of the input is the text, the rest the dictionary.
// Every search ends, every hit is one and no longer than a line may be, and the number of bytes read is bounded.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "dictionary/dictionary_search.h"
#include "dictionary/line_reader.h"
#include "fuzz/expanded.h"
#include "support/memory_source.h"

namespace {

void demand(bool condition) {
    if (!condition)
        std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QByteArray input = expanded(QByteArrayView(data, static_cast<qsizetype>(size)));
    const qsizetype line_end = input.indexOf('\n');
    const QByteArray text = line_end < 0 ? QByteArray() : input.first(line_end);
    const QByteArrayView key = keresőkulcs(QByteArrayView(text));
    MemorySource source(input.mid(line_end + 1));

    int hits = 0;
    const keresésvége end = szótárkereső(source).keres(
        text, {[&](const szócikk &entry) {
                   ++hits;
                   demand(!entry.címszó.contains(':'));
                   demand(entry.címszó.size() + entry.jelentések.size() < LineReader::longest_line);
                   demand(keresőkulcs(entry.címszó).startsWith(key) || entry.címszó.startsWith(text));
               },
               [] { return false; }});

    demand(end.darab == hits && !end.megszakadt);
    demand(hits == 0 ? end.kijelölendő == -1 : end.kijelölendő >= 0 && end.kijelölendő < hits);
    demand(source.bytes_read <= 60 * source.size() + 10000);
    return 0;
}
