#pragma once

#include <QPixmap>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QWidget>
#include <vector>

/// A picture box: a surface with a picture, on which texts are printed in its current font and stay until it is
/// cleared. Lengths are twips of its own; nothing printed depends on the resolution it is shown in. Printed texts lie
/// on its inner surface, which the widget's contents margins leave.
class PictureBox : public QWidget {
  public:
    explicit PictureBox(QWidget *parent = nullptr);

    /// Takes everything printed off.
    void clear();
    /// Prints `text` in the widget's font, its top left corner at `position`; lines of several are centred on each
    /// other.
    void print(const QPointF &position, const QString &text);

    [[nodiscard]] QSizeF inner_size() const;
    /// Width and height of `text`, whose lines "\n" ends, in `font`.
    [[nodiscard]] static QSizeF text_size(const QString &text, const QFont &font);
    /// Prints `text` in its middle.
    void print_centred(const QString &text);
    /// Where the printed texts stand.
    [[nodiscard]] QRectF printed_area() const;

    /// A picture that fills the box behind what is printed, whatever size the box has; a null one takes it off.
    void set_picture(const QPixmap &picture);
    [[nodiscard]] const QPixmap &picture() const { return picture_; }

    void set_background(const QColor &colour);

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    struct Printed {
        QRectF place;
        QString text;
        QFont font;
    };
    std::vector<Printed> printed_;
    QPixmap picture_;
};
