#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "lookup/help_address.h"
#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

/// A program folder with a dictionary, and the help document beside it.
class HelpAddress : public testing::Test {
  protected:
    HelpAddress() {
        for (const char *folder : {"program/lists", "programkavaro/help", "other", "programs"})
            QDir(root_.path()).mkpath(QString::fromLatin1(folder));
        for (const char *file :
             {"program/am.txt", "programkavaro/help/Kavaro súgó.mht", "programkavaro/help/keszito.html",
              "programkavaro/x.html", "other/secret.txt", "programs/x.html"})
            write_file(path(file), "x");
    }

    [[nodiscard]] QString path(const char *name) const {
        return QDir(QFileInfo(root_.path()).canonicalFilePath()).filePath(QString::fromUtf8(name));
    }
    [[nodiscard]] bool opens(const QUrl &address) const { return !addresses_.akadály(address); }
    [[nodiscard]] bool opens(const QString &file) const { return opens(QUrl::fromLocalFile(file)); }
    [[nodiscard]] QString reason(const QUrl &address) const {
        const auto obstacle = addresses_.akadály(address);
        return obstacle ? obstacle->sentence : QString();
    }

    QTemporaryDir root_{QDir::tempPath() + u"/zimboraXXXXXX"_s};
    súgócímek addresses_{path("program")};
};
