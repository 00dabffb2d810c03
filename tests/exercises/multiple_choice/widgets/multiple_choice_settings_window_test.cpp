#include "exercises/multiple_choice/widgets/multiple_choice_settings_window.h"

#include <memory>

#include "support/exercise_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class MultipleChoiceSettingsWindow : public ExerciseTest {
  protected:
    void load(int pairs = 10) {
        window_ = std::make_unique<választás_beáll>(
            surroundings(), [pairs] { return pairs; },
            [this] {
                ++restarts_;
                during_restart_();
            });
    }
    void start(int pairs = 10) {
        load(pairs);
        show(*window_);
    }

    [[nodiscard]] QSlider *slider() const { return control<QSlider>(*window_, "Slider_választékszám"); }
    [[nodiscard]] bool checked(const char *name) const { return control<QRadioButton>(*window_, name)->isChecked(); }
    [[nodiscard]] QString stored(const char *key) const {
        return settings_.beállításolvas(*window_, QString::fromUtf8(key), u"nothing"_s).toString();
    }

    /// Chooses with mouse and keys: from English, three candidates, by dragging.
    void choose() {
        click(*window_, "nyelvoptb(0)");
        slider()->setFocus();
        QTest::keyClick(slider(), Qt::Key_Home);
        QTest::keyClick(slider(), Qt::Key_Right);
        click(*window_, "Opt_megoldástípus(1)");
    }

    [[nodiscard]] QString choice() const {
        return u"%1 %2 %3"_s.arg(static_cast<int>(window_->merre()))
            .arg(window_->választék())
            .arg(window_->húzással() ? u"drag"_s : u"click"_s);
    }

    int restarts_ = 0;
    std::function<void()> during_restart_ = [] {};
    std::unique_ptr<választás_beáll> window_;
};

TEST_F(MultipleChoiceSettingsWindow, has_every_control_under_its_name_with_its_caption) {
    start();

    EXPECT_EQ(window_->objectName(), u"választás_beáll"_s);
    EXPECT_EQ(window_->windowTitle(), u"Zimbora Angol-Magyar Szótár - Választás Beállítások"_s);
    const std::pair<const char *, QString> captions[] = {
        {"nyelvoptb(0)", u"Angolról-Magyarra"_s},
        {"nyelvoptb(1)", u"Magyarról - Angolra"_s},
        {"nyelvoptb(2)", u"Változó nyelv"_s},
        {"Opt_megoldástípus(0)", u"Megoldás a szóra való kattintással"_s},
        {"Opt_megoldástípus(1)", u"Megoldás a szó keretbe helyezésével"_s},
        {"cmd_ok", u"Ok"_s},
        {"cmd_mégsem", u"Mégsem"_s}};
    for (const auto &[name, caption] : captions)
        EXPECT_EQ(control<QAbstractButton>(*window_, name)->text(), caption);
    EXPECT_EQ(control<QGroupBox>(*window_, "keret_nyelv")->title(), u"A kikérdezés nyelve"_s);
    EXPECT_EQ(control<QGroupBox>(*window_, "keret_egyéb")->title(), u"Egyéb beállítások"_s);
    EXPECT_EQ(label(*window_, "Label_választék"), u"A kiválasztható szavak száma:"_s);
    EXPECT_EQ(slider()->minimum(), 2);
    EXPECT_EQ(slider()->maximum(), 5);
}

TEST_F(MultipleChoiceSettingsWindow, begins_from_hungarian_with_five_candidates_by_clicking) {
    start();

    EXPECT_EQ(choice(), u"1 5 click"_s);
    EXPECT_TRUE(checked("nyelvoptb(1)"));
    EXPECT_TRUE(checked("Opt_megoldástípus(0)"));
    EXPECT_FALSE(checked("Opt_megoldástípus(1)"));
    EXPECT_EQ(label(*window_, "Label_választék_száma"), u"5"_s);
}

TEST_F(MultipleChoiceSettingsWindow, shows_the_number_that_the_slider_stands_at) {
    start();
    slider()->setFocus();

    QTest::keyClick(slider(), Qt::Key_Left);
    EXPECT_EQ(label(*window_, "Label_választék_száma"), u"4"_s);
    QTest::keyClick(slider(), Qt::Key_Home);
    EXPECT_EQ(label(*window_, "Label_választék_száma"), u"2"_s);
    QTest::keyClick(slider(), Qt::Key_Left);
    EXPECT_EQ(slider()->value(), 2);
}

TEST_F(MultipleChoiceSettingsWindow, chooses_direction_and_way_of_answering_apart) {
    start();

    choose();

    EXPECT_EQ(choice(), u"0 3 drag"_s);
    EXPECT_TRUE(checked("nyelvoptb(0)"));
    EXPECT_FALSE(checked("Opt_megoldástípus(0)"));
}

