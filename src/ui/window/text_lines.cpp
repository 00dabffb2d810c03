#include "ui/window/text_lines.h"

#include <QFontMetricsF>
#include <cmath>
#include <utility>

#include "ui/controls/picture_box.h"
#include "ui/drawing/fonts.h"
#include "ui/drawing/twips.h"

namespace {

/// A size to guess others from.
constexpr int minta_pont = 32;
/// The widths of its words make up that of a line but for this part: letters stand closer to some blanks.
constexpr double pontatlanság = 0.1;

bool elfér(const QSizeF &szöveg, const QSizeF &hely) {
    return szöveg.width() < hely.width() && szöveg.height() < hely.height();
}

/// Breaks a text into lines in letters of one size; lengths are pixels.
class Sortörő final {
  public:
    Sortörő(QFontMetricsF mérték, double szélesség)
        : mérték_(std::move(mérték)), szélesség_(szélesség), szóköz_(mérték_.horizontalAdvance(u' ')) {}

    void szó(const QString &mi) {
        const double széles = mérték_.horizontalAdvance(mi);
        const QString bővebb = sorok_.back().isEmpty() ? mi : sorok_.back() + u' ' + mi;
        const double hossz = sorok_.back().isEmpty() ? széles : hossz_ + szóköz_ + széles;
        if (befér(bővebb, hossz)) {
            sorok_.back() = bővebb;
            hossz_ = hossz;
            return;
        }
        if (!sorok_.back().isEmpty())
            sorok_.append(QString());
        sorok_.back() = széles < szélesség_ ? mi : feltördelt(mi, széles);
        hossz_ = sorok_.back().size() == mi.size() ? széles : mérték_.horizontalAdvance(sorok_.back());
    }

    [[nodiscard]] const QStringList &sorok() const { return sorok_; }
    [[nodiscard]] bool tört_szót() const { return tört_szót_; }
    [[nodiscard]] double magasság() const { return mérték_.height() * static_cast<double>(sorok_.size()); }

  private:
    /// Only a line about whose width the words leave a doubt is measured as a whole.
    [[nodiscard]] bool befér(const QString &sor, double hossz) const {
        if (std::abs(hossz - szélesség_) > szélesség_ * pontatlanság)
            return hossz < szélesség_;
        return mérték_.horizontalAdvance(sor) < szélesség_;
    }

    /// Makes lines of the beginning of a word that is too wide for one; returns its rest.
    QString feltördelt(QString maradék, double széles) {
        tört_szót_ = true;
        while (széles >= szélesség_) {
            const auto betűk = static_cast<int>(maradék.size());
            int meddig = utolsó_jó(1, static_cast<int>(betűk * szélesség_ / széles), [&](int n) {
                return n <= betűk && mérték_.horizontalAdvance(maradék.left(n)) < szélesség_;
            });
            // The two halves of a character are one.
            if (maradék[meddig - 1].isHighSurrogate())
                meddig += meddig > 1 ? -1 : 1;
            if (meddig >= betűk)
                break;
            sorok_.back() = maradék.left(meddig);
            sorok_.append(QString());
            maradék.remove(0, meddig);
            széles = mérték_.horizontalAdvance(maradék);
        }
        return maradék;
    }

    QFontMetricsF mérték_;
    double szélesség_;
    double szóköz_;
    QStringList sorok_{QString()};
    /// Of the last line.
    double hossz_ = 0;
    bool tört_szót_ = false;
};

Sortörő tördelő(const QStringList &szavak, double szélesség, double pont, const Betűpróba &próba) {
    Sortörő törő(QFontMetricsF(próba.betű(pont)), szélesség / twips::per_pixel);
    for (const QString &szó : szavak)
        törő.szó(szó);
    return törő;
}

}  // namespace

Betűpróba::Betűpróba(QFont betű) : betű_(std::move(betű)) {
    betű_.setFamilies({fonts::times_new_roman});
}

QFont Betűpróba::betű(double pont) const {
    QFont mekkora = betű_;
    fonts::set_points(mekkora, pont);
    return mekkora;
}

QSizeF Betűpróba::méret(double pont, const QString &szöveg) const {
    return PictureBox::text_size(szöveg, betű(pont));
}

int Betűpróba::legnagyobb(const QString &szöveg, const QSizeF &hely, int legalább) const {
    const QSizeF minta = méret(minta_pont, szöveg);
    const double arány =
        std::min(hely.width() / std::max(minta.width(), 1.0), hely.height() / std::max(minta.height(), 1.0));
    return utolsó_jó(legalább - 1, static_cast<int>(minta_pont * arány),
                     [&](int pont) { return elfér(méret(pont, szöveg), hely); });
}

QStringList tördelt(const QString &szöveg, double szélesség, double pont, const Betűpróba &próba) {
    return tördelő(szöveg.split(u' '), szélesség, pont, próba).sorok();
}

Betördelt sorokban(const QString &szöveg, const QSizeF &hely, int legalább, int törhető, const Betűpróba &próba) {
    const QStringList szavak = szöveg.split(u' ');
    const QSizeF minta = próba.méret(minta_pont, szöveg);
    // In lines the text has about the area that it has in one.
    const double arány = std::sqrt(hely.width() * hely.height() / std::max(minta.width() * minta.height(), 1.0));
    const int pont = utolsó_jó(legalább, static_cast<int>(minta_pont * arány), [&](int mekkora) {
        const Sortörő törő = tördelő(szavak, hely.width(), mekkora, próba);
        return (mekkora <= törhető || !törő.tört_szót()) && twips::from_pixels(törő.magasság()) < hely.height();
    });
    return {tördelő(szavak, hely.width(), pont, próba).sorok().join(u'\n'), static_cast<double>(pont)};
}
