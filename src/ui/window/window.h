#pragma once

#include <QColor>
#include <QHash>
#include <QList>
#include <QObject>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QWidget>

class QMenuBar;
class QPushButton;

/// A window as every window of the program is one: it keeps its own place and size and those of its controls in twips,
/// has a background colour and a caption, can be shown modally, and has a default button that Enter presses.
///
/// Its outer height is the inner height plus a nominal frame (title bar and borders, and the menu bar where there is
/// one), the same on every system: what the system's own frame takes in pixels never shifts a control. A window without
/// a frame is as large as its inner surface.
class ablak : public QWidget {
  public:
    enum class menü { nincs, van };
    /// Frame of a window: one that keeps its size, none at all, or one that the user draws larger and smaller.
    enum class keret { rögzített, nincs, átméretezhető };

    explicit ablak(const QString &név, menü van_menü = menü::nincs, keret milyen = keret::rögzített);

    /// The menu bar; null for a window without one.
    [[nodiscard]] QMenuBar *menüsor() const { return menüsor_; }

    // Place and size, in twips. The outer sizes include the nominal frame.
    [[nodiscard]] double magasság() const { return magasság_; }
    [[nodiscard]] double szélesség() const { return szélesség_; }
    [[nodiscard]] double keretmagasság() const;
    [[nodiscard]] double keretszélesség() const;
    [[nodiscard]] double belsőmagasság() const { return magasság_ - keretmagasság(); }
    [[nodiscard]] double belsőszélesség() const { return szélesség_ - keretszélesség(); }
    void méretez(double szélesség, double magasság);
    void magasságbeállít(double magasság) { méretez(szélesség_, magasság); }
    /// Puts the top left corner of the window's frame to this place among all screens, in twips.
    void áttesz(const QPointF &hová);
    /// Centres the window on a screen that has this place among all screens.
    void középre(const QRectF &képernyő);

    /// Puts a control of the window, its child from now on, to a place on the inner surface, in twips.
    void elhelyez(QWidget *vezérlő, const QRectF &hely);
    [[nodiscard]] QRectF hely(const QWidget *vezérlő) const { return helyek_.value(vezérlő); }
    /// Takes a control off the window and deletes it.
    void levesz(QWidget *vezérlő);
    /// The controls in the order they were placed; menus are none.
    [[nodiscard]] const QList<QWidget *> &vezérlők() const { return vezérlők_; }

    [[nodiscard]] QColor háttérszín() const { return háttérszín_; }
    void háttérszínbeállít(const QColor &szín);

    /// The button that Enter presses while no button has the focus; null for none.
    void alapgombbeállít(QPushButton *gomb);
    [[nodiscard]] QPushButton *alapgomb() const { return alapgomb_; }

    /// The button that Escape presses; null for none.
    void mégsegombbeállít(QPushButton *gomb) { mégsegomb_ = gomb; }
    /// Escape closes the window, which has no button for it.
    void escapezár() { escape_zár_ = true; }

    /// Shows the window and returns when it is hidden or closed; the program's other windows take no input meanwhile.
    void mutatmodálisan();

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    /// The user has given a window `keret::átméretezhető` another size: belsőmagasság() and belsőszélesség() are new.
    virtual void Form_Resize() {}

  private:
    void igazít();
    /// Lets the default button look like the one that Enter presses, while it is.
    void alapgombot_jelez();
    [[nodiscard]] int menümagasság() const;

    const keret keret_;
    QMenuBar *menüsor_ = nullptr;
    QWidget *felület_ = nullptr;
    QPushButton *alapgomb_ = nullptr;
    QPushButton *mégsegomb_ = nullptr;
    bool escape_zár_ = false;
    QList<QWidget *> vezérlők_;
    QHash<const QWidget *, QRectF> helyek_;
    QColor háttérszín_;
    double szélesség_ = 0;
    double magasság_ = 0;
    /// They go before the buttons, which lose the focus when they are destroyed.
    QObject gombfigyelők_;
};
