#pragma once

#include <QString>
#include <QVector>
#include <functional>

#include "print/page_printer.h"
#include "wordlist/word_pair_list.h"

/// The three ways to lay a word list out on pages. Font face and orientation have been set on the printer; the layouts
/// set the size of the letters, and the last two print in landscape whatever was set.
enum class nyomtatástípus {
    /// A title, then all pairs in columns.
    szószedet,
    /// Each pair alone on a page, as large as fits.
    szópárok,
    /// Each side of each pair alone on a page, as large as fits, and an empty page at the end.
    szókártyák
};

/// What is printed.
struct nyomtatandó {
    QVector<szópár> párok;
    /// Full path of the list's file; "" for a list that was never saved.
    QString út;
    /// In points.
    int betűméret = 14;
    /// 1 to 3.
    int hasábok = 1;
};

enum class nyomtatásvége { kész, megszakítva, hibás };

/// Called on the way with how many pieces of how many are done; false puts an end to it.
using nyomtatásfigyelő = std::function<bool(int kész, int összes)>;

/// How a pair is written on paper: both sides with "  -  " between, very long ones cut.
[[nodiscard]] QString szópársor(const szópár &pár);

/// Lays `mit` out on the pages of `hova` and ends the document, which stays unended unless the result is `kész`. With
/// an empty list of pairs, `szópárok` prints nothing at all.
[[nodiscard]] nyomtatásvége nyomtat(PagePrinter &hova, nyomtatástípus hogyan, const nyomtatandó &mit,
                                    const nyomtatásfigyelő &figyelő);
