#pragma once

#include <QByteArray>
#include <QtGlobal>
#include <optional>

// The mini window's settings file "c:\zbrmk\angol\kisablak.ini": three lines, each a decimal integer led by one blank
// when it is not negative and by its minus sign otherwise, and followed by one blank; lines end with CR LF.
//
//     left edge (twips)  CR LF  top edge (twips)  CR LF  1 when the mini window was in use, else 0  CR LF
namespace kisablakfájl {

struct értékek {
    qint32 bal = 0;
    qint32 fent = 0;
    qint16 mód = 0;

    friend bool operator==(const értékek &, const értékek &) = default;
};

/// Reads three numbers, which blanks, commas and line ends separate; nothing when there are not three whole numbers
/// that fit. Of a longer file the first 4096 bytes count.
[[nodiscard]] std::optional<értékek> olvas(QByteArrayView bytes);

[[nodiscard]] QByteArray ír(const értékek &mit);

}  // namespace kisablakfájl
