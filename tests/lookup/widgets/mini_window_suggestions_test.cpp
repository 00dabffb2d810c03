#include "support/events.h"
#include "support/mini_window_fixture.h"

namespace {

class MiniWindowSuggestions : public MiniWindowTest {
  protected:
    MiniWindowSuggestions() { open(); }

    [[nodiscard]] LinkList *help() const { return control<LinkList>("lst_ajánlatok"); }
    void copy_and_wait(const char *text) {
        copy(text);
        ASSERT_TRUE(comes_true([&] { return help()->isVisible(); }));
    }
};

TEST_F(MiniWindowSuggestions, stand_in_one_line_after_a_copied_form) {
    suggestions_->answer = {.ajánlatok = {explained(u"házaimban = ház + többes szám"_s, u"ház"_s)}, .kifejezések = 3};

    copy_and_wait("házaimban");

    EXPECT_EQ(suggestions_->asked, QStringList{u"házaimban"_s});
    EXPECT_EQ(help()->document()->blockCount(), 1);
    EXPECT_TRUE(help()->toPlainText().startsWith(u"házaimban = ház + többes szám"_s));
    EXPECT_TRUE(window_->rect().contains(QRect(help()->mapTo(window_.get(), QPoint()), help()->size())));
}

TEST_F(MiniWindowSuggestions, stay_beside_the_shorter_word_that_was_found) {
    suggestions_->answer = {.ajánlatok = {explained(u"almát = alma + tárgy (mit?)"_s, u"alma"_s)}};

    copy_and_wait("almát");

    EXPECT_EQ(search_box()->text(), u"alm"_s);
    EXPECT_FALSE(hits().isEmpty());
}

TEST_F(MiniWindowSuggestions, lead_to_the_headword_that_is_chosen) {
    suggestions_->answer = {.ajánlatok = {explained(u"házaimban = ház + többes szám"_s, u"ház"_s)}};
    copy_and_wait("házaimban");

    Q_EMIT help()->chosen(0);

    EXPECT_EQ(search_box()->text(), u"ház"_s);
    EXPECT_EQ(hits(), QStringList{u"ház"_s});
    EXPECT_EQ(lookup_.választott().value().címszó, u"ház"_s);
}

TEST_F(MiniWindowSuggestions, turn_to_the_other_dictionary_and_name_it_in_the_title) {
    write_file(place("ma.txt"), dictionary_of({"k\xf6nyv:book\xf7"}));
    suggestions_->answer = {
        .ajánlatok = {{.fajta = ajánlatfajta::írásmód, .szöveg = u"könyv"_s, .címszó = u"könyv"_s, .angolról = false}}};
    copy_and_wait("konyv");

    Q_EMIT help()->chosen(0);

    EXPECT_EQ(label("label_fejléc")->text(), u"Zimbora Magyar-angol szótár"_s);
    EXPECT_EQ(hits(), QStringList{u"könyv"_s});
}

TEST_F(MiniWindowSuggestions, lead_to_the_phrases) {
    suggestions_->answer = {.kifejezések = 14};
    copy_and_wait("zzz");

    Q_EMIT help()->chosen(0);

    EXPECT_EQ(large_.calls.last(), u"phrases zzz"_s);
}

}  // namespace
