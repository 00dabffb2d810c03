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

/// The names for the current file `aktuálisfájl`: a path, "" when there is none, or either behind the "*" that a
/// cancelled naming leaves.
[[nodiscard]] dokumentumnevek dokumentum(const QString &aktuálisfájl, const QString &programkönyvtár);

/// `név` with ".pdf" behind it unless it has that already.
[[nodiscard]] QString pdfnév(const QString &név);
