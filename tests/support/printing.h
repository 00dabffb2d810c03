#pragma once

#include <QByteArray>
#include <QString>
#include <ostream>

// GoogleTest finds these by the argument's type and shows text instead of bytes when a test fails.
inline void PrintTo(const QString &text, std::ostream *to) {
    *to << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *to) {
    *to << '"' << bytes.left(300).toPercentEncoding(" :,\r\n").toStdString() << '"';
}
