#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QVector>

#include "suggestions/headword_list.h"
#include "suggestions/letter_sets.h"

/// What it costs to make a word of another one, in tenths of a wrong letter. Accents are cheap, Hungarian length marks
/// cheaper than vowels of another sound; two letters that are swapped, and one that is doubled or should be, are less
/// than one wrong letter. Capitals cost nothing.
namespace eltérésköltség {

inline constexpr int betű = 10;
/// One vowel for another, or two consonants that are often mixed up.
inline constexpr int hasonló = 9;
inline constexpr int csere = 8;
inline constexpr int kettőzés = 7;
/// Two letters for one that sounds the same, or the other way round: Hungarian "ly" and "j", English "ph" and "f".
inline constexpr int hangjel = 13;
/// A blank, a hyphen, an apostrophe, a full stop too many or too few.
inline constexpr int mellékes = 4;
/// Besides, where the first letter is another one, missing or too many.
inline constexpr int elöl = 3;
inline constexpr int hosszúság = 2;
/// a/á and e/é, which differ in more than length, and accents in English.
inline constexpr int ékezet = 3;
inline constexpr int hangzás = 4;
/// Any accent that a text lacks which has none at all: who types so has none to type.
inline constexpr int ékezet_nélkül = 1;

/// What one byte instead of another costs, neither of them at the beginning.
[[nodiscard]] int helyettesítés(char ebből, char ebbe, címszólista::nyelv nyelv);

}  // namespace eltérésköltség

/// Measures how far words are from a text, by the costs above: the cheapest way to make the one of the other in which
/// no letter is touched twice (optimal string alignment).
class eltérésmérő final {
  public:
    eltérésmérő(QByteArray szöveg, címszólista::nyelv nyelv);

    /// The cost, or any number greater than `határ` where it is that.
    [[nodiscard]] int mér(QByteArrayView szó, int határ) const;
    [[nodiscard]] const QByteArray &szöveg() const { return szöveg_; }
    /// What two letters may cost; less for short texts, in which everything is like everything.
    [[nodiscard]] int szokásos_határ() const;
    /// A bound of többlet() in each direction for words within `határ`, and of both together.
    [[nodiscard]] static int legnagyobb_többlet(int határ);
    [[nodiscard]] static int legnagyobb_eltérés(int határ);

  private:
    struct rács;
    [[nodiscard]] int lépés(const rács &eddig, QByteArrayView szó, qsizetype i, qsizetype j) const;
    [[nodiscard]] int helyett(char ebből, char ebbe) const {
        return helyett_[static_cast<size_t>(static_cast<unsigned char>(ebből)) * 256U +
                        static_cast<unsigned char>(ebbe)];
    }

    QByteArray szöveg_;
    bool magyar_;
    /// The costs of all pairs of bytes, for this text.
    const std::uint8_t *helyett_;
};
