#pragma once

#include <QString>

/// Where this build has what the tests read.
namespace test_places {

/// The staged program folder, without a separator at its end.
[[nodiscard]] QString program();
/// A file in it.
[[nodiscard]] QString in_program(const QString &file);

}  // namespace test_places
