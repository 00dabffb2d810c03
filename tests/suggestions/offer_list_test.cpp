#include "suggestions/offer_list.h"

#include <gtest/gtest.h>

#include "support/events.h"
#include "support/fake_suggestions.h"

using namespace Qt::StringLiterals;

namespace {

class OfferList : public testing::Test {
  protected:
    [[nodiscard]] QStringList lines() const {
        QStringList texts;
        for (int i = 0; i < list_.rowCount(); ++i)
            texts.append(list_.index(i).data().toString());
        return texts;
    }

    std::shared_ptr<FakeSuggestions> data_ = std::make_shared<FakeSuggestions>();
    int made_ = 0;
    ajánlatlista list_{[this] {
        ++made_;
        return data_;
    }};
};

TEST_F(OfferList, is_empty_and_needs_nothing_before_the_first_question) {
    EXPECT_EQ(list_.darab(), 0);
    EXPECT_EQ(made_, 0);
}

TEST_F(OfferList, shows_the_answer_when_it_has_come_from_another_thread) {
    data_->answer = {.ajánlatok = {explained(u"went = go (múlt idő)"_s, u"go"_s)}, .kifejezések = 14};

    list_.kérdez({.szöveg = u"went"_s});

    ASSERT_TRUE(comes_true([&] { return list_.darab() > 0; }));
    EXPECT_EQ(lines(), QStringList({u"went = go (múlt idő)"_s, u"14 kifejezésben"_s}));
    EXPECT_NE(data_->thread, QThread::currentThread());
    EXPECT_EQ(list_.szöveg(), u"went"_s);
}

TEST_F(OfferList, tells_which_part_of_a_line_is_the_link) {
    data_->answer = {.ajánlatok = {explained(u"went = go (múlt idő)"_s, u"go"_s)}, .kifejezések = 2};
    list_.kérdez({.szöveg = u"went"_s});
    ASSERT_TRUE(comes_true([&] { return list_.darab() > 0; }));

    EXPECT_EQ(list_.index(0).data(ajánlatlista::hivatkozás_kezdete), 7);
    EXPECT_EQ(list_.index(0).data(ajánlatlista::hivatkozás_hossza), 2);
    EXPECT_EQ(list_.index(1).data(ajánlatlista::hivatkozás_kezdete), 0);
    EXPECT_EQ(list_.index(1).data(ajánlatlista::hivatkozás_hossza), 14);
    EXPECT_FALSE(list_.kifejezések_sora(0));
    EXPECT_TRUE(list_.kifejezések_sora(1));
    EXPECT_EQ(list_.egyik(0).címszó, u"go"_s);
}

TEST_F(OfferList, drops_a_question_for_a_newer_one) {
    data_->goes_on.acquire(1000);
    list_.kérdez({.szöveg = u"older"_s});
    data_->begins.acquire();
    data_->answer = {.ajánlatok = {explained(u"newer"_s, u"newer"_s)}};
    list_.kérdez({.szöveg = u"newer"_s});
    data_->goes_on.release(2);

    ASSERT_TRUE(comes_true([&] { return list_.darab() > 0; }));
    EXPECT_EQ(list_.szöveg(), u"newer"_s);
}

TEST_F(OfferList, shows_nothing_that_comes_after_it_was_emptied) {
    data_->answer = {.ajánlatok = {explained(u"went = go"_s, u"go"_s)}};
    data_->goes_on.acquire(1000);
    list_.kérdez({.szöveg = u"went"_s});
    data_->begins.acquire();
    list_.kiürít();
    data_->goes_on.release(1000);

    // The work after it shows that it has ended.
    bool told = false;
    list_.hiányokat_kérdez([&](const QStringList &) { told = true; });
    ASSERT_TRUE(comes_true([&] { return told; }));
    EXPECT_EQ(list_.darab(), 0);
}

TEST_F(OfferList, tells_of_a_headword_only_what_else_it_may_be_a_form_of) {
    data_->answer = {.ajánlatok = {explained(u"left = left"_s, u"left"_s),
                                   explained(u"left = leave (múlt idő)"_s, u"leave"_s),
                                   {.fajta = ajánlatfajta::elírás, .szöveg = u"lift"_s, .címszó = u"lift"_s}},
                     .kifejezések = 77};

    list_.kérdez({.szöveg = u"left"_s}, ajánlatlista::mennyit::csak_alakokat);

    ASSERT_TRUE(comes_true([&] { return list_.darab() > 0; }));
    EXPECT_EQ(lines(), QStringList{u"left = leave (múlt idő)"_s});
}

TEST_F(OfferList, tells_what_is_missing) {
    QStringList missing;
    list_.hiányokat_kérdez([&](const QStringList &what) { missing = what; });

    ASSERT_TRUE(comes_true([&] { return !missing.isEmpty(); }));
    EXPECT_EQ(missing, QStringList{u"Nincs meg az egyik fájl."_s});
}

}  // namespace
