#pragma once

#include <QString>
#include <optional>

#include "media/name_list.h"
#include "platform/drive_c.h"
#include "platform/files.h"

/// What the background music is: the playlist of MIDI files of the folder "zenemid" under the program folder, and
/// whether it may be heard. Kept in "c:\zbrmk\kavaro\zenebeáll.ini"; as long as that is missing, the file of the same
/// name in the folder "kavaro" under the program folder is read, and never written. Its lines: one switch, then the
/// names in the order of playing (media/settings_lines.h).
class zenebeállítások final {
  public:
    zenebeállítások(DriveC meghajtó, QString programkönyvtár);

    névlista lista;
    /// On until a file says something else.
    bool engedélyezve = true;

    /// Takes everything from the file. Names are taken as they stand, whether there is such a file or not; only one
    /// that leads out of the folder is left out. Returns what has to be told of a file that cannot be read or does not
    /// begin with the switch.
    [[nodiscard]] std::optional<Failure> betölt();

    /// Writes the file, in folders that are made if they are missing.
    [[nodiscard]] std::optional<Failure> ment() const;

    /// The folder of the pieces; no separator at its end.
    [[nodiscard]] QString zenemappa() const;

  private:
    [[nodiscard]] QString saját_fájl() const;

    DriveC meghajtó_;
    QString programkönyvtár_;
};
