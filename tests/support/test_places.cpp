#include "support/test_places.h"

using namespace Qt::StringLiterals;

namespace test_places {

QString program() {
    return u"" ZIMBORA_TEST_PROGRAM ""_s;
}

QString in_program(const QString &file) {
    return program() + u'/' + file;
}

}  // namespace test_places
