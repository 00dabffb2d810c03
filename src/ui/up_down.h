#pragma once

#include <QLineEdit>
#include <QSpinBox>

/// An up-down control: two arrows that count a value, which a label beside it tells.
class UpDown final : public QSpinBox {
  public:
    UpDown() { lineEdit()->setReadOnly(true); }

  protected:
    [[nodiscard]] QString textFromValue(int) const override { return {}; }
};
