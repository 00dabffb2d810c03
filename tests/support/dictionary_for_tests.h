#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QList>
#include <algorithm>

#include "dictionary/dictionary_search.h"
#include "support/headwords.h"

/// What a search told: the hits and how it ended.
struct Found {
    QByteArrayList headwords;
    QByteArrayList meanings;
    keresésvége end;
};

/// Searches `source` for `text`; stops after `lines` lines of the scan.
inline Found find_in(ByteSource &source, const QByteArray &text, int lines = 1 << 30) {
    Found found;
    found.end = szótárkereső(source).keres(text, {[&](const szócikk &entry) {
                                                      found.headwords.append(entry.címszó.toByteArray());
                                                      found.meanings.append(entry.jelentések.toByteArray());
                                                  },
                                                  [&] { return --lines < 0; }});
    return found;
}

/// A dictionary of these entries ("headword:meanings"), put in order, behind a notice of `notice` bytes.
inline QByteArray dictionary_of(QByteArrayList entries, int notice = 101) {
    std::sort(entries.begin(), entries.end(), [](const QByteArray &left, const QByteArray &right) {
        return keresőkulcs(QByteArrayView(left)).toByteArray() < keresőkulcs(QByteArrayView(right)).toByteArray();
    });
    return QByteArray(notice, '#') + "\r\n" + entries.join("\r\n") + "\r\n";
}

[[nodiscard]] inline bool bare_begins_with(const QByteArray &headword, const QByteArray &text) {
    return keresőkulcs(QByteArrayView(headword)).startsWith(text);
}

/// The definition of a hit of a text without "to ": the headword without its "to " begins with the text.
inline QByteArrayList brute_force(const QByteArrayList &headwords, const QByteArray &text) {
    QByteArrayList hits;
    for (const QByteArray &headword : headwords) {
        if (bare_begins_with(headword, text))
            hits.append(headword);
    }
    return hits;
}

/// Takes those hits off that are none without their "to ". The verbs ("to …") that lie just before the first hit are
/// hits of the texts "t" and "to" as well, because their headword as it stands begins with the text.
inline QByteArrayList without_verbs_before(QByteArrayList hits, const QByteArray &text) {
    if (QByteArrayView("to ").startsWith(text))
        hits.removeIf([&](const QByteArray &hit) { return hit.startsWith("to ") && !bare_begins_with(hit, text); });
    return hits;
}
