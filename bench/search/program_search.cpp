#include "search/program_search.h"

#include "dictionary/dictionary_search.h"
#include "search/byte_counts.h"

namespace {

void search_in(ByteSource &source, const QByteArray &text, Hits &hits) {
    const keresésfigyelő watcher{[&](const szócikk &entry) { hits.add(entry.címszó, entry.jelentések); },
                                 [] { return false; }};
    static_cast<void>(szótárkereső(source).keres(text, watcher));
}

}  // namespace

void search_file(const QString &path, const QByteArray &text, Hits &hits) {
    FileSource source(path);
    if (!source.is_open())
        qFatal("cannot open %s", qPrintable(path));
    search_in(source, text, hits);
}

Counts count(const BenchDictionary &dictionary) {
    Counts counts;
    const QByteArray whole = bytes_of(dictionary.path);
    for (const QByteArray &text : dictionary.texts) {
        Hits hits;
        FileSource file(dictionary.path);
        CountingSource counted(file);
        search_in(counted, text, hits);
        counts.bytes.push_back(static_cast<double>(counted.bytes));
        counts.reads.push_back(static_cast<double>(counted.reads));
        counts.hits.push_back(hits.all().size());
        LineByLineSource lines(whole);
        CountingSource needed(lines);
        search_in(needed, text, hits);
        counts.needed.push_back(static_cast<double>(needed.bytes));
    }
    return counts;
}
