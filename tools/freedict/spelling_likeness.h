#pragma once

#include <QString>

namespace freedict {

/// How alike an English and a Hungarian text are written, from 0, not at all, to 0.6, the same: "crystal" and
/// "kristály". The Hungarian spelling of a sound counts as the English one.
[[nodiscard]] double spelling_likeness(const QString &english, const QString &hungarian);

}  // namespace freedict
