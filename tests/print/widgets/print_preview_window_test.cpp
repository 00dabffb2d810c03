#include "print/widgets/print_preview_window.h"

#include <gmock/gmock.h>

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressDialog>
#include <QScrollBar>

#include "support/print_fixture.h"

using namespace Qt::StringLiterals;

using testing::ElementsAre;

namespace {

/// The pages as they will come out, opened from the print settings.
class PrintPreview : public PrintTest {
  protected:
    /// Opens the preview from the settings; `act` is called with it, and it is closed then.
    void in_preview(const std::function<void(frm_nyomtatásikép &)> &act) {
        bool opened = false;
        QTimer::singleShot(0, window_.get(), [&] {
            auto *preview = dynamic_cast<frm_nyomtatásikép *>(QApplication::activeModalWidget());
            ASSERT_NE(preview, nullptr);
            opened = true;
            QApplication::setActiveWindow(preview);
            act(*preview);
            preview->close();
        });
        click("cmd_nyomtatásikép");
        EXPECT_TRUE(opened);
    }
    [[nodiscard]] static PageView *view(const ablak &preview) { return control<PageView>(preview, "kép"); }
    static void press(const ablak &preview, const char *name) {
        QTest::mouseClick(control<QPushButton>(preview, name), Qt::LeftButton);
    }
    static void press_key(const ablak &preview, Qt::Key key) { QTest::keyClick(view(preview), key); }
    [[nodiscard]] static QString page_of(const ablak &preview) {
        return control<QSpinBox>(preview, "UpDown_oldal")->text();
    }

    /// The rectangle of the dark dots of the page on the screen, in shares of the paper's size; empty for a blank page.
    [[nodiscard]] static QRectF ink(const ablak &preview) {
        const QRect sheet = view(preview)->paper().toRect().adjusted(2, 2, -2, -2);
        const QImage picture = view(preview)->viewport()->grab(sheet).toImage();
        QRect found;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (qGray(picture.pixel(x, y)) < 160)
                    found |= QRect(x, y, 1, 1);
            }
        }
        const QSizeF size = picture.size();
        return {found.left() / size.width(), found.top() / size.height(), found.width() / size.width(),
                found.height() / size.height()};
    }
};

TEST_F(PrintPreview, has_every_control_with_its_hungarian_caption) {
    start();

    in_preview([&](frm_nyomtatásikép &preview) {
        EXPECT_EQ(preview.objectName(), u"frm_nyomtatásikép"_s);
        EXPECT_EQ(preview.windowTitle(), u"Zimbora Angol-Magyar Szótár - Nyomtatási kép"_s);
        EXPECT_EQ(preview.windowModality(), Qt::ApplicationModal);
        const std::pair<const char *, const char *> captions[] = {{"cmd_első", "&Első"},
                                                                  {"cmd_előző", "E&lőző"},
                                                                  {"cmd_következő", "&Következő"},
                                                                  {"cmd_utolsó", "&Utolsó"},
                                                                  {"cmd_kicsinyít", "Kic&sinyít"},
                                                                  {"cmd_nagyít", "Na&gyít"},
                                                                  {"cmd_egészoldal", "Egész &oldal"},
                                                                  {"cmd_oldalszélesség", "Ol&dalszélesség"},
                                                                  {"cmd_bezár", "&Bezár"}};
        QString keys;
        for (const auto &[name, caption] : captions) {
            const QString text = QString::fromUtf8(caption);
            const QChar key = text.at(text.indexOf(u'&') + 1).toLower();
            EXPECT_FALSE(keys.contains(key)) << caption;
            keys.append(key);
            EXPECT_EQ(control<QPushButton>(preview, name)->text(), QString::fromUtf8(caption));
            EXPECT_FALSE(control<QPushButton>(preview, name)->accessibleName().isEmpty());
        }
        EXPECT_EQ(page_of(preview), u"1 / 1"_s);
    });
}

