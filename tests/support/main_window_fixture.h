#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QtTest/QTest>
#include <functional>
#include <memory>

#include "app/main_window.h"
#include "support/dictionary_for_tests.h"
#include "support/fake_desktop.h"
#include "support/fake_multimedia.h"
#include "support/fake_printers.h"
#include "support/fake_web_browser.h"
#include "support/files_for_tests.h"
#include "support/seeded_random.h"
#include "support/window_fixture.h"

using namespace Qt::StringLiterals;

/// A main window with fake dialogs, a drive C and a program folder of its own, and two small dictionaries.
class MainWindowTest : public WindowTest {
  protected:
    MainWindowTest() {
        QDir(root_.path()).mkpath(u"c"_s);
        QDir(root_.path()).mkpath(u"angol"_s);
        state_.programkönyvtár = place("angol");
        write_file(place("angol/am.txt"),
                   dictionary_of({"apple:alma\xf7"
                                  "almafa\xf7",
                                  "apple pie:almatorta\xf7", "to go:megy\xf7j\xe1r\xf7", "goat:kecske\xf7",
                                  "go:menet\xf7", "no meaning:semmi", "odd:furcsa\xf7"}));
        write_file(place("angol/ma.txt"), dictionary_of({"alma:apple\xf7", "k\xf6z:interval\xf7lane: alley\xf7",
                                                         "megy:to go\xf7to walk\xf7"}));
    }

    /// Loads and shows the window, with `command_line`.
    void start(const QString &command_line = {}) {
        load(command_line);
        window_->show();
        QApplication::setActiveWindow(window_.get());
    }

    /// Loads the window without showing it.
    void load(const QString &command_line = {}) {
        window_ = std::make_unique<szótár>(
            szótárkörnyezet{.állapot = state_,
                            .referencia = reference_,
                            .hasznos = fitting_,
                            .üzenetek = boxes_,
                            .fájlablakok = dialogs_,
                            .meghajtó = DriveC(place("c")),
                            .véletlen = random_,
                            .beállítások = settings_,
                            .nyomtatók = printers_,
                            .legfelül = top_most_,
                            .multimédia = multimedia_,
                            .vágólap = [this] { return std::make_unique<FakeClipboardWatch>(clipboard_); },
                            .képernyők = [this] { return QVector<QRectF>{screen_}; },
                            .böngésző = [this](const WebBrowserRules &) -> WebBrowserResult {
                                auto browser = std::make_unique<FakeWebBrowser>();
                                browser_ = browser.get();
                                return browser;
                            },
                            .rendszeradatok = [this] { return information_tool_; },
                            .lépésköz = [this] { ++animation_steps_; },
                            .siklásköz =
                                [this] {
                                    ++glide_steps_;
                                    between_glide_steps_();
                                },
                            .óra = [this] { return time_; },
                            .vége = [this] { ended_ = true; }});
        window_->Form_Load(command_line);
    }

    template <class Control>
    [[nodiscard]] Control *control(const char *name) const {
        auto *found = window_->findChild<Control *>(QString::fromUtf8(name));
        if (!found)
            qFatal("no control %s", name);
        return found;
    }
    [[nodiscard]] ListBox *list(const char *name) const { return control<ListBox>(name); }
    [[nodiscard]] QLineEdit *text_box(const char *name) const { return control<QLineEdit>(name); }
    [[nodiscard]] QPushButton *button(const char *name) const { return control<QPushButton>(name); }
    [[nodiscard]] QAction *action(const char *name) const { return control<QAction>(name); }
    [[nodiscard]] QString hit_count() const { return control<QLabel>("Label3")->text(); }

    [[nodiscard]] static QStringList items(const ListBox *list) {
        QStringList all;
        for (int i = 0; i < list->count(); ++i)
            all.append(list->item(i));
        return all;
    }
    [[nodiscard]] QStringList items(const char *name) const { return items(list(name)); }

    void type(const char *text) { QTest::keyClicks(text_box("angolszó"), QString::fromUtf8(text)); }
    void click(const char *name) { QTest::mouseClick(button(name), Qt::LeftButton); }
    void click_item(const char *name, int row) {
        ListBox *box = list(name);
        box->scrollTo(box->model()->index(row, box->modelColumn()));
        QTest::mouseClick(box->viewport(), Qt::LeftButton, {},
                          box->visualRect(box->model()->index(row, box->modelColumn())).center());
    }

    /// The word list as a file would hold it.
    [[nodiscard]] QString pairs() const {
        QStringList lines;
        for (const szópár &pair : window_->szavak().párok())
            lines.append(pair.angol + u':' + pair.magyar);
        return lines.join(u' ');
    }

    /// A word-list file.
    QString word_list(const char *name, const QByteArray &bytes) {
        write_file(place(name), bytes);
        return place(name);
    }

    global::programállapot state_;
    FakeFileDialogs dialogs_;
    SeededRandom random_;
    global::beállítástár settings_{place("settings.ini")};
    FakePrinters printers_;
    std::chrono::milliseconds time_{0};
    FakeTopMost top_most_;
    FakeMultimedia multimedia_;
    FakeClipboard clipboard_;
    /// The browser of the help viewer, once it has been opened.
    FakeWebBrowser *browser_ = nullptr;
    InformationTool information_tool_ = InformationTool::unknown;
    int animation_steps_ = 0;
    int glide_steps_ = 0;
    std::function<void()> between_glide_steps_ = [] {};
    bool ended_ = false;
    std::unique_ptr<szótár> window_;
};
