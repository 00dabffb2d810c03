#pragma once

#include <QString>
#include <QtGlobal>

/// The text of a number as the program writes it: with a blank in the place of the sign.
[[nodiscard]] QString számszöveg(qint64 szám);
