#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <string>

#include "state/program_folder.h"
#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

/// The folders that a start looks at, and an installation that a test fills.
class ProgramFolder : public testing::Test {
  protected:
    ProgramFolder() {
        for (const char *name : {"bin", "staged", "share", "documents", "other"})
            QDir(root_.path()).mkdir(QString::fromLatin1(name));
    }

    [[nodiscard]] QString place(const char *name) const { return root_.filePath(QString::fromUtf8(name)); }

    /// A program started from `executable`, which was built in the folder "bin".
    [[nodiscard]] ProgramFolderPlaces started_from(const char *executable) const {
        return {QString(), place(executable), place("bin"), place("staged"), place("share"), place("documents")};
    }

    void make_installed(const char *name, const QByteArray &bytes) {
        const QString path = place("share") + u'/' + QString::fromUtf8(name);
        QDir().mkpath(QFileInfo(path).path());
        write_file(path, bytes);
    }

    /// An installation with two sounds, a piece of music, the initial settings and the silence.
    void install_sounds_and_music() {
        make_installed("hangok/csengő.wav", "bell");
        make_installed("hangok/mély duda.wav", "horn");
        make_installed("zenemid/Érik a szőlő.mid", "song");
        make_installed("kavaro/zenebeáll.ini", " 0\r\n");
        make_installed("null.wav", "silence");
    }

    /// The names of all that is in the folder, with ", " between them.
    [[nodiscard]] std::string names_in(const char *folder) const {
        const QDir::Filters all = QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot;
        return QDir(place(folder)).entryList(all).join(u", "_s).toStdString();
    }

    QTemporaryDir root_;
};
