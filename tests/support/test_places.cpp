#include "support/test_places.h"

namespace test_places {

QString program() {
    return QStringLiteral(ZIMBORA_TEST_PROGRAM);
}

QString in_program(const QString &file) {
    return program() + u'/' + file;
}

}  // namespace test_places
