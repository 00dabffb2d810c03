#pragma once

#include <QString>

// The names of files that wait to take another's place, in the same folder:
//
//     ".zimbora-"  16 hexadecimal digits made of the other's name  "-"  8 digits of chance  ".tmp"
//
// So each save knows what killed saves of the same file have left, and the length of a name does not matter.
namespace unfinished_files {

/// A new name for what is to take the place of a file that is called `name`.
[[nodiscard]] QString new_name_for(const QString &name);

/// True when new_name_for(`name`) may have made `other`.
[[nodiscard]] bool is_name_for(const QString &name, const QString &other);

}  // namespace unfinished_files
