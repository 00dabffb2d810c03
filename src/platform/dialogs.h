#pragma once

#include <QString>
#include <optional>

/// The user's answer to a question.
enum class Answer { yes, no, cancel };

/// Message boxes. Each call returns when the user has closed the box. The real ones are in ui/messages/qt_dialogs.h.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;

    /// Tells something; one button.
    virtual void tell(const QString &text) = 0;
    /// Asks with the buttons Yes and No, and cannot be closed in another way. A request to end the program closes it as
    /// No.
    [[nodiscard]] virtual Answer ask_yes_no(const QString &title, const QString &text) = 0;
    /// Asks with the buttons Yes, No and Cancel; closing the box is Cancel.
    [[nodiscard]] virtual Answer ask_yes_no_cancel(const QString &title, const QString &text) = 0;
    /// The system's beep.
    virtual void beep() = 0;
};

/// The system's file dialogs, for word lists but for save_pdf(). `proposal` is a folder with a pattern ("…/*.szs") or a
/// file path that the dialog starts with; the result is the full path as chosen, nothing when the user cancels. None
/// asks about overwriting, and each may return a file that does not exist.
class FileDialogs {
  public:
    virtual ~FileDialogs() = default;

    [[nodiscard]] virtual std::optional<QString> open(const QString &proposal) = 0;
    [[nodiscard]] virtual std::optional<QString> save(const QString &proposal) = 0;
    [[nodiscard]] virtual std::optional<QString> save_pdf(const QString &proposal) = 0;
};
