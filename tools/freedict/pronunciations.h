#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include "freedict/freedict_package.h"

// The pronunciations of the English headwords, a file beside the dictionaries and ordered as they are, for the same
// search. In UTF-8, every line ended by CR LF:
//
//     notice CR LF
//     headword ":" pronunciation CR LF
//
// The pronunciation is in the international phonetic alphabet, its stress marks before the syllable. The notice has at
// least notice_bytes bytes (freedict/dictionary_text.h) and no ":".
namespace freedict {

/// The name of the file.
inline constexpr QStringView pronunciation_file = u"kiejt.txt";

/// The file's bytes for the entries that have a pronunciation; `package` gives the notice its source.
[[nodiscard]] QByteArray pronunciation_text(const Package &package, const QVector<Entry> &entries);

/// The package's pronunciation of a headword with the stress marks before the syllables, where the package has them
/// before the vowels, and with "sy" and "sg" read as somebody and something.
[[nodiscard]] QString mended_pronunciation(const QString &headword, const QString &pronunciation);

}  // namespace freedict
