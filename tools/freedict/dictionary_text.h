#pragma once

#include <QByteArray>
#include <QStringView>
#include <array>
#include <optional>

#include "freedict/freedict_package.h"
#include "freedict/words_of.h"
#include "platform/files.h"

// The program's dictionary file: text in windows-1250, one line an entry, every line ended by CR LF:
//
//     notice CR LF
//     headword ":" meaning "÷" meaning "÷" … CR LF        ("÷" is the byte F7; at least one meaning)
//
// The headword holds no ":". The lines behind the notice are in ascending order of their bytes (unsigned), a "to " at
// their beginning left out of account. The search never finds what lies in the first 50 bytes, so the first line is no
// entry: it says where the dictionary comes from and under which conditions it may be used, in at least
// notice_bytes bytes without ":" and "÷".
namespace freedict {

inline constexpr qsizetype notice_bytes = 101;

/// One of the program's dictionaries and the package it is made of.
struct Dictionary {
    QStringView package;
    QStringView file;
    QStringView title;
    /// The language of the headwords.
    Language language = Language::english;
    /// The package writes û and ô, which Hungarian does not have, for ű and ő.
    bool circumflex_is_double_acute = false;
};

inline constexpr Dictionary english_hungarian{u"freedict-eng-hun", u"am.txt", u"angol–magyar", Language::english, true};
inline constexpr Dictionary hungarian_english{u"freedict-hun-eng", u"ma.txt", u"magyar–angol", Language::hungarian,
                                              false};
inline constexpr std::array dictionaries{english_hungarian, hungarian_english};

/// The package's entries with the letters mended as dictionary_text() does.
[[nodiscard]] QVector<Entry> mended_entries(const Package &package, const Dictionary &dictionary);

/// The file's bytes, with these mends of the package's entries: û, ô become ű, ő where they stand for them, the grave
/// accent ` becomes an apostrophe, and a ":" in a headword becomes " –". A failure that names the entry when one cannot
/// be written so: a character that the code page lacks, a "÷" in a meaning.
[[nodiscard]] FileContent dictionary_text(const Package &package, const Dictionary &dictionary,
                                          const Steps &steps = {});

struct Counts {
    qsizetype entries = 0;
    qsizetype meanings = 0;

    friend bool operator==(const Counts &, const Counts &) = default;
};

/// How much entries hold.
[[nodiscard]] Counts counts_of(const QVector<Entry> &entries);

/// How much the bytes of a dictionary file hold.
[[nodiscard]] Counts counts_in(QByteArrayView text);

/// The failure of a dictionary that holds more or less than its package or than the package says it holds; nothing
/// when all are the same.
[[nodiscard]] std::optional<Failure> difference(const Package &package, const Counts &written);

}  // namespace freedict
