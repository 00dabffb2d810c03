#include "state/number_text.h"

QString számszöveg(qint64 szám) {
    return (szám < 0 ? QString() : QString(u' ')) + QString::number(szám);
}
