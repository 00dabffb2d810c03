#include <gmock/gmock.h>

#include <QProgressDialog>

#include "support/printing_fixture.h"

using namespace Qt::StringLiterals;

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST_F(Printing, sets_face_size_and_orientation_and_runs_the_chosen_layout) {
    start();
    click("Check_dőlt");
    click("Option_tájolás(1)");

    print();

    EXPECT_EQ(printers_.jobs.face, (PagePrinter::Face{u"Liberation Serif"_s, false, true}));
    EXPECT_EQ(printers_.jobs.orders.join(u' '), u"size 14 landscape size 14 size 12 size 14 end"_s);
    ASSERT_EQ(printers_.jobs.texts.size(), 4);
    EXPECT_EQ(printers_.jobs.texts[3].text, u"word2  -  szó2"_s);
    EXPECT_THAT(printers_.jobs.handed_over, ElementsAre(u"Second névtelen szószedet"_s));
    EXPECT_THAT(printers_.jobs.dropped, IsEmpty());
    EXPECT_TRUE(boxes_.told.isEmpty());
}

TEST_F(Printing, takes_the_columns_and_the_size_of_the_counters) {
    start();
    QTest::keyClick(spin("UpDown_betűméret"), Qt::Key_Up);
    QTest::keyClick(spin("UpDown_hasábszám"), Qt::Key_Up);

    print();

    ASSERT_EQ(printers_.jobs.texts.size(), 4);
    EXPECT_EQ(printers_.jobs.texts[1].points, 16);
    EXPECT_EQ(printers_.jobs.texts[1].y, printers_.jobs.texts[2].y);
    EXPECT_LT(printers_.jobs.texts[2].y, printers_.jobs.texts[3].y);
}

TEST_F(Printing, of_each_kind_runs_one_layout_only) {
    const std::pair<const char *, int> all[] = {
        {"Option_nyomtatástípus(0)", 1}, {"Option_nyomtatástípus(1)", 3}, {"Option_nyomtatástípus(2)", 7}};
    for (const auto &[kind, pages] : all) {
        start();
        click(kind);

        print();

        EXPECT_EQ(printers_.jobs.pages, pages) << kind;
        EXPECT_EQ(printers_.jobs.orders.count(u"end"_s), 1) << kind;
    }
}

TEST_F(Printing, goes_to_the_selected_printer_under_the_lists_name) {
    state_.aktuálisfájl = place("állatok.szs");
    start();
    choose(printers(), "First");

    print();

    EXPECT_THAT(printers_.jobs.handed_over, ElementsAre(u"First állatok"_s));
    EXPECT_EQ(printers_.jobs.texts.front().text, place("állatok.szs") + u" szószedet"_s);
}

TEST_F(Printing, gives_a_list_never_saved_no_title_though_a_file_of_its_proposed_name_exists) {
    state_.aktuálisfájl = u'*' + place("apple.szs");
    write_file(place("apple.szs"), "old:r\xe9gi\r\n");
    start();
    choose(printers(), "First");

    print();

    EXPECT_THAT(printers_.jobs.handed_over, ElementsAre(u"First névtelen szószedet"_s));
    EXPECT_EQ(printers_.jobs.texts.front().text, u" szószedet"_s);
}

TEST_F(Printing, on_a_printer_that_is_selected_when_it_has_gone_is_told_and_goes_to_no_other) {
    start();
    choose(printers(), "First");
    printers_.installed = {u"First"_s};
    choose(printers(), "Second");
    const QStringList before = shown();

    print();

    EXPECT_THAT(boxes_.told, ElementsAre(u"Second has vanished"_s));
    EXPECT_THAT(printers_.jobs.begun, IsEmpty());
    expect_still_open(before);
}

TEST_F(Printing, goes_to_the_selected_printer_when_it_has_come_back) {
    start();
    choose(printers(), "First");
    printers_.installed = {u"First"_s};
    choose(printers(), "Second");
    printers_.installed = {u"First"_s, u"Second"_s};

    print();

    EXPECT_THAT(printers_.jobs.handed_over, ElementsAre(u"Second névtelen szószedet"_s));
}

