// What most tests with widgets include.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest/QTest>

#include "widgets.h"
