#include "freedict/lexicon.h"

namespace freedict {
namespace {

void rename_meanings(QVector<Entry> &entries, const QHash<QString, QString> &names, Renamed &done) {
    for (Entry &entry : entries) {
        bool changed = false;
        for (QString &meaning : entry.meanings) {
            const auto name = names.constFind(meaning);
            if (name == names.constEnd())
                continue;
            meaning = *name;
            changed = true;
            ++done.meanings;
        }
        if (changed)
            done.doubled += entry.meanings.removeDuplicates();
    }
}

void rename_headwords(QVector<Entry> &entries, const QHash<QString, QString> &names, Renamed &done) {
    QHash<QString, qsizetype> places;
    for (qsizetype i = 0; i < entries.size(); ++i)
        places.insert(entries[i].headword, i);
    QVector<Entry> kept;
    QVector<bool> gone(entries.size(), false);
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const auto name = names.constFind(entries[i].headword);
        if (name == names.constEnd())
            continue;
        ++done.headwords;
        const auto place = places.constFind(*name);
        if (place == places.constEnd()) {
            places.insert(*name, i);
            entries[i].headword = *name;
            continue;
        }
        entries[*place].meanings += entries[i].meanings;
        done.doubled_in_joined += entries[*place].meanings.removeDuplicates();
        gone[i] = true;
        ++done.joined;
    }
    for (qsizetype i = 0; i < entries.size(); ++i) {
        if (!gone[i])
            kept.append(std::move(entries[i]));
    }
    entries = std::move(kept);
}

}  // namespace

Renamed rename_texts(Lexicon &lexicon, Language language, const QHash<QString, QString> &names) {
    Renamed done;
    rename_headwords(lexicon.in(language), names, done);
    rename_meanings(lexicon.in(other(language)), names, done);
    return done;
}

}  // namespace freedict
