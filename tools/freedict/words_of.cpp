#include "freedict/words_of.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace freedict {
namespace {

bool begins_verb(const QString &text) {
    return text.startsWith(verb_mark);
}

/// Where the further forms begin; −1 when the text has none.
qsizetype comma_before_forms(const QString &text, Language language) {
    const qsizetype comma = text.indexOf(u", "_s);
    if (language == Language::hungarian || comma < 0)
        return -1;
    const QString base = text.first(comma).sliced(begins_verb(text) ? verb_mark.size() : 0);
    const QStringList forms = text.sliced(comma + 2).split(u", "_s);
    const bool all = std::ranges::all_of(forms, [&](const QString &form) {
        const bool same_length = form.count(u' ') == base.count(u' ');
        return same_length && (begins_verb(text) || (!form.isEmpty() && !base.isEmpty() && form[0] == base[0]));
    });
    return all ? comma : -1;
}

}  // namespace

QString base_form(const QString &text, Language language) {
    const qsizetype comma = comma_before_forms(text, language);
    return comma < 0 ? text : text.first(comma);
}

QStringList further_forms(const QString &text, Language language) {
    const qsizetype comma = comma_before_forms(text, language);
    return comma < 0 ? QStringList() : text.sliced(comma + 2).split(u", "_s);
}

QString without_brackets(const QString &text) {
    QString outside;
    int depth = 0;
    for (const QChar character : text) {
        if (character == u'(')
            ++depth;
        if (depth == 0)
            outside += character;
        if (character == u')' && depth > 0)
            --depth;
    }
    outside = outside.simplified();
    return outside.isEmpty() ? text : outside;
}

QStringList words_of(const QString &text, Language language) {
    QString rest = without_brackets(base_form(text, language)).toLower();
    QStringList words;
    if (language == Language::english && begins_verb(rest)) {
        words.append(verb_mark);
        rest.remove(0, verb_mark.size());
    }
    QString word;
    for (const QChar character : std::as_const(rest)) {
        if (character.isLetterOrNumber() || character == u'\'') {
            word += character;
        } else if (!word.isEmpty()) {
            words.append(word);
            word.clear();
        }
    }
    if (!word.isEmpty())
        words.append(word);
    return words;
}

QString folded(const QString &text) {
    static const QString from = u"áéíóöőúüű"_s;
    static const QString to = u"aeiooouuu"_s;
    QString result = text.toLower();
    for (QChar &character : result) {
        const qsizetype at = from.indexOf(character);
        if (at >= 0)
            character = to[at];
    }
    return result;
}

}  // namespace freedict
