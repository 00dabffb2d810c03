#include "dictionary/meanings.h"

QStringList jelentések(const QString &mező) {
    QStringList egyenként = mező.split(u'÷');
    egyenként.removeLast();
    return egyenként;
}
