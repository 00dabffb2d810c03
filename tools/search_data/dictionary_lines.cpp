#include "search_data/dictionary_lines.h"

#include "suggestions/letter_sets.h"

namespace search_data {
namespace {

Line line_of(QByteArrayView text, qsizetype place) {
    const qsizetype colon = text.indexOf(':');
    Line line{.headword = colon < 0 ? QByteArrayView() : text.first(colon), .meanings = {}, .place = place};
    for (qsizetype start = colon + 1; colon >= 0;) {
        const qsizetype end = text.indexOf('\xf7', start);
        if (end < 0)
            break;
        line.meanings.append({text.sliced(start, end - start), start});
        start = end + 1;
    }
    return line;
}

}  // namespace

QVector<Line> lines_of(QByteArrayView dictionary) {
    QVector<Line> lines;
    qsizetype start = dictionary.indexOf('\n') + 1;
    while (start > 0 && start < dictionary.size()) {
        const qsizetype end = dictionary.indexOf('\n', start);
        const qsizetype behind = end < 0 ? dictionary.size() : end;
        QByteArrayView text = dictionary.sliced(start, behind - start);
        if (text.endsWith('\r'))
            text.chop(1);
        lines.append(line_of(text, start));
        start = behind + 1;
    }
    return lines;
}

QVector<QByteArray> words_of(QByteArrayView text) {
    QVector<QByteArray> words;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (!betűk::szóé(text[at]))
            continue;
        QByteArray word;
        for (; at < text.size() && betűk::szóé(text[at]); ++at)
            word.append(betűk::kicsi(text[at]));
        words.append(word);
    }
    return words;
}

}  // namespace search_data
