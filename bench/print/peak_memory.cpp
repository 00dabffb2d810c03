#include "print/peak_memory.h"

#include <malloc.h>

#include <QByteArray>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

double status(const char *line) {
    QFile file(u"/proc/self/status"_s);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no status of the process");
    for (const QByteArray &one : file.readAll().split('\n')) {
        if (one.startsWith(line))
            return one.simplified().split(' ').value(1).toDouble() / 1024;
    }
    qFatal("no %s", line);
}

}  // namespace

double memory_now() {
    return status("VmRSS:");
}

double memory_peak() {
    return status("VmHWM:");
}

void forget_peak() {
    // What earlier work has left free is given back, or it would be taken again unseen.
    malloc_trim(0);
    QFile file(u"/proc/self/clear_refs"_s);
    if (!file.open(QIODevice::WriteOnly) || file.write("5") != 1)
        qFatal("the peak cannot be forgotten");
}
