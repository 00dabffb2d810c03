#include "ui/window/text_lines.h"

#include <gtest/gtest.h>

#include "support/headwords.h"
#include "support/printing.h"
#include "ui/controls/picture_box.h"
#include "ui/drawing/fonts.h"

using namespace Qt::StringLiterals;

namespace {

/// Inner sizes of picture boxes, in twips.
const QList<QSizeF> boxes{{3000, 500}, {7000, 4000}, {17000, 9000}};

bool fits(const Betűpróba &trial, int points, const QString &text, const QSizeF &box) {
    const QSizeF size = trial.méret(points, text);
    return size.width() < box.width() && size.height() < box.height();
}

TEST(LastGoodNumber, is_found_from_every_guess) {
    for (int from = -1; from < 4; ++from) {
        for (int last = from; last < 70; ++last) {
            for (int guess = -3; guess < 90; ++guess)
                ASSERT_EQ(utolsó_jó(from, guess, [last](int n) { return n <= last; }), last) << from << ' ' << guess;
        }
    }
}

TEST(LastGoodNumber, is_found_with_few_trials) {
    const auto trials = [](int guess) {
        int count = 0;
        EXPECT_EQ(utolsó_jó(7, guess,
                            [&count](int n) {
                                ++count;
                                return n <= 200;
                            }),
                  200);
        return count;
    };

    EXPECT_EQ(trials(200), 2);
    EXPECT_EQ(trials(201), 2);
    EXPECT_LE(trials(190), 8);
    EXPECT_LE(trials(210), 8);
    EXPECT_LE(trials(0), 16);
}

TEST(LargestSize, of_a_line_is_the_one_that_is_found_by_trying_one_after_the_other) {
    const Betűpróba trial{QFont()};
    QStringList texts = real_headwords("ma.txt", 10) + real_headwords("am.txt", 10);
    ASSERT_EQ(texts.size(), 20);
    texts += {QString(), u"i"_s, u"EGYESÜLT NEMZETEK"_s, u"1848"_s, u" 3/ 20"_s, QString(700, u'x')};
    for (const QSizeF &box : boxes) {
        for (const QString &text : texts) {
            int points = 8;
            while (fits(trial, points, text, box))
                ++points;

            EXPECT_EQ(trial.legnagyobb(text, box, 8), points - 1) << text.toStdString() << " in " << box.width();
        }
    }
}

TEST(LargestSize, of_lines_is_the_last_in_which_all_of_them_fit) {
    const Betűpróba trial{QFont()};
    const QStringList words = real_headwords("ma.txt", 300);
    for (const QSizeF &box : boxes) {
        for (int count = 4; count < 60; count += 11) {
            const QString text = words.mid(count, count).join(u", "_s);

            const Betördelt broken = sorokban(text, box, 8, 14, trial);

            const auto points = static_cast<int>(broken.pont);
            EXPECT_TRUE(points == 8 || fits(trial, points, broken.sorok, box)) << text.toStdString();
            const QStringList next = tördelt(text, box.width(), points + 1, trial);
            const bool broke_a_word = next.join(u' ') != text;
            EXPECT_TRUE(broke_a_word || !fits(trial, points + 1, next.join(u'\n'), box)) << text.toStdString();
        }
    }
}

TEST(Lines, are_filled_as_far_as_they_go) {
    const Betűpróba trial{QFont()};
    // Letters stand closer to some blanks, so that the words alone do not tell how wide a line is.
    const QStringList texts{real_headwords("ma.txt", 60).join(u' '), u"AV A Y AT V TA "_s.repeated(20).trimmed()};
    for (const QString &text : texts) {
        for (const int points : {9, 14, 31}) {
            constexpr double width = 6000;

            const QStringList lines = tördelt(text, width, points, trial);

            EXPECT_GT(lines.size(), 2);
            EXPECT_EQ(lines.join(u' '), text);
            for (qsizetype i = 0; i < lines.size(); ++i) {
                EXPECT_LT(trial.méret(points, lines[i]).width(), width);
                if (i + 1 < lines.size()) {
                    const QString longer = lines[i] + u' ' + lines[i + 1].section(u' ', 0, 0);
                    EXPECT_GE(trial.méret(points, longer).width(), width) << longer.toStdString();
                }
            }
        }
    }
}

TEST(Lines, of_a_word_that_is_too_wide_are_filled_as_far_as_they_go) {
    const Betűpróba trial{QFont()};
    const QString word = u"megszentségteleníthetetlenségeskedéseitekért"_s.repeated(3);

    const QStringList lines = tördelt(u"a "_s + word + u" z"_s, 3000, 20, trial);

    EXPECT_EQ(lines.front(), u"a"_s);
    EXPECT_EQ(lines.join(QString()), u"a"_s + word + u" z"_s);
    for (qsizetype i = 1; i + 1 < lines.size(); ++i) {
        EXPECT_LT(trial.méret(20, lines[i]).width(), 3000);
        EXPECT_GE(trial.méret(20, lines[i] + lines[i + 1].left(1)).width(), 3000);
    }
}

TEST(Lines, keep_the_two_halves_of_a_character_together) {
    const Betűpróba trial{QFont()};
    const QString faces = QString::fromUcs4(U"\U0001F600").repeated(40);
    for (const double width : {100.0, 700.0, 1500.0}) {
        for (const QString &line : tördelt(faces, width, 14, trial)) {
            EXPECT_TRUE(line.front().isHighSurrogate()) << width;
            EXPECT_TRUE(line.back().isLowSurrogate()) << width;
        }
    }
}

}  // namespace
