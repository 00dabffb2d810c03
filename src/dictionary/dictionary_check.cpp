#include "dictionary/dictionary_check.h"

#include <QByteArray>
#include <QByteArrayView>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 sample_length = 4096;
constexpr qint64 most_samples = 32;
/// "÷" in the code page of the dictionaries.
constexpr char separator = '\xf7';

/// What the samples held.
struct Evidence {
    int lines = 0;
    int with_colon = 0;
    int entries = 0;
    bool binary = false;
    bool cut = false;
};

QByteArray sample(ByteSource &source, qint64 from) {
    QByteArray bytes(sample_length, Qt::Uninitialized);
    bytes.truncate(static_cast<qsizetype>(source.read(from, bytes.data(), sample_length)));
    return bytes;
}

void look_at(QByteArrayView line, Evidence &evidence) {
    const qsizetype colon = line.indexOf(':');
    ++evidence.lines;
    evidence.with_colon += colon >= 0 ? 1 : 0;
    evidence.entries += colon >= 0 && line.sliced(colon).contains(separator) ? 1 : 0;
}

/// Looks at the whole lines of a sample. The first one is a part of a line, or the notice that the file begins with.
/// Returns what stands behind the last line end.
QByteArrayView look_at_lines(QByteArrayView bytes, Evidence &evidence) {
    evidence.binary = evidence.binary || bytes.contains('\0');
    qsizetype begin = bytes.indexOf('\n') + 1;
    if (begin == 0)
        return {};
    for (qsizetype end = bytes.indexOf('\n', begin); end >= 0; end = bytes.indexOf('\n', begin)) {
        look_at(bytes.sliced(begin, end - begin), evidence);
        begin = end + 1;
    }
    return bytes.sliced(begin);
}

Evidence evidence_of(ByteSource &source) {
    Evidence evidence;
    const qint64 last_place = std::max<qint64>(source.size() - sample_length, 0);
    const qint64 samples = std::min(most_samples, last_place / sample_length + 2);
    for (qint64 i = 0; i < samples; ++i) {
        const QByteArray bytes = sample(source, last_place * i / (samples - 1));
        const QByteArrayView rest = look_at_lines(bytes, evidence);
        if (i == samples - 1 && !rest.isEmpty()) {
            look_at(rest, evidence);
            evidence.cut = !rest.endsWith(separator);
        }
    }
    return evidence;
}

}  // namespace

std::optional<QString> szótárhiba(ByteSource &forrás) {
    if (forrás.size() == 0)
        return u"üres."_s;
    const Evidence evidence = evidence_of(forrás);
    if (evidence.binary)
        return u"olyan bájtok is vannak benne, amelyek szövegben nem állhatnak."_s;
    if (evidence.lines == 0)
        return u"egyetlen szócikk sincs benne."_s;
    if (evidence.with_colon * 2 < evidence.lines)
        return u"a sorai nem szócikkek."_s;
    if (evidence.entries * 2 < evidence.lines)
        return u"nem windows-1250 kódolású: nincs a helyén a jelentéseket elválasztó „÷” jel."_s;
    if (evidence.cut)
        return u"a vége hiányzik."_s;
    return std::nullopt;
}
