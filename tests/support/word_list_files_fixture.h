#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "support/fake_dialogs.h"
#include "support/files_for_tests.h"
#include "support/printing.h"
#include "wordlist/word_list_files.h"

using namespace Qt::StringLiterals;

/// Notes what the file procedures ask of the window.
class FakeWindow final : public szószedetablak {
  public:
    QString title;
    QStringList recent;
    int cleared = 0;
    /// How often it was to fit itself to the list.
    int fitted = 0;

    void címbeállít(const QString &cím) override { title = cím; }
    void listához_igazít() override { ++fitted; }
    void szövegmezőketürít() override { ++cleared; }
    void változást_mutat() override {}
    void fájllistmutat(const QStringList &fájlok) override { recent = fájlok; }
};

class WordListFiles : public testing::Test {
  protected:
    WordListFiles() {
        QDir(root_.path()).mkdir(u"angol"_s);
        state_.programkönyvtár = place("angol");
    }

    [[nodiscard]] QString place(const char *name) const { return root_.filePath(QString::fromUtf8(name)); }

    /// What is proposed there, with the system's separator.
    [[nodiscard]] QString in_program_folder(const char *name) const {
        return place("angol") + QDir::separator() + QString::fromUtf8(name);
    }

    QString file(const char *name, const QByteArray &bytes) {
        write_file(place(name), bytes);
        return place(name);
    }

    void add(const char *english, const char *hungarian) {
        list_.felvesz(QString::fromUtf8(english), QString::fromUtf8(hungarian));
        state_.változott = 1;
    }

    /// The pairs, as a file would hold them.
    [[nodiscard]] QString pairs() const {
        QStringList lines;
        for (const szópár &pair : list_.párok())
            lines.append(pair.angol + u':' + pair.magyar);
        return lines.join(u' ');
    }

    // Below /tmp there is no dot in a path unless the test wants one.
    QTemporaryDir root_{QDir::tempPath() + u"/zimboraXXXXXX"_s};
    global::programállapot state_;
    szópárlista list_;
    FakeWindow window_;
    FakeMessageBoxes boxes_;
    FakeFileDialogs dialogs_;
    QString recent_file_ = place("zbrmkfnh");
    szószedetfájlok files_{state_, list_, window_, boxes_, dialogs_, recent_file_};
};
