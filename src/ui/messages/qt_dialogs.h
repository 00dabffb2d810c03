#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/dialogs.h"

/// Message boxes of the toolkit, in front of a window of the program.
class QtMessageBoxes final : public MessageBoxes {
  public:
    /// The boxes stand in front of `window`; while it is hidden or does not exist, in front of the program's window
    /// that is used, or of another that is seen.
    void set_window(QWidget *window) { window_ = window; }

    void tell(const QString &text) override;
    [[nodiscard]] Answer ask_yes_no(const QString &title, const QString &text) override;
    [[nodiscard]] Answer ask_yes_no_cancel(const QString &title, const QString &text) override;
    void beep() override;

  private:
    QPointer<QWidget> window_;
};

/// The system's file dialogs.
class QtFileDialogs final : public FileDialogs {
  public:
    /// The dialogs stand in front of `window`, or of another as the boxes do.
    void set_window(QWidget *window) { window_ = window; }

    [[nodiscard]] std::optional<QString> open(const QString &proposal) override;
    [[nodiscard]] std::optional<QString> save(const QString &proposal) override;
    [[nodiscard]] std::optional<QString> save_pdf(const QString &proposal) override;

  private:
    QPointer<QWidget> window_;
};
