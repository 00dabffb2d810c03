// What most tests without a widget include.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "core.h"
