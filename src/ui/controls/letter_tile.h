#pragma once

#include <QLabel>

/// A tile with a letter on it. It tells what the mouse does on it and leaves it to others to move it; places are twips
/// from its own top left corner.
class LetterTile final : public QLabel {
    Q_OBJECT

  public:
    explicit LetterTile(const QString &letter, QWidget *parent = nullptr);

    /// Size in twips of the tile of a letter in this font.
    [[nodiscard]] static QSizeF size_of(const QString &letter, const QFont &font);

  Q_SIGNALS:
    void mouse_pressed(const QPointF &place);
    void mouse_moved(Qt::MouseButtons held, const QPointF &place);

  protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