TEST_F(Printing, on_a_printer_that_has_vanished_is_told_and_leaves_everything_as_it_is) {
    start();
    const QStringList before = shown();
    printers_.installed = {u"First"_s};

    print();

    EXPECT_THAT(boxes_.told, ElementsAre(u"Second has vanished"_s));
    expect_still_open(before);
}

TEST_F(Printing, that_fails_on_the_way_or_at_the_end_is_told_and_leaves_everything_as_it_is) {
    fill(80);
    for (const int page : {2, 0}) {
        boxes_.told.clear();
        start();
        const QStringList before = shown();
        printers_.failing_page = page;

        print();

        EXPECT_THAT(boxes_.told, ElementsAre(u"Second névtelen szószedet failed"_s));
        EXPECT_THAT(printers_.jobs.handed_over, IsEmpty());
        expect_still_open(before);
    }
    EXPECT_EQ(printers_.jobs.dropped.size(), 2);
}

TEST_F(Printing, that_the_printer_refuses_is_told_and_can_be_tried_again) {
    start();
    const QStringList before = shown();
    printers_.refusal = Failure{u"refused"_s};
    print();
    EXPECT_THAT(boxes_.told, ElementsAre(u"refused"_s));
    expect_still_open(before);
    printers_.refusal.reset();

    print();

    EXPECT_EQ(printers_.jobs.handed_over.size(), 1);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(Printing, an_empty_list_one_pair_a_page_prints_nothing_and_says_so) {
    list_.kiürít();
    start();
    click("Option_nyomtatástípus(1)");

    print();

    EXPECT_THAT(boxes_.told, ElementsAre(u"Nincs mit nyomtatni: a szószedet üres."_s));
    EXPECT_THAT(printers_.jobs.begun, IsEmpty());
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(stored("nyomtato"), u"Second"_s);
}

TEST_F(Printing, an_empty_list_as_a_list_or_as_cards_prints_one_page) {
    list_.kiürít();
    for (const char *kind : {"Option_nyomtatástípus(0)", "Option_nyomtatástípus(2)"}) {
        start();
        click(kind);

        print();

        EXPECT_EQ(printers_.jobs.pages, 1);
    }
    EXPECT_EQ(printers_.jobs.handed_over.size(), 2);
    EXPECT_TRUE(boxes_.told.isEmpty());
}

// Long work.

TEST_F(Printing, of_less_than_half_a_second_shows_no_progress) {
    fill(9);
    time_step_ = std::chrono::milliseconds(49);  // looked at once at the beginning and once for each pair
    start();
    bool shown = false;
    QTimer::singleShot(0, window_.get(), [&] { shown = window_->isVisible(); });

    print();

    EXPECT_EQ(window_->findChild<QProgressDialog *>(), nullptr);
    EXPECT_FALSE(shown);
    EXPECT_EQ(printers_.jobs.handed_over.size(), 1);
}

TEST_F(Printing, that_takes_long_shows_how_far_it_is_and_prints_all_the_same) {
    fill(100);
    time_step_ = std::chrono::milliseconds(50);
    start();
    int value = 0;
    int maximum = 0;
    bool blocks = false;
    QTimer::singleShot(0, window_.get(), [&] {
        auto *progress = window_->findChild<QProgressDialog *>(u"haladás"_s);
        ASSERT_NE(progress, nullptr);
        value = progress->value();
        maximum = progress->maximum();
        blocks = progress->isModal();
        EXPECT_EQ(progress->labelText(), u"A nyomtatás készül…"_s);
    });

    print();

    EXPECT_EQ(maximum, 100);
    EXPECT_EQ(value, 9);
    EXPECT_TRUE(blocks);
    EXPECT_EQ(printers_.jobs.handed_over.size(), 1);
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(window_->findChild<QProgressDialog *>(), nullptr);
}

TEST_F(Printing, that_is_cancelled_prints_nothing_and_leaves_everything_as_it_is) {
    for (const char *kind : {"Option_nyomtatástípus(0)", "Option_nyomtatástípus(1)", "Option_nyomtatástípus(2)"}) {
        fill(100);
        time_step_ = std::chrono::milliseconds(50);
        start();
        click(kind);
        const QStringList before = shown();
        cancel_when_it_takes_long();

        print();

        EXPECT_EQ(progress_text_, u"A nyomtatás készül…"_s);
        EXPECT_THAT(printers_.jobs.handed_over, IsEmpty());
        EXPECT_TRUE(boxes_.told.isEmpty());
        expect_still_open(before);
    }
    EXPECT_EQ(printers_.jobs.dropped.size(), 3);
}

// The PDF file.

TEST_F(PrintingIntoFile, proposes_a_name_beside_the_lists_file) {
    state_.aktuálisfájl = place("állatok.szs");
    dialogs_.choices = {place("other.pdf")};
    start();

    print();

    EXPECT_THAT(dialogs_.proposals, ElementsAre(place("állatok.pdf")));
    EXPECT_TRUE(is_whole_pdf(place("other.pdf")));
    EXPECT_THAT(files(), ElementsAre(u"other.pdf"_s));
    EXPECT_EQ(stored("nyomtato"), u"PDF-fájl"_s);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(PrintingIntoFile, proposes_a_name_in_the_program_folder_for_a_list_never_saved) {
    start();

    print();

    EXPECT_THAT(dialogs_.proposals, ElementsAre(place("névtelen szószedet.pdf")));
}

TEST_F(PrintingIntoFile, appends_the_extension_when_it_is_missing) {
    dialogs_.choices = {place("list")};
    start();

    print();

    EXPECT_THAT(files(), ElementsAre(u"list.pdf"_s));
}

TEST_F(PrintingIntoFile, that_is_given_no_name_leaves_everything_as_it_is) {
    start();
    const QStringList before = shown();

    print();

    EXPECT_EQ(dialogs_.proposals.size(), 1);
    EXPECT_THAT(files(), IsEmpty());
    expect_still_open(before);
}

TEST_F(PrintingIntoFile, asks_before_it_overwrites_a_file) {
    write_file(place("old.pdf"), "old");
    dialogs_.choices = {place("old"), place("new.pdf")};
    boxes_.answers = {Answer::no};
    start();

    print();

    EXPECT_THAT(boxes_.asked, ElementsAre(u"Fájl felülírása|A(z) „%1” fájl már létezik. "
                                          "Felülírja?|yes no"_s.arg(QDir::toNativeSeparators(place("old.pdf")))));
    EXPECT_EQ(read_file(place("old.pdf")), QByteArray("old"));
    EXPECT_TRUE(is_whole_pdf(place("new.pdf")));
}

TEST_F(PrintingIntoFile, overwrites_a_file_when_it_may) {
    write_file(place("old.pdf"), "old");
    dialogs_.choices = {place("old.pdf")};
    boxes_.answers = {Answer::yes};
    start();

    print();

    EXPECT_TRUE(is_whole_pdf(place("old.pdf")));
}

TEST_F(PrintingIntoFile, that_cannot_be_written_is_told_and_leaves_everything_as_it_is) {
    dialogs_.choices = {place("nowhere/list.pdf")};
    start();
    const QStringList before = shown();

    print();

    EXPECT_THAT(boxes_.told, ElementsAre(u"A(z) „%1” fájl nem írható: a mappa nem létezik."_s.arg(
                                 QDir::toNativeSeparators(place("nowhere/list.pdf")))));
    expect_still_open(before);
}

TEST_F(PrintingIntoFile, that_is_cancelled_leaves_an_old_file_as_it_was) {
    write_file(place("old.pdf"), "old");
    dialogs_.choices = {place("old.pdf")};
    boxes_.answers = {Answer::yes};
    fill(100);
    time_step_ = std::chrono::milliseconds(50);
    start();
    const QStringList before = shown();
    cancel_when_it_takes_long();

    print();

    EXPECT_EQ(read_file(place("old.pdf")), QByteArray("old"));
    EXPECT_THAT(files(), ElementsAre(u"old.pdf"_s));
    expect_still_open(before);
}

TEST_F(PrintingIntoFile, asks_for_no_name_when_there_is_nothing_to_print) {
    list_.kiürít();
    start();
    click("Option_nyomtatástípus(1)");

    print();

    EXPECT_THAT(dialogs_.proposals, IsEmpty());
    EXPECT_EQ(boxes_.told.size(), 1);
}

}  // namespace
