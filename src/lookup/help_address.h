#pragma once

#include <QString>
#include <QUrl>
#include <optional>
#include <variant>

#include "platform/files.h"

/// The addresses of the help viewer: where it starts, what a text in its address box means, and which addresses it
/// opens: pages of the web (http and https), and files in the program folder or beside the help document. A link of the
/// file system leads where its target is, so one that leads out of these folders is not opened.
class súgócímek final {
  public:
    /// `programkönyvtár` is the text of the program folder, without a separator at its end.
    explicit súgócímek(const QString &programkönyvtár) : programkönyvtár_(programkönyvtár) {}

    /// The help document: the text of the program folder immediately followed by its name, without a separator.
    [[nodiscard]] QString kezdőcím() const;
    /// The makers' page, which lies beside the help document.
    [[nodiscard]] QString készítőcím() const;

    /// The address that a text stands for: a path of the system, with slashes or backslashes and perhaps with "#" and a
    /// place in the document behind it; an address with its scheme; or that of a web page without one ("www.x.hu"). Not
    /// valid when the text is none of these, empty when it is blank.
    [[nodiscard]] static QUrl url(const QString &szöveg);

    /// Why an address is not opened; nothing for one that is.
    [[nodiscard]] std::optional<Failure> akadály(const QUrl &cím) const;
    /// The address that a text which is not blank stands for, or why it is not opened.
    [[nodiscard]] std::variant<QUrl, Failure> nyitható(const QString &szöveg) const;

  private:
    [[nodiscard]] std::optional<Failure> fájlakadály(const QUrl &cím) const;

    QString programkönyvtár_;
};
