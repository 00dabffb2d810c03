#pragma once

#include <QString>

/// What a printed word list is called.
struct dokumentumnevek {
    /// Full path of the list's file; "" for a list that was never saved.
    QString út;
    /// The list's name, without folder and extension.
    QString cím;
    /// The PDF file that is proposed: beside the list's file, else in the program folder.
    QString pdf;
};

/// The names for a list in the file `listafájl`; "" for a list that was never saved.
[[nodiscard]] dokumentumnevek dokumentum(const QString &listafájl, const QString &programkönyvtár);

/// `név` with ".pdf" behind it unless it has that already.
[[nodiscard]] QString pdfnév(const QString &név);
