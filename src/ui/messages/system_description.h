#pragma once

#include <QString>

/// What the toolkit knows of the system, in lines, in Hungarian: system, processor, versions, screens. `mappák` are
/// further lines, with the folders of the program.
[[nodiscard]] QString rendszerleírás(const QString &program, const QString &mappák);
