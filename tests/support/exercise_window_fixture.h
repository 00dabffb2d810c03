#pragma once

#include <QMenu>
#include <memory>

#include "support/exercise_fixture.h"

/// The window of an exercise with its settings window, and what a user does with mouse and menus.
template <class Window, class Settings>
class ExerciseWindowTest : public ExerciseTest {
  protected:
    void load(const QVector<szópár> &pairs) {
        fill(pairs);
        window_ = std::make_unique<Window>(surroundings());
    }
    void start(const QVector<szópár> &pairs) {
        load(pairs);
        show(*window_);
    }

    // The mouse, as the system tells the window of it; places are the window's.
    [[nodiscard]] QPoint middle_of(const QWidget *widget) const {
        return widget->mapTo(window_.get(), widget->rect().center());
    }
    void press_at(const QPoint &at, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(window_->windowHandle(), button, {}, at);
    }
    void move_to(const QPoint &at) { QTest::mouseMove(window_->windowHandle(), at); }
    void release_at(const QPoint &at, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseRelease(window_->windowHandle(), button, {}, at);
    }
    void click_at(const QPoint &at) {
        press_at(at);
        release_at(at);
    }

    void trigger(const char *menu_item) { control<QAction>(*window_, menu_item)->trigger(); }

    /// Name and caption of each item of the window's menu; of a separator, its name alone.
    [[nodiscard]] QStringList menu_items() const {
        QStringList items;
        for (const QAction *one : control<QMenu>(*window_, "mnu_fájl")->actions())
            items.append(one->isSeparator() ? one->objectName() : one->objectName() + u' ' + one->text());
        return items;
    }

    /// Opens the settings from the menu; `act` is called with them. They are closed then.
    void in_settings(const std::function<void(Settings &)> &act) {
        bool opened = false;
        QTimer::singleShot(0, window_.get(), [&] {
            auto *settings = dynamic_cast<Settings *>(QApplication::activeModalWidget());
            ASSERT_NE(settings, nullptr);
            opened = true;
            act(*settings);
            if (settings->isVisible())
                settings->close();
        });
        trigger("mnu_fájl_beáll");
        EXPECT_TRUE(opened);
    }

    /// Each of `ways` ends the modal display of the window of these pairs, and the settings window goes, too.
    void expect_each_ends_modal_display(const QVector<szópár> &pairs, const std::vector<std::function<void()>> &ways) {
        for (const auto &leave : ways) {
            load(pairs);
            bool was_open = false;

            show_modally(*window_, [&] {
                was_open = window_->isVisible();
                leave();
            });

            EXPECT_TRUE(was_open);
            EXPECT_FALSE(window_->isVisible());
            for (const QWidget *left : QApplication::topLevelWidgets())
                EXPECT_EQ(dynamic_cast<const Settings *>(left), nullptr);
        }
    }

    std::unique_ptr<Window> window_;
};
