#pragma once

#include <QString>
#include <QVector>
#include <array>

#include "platform/random_numbers.h"
#include "wordlist/word_pair_list.h"

/// The memory game without its window: which text is on which card, which cards are turned up, and what a turned card
/// leads to. Cards count from 0. Cards match by their texts alone, so that pairs with equal texts are interchangeable.
class memóriajáték final {
  public:
    /// `véletlen` must outlive this object.
    memóriajáték(const QVector<szópár> &szavak, RandomNumbers &véletlen);

    /// The highest index of the pairs to deal from.
    [[nodiscard]] int szópárfelső() const { return static_cast<int>(szópárok_.size()) - 1; }
    /// Whether there are pairs enough for a game: at least seven.
    [[nodiscard]] bool elég() const { return szópárfelső() >= 6; }

    /// Deals a new game onto this even number of cards, all covered. There must be at least half as many pairs.
    void kioszt(int kártyák);

    [[nodiscard]] int kártyák() const { return static_cast<int>(kártyák_.size()); }
    [[nodiscard]] const QString &szöveg(int i) const { return kártyák_.at(i).szöveg; }
    /// Whether the card shows its text; stays true for a card that is out of the game.
    [[nodiscard]] bool felfedett(int i) const { return kártyák_.at(i).felfedett; }
    /// False once the card's pair has been found.
    [[nodiscard]] bool játékban(int i) const { return kártyák_.at(i).játékban; }
    /// Cards turned up by the player, 0 to 2; 2 also after a found pair, until lefed().
    [[nodiscard]] int felfordított() const { return felfordított_; }

    /// What a card that was turned leads to; `semmi` when it could not be turned.
    enum class fordulat { semmi, első, pár, tévedés };
    /// Turns a card up unless it is up or found already. felfordított() must be below 2. The cards of a found pair are
    /// out of the game from now on.
    fordulat felfordít(int i);
    /// The two cards of the pair that was found last.
    [[nodiscard]] const std::array<int, 2> &pár() const { return pár_; }
    /// Covers every card that is turned up and in the game, and begins the next try.
    void lefed();

    /// Counts a found pair. To be called when its cards have gone.
    void megtalál() { ++megtalált_; }
    [[nodiscard]] bool vége() const { return megtalált_ == játékpárok_.size(); }
    /// Pairs found and pairs dealt: "3/10".
    [[nodiscard]] QString állás() const;

  private:
    struct Szópár {
        /// Up to the first comma.
        QString magyar;
        QString angol;
        /// Dealt in this game.
        bool felhasznált = false;
    };
    struct kártya {
        QString szöveg;
        bool felfedett = false;
        bool játékban = true;
    };

    /// Whether two cards belong together.
    [[nodiscard]] bool párvizsgál(const std::array<int, 2> &lapok) const;

    QVector<Szópár> szópárok_;
    RandomNumbers &véletlen_;
    QVector<Szópár> játékpárok_;
    QVector<kártya> kártyák_;
    std::array<int, 2> pár_{};
    int felfordított_ = 0;
    int megtalált_ = 0;
};
