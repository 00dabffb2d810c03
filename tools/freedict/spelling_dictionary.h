#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <memory>
#include <variant>
#include <vector>

#include "freedict/words_of.h"
#include "platform/files.h"

class Hunspell;

namespace freedict {

/// The spelling dictionaries of a language: of English "en_GB" and "en_US", of Hungarian "hu_HU" (Debian packages
/// hunspell-en-gb, hunspell-en-us, hunspell-hu). Each has a file ".aff" of rules and a file ".dic", where each line
/// behind the first, the number of words, is a word and behind "/" its flags; both in UTF-8.
class SpellingDictionary final {
  public:
    /// Reads those in `folder`; a failure when a file is not there.
    [[nodiscard]] static std::variant<SpellingDictionary, Failure> read(const QString &folder, Language language);

    SpellingDictionary(SpellingDictionary &&) noexcept;
    SpellingDictionary &operator=(SpellingDictionary &&) noexcept;
    ~SpellingDictionary();

    /// True when one of them knows the word with just these capitals.
    [[nodiscard]] bool accepts(const QString &word) const;
    /// True when the first of them, the British one, does.
    [[nodiscard]] bool first_accepts(const QString &word) const;
    /// The spelling with capitals of a word in small letters that is accepted with capitals only; the word itself when
    /// it is accepted as it stands, or not at all.
    [[nodiscard]] QString with_capitals(const QString &word) const;

  private:
    SpellingDictionary();

    std::vector<std::unique_ptr<Hunspell>> dictionaries_;
    /// The words with capitals by their small letters.
    QHash<QString, QStringList> capitals_;
    mutable QHash<QString, QString> decided_;
};

/// Of both languages.
struct Spelling {
    SpellingDictionary english;
    SpellingDictionary hungarian;

    [[nodiscard]] const SpellingDictionary &of(Language language) const {
        return language == Language::english ? english : hungarian;
    }
};

/// The spelling dictionaries in `folder`.
[[nodiscard]] std::variant<Spelling, Failure> read_spelling(const QString &folder);

}  // namespace freedict