TEST_F(MultipleChoiceSettingsWindow, ok_saves_then_restarts_the_game_and_then_hides) {
    start();
    choose();
    QString at_restart;
    during_restart_ = [&] {
        at_restart = stored("nyelv") + stored("valasztekszam") + stored("katt");
        EXPECT_TRUE(window_->isVisible());
    };

    click(*window_, "cmd_ok");

    EXPECT_EQ(at_restart, u"03true"_s);
    EXPECT_EQ(restarts_, 1);
    EXPECT_FALSE(window_->isVisible());
    load();
    EXPECT_EQ(choice(), u"0 3 drag"_s);
}

TEST_F(MultipleChoiceSettingsWindow, keeps_clicking_as_false_because_the_key_tells_of_dragging) {
    start();

    click(*window_, "cmd_ok");

    EXPECT_EQ(stored("nyelv"), u"1"_s);
    EXPECT_EQ(stored("valasztekszam"), u"5"_s);
    EXPECT_EQ(stored("katt"), u"false"_s);
}

TEST_F(MultipleChoiceSettingsWindow, mégsem_escape_and_the_frame_bring_back_what_was_stored) {
    const std::function<void()> ways[] = {[this] { click(*window_, "cmd_mégsem"); },
                                          [this] { QTest::keyClick(slider(), Qt::Key_Escape); },
                                          [this] { window_->close(); }};
    for (const auto &leave : ways) {
        load();
        show_modally(*window_, [&] {
            choose();
            leave();
        });

        EXPECT_FALSE(window_->isVisible());
        EXPECT_EQ(choice(), u"1 5 click"_s);
        EXPECT_EQ(label(*window_, "Label_választék_száma"), u"5"_s);
        EXPECT_EQ(stored("nyelv"), u"nothing"_s);
        EXPECT_EQ(stored("valasztekszam"), u"nothing"_s);
        EXPECT_EQ(stored("katt"), u"nothing"_s);
    }
    EXPECT_EQ(restarts_, 0);
}

TEST_F(MultipleChoiceSettingsWindow, saves_with_enter) {
    start();
    slider()->setFocus();

    QTest::keyClick(slider(), Qt::Key_Return);

    EXPECT_EQ(restarts_, 1);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(MultipleChoiceSettingsWindow, lowers_the_slider_to_the_number_of_pairs) {
    load(3);
    EXPECT_EQ(window_->választék(), 3);
    EXPECT_EQ(label(*window_, "Label_választék_száma"), u"3"_s);

    load(5);
    EXPECT_EQ(window_->választék(), 5);
    load(2);
    EXPECT_EQ(window_->választék(), 2);
    load(1);
    EXPECT_EQ(window_->választék(), 2);
}

TEST_F(MultipleChoiceSettingsWindow, stays_within_its_range_when_what_is_stored_does_not) {
    const ablak section(u"választás_beáll"_s);
    settings_.beállításment(section, u"nyelv"_s, -4);
    settings_.beállításment(section, u"valasztekszam"_s, 1000);
    settings_.beállításment(section, u"katt"_s, u"nonsense"_s);
    load(2000);
    EXPECT_TRUE(checked("nyelvoptb(1)"));
    EXPECT_EQ(window_->választék(), 5);
    EXPECT_NE(checked("Opt_megoldástípus(0)"), checked("Opt_megoldástípus(1)"));

    settings_.beállításment(section, u"valasztekszam"_s, u"nonsense"_s);
    load();
    EXPECT_EQ(window_->választék(), 2);
}

TEST_F(MultipleChoiceSettingsWindow, shows_every_caption_whole_and_apart) {
    for (const QSize &pixels : screens) {
        use_screen(pixels);
        start();

        expect_no_overlap(*window_);
        for (const char *name :
             {"nyelvoptb(0)", "nyelvoptb(1)", "nyelvoptb(2)", "Opt_megoldástípus(0)", "Opt_megoldástípus(1)",
              "Label_választék", "Label_választék_száma", "cmd_ok", "cmd_mégsem"})
            expect_whole_caption(*window_, QString::fromUtf8(name));
        for (const char *name : {"nyelvoptb(0)", "nyelvoptb(1)", "nyelvoptb(2)"})
            EXPECT_TRUE(window_->hely(control<QGroupBox>(*window_, "keret_nyelv"))
                            .contains(window_->hely(control<QWidget>(*window_, name))));
        EXPECT_LE(window_->width(), pixels.width());
        EXPECT_LE(window_->height(), pixels.height());
    }
}

TEST_F(MultipleChoiceSettingsWindow, is_reached_by_tab_from_control_to_control) {
    start();
    control<QRadioButton>(*window_, "nyelvoptb(1)")->setFocus();

    // The arrow keys lead from one option button to the next.
    EXPECT_EQ(tab_order(*window_), u"nyelvoptb(1) Slider_választékszám Opt_megoldástípus(0) cmd_ok cmd_mégsem"_s);
}

}  // namespace
