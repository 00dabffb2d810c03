#pragma once

#include <QString>
#include <QtGlobal>

/// The state of the whole program. Everybody who needs it is handed the one object that start-up makes.
namespace global {

struct programállapot final {
    /// Folder of the dictionaries and the first folder of word lists; no separator at its end.
    QString programkönyvtár;
    /// Full path of the open word list; "" when it has no file yet, a name that begins with "*" after "Ment másként..."
    /// was cancelled.
    QString aktuálisfájl;
    /// What the current file was before its name got the "*".
    QString csillagelőtt;
    /// The file that the list was read from or saved to; "" for a list that was never saved.
    [[nodiscard]] const QString &listafájl() const {
        return aktuálisfájl.startsWith(u'*') ? csillagelőtt : aktuálisfájl;
    }
    /// 1 after an edit that is not saved yet, else 0.
    double változott = 0;
    /// Left and top edge of the mini window, in twips.
    qint32 kisablakbal = 0;
    qint32 kisablakfent = 0;
    /// 1 while the mini window is in use instead of the main window; read at start, it opens the mini window.
    qint16 kisablakmód = 0;
};

}  // namespace global
