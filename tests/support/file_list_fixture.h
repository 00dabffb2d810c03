#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

#include "support/files_for_tests.h"
#include "support/printing.h"
#include "ui/controls/file_list.h"

using namespace Qt::StringLiterals;

/// A list of the sounds of a folder of its own.
class FileList : public testing::Test {
  protected:
    void make(const char *name) const { write_file(place(name), ""); }
    [[nodiscard]] QString place(const char *name) const { return folder_.filePath(QString::fromUtf8(name)); }
    /// Shows three files.
    void show_three() {
        for (const char *name : {"alma.wav", "barack.wav", "citrom.wav"})
            make(name);
        list_.set_folder(folder_.path());
        list_.show();
    }
    [[nodiscard]] static QStringList names(std::initializer_list<const char *> some) {
        QStringList all;
        for (const char *name : some)
            all.append(QString::fromUtf8(name));
        return all;
    }

    QTemporaryDir folder_{QDir::tempPath() + u"/zimboraXXXXXX"_s};
    FileListBox list_{u"*.wav"_s};
    QSignalSpy selected_{&list_, &ListBox::itemSelected};
    QSignalSpy deleted_{&list_, &FileListBox::deletePressed};
};
