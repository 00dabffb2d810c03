#pragma once

#include <QSpinBox>

/// An up-down control: two arrows that count a value, which a label beside it tells. It shows no text itself.
class UpDown final : public QSpinBox {
  public:
    UpDown();

  protected:
    [[nodiscard]] QString textFromValue(int) const override { return {}; }
    void paintEvent(QPaintEvent *event) override;
};
