#pragma once

#include <QString>
#include <QStringList>

// The words that the meaning of a text is learned from. They are not for showing.
namespace freedict {

enum class Language { english, hungarian };

/// What an English verb begins with, as a word of its own: it tells verbs from nouns.
inline const QString verb_mark = QString::fromUtf16(u"to ");

/// The text without the further forms that the package lists behind it: "to go, went, gone" is "to go", "foot, feet" is
/// "foot". A comma that stands in a sentence stays.
[[nodiscard]] QString base_form(const QString &text, Language language);

/// The forms that base_form() leaves out.
[[nodiscard]] QStringList further_forms(const QString &text, Language language);

/// The text without what stands in brackets; the text itself when nothing else is left.
[[nodiscard]] QString without_brackets(const QString &text);

/// The words of a text in small letters, without what stands in brackets; an English verb's "to " is the first word.
[[nodiscard]] QStringList words_of(const QString &text, Language language);

/// The text in small letters without accents: á is a; ó, ö and ő are o; and so on.
[[nodiscard]] QString folded(const QString &text);

}  // namespace freedict
