#pragma once

#include <QLabel>
#include <QPoint>
#include <QPointer>
#include <QTimer>

#include "ui/controls/picture_box.h"

/// A picture that can be chosen by a click or the space key, or dragged: then a ghost of it follows the mouse until the
/// button is let go. A picture that is hidden or deleted meanwhile is dropped nowhere, and so is one that loses the
/// focus, or whose window is left or blocked: the button may then be let go where nobody tells of it.
class ChoosablePicture : public PictureBox {
    Q_OBJECT

  public:
    enum class DragMode { manual, automatic };

    explicit ChoosablePicture(QWidget *parent = nullptr);
    ~ChoosablePicture() override;

    /// Automatic: the mouse drags, and a click does nothing. Manual: a click chooses. The space key chooses always.
    void set_drag_mode(DragMode mode);
    [[nodiscard]] DragMode drag_mode() const { return drag_mode_; }

    /// Keeps what is printed from now on clear of the frame, and of `hint`, which stands at its left side.
    void reserve_frame(const QString &hint = {});

    /// Shows its frame in red for a moment.
    void warn();
    void end_warning();

    /// Lets a press or drag that is under way come to nothing; so does the escape key.
    void end_drag();

  Q_SIGNALS:
    void chosen();
    /// The picture was let go at this place of the screen.
    void dropped(const QPoint &global_position);

  protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    [[nodiscard]] QFont hint_font() const;
    void draw_hint(QPainter &painter) const;

    DragMode drag_mode_ = DragMode::manual;
    QString hint_;
    /// Runs while the frame is red.
    QTimer warning_;
    /// Where the left button went down; nothing when it is up.
    bool pressed_ = false;
    QPoint grip_;
    /// Lies on the window, which may take it along when it goes.
    QPointer<QLabel> ghost_;
};
