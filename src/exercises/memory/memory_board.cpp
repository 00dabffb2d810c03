#include "exercises/memory/memory_board.h"

namespace {

constexpr double köz = 120;
constexpr QRectF első_kártya(120, 600, 1695, 855);
constexpr QRectF feladathely(120, 0, 8535, 495);
constexpr QSizeF infóméret(735, 495);

}  // namespace

int legnagyobb_játéktér(int index, int párok) {
    while (index > 0 && párok < játékterek[static_cast<size_t>(index)].párok())
        --index;
    return index;
}

kártyahelyek kártyákat_elhelyez(const játéktér &tér) {
    kártyahelyek helyek{{első_kártya}, feladathely, {{0, 0}, infóméret}};
    for (int k = 1; k < tér.kártyák(); ++k) {
        QRectF hely = helyek.kártyák.back();
        if (k % tér.oszlopban == 0) {
            // That card lies in the column before, because no board has more columns than cards in a column.
            hely.moveTop(első_kártya.top());
            hely.moveLeft(helyek.kártyák[k - tér.oszlopok].right() + köz);
        } else {
            hely.translate(0, hely.height() + köz);
        }
        helyek.kártyák.append(hely);
    }
    const QRectF &utolsó = helyek.kártyák.back();
    helyek.Label_info.moveTo(utolsó.right() - infóméret.width(), utolsó.bottom() + köz);
    helyek.Label_feladat.setLeft(első_kártya.left());
    helyek.Label_feladat.setRight(utolsó.right());
    return helyek;
}
