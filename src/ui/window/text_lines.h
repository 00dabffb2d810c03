#pragma once

#include <QFont>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <algorithm>

// How large a text can be in a place, and where it is broken into lines: measuring alone, no widget is changed. Places
// and sizes of texts are twips, sizes of letters points.

/// The last of the numbers from `alsó` on, one after the other, for which `jó` holds; `alsó` is taken to be good. What
/// is good must be good below, too, and end somewhere. A good guess makes it quick: it is where the search begins, in
/// growing steps, before what is left is halved.
template <class Jó>
[[nodiscard]] int utolsó_jó(int alsó, int tipp, Jó jó) {
    int biztos = alsó;
    int rossz = std::max(tipp, alsó + 1);
    int lépés = 1;
    if (jó(rossz)) {
        do {
            biztos = rossz;
            rossz += lépés;
            lépés *= 2;
        } while (jó(rossz));
    } else {
        while (rossz - lépés > alsó && !jó(rossz - lépés)) {
            rossz -= lépés;
            lépés *= 2;
        }
        biztos = std::max(alsó, rossz - lépés);
    }
    while (rossz - biztos > 1) {
        const int közép = biztos + (rossz - biztos) / 2;
        (jó(közép) ? biztos : rossz) = közép;
    }
    return biztos;
}

/// Sizes of a text in the type face of fitted texts.
class Betűpróba final {
  public:
    explicit Betűpróba(QFont betű);

    [[nodiscard]] QFont betű(double pont) const;
    [[nodiscard]] QSizeF méret(double pont, const QString &szöveg) const;
    /// The last size, from `legalább` on, in which `szöveg` is narrower and lower than `hely`; one less when even that
    /// is too large.
    [[nodiscard]] int legnagyobb(const QString &szöveg, const QSizeF &hely, int legalább) const;

  private:
    QFont betű_;
};

/// A text in lines, which "\n" separates, and their size.
struct Betördelt {
    QString sorok;
    double pont;
};

/// `szöveg` broken at blanks into lines narrower than `szélesség`; a word that is wider alone is broken inside.
[[nodiscard]] QStringList tördelt(const QString &szöveg, double szélesség, double pont, const Betűpróba &próba);

/// The text in lines, in the largest size, from `legalább` on, in which all of them fit. A word is broken inside only
/// in letters of up to `törhető` points.
[[nodiscard]] Betördelt sorokban(const QString &szöveg, const QSizeF &hely, int legalább, int törhető,
                                 const Betűpróba &próba);
