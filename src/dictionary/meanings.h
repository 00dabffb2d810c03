#pragma once

#include <QString>
#include <QStringList>

/// The meanings of an entry's meanings field, each of which is followed by "÷". What stands behind the last "÷" is
/// none; without any "÷" there is none at all.
[[nodiscard]] QStringList jelentések(const QString &mező);
