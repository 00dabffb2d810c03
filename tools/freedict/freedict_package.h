#pragma once

#include <QString>
#include <QStringList>
#include <QVector>
#include <functional>
#include <variant>

#include "platform/files.h"

// A dictionary package of the FreeDict project: two dictd files (freedict/dictd_files.h) with text in UTF-8.
//
// A definition is an entry of the dictionary. Its first line holds the headword and the pronunciation, each further
// line a meaning, numbered from 1 when there are several; every line ends with LF:
//
//     apple /ˈapəl/            allow /ɐlˈaʊ/
//     alma                     1. enged
//                              2. megenged
//
// The pronunciation begins behind the last " /" of the line, so that a headword may hold "/" too ("he/she is").
//
// The definitions whose index word begins with "00database" describe the package. "00databaseinfo" holds, among other
// lines, the name in the first line, and
//
//     Edition: 0.2.1
//     Size: 89679 headwords
//     Availability:
//
// with the conditions of use behind the last, as paragraphs whose first line is indented by four blanks and the others
// by two, up to the next line that is not indented.
namespace freedict {

struct Entry {
    QString headword;
    QStringList meanings;
    /// In the international phonetic alphabet, as the package has it; empty for an entry of another origin.
    QString pronunciation{};
    /// How many meanings stand in front whatever their score; a package says so of none.
    qsizetype fixed = 0;
    /// How many behind them stand in front of the others, by their score.
    qsizetype led = 0;

    friend bool operator==(const Entry &, const Entry &) = default;
};

/// A package's content as it stands there, without any mending. Every entry has a headword and at least one meaning,
/// none of them is blank, and none holds a control character.
struct Package {
    QString name;
    QString edition;
    /// The conditions of use up to the paragraph that names the GNU General Public License, in one line.
    QString licence;
    /// How many entries the package says it has; entries.size() should be the same, and nobody has compared them yet.
    qsizetype stated_headwords = 0;
    QVector<Entry> entries;
};

using PackageResult = std::variant<Package, Failure>;

/// Told `done` of `total` steps now and then.
using Steps = std::function<void(qsizetype done, qsizetype total)>;

/// The package of the unpacked files' bytes; a failure when anything in them is not as above. `name` is the files' name
/// without their endings, for the failure.
[[nodiscard]] PackageResult parse_package(QByteArrayView index, QByteArrayView data, const QString &name,
                                          const Steps &steps = {});

/// The package in the files `name`.index and `name`.dict.dz of `folder`.
[[nodiscard]] PackageResult read_package(const QString &folder, const QString &name, const Steps &steps = {});

}  // namespace freedict
