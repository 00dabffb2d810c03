#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/dialogs.h"
#include "ui/window/window_fitting.h"

/// Message boxes of the toolkit, in front of a window of the program, as large as the screen asks for.
class QtMessageBoxes final : public MessageBoxes {
  public:
    /// `hasznos` must outlive this object.
    explicit QtMessageBoxes(const Module_hasznos &hasznos) : hasznos_(hasznos) {}

    /// The boxes stand in front of `window`; while it is hidden or does not exist, in front of the program's window
    /// that is used, or of another that is seen.
    void set_window(QWidget *window) { window_ = window; }

    void tell(const QString &text) override;
    [[nodiscard]] Answer ask_yes_no(const QString &title, const QString &text) override;
    [[nodiscard]] Answer ask_yes_no_cancel(const QString &title, const QString &text) override;
    void beep() override;

  private:
    const Module_hasznos &hasznos_;
    QPointer<QWidget> window_;
};

/// The system's file dialogs; those of the toolkit where it has none, as large as the screen asks for.
class QtFileDialogs final : public FileDialogs {
  public:
    /// `hasznos` must outlive this object.
    explicit QtFileDialogs(const Module_hasznos &hasznos) : hasznos_(hasznos) {}

    /// The dialogs stand in front of `window`, or of another as the boxes do.
    void set_window(QWidget *window) { window_ = window; }

    [[nodiscard]] std::optional<QString> open(const QString &proposal) override;
    [[nodiscard]] std::optional<QString> save(const QString &proposal) override;
    [[nodiscard]] std::optional<QString> save_pdf(const QString &proposal) override;

  private:
    const Module_hasznos &hasznos_;
    QPointer<QWidget> window_;
};
