#include <gtest/gtest.h>

#include <QApplication>

// For tests of what only the system's own platform has, and the offscreen one does not.
int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