TEST_F(PrintPreview, shows_the_pages_of_the_chosen_layout_of_the_current_printer) {
    const std::pair<const char *, const char *> all[] = {{"Option_nyomtatástípus(0)", "1 / 1"},
                                                         {"Option_nyomtatástípus(1)", "1 / 3"},
                                                         {"Option_nyomtatástípus(2)", "1 / 7"}};
    start();
    choose(printers(), "First");
    for (const auto &[kind, pages] : all) {
        click(kind);
        in_preview([expected = QString::fromUtf8(pages)](frm_nyomtatásikép &preview) {
            EXPECT_EQ(page_of(preview), expected);
        });
    }
    choose(printers(), "PDF-fájl");
    in_preview([](frm_nyomtatásikép &) {});

    EXPECT_THAT(printers_.previewed, ElementsAre(u"First"_s, u"First"_s, u"First"_s, QString()));
    EXPECT_TRUE(printers_.jobs.begun.isEmpty());
    EXPECT_TRUE(nothing_is_stored());
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(PrintPreview, turns_the_paper_as_the_layout_does) {
    start();
    in_preview([&](frm_nyomtatásikép &preview) {
        EXPECT_GT(view(preview)->paper().height(), view(preview)->paper().width());
    });
    click("Option_tájolás(1)");
    in_preview([&](frm_nyomtatásikép &preview) {
        EXPECT_LT(view(preview)->paper().height(), view(preview)->paper().width());
    });
    click("Option_tájolás(0)");
    click("Option_nyomtatástípus(1)");
    in_preview([&](frm_nyomtatásikép &preview) {
        EXPECT_LT(view(preview)->paper().height(), view(preview)->paper().width());
    });
}

TEST_F(PrintPreview, draws_a_card_in_the_middle_of_its_page_and_nothing_on_the_last) {
    fill(pairs_of({{u"xxxxxxxx", u"xxxx"}}));
    start();
    click("Option_nyomtatástípus(2)");

    in_preview([&](frm_nyomtatásikép &preview) {
        const QRectF first = ink(preview);
        EXPECT_NEAR(first.center().x(), 0.5, 0.01);
        // Nine tenths of the width at the most, and one more point would have been too wide.
        EXPECT_GT(first.width(), 0.85);
        EXPECT_LT(first.width(), 0.9);
        press(preview, "cmd_következő");
        EXPECT_NEAR(ink(preview).width(), first.width() / 2, 0.02);
        press(preview, "cmd_következő");
        EXPECT_TRUE(ink(preview).isEmpty());
    });
}

TEST_F(PrintPreview, draws_bold_wider_than_plain) {
    list_.kiürít();
    state_.aktuálisfájl = u"/a list with a rather long name.szs"_s;
    start();
    double plain = 0;
    in_preview([&](frm_nyomtatásikép &preview) { plain = ink(preview).width(); });
    click("Check_félkövér");

    in_preview([&](frm_nyomtatásikép &preview) { EXPECT_GT(ink(preview).width(), 1.03 * plain); });
}

TEST_F(PrintPreview, goes_from_page_to_page_with_buttons_and_keys) {
    start();
    click("Option_nyomtatástípus(2)");

    in_preview([&](frm_nyomtatásikép &preview) {
        EXPECT_FALSE(control<QPushButton>(preview, "cmd_első")->isEnabled());
        EXPECT_FALSE(control<QPushButton>(preview, "cmd_előző")->isEnabled());
        press(preview, "cmd_következő");
        EXPECT_EQ(page_of(preview), u"2 / 7"_s);
        press(preview, "cmd_utolsó");
        EXPECT_EQ(page_of(preview), u"7 / 7"_s);
        EXPECT_FALSE(control<QPushButton>(preview, "cmd_utolsó")->isEnabled());
        EXPECT_FALSE(control<QPushButton>(preview, "cmd_következő")->isEnabled());
        press(preview, "cmd_előző");
        EXPECT_EQ(page_of(preview), u"6 / 7"_s);
        press(preview, "cmd_első");
        EXPECT_EQ(page_of(preview), u"1 / 7"_s);
        view(preview)->setFocus();
        press_key(preview, Qt::Key_PageDown);
        press_key(preview, Qt::Key_PageDown);
        EXPECT_EQ(page_of(preview), u"3 / 7"_s);
        press_key(preview, Qt::Key_PageUp);
        EXPECT_EQ(page_of(preview), u"2 / 7"_s);
        press_key(preview, Qt::Key_End);
        EXPECT_EQ(page_of(preview), u"7 / 7"_s);
        press_key(preview, Qt::Key_PageDown);
        EXPECT_EQ(page_of(preview), u"7 / 7"_s);
        press_key(preview, Qt::Key_Home);
        EXPECT_EQ(view(preview)->page(), 0);
    });
}

TEST_F(PrintPreview, goes_to_the_page_whose_number_is_typed) {
    start();
    click("Option_nyomtatástípus(2)");

    in_preview([&](frm_nyomtatásikép &preview) {
        auto *number = control<QSpinBox>(preview, "UpDown_oldal");
        number->setFocus();
        number->selectAll();
        QTest::keyClicks(number, u"5"_s);
        QTest::keyClick(number, Qt::Key_Return);
        EXPECT_EQ(view(preview)->page(), 4);
    });
}

TEST_F(PrintPreview, is_zoomed_and_fitted) {
    start();

    in_preview([&](frm_nyomtatásikép &preview) {
        PageView *page = view(preview);
        EXPECT_EQ(page->fitted(), PageView::Fit::whole_page);
        EXPECT_TRUE(QRectF(page->viewport()->rect()).contains(page->paper()));
        const double whole = page->scale();
        press(preview, "cmd_nagyít");
        EXPECT_DOUBLE_EQ(page->scale(), 1.25 * whole);
        press(preview, "cmd_kicsinyít");
        EXPECT_DOUBLE_EQ(page->scale(), whole);
        press(preview, "cmd_oldalszélesség");
        EXPECT_NEAR(page->paper().width(), page->viewport()->width(), 40);
        EXPECT_GT(page->paper().height(), page->viewport()->height());
        EXPECT_EQ(page->horizontalScrollBar()->maximum(), 0);
        page->verticalScrollBar()->setValue(page->verticalScrollBar()->maximum());
        EXPECT_LE(page->paper().bottom(), page->viewport()->height());
        press(preview, "cmd_egészoldal");
        EXPECT_NEAR(page->scale(), whole, 0.001);
    });
}

TEST_F(PrintPreview, keeps_what_is_in_the_middle_there_when_it_is_zoomed) {
    start();

    in_preview([&](frm_nyomtatásikép &preview) {
        const PageView *page = view(preview);
        // Shares of the paper.
        const auto in_the_middle = [page] {
            const QPointF away = QRectF(page->viewport()->rect()).center() - page->paper().topLeft();
            return QPointF(away.x() / page->paper().width(), away.y() / page->paper().height());
        };
        for (int i = 0; i < 4; ++i)
            press(preview, "cmd_nagyít");
        EXPECT_NEAR(in_the_middle().x(), 0.5, 0.01);
        EXPECT_NEAR(in_the_middle().y(), 0.5, 0.01);
        page->verticalScrollBar()->setValue(page->verticalScrollBar()->maximum() / 4);
        const QPointF before = in_the_middle();
        press(preview, "cmd_nagyít");
        EXPECT_NEAR(in_the_middle().x(), before.x(), 0.01);
        EXPECT_NEAR(in_the_middle().y(), before.y(), 0.01);
    });
}

TEST_F(PrintPreview, is_turned_and_zoomed_by_the_wheel) {
    start();
    click("Option_nyomtatástípus(2)");

    in_preview([&](frm_nyomtatásikép &preview) {
        PageView *page = view(preview);
        const auto wheel = [page](int turn, Qt::KeyboardModifiers held) {
            const QPointF middle = QRectF(page->viewport()->rect()).center();
            QWheelEvent event(middle, page->viewport()->mapToGlobal(middle), {}, {0, turn}, Qt::NoButton, held,
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(page->viewport(), &event);
        };
        wheel(-120, Qt::NoModifier);
        wheel(-120, Qt::NoModifier);
        EXPECT_EQ(page_of(preview), u"3 / 7"_s);
        wheel(120, Qt::NoModifier);
        EXPECT_EQ(page_of(preview), u"2 / 7"_s);
        const double whole = page->scale();
        wheel(120, Qt::ControlModifier);
        EXPECT_DOUBLE_EQ(page->scale(), 1.25 * whole);
        wheel(-120, Qt::ControlModifier);
        EXPECT_DOUBLE_EQ(page->scale(), whole);
    });
}

TEST_F(PrintPreview, is_never_zoomed_beyond_what_can_be_seen) {
    start();

    in_preview([&](frm_nyomtatásikép &preview) {
        for (int i = 0; i < 40; ++i)
            press(preview, "cmd_nagyít");
        EXPECT_EQ(view(preview)->scale(), 8);
        for (int i = 0; i < 40; ++i)
            press(preview, "cmd_kicsinyít");
        EXPECT_EQ(view(preview)->scale(), 0.1);
    });
}

TEST_F(PrintPreview, follows_the_size_of_its_window) {
    start();

    in_preview([&](frm_nyomtatásikép &preview) {
        const double before = view(preview)->scale();
        preview.resize(preview.width() + 100, preview.height() - 200);
        EXPECT_LT(view(preview)->scale(), before);
        EXPECT_TRUE(QRectF(view(preview)->viewport()->rect()).contains(view(preview)->paper()));
        EXPECT_LE(view(preview)->geometry().right(), preview.width());
    });
}

TEST_F(PrintPreview, is_closed_by_its_button_by_escape_and_by_the_frame) {
    const std::function<void(frm_nyomtatásikép &)> ways[] = {
        [](frm_nyomtatásikép &preview) { press(preview, "cmd_bezár"); },
        [](frm_nyomtatásikép &preview) { press_key(preview, Qt::Key_Escape); },
        [](frm_nyomtatásikép &preview) { preview.close(); }};
    start();
    for (const auto &leave : ways) {
        in_preview([&](frm_nyomtatásikép &preview) {
            leave(preview);
            EXPECT_FALSE(preview.isVisible());
        });
        EXPECT_TRUE(window_->isVisible());
    }
}

TEST_F(PrintPreview, of_nothing_is_refused_with_a_message) {
    list_.kiürít();
    start();
    click("Option_nyomtatástípus(1)");

    click("cmd_nyomtatásikép");

    EXPECT_THAT(boxes_.told, ElementsAre(u"Nincs mit nyomtatni: a szószedet üres."_s));
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(PrintPreview, that_takes_long_can_be_cancelled) {
    fill(100);
    time_step_ = std::chrono::milliseconds(50);
    start();
    QTimer::singleShot(0, window_.get(), [this] {
        auto *progress = window_->findChild<QProgressDialog *>(u"haladás"_s);
        ASSERT_NE(progress, nullptr);
        EXPECT_EQ(progress->labelText(), u"A nyomtatási kép készül…"_s);
        progress->cancel();
    });

    click("cmd_nyomtatásikép");

    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(PrintPreview, of_ten_thousand_and_one_pages_shows_the_last) {
    fill(5000);
    start();
    click("Option_nyomtatástípus(2)");

    in_preview([&](frm_nyomtatásikép &preview) {
        EXPECT_EQ(page_of(preview), u"1 / 10001"_s);
        press(preview, "cmd_utolsó");
        press(preview, "cmd_előző");
        EXPECT_EQ(page_of(preview), u"10000 / 10001"_s);
        EXPECT_FALSE(ink(preview).isEmpty());
    });
}

TEST_F(PrintPreview, shows_every_caption_whole) {
    for (const QSize &pixels : screens) {
        screen_ = QRectF(QPointF(0, 0), QSizeF(pixels) * 15);
        fill(5000);
        start();
        click("Option_nyomtatástípus(2)");

        in_preview([&](frm_nyomtatásikép &preview) {
            expect_no_overlap(preview);
            for (const char *name : {"cmd_első", "cmd_előző", "cmd_következő", "cmd_utolsó", "cmd_kicsinyít",
                                     "cmd_nagyít", "cmd_egészoldal", "cmd_oldalszélesség", "cmd_bezár"})
                expect_whole_caption(preview, QString::fromUtf8(name));
            const auto *number = control<QSpinBox>(preview, "UpDown_oldal");
            EXPECT_LE(number->sizeHint().width(), number->width());
            EXPECT_LE(preview.width(), pixels.width());
            EXPECT_LE(preview.height(), pixels.height());
        });
    }
}

TEST_F(PrintPreview, says_how_many_rows_are_cut_off_at_the_edges_of_the_paper) {
    list_.kiürít();
    list_.hozzáfűz({{u"dog"_s, u"kutya"_s}, {u"long"_s, QString(500, u'x')}, {QString(500, u'x'), u"hosszú"_s}});
    start();

    in_preview([&](frm_nyomtatásikép &preview) {
        const auto *told = control<QLabel>(preview, "Label_lemaradók");
        ASSERT_NE(told, nullptr);
        EXPECT_EQ(told->text(), u"2 sor széle nem fér rá a papírra."_s);
        EXPECT_FALSE(told->geometry().intersects(view(preview)->geometry()));
    });
}

TEST_F(PrintPreview, says_nothing_of_the_edges_when_every_row_has_room) {
    start();

    in_preview(
        [&](frm_nyomtatásikép &preview) { EXPECT_EQ(preview.findChild<QLabel *>(u"Label_lemaradók"_s), nullptr); });
}

TEST_F(PrintPreview, of_a_million_letters_opens_at_once) {
    list_.kiürít();
    list_.hozzáfűz({{u"long"_s, QString(1'000'000, u'x')}});
    QElapsedTimer clock;
    start();
    clock.start();

    in_preview([](frm_nyomtatásikép &) {});

    // It took fourteen seconds to lay all of them out.
    EXPECT_LT(clock.elapsed(), 2000);
}

}  // namespace
