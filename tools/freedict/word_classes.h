#pragma once

#include <QHash>
#include <QString>
#include <variant>

#include "freedict/words_of.h"
#include "platform/files.h"

namespace freedict {

/// How common English words are: the classes of the word lists of SCOWL (Debian package scowl), from 10, the words that
/// every list has, to 80. The files are english-words.10 and so on, british-… and american-…, and …-upper.… of words
/// with a capital; in Latin-1, a word a line.
class WordClasses final {
  public:
    static constexpr int unknown = 95;

    /// Reads the lists in `folder`; a failure when the first of them is not there.
    [[nodiscard]] static std::variant<WordClasses, Failure> read(const QString &folder);

    /// The class of a word in small letters.
    [[nodiscard]] int of(const QString &word) const { return classes_.value(word, unknown); }
    /// The class of the rarest word of an English text.
    [[nodiscard]] int of_rarest(const QString &text) const;

  private:
    QHash<QString, int> classes_;
};

}  // namespace freedict
