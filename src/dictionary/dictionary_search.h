#pragma once

#include <QByteArrayView>
#include <functional>

#include "dictionary/byte_source.h"

// A dictionary file is text in the program's code page, one entry a line, lines ended by CR LF:
//
//     [ "to " ] headword  ":"  meaning "÷"  meaning "÷"  …  CR LF
//
// The lines are in ascending byte order of their text with a leading "to " (of an English verb) left out. The first
// line is a notice and never found. Nothing else is known of the file: no index, no length of a line. Of a line longer
// than 64 KiB the beginning counts, so its last whole meaning there is the last one.

/// One entry as it stands in the file. The views hold only during the call they are passed to.
struct szócikk {
    /// With its "to ".
    QByteArrayView címszó;
    /// Each followed by "÷"; jelentések() of dictionary/meanings.h takes them apart.
    QByteArrayView jelentések;
};

/// What a search takes its caller along with.
struct keresésfigyelő {
    /// Gets each hit, in file order.
    std::function<void(const szócikk &)> találat;
    /// Asked after each line of the scan, hit or not; true ends the search at once.
    std::function<bool()> megálljon;
};

struct keresésvége {
    /// True when the caller ended the search.
    bool megszakadt = false;
    int darab = 0;
    /// Index of the hit to select: the exact one, else the first; −1 without a hit.
    int kijelölendő = -1;
};

/// Looks a text up in a sorted dictionary, in place: binary search on byte positions until 150 bytes are left, a walk
/// backward to a line before the first possible hit, a scan forward over the hits. Reads only the lines near the text
/// and keeps nothing. In a file that is out of order hits are missed; every search of any bytes ends.
class szótárkereső final {
  public:
    /// `forrás` must outlive the search.
    explicit szótárkereső(ByteSource &forrás) : forrás_(forrás) {}

    /// Finds the entries whose headword, with or without its "to ", begins with `szöveg` (case counts).
    [[nodiscard]] keresésvége keres(QByteArrayView szöveg, const keresésfigyelő &figyelő);

  private:
    ByteSource &forrás_;
};

/// `szöveg` without a leading "to ": what the dictionary is ordered by. Text is QByteArrayView or QStringView.
[[nodiscard]] inline QByteArrayView keresőkulcs(QByteArrayView szöveg) {
    return szöveg.startsWith("to ") ? szöveg.sliced(3) : szöveg;
}
[[nodiscard]] inline QStringView keresőkulcs(QStringView szöveg) {
    return szöveg.startsWith(u"to ") ? szöveg.sliced(3) : szöveg;
}
