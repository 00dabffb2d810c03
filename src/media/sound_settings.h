#pragma once

#include <QString>
#include <array>
#include <optional>

#include "media/name_list.h"
#include "platform/files.h"

/// What the feedback sounds are: three lists of wave files of the folder "hangok" under the program folder, and the
/// five switches that say where they are used. Kept in the folder "kavaro" under the program folder:
///
///     grathang.ini     the five switches in the order of `kapcsoló`, then the list of congratulations
///     helyeshang.ini   the list for right answers
///     hibahang.ini     the list for wrong answers
///
/// How their lines look: media/settings_lines.h.
class hangbeállítások final {
  public:
    enum kapcsoló : size_t { gratulálópanelen, helyesnél, hibásnál, segítségkérésnél, főablakban };

    explicit hangbeállítások(QString programkönyvtár) : programkönyvtár_(std::move(programkönyvtár)) {}

    névlista gratula;
    névlista helyes;
    névlista hiba;
    /// All on until a file says something else.
    std::array<bool, 5> kapcsolók = be;

    /// Takes everything from the files; of a list, the files that are there. What a missing file would say stays as it
    /// is at first. Returns what has to be told of a file that cannot be read or does not begin with five switches, of
    /// which those that it has are taken.
    [[nodiscard]] std::optional<Failure> betölt();

    /// Writes the three files, in a folder that is made if it is missing. After a failure none, or only the first of
    /// them, has been replaced.
    [[nodiscard]] std::optional<Failure> ment() const;

    /// The folder of the sounds; no separator at its end.
    [[nodiscard]] QString hangmappa() const;

    /// Takes the sound `név` off all lists.
    void elfelejt(const QString &név);

  private:
    static constexpr std::array<bool, 5> be{true, true, true, true, true};

    [[nodiscard]] QString fájl(const QString &név) const;
    [[nodiscard]] std::optional<Failure> listát_betölt(const QString &név, névlista &lista);
    [[nodiscard]] QStringList meglévők(const QStringList &nevek) const;

    QString programkönyvtár_;
};
