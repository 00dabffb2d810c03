#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>
#include <memory>

#include "print/widgets/print_settings_window.h"
#include "support/fake_printers.h"
#include "support/files_for_tests.h"
#include "support/window_checks.h"
#include "support/window_fixture.h"
#include "support/word_pairs.h"

using namespace Qt::StringLiterals;

/// The print settings with printers, dialogs, a store and a clock of the test's own.
class PrintTest : public WindowTest {
  protected:
    PrintTest() {
        fill(3);
        state_.programkönyvtár = root_.path();
        printers_.installed = {u"First"_s, u"Second"_s};
    }

    /// Puts pairs in the place of those in the list.
    void fill(int pairs) { fill(numbered_pairs(pairs)); }
    void fill(const QVector<szópár> &pairs) {
        list_.kiürít();
        list_.hozzáfűz(pairs);
    }

    void load() {
        window_ = std::make_unique<frm_nyomtatás>(nyomtatáskörnyezet{.közös = common(),
                                                                     .szószedet = list_,
                                                                     .állapot = state_,
                                                                     .beállítások = settings_,
                                                                     .fájlablakok = dialogs_,
                                                                     .nyomtatók = printers_,
                                                                     .óra = [this] {
                                                                         time_ += time_step_;
                                                                         return time_;
                                                                     }});
    }
    void start() {
        load();
        window_->show();
        QApplication::setActiveWindow(window_.get());
    }

    [[nodiscard]] QComboBox *printers() const { return control<QComboBox>(*window_, "list_nyomtatók"); }
    [[nodiscard]] QComboBox *fonts() const { return control<QComboBox>(*window_, "list_betűtípus"); }
    [[nodiscard]] QSpinBox *spin(const char *name) const { return control<QSpinBox>(*window_, name); }
    [[nodiscard]] QCheckBox *check(const char *name) const { return control<QCheckBox>(*window_, name); }
    [[nodiscard]] QRadioButton *option(const char *name) const { return control<QRadioButton>(*window_, name); }
    [[nodiscard]] QString label(const char *name) const { return control<QLabel>(*window_, name)->text(); }
    [[nodiscard]] PictureBox *sample(int i) const { return control<PictureBox>(*window_, u"pic_minta(%1)"_s.arg(i)); }
    [[nodiscard]] static QStringList entries(const QComboBox *box) {
        QStringList all;
        for (int i = 0; i < box->count(); ++i)
            all.append(box->itemText(i));
        return all;
    }

    /// Clicks a button, or the circle or box of an option.
    void click(const char *name) {
        auto *button = control<QAbstractButton>(*window_, name);
        const bool beside_text = !qobject_cast<QPushButton *>(button);
        QTest::mouseClick(button, Qt::LeftButton, {}, beside_text ? QPoint(10, button->height() / 2) : QPoint());
    }
    /// Chooses an entry with the keyboard.
    static void choose(QComboBox *box, const char *text) {
        const int wanted = box->findText(QString::fromUtf8(text));
        ASSERT_GE(wanted, 0) << text;
        while (box->currentIndex() != wanted)
            QTest::keyClick(box, box->currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
    }

    [[nodiscard]] QString stored(const char *key) const {
        return settings_.beállításolvas(ablak(u"frm_nyomtatás"_s), QString::fromUtf8(key), u"(nothing)"_s).toString();
    }
    void store(const char *key, const QVariant &value) {
        settings_.beállításment(ablak(u"frm_nyomtatás"_s), QString::fromUtf8(key), value);
    }
    /// The seven settings as they lie in the store.
    [[nodiscard]] QStringList all_stored() const {
        QStringList all;
        for (const char *key : {"nyomtato", "betutip", "dolt", "felkover", "betumeret", "hasabszam", "tajolas"})
            all.append(stored(key));
        return all;
    }
    [[nodiscard]] bool nothing_is_stored() const { return all_stored() == QStringList(7, u"(nothing)"_s); }

    /// What the window shows of its settings.
    [[nodiscard]] QStringList shown() const {
        return {printers()->currentText(),
                fonts()->currentText(),
                check("Check_dőlt")->isChecked() ? u"italic"_s : QString(),
                check("Check_félkövér")->isChecked() ? u"bold"_s : QString(),
                QString::number(spin("UpDown_betűméret")->value()),
                QString::number(spin("UpDown_hasábszám")->value()),
                option("Option_tájolás(0)")->isChecked() ? u"portrait"_s : u"landscape"_s};
    }

    szópárlista list_;
    global::programállapot state_;
    global::beállítástár settings_{place(u"settings.ini"_s)};
    FakeFileDialogs dialogs_;
    FakePrinters printers_;
    std::chrono::milliseconds time_{0};
    /// How long it takes until the clock is looked at again.
    std::chrono::milliseconds time_step_{0};
    std::unique_ptr<frm_nyomtatás> window_;
};
