#pragma once

#include <QString>
#include <functional>
#include <optional>

/// What the mini window makes of the texts that other programs put on the clipboard.
class vágólapszó final {
  public:
    /// Longer texts are no words.
    static constexpr int leghosszabb = 200;

    /// The text that is on the clipboard already is not looked up.
    void megjegyez(const QString &szöveg) { szöveg_ = szöveg; }

    /// The word to look up, when this text is another one than the last time: without the blanks, line ends, quotes and
    /// brackets around it, in lower case; "" when that leaves nothing. Nothing when the text is the same, or no word:
    /// too long, or of several lines.
    [[nodiscard]] std::optional<QString> új_szó(const QString &szöveg);

  private:
    QString szöveg_;
};

/// Searches for `szó`, and as long as nothing is found without its last letter, until no letter is left: so an
/// inflected word leads to the entry that it begins like. `keres` searches and says whether something was found, or
/// nothing when the search was overtaken by a newer one, which ends this.
void rövidítve_keres(QString szó, const std::function<std::optional<bool>(const QString &)> &keres);
