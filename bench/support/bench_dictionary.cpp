#include "support/bench_dictionary.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <random>

#include "platform/text_lines.h"

using namespace Qt::StringLiterals;

namespace {

constexpr size_t text_count = 1000;
constexpr int longest_text = 8;
constexpr int copies = 10;
constexpr unsigned int seed = 20230610;

QByteArray digit(int copy) {
    return QByteArray(1, static_cast<char>('0' + copy));
}

}  // namespace

QString staged_program() {
    return u"" ZIMBORA_BENCH_PROGRAM ""_s;
}

QByteArray bytes_of(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

void each_entry(const QByteArray &bytes, const std::function<void(const szócikk &)> &take) {
    QByteArrayView rest(bytes);
    static_cast<void>(take_line(rest));
    while (!rest.isEmpty()) {
        const QByteArrayView line = take_line(rest);
        const qsizetype colon = line.indexOf(':');
        if (colon >= 0)
            take({line.first(colon), line.sliced(colon + 1)});
    }
}

BenchDictionary real_dictionary(const QString &file) {
    BenchDictionary dictionary{staged_program() + u'/' + file, {}};
    std::vector<QByteArray> headwords;
    each_entry(bytes_of(dictionary.path),
               [&](const szócikk &entry) { headwords.push_back(keresőkulcs(entry.címszó).toByteArray()); });
    std::mt19937 random(seed);
    std::uniform_int_distribution<size_t> any_headword(0, headwords.size() - 1);
    std::uniform_int_distribution<int> any_length(1, longest_text);
    while (dictionary.texts.size() < text_count) {
        const QByteArray text = headwords[any_headword(random)].left(any_length(random));
        if (!text.isEmpty() && !text.startsWith("to "))
            dictionary.texts.push_back(text);
    }
    return dictionary;
}

BenchDictionary tenfold(const BenchDictionary &dictionary, const QString &folder) {
    BenchDictionary large{folder + u'/' + QFileInfo(dictionary.path).fileName(), {}};
    const QByteArray bytes = bytes_of(dictionary.path);
    QByteArrayView rest(bytes);
    QByteArray copied = take_line(rest).toByteArray() + "\r\n";
    copied.reserve((bytes.size() + bytes.size() / 20) * copies);
    for (int copy = 0; copy < copies; ++copy) {
        each_entry(bytes, [&](const szócikk &entry) {
            const QByteArrayView bare = keresőkulcs(entry.címszó);
            copied.append(entry.címszó.chopped(bare.size())).append(digit(copy)).append(bare);
            copied.append(':').append(entry.jelentések).append("\r\n");
        });
    }
    QFile file(large.path);
    if (!file.open(QIODevice::WriteOnly) || file.write(copied) != copied.size() || !file.flush())
        qFatal("cannot write %s", qPrintable(large.path));
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> any_copy(0, copies - 1);
    for (const QByteArray &text : dictionary.texts)
        large.texts.push_back(digit(any_copy(random)) + text);
    return large;
}
