#pragma once

#include <QString>
#include <QStringList>

/// A text and, beside it, the letters of the Hungarian alphabet that it is made of: "sz" or "dzs" is one letter. The
/// letters follow from `value` and `csere` alone; the operations on characters leave them as they are.
///
/// Positions and lengths count units of a QString; a letter never ends within what is read as one character, such as
/// one that needs two units. Positions count from 1; a length or position that is out of range is limited to the
/// nearest one in range, so that no operation fails. A property is read without and set with an argument.
///
/// Which letters have two and three characters, and how a long one is written ("ssz"), is ruled by A magyar helyesírás
/// szabályai, the orthography of the Hungarian Academy of Sciences.
class kszöveg final {
  public:
    /// Codes of `szövegnyelv`.
    static constexpr int magyar = 2;
    static constexpr int angol = 4;

    // The text and its language
    [[nodiscard]] const QString &value() const { return szöveg_; }
    /// Sets the text and splits it into letters.
    void value(const QString &szöveg);
    [[nodiscard]] int szövegnyelv() const { return nyelv_; }
    /// Takes one of the two codes; any other changes nothing. The letters stay as they are until the text is set.
    void szövegnyelv(int nyelv);
    /// Takes "magyar", "english" or "angol" in any case; any other changes nothing.
    void szövegnyelv(const QString &nyelv);

    // Letters
    [[nodiscard]] int MAGYARBETŰKSZÁMA() const { return static_cast<int>(betűk_.size()); }
    /// Letter `i`; beyond the last one the last, before the first one nothing.
    [[nodiscard]] QString szóbetűje(int i) const;
    /// A capital is no vowel.
    [[nodiscard]] bool EzabetűMagánhangzóE(int i) const;
    /// The first, the last `n` letters.
    [[nodiscard]] QString magyarleft(int n) const;
    [[nodiscard]] QString magyarright(int n) const;
    /// The letters, with a comma before the first and after each.
    [[nodiscard]] QString VesszősSzöveg() const;
    /// True when `betű` is one whole letter of the text.
    [[nodiscard]] bool vanebenne(const QString &betű) const;
    /// The text behind its definite article, which begins with a capital if `nagybetűs`.
    [[nodiscard]] QString Névelővel(bool nagybetűs) const;

    // Characters
    /// Number of characters. The name is spelled so on purpose.
    [[nodiscard]] int lenght() const { return static_cast<int>(szöveg_.size()); }
    /// Cuts the text at its end, or fills it up there.
    void lenght(int n);
    [[nodiscard]] const QString &töltelékkarakter() const { return töltelék_; }
    /// Only the first character is taken; without one nothing is filled up.
    void töltelékkarakter(const QString &karakter) { töltelék_ = karakter.left(1); }
    /// The text without its last, its first `n` characters.
    [[nodiscard]] QString jobbrólvágott(int n) const;
    [[nodiscard]] QString balrólvágott(int n) const;
    void levág_jobbról(int n) { szöveg_ = jobbrólvágott(n); }
    void levág_balról(int n) { szöveg_ = balrólvágott(n); }
    /// Puts `s` before character `p`; length + 1 is the end.
    void beszúr(int p, const QString &s) { szöveg_ = beszúr_nem_változik(p, s); }
    [[nodiscard]] QString beszúr_nem_változik(int p, const QString &s) const;
    /// Replaces every occurrence of `régi`, from left to right and never in what was put in, and splits the result into
    /// letters.
    void csere(const QString &régi, const QString &új);

  private:
    void betűkre_bont();

    QString szöveg_;
    QString töltelék_{u' '};
    int nyelv_ = magyar;
    QStringList betűk_;
};
