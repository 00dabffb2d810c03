#pragma once

#include <QRectF>
#include <QVector>
#include <array>

/// Number of cards of a memory board: whole columns of equal length.
struct játéktér {
    int oszlopok;
    int oszlopban;

    [[nodiscard]] constexpr int kártyák() const { return oszlopok * oszlopban; }
    [[nodiscard]] constexpr int párok() const { return kártyák() / 2; }
};

/// The boards to choose from, by the index of their option button.
inline constexpr std::array játékterek{játéktér{3, 4}, játéktér{4, 4}, játéktér{4, 5},
                                       játéktér{4, 6}, játéktér{5, 6}, játéktér{6, 6}};

/// The board `index`, or the largest smaller one for which `párok` pairs are enough; the first one needs none.
[[nodiscard]] int legnagyobb_játéktér(int index, int párok);

/// Where everything of a memory game lies before it is scaled, in twips.
struct kártyahelyek {
    QVector<QRectF> kártyák;
    QRectF Label_feladat;
    QRectF Label_info;
};

/// Lays a board out: the cards column by column, the task above them, the progress below their right edge.
[[nodiscard]] kártyahelyek kártyákat_elhelyez(const játéktér &tér);
