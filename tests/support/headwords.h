#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QStringList>

#include "support/files_for_tests.h"
#include "support/test_places.h"

/// The headwords of every line but the first, in file order.
inline QByteArrayList headwords_of(const QByteArray &dictionary) {
    QByteArrayList headwords;
    const QByteArrayList lines = dictionary.split('\n');
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const qsizetype colon = lines[i].indexOf(':');
        if (colon >= 0)
            headwords.append(lines[i].first(colon));
    }
    return headwords;
}

/// `count` headwords from all over a dictionary of this build, "am.txt" or "ma.txt"; none when it has fewer.
inline QStringList real_headwords(const char *dictionary, int count) {
    const QByteArrayList all = headwords_of(read_file(test_places::in_program(QString::fromLatin1(dictionary))));
    QStringList chosen;
    if (all.size() < count)
        return chosen;
    for (int i = 0; i < count; ++i)
        chosen.append(code_page::decode(all[all.size() * i / count]));
    return chosen;
}
