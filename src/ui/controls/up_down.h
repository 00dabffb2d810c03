#pragma once

#include <QSpinBox>

/// An up-down control: two arrows that count a value, which a label beside it tells. It shows no text itself, and of
/// the toolkit's control only the arrows.
class UpDown final : public QSpinBox {
  public:
    UpDown();

  protected:
    [[nodiscard]] QString textFromValue(int) const override { return {}; }
    void resizeEvent(QResizeEvent *event) override;
};
