#include "exercises/letter_puzzle/widgets/letter_puzzle_settings_window.h"

#include <QGroupBox>
#include <memory>

#include "support/exercise_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class LetterPuzzleSettingsWindow : public ExerciseTest {
  protected:
    void load() { window_ = std::make_unique<frm_kirakó_beáll>(surroundings()); }
    void start() {
        load();
        show(*window_);
    }

    void store(const QVariant &direction) {
        settings_.beállításment(ablak(u"frm_kirakó_beáll"_s), u"nyelv"_s, direction);
    }
    [[nodiscard]] QString stored() const {
        return settings_.beállításolvas(*window_, u"nyelv"_s, u"nothing"_s).toString();
    }
    [[nodiscard]] QRadioButton *option(int i) const {
        return control<QRadioButton>(*window_, u"nyelvoptb(%1)"_s.arg(i));
    }
    /// A line with "x" for the button that is selected: "-x-".
    [[nodiscard]] QString selected() const {
        QString line;
        for (int i = 0; i < 3; ++i)
            line += option(i)->isChecked() ? u'x' : u'-';
        return line;
    }

    std::unique_ptr<frm_kirakó_beáll> window_;
};

TEST_F(LetterPuzzleSettingsWindow, has_every_control_under_its_name_with_its_caption) {
    start();

    EXPECT_EQ(window_->objectName(), u"frm_kirakó_beáll"_s);
    EXPECT_EQ(window_->windowTitle(), u"Zimbora Angol-Magyar Szótár - Kirakó - Beállítások"_s);
    EXPECT_EQ(option(0)->text(), u"Angolról-Magyarra"_s);
    EXPECT_EQ(option(1)->text(), u"Magyarról - Angolra"_s);
    EXPECT_EQ(option(2)->text(), u"Változó nyelv"_s);
    EXPECT_EQ(control<QPushButton>(*window_, "cmd_ok")->text(), u"Ok"_s);
    EXPECT_EQ(control<QPushButton>(*window_, "cmd_mégsem")->text(), u"Mégsem"_s);
    EXPECT_EQ(control<QGroupBox>(*window_, "keret_nyelv")->title(), u"A kikérdezés nyelve"_s);
}

TEST_F(LetterPuzzleSettingsWindow, begins_from_hungarian) {
    start();

    EXPECT_EQ(selected(), u"-x-"_s);
    EXPECT_EQ(window_->merre(), irány::magyarról);
}

TEST_F(LetterPuzzleSettingsWindow, selects_what_is_stored) {
    const std::tuple<int, QString, irány> all[] = {
        {0, u"x--"_s, irány::angolról}, {1, u"-x-"_s, irány::magyarról}, {2, u"--x"_s, irány::változó}};
    for (const auto &[index, line, direction] : all) {
        store(index);
        start();

        EXPECT_EQ(selected(), line);
        EXPECT_EQ(window_->merre(), direction);
    }
}

TEST_F(LetterPuzzleSettingsWindow, selects_the_default_when_what_is_stored_is_no_index) {
    for (const QVariant &nonsense : {QVariant(-1), QVariant(3), QVariant(u"nonsense"_s), QVariant(QString())}) {
        store(nonsense);
        start();

        EXPECT_EQ(selected(), u"-x-"_s) << nonsense.toString().toStdString();
    }
}

TEST_F(LetterPuzzleSettingsWindow, ok_stores_and_closes) {
    for (int i = 0; i < 3; ++i) {
        load();

        show_modally(*window_, [&] {
            option(i)->setChecked(true);
            click(*window_, "cmd_ok");
        });

        EXPECT_EQ(stored(), QString::number(i));
        EXPECT_EQ(static_cast<int>(window_->merre()), i);
    }
}

TEST_F(LetterPuzzleSettingsWindow, enter_stores_and_closes) {
    start();
    click(*window_, "nyelvoptb(2)");

    QTest::keyClick(option(2), Qt::Key_Return);

    EXPECT_EQ(stored(), u"2"_s);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(LetterPuzzleSettingsWindow, mégsem_escape_and_the_frame_bring_back_what_was_stored) {
    const std::function<void()> ways[] = {[this] { click(*window_, "cmd_mégsem"); },
                                          [this] { QTest::keyClick(option(0), Qt::Key_Escape); },
                                          [this] { window_->close(); }};
    for (const auto &leave : ways) {
        store(2);
        load();
        show_modally(*window_, [&] {
            click(*window_, "nyelvoptb(0)");
            EXPECT_EQ(selected(), u"x--"_s);
            leave();
        });

        EXPECT_EQ(selected(), u"--x"_s);
        EXPECT_EQ(stored(), u"2"_s);
    }
}

TEST_F(LetterPuzzleSettingsWindow, shows_every_caption_whole_and_apart) {
    for (const QSize &pixels : screens) {
        use_screen(pixels);
        start();

        expect_no_overlap(*window_);
        for (const char *name : {"nyelvoptb(0)", "nyelvoptb(1)", "nyelvoptb(2)", "cmd_ok", "cmd_mégsem"})
            expect_whole_caption(*window_, QString::fromUtf8(name));
        for (int i = 0; i < 3; ++i)
            EXPECT_TRUE(window_->hely(control<QGroupBox>(*window_, "keret_nyelv")).contains(window_->hely(option(i))));
        EXPECT_LE(window_->width(), pixels.width());
        EXPECT_LE(window_->height(), pixels.height());
    }
}

TEST_F(LetterPuzzleSettingsWindow, is_reached_by_tab_from_control_to_control) {
    start();
    option(1)->setFocus();

    EXPECT_EQ(tab_order(*window_), u"nyelvoptb(1) cmd_ok cmd_mégsem"_s);
}

}  // namespace
