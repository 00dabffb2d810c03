#include "suggestions/text_words.h"

namespace {

bool joins(QChar character) {
    return character == u'\'' || character == u'’' || character == u'-';
}

/// Where the word ends that begins at `start`.
qsizetype end_of_word(QStringView text, qsizetype start) {
    qsizetype end = start;
    while (end < text.size() && (text[end].isLetterOrNumber() || text[end].isMark() ||
                                 (joins(text[end]) && end + 1 < text.size() && text[end + 1].isLetterOrNumber())))
        ++end;
    return end;
}

}  // namespace

QVector<szövegszó> szavai(QStringView szöveg, qsizetype legfeljebb) {
    QVector<szövegszó> words;
    bool separated = false;
    for (qsizetype at = 0; at < szöveg.size() && words.size() < legfeljebb;) {
        if (!szöveg[at].isLetterOrNumber()) {
            separated = separated || !szöveg[at].isSpace();
            ++at;
            continue;
        }
        const qsizetype end = end_of_word(szöveg, at);
        QString word = szöveg.sliced(at, end - at).toString().replace(u'’', u'\'');
        words.append({.szó = word, .kicsi = word.toLower(), .elválasztva = separated && !words.isEmpty()});
        separated = false;
        at = end;
    }
    return words;
}
