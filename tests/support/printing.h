#pragma once

#include <QByteArray>
#include <QPointF>
#include <QString>
#include <ostream>

// GoogleTest finds these by the argument's type and shows text instead of bytes when a test fails.
inline void PrintTo(const QString &text, std::ostream *to) {
    *to << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *to) {
    *to << '"' << bytes.left(300).toPercentEncoding(" :,\r\n").toStdString() << '"';
}

inline void PrintTo(const QPoint &place, std::ostream *to) {
    *to << '(' << place.x() << ", " << place.y() << ')';
}

inline void PrintTo(const QPointF &place, std::ostream *to) {
    *to << '(' << place.x() << ", " << place.y() << ')';
}
