#pragma once

#include "exercises/multiple_choice/widgets/multiple_choice_window.h"
#include "support/exercise_window_fixture.h"

using namespace Qt::StringLiterals;

/// A multiple choice, what is seen of it, and what a user does with it.
class MultipleChoiceTest : public ExerciseWindowTest<választás, választás_beáll> {
  protected:
    using ExerciseWindowTest::start;
    void start(int pairs = 10) { start(numbered_pairs(pairs)); }

    void store(const char *key, const QVariant &value) {
        settings_.beállításment(ablak(u"választás_beáll"_s), QString::fromUtf8(key), value);
    }

    [[nodiscard]] ChoosablePicture *candidate(int k) const {
        return window_->findChild<ChoosablePicture *>(u"pic_kínálat(%1)"_s.arg(k));
    }
    [[nodiscard]] ChoosablePicture *frame() const { return control<ChoosablePicture>(*window_, "pic_megoldás"); }
    [[nodiscard]] QTimer *timer() const { return control<QTimer>(*window_, "Timer1"); }
    [[nodiscard]] QString question() const { return shown(*window_, "pic_feladat"); }
    [[nodiscard]] QString counter() const { return label(*window_, "Label_info"); }
    [[nodiscard]] QString answer() const { return frame()->property("tag").toString(); }
    [[nodiscard]] QString text(int k) const { return candidate(k)->property("tag").toString(); }

    [[nodiscard]] int candidates() const {
        int count = 0;
        while (candidate(count))
            ++count;
        return count;
    }
    [[nodiscard]] QStringList offer() const {
        QStringList texts;
        for (int k = 0; k < candidates(); ++k)
            texts.append(text(k));
        return texts;
    }
    /// A line for each candidate: "x" when it is seen, "-" when it is not.
    [[nodiscard]] QString seen() const {
        QString line;
        for (int k = 0; k < candidates(); ++k)
            line += candidate(k)->isVisible() ? u'x' : u'-';
        return line;
    }

    /// Place of the right candidate.
    [[nodiscard]] int right() const {
        for (const szópár &pair : list_.párok()) {
            const QString hungarian = pair.magyar.section(u',', 0, 0);
            const QString other =
                pair.angol == question() ? hungarian : (hungarian == question() ? pair.angol : QString());
            if (!other.isEmpty() && offer().contains(other))
                return static_cast<int>(offer().indexOf(other));
        }
        ADD_FAILURE() << "no right candidate for " << question().toStdString();
        return 0;
    }
    [[nodiscard]] int wrong() const { return right() == 0 ? 1 : 0; }

    void pick(int k) { QTest::mouseClick(candidate(k), Qt::LeftButton); }
    void check() { click(*window_, "cmd_ok"); }
    void answer_with(int k) {
        pick(k);
        check();
    }
    void answer_all_rightly() {
        for (int i = 0; messages_.isEmpty() && i < 100; ++i)
            answer_with(right());
    }

    void drag(int k, const QPoint &to) {
        const QPoint from = middle_of(candidate(k));
        press_at(from);
        move_to(from + (to - from) / 2);
        move_to(to);
        release_at(to);
    }
    /// Pictures that follow the mouse.
    [[nodiscard]] int ghosts() const {
        int count = 0;
        for (const QLabel *one : window_->findChildren<QLabel *>(Qt::FindDirectChildrenOnly))
            count += one->isVisible() ? 1 : 0;
        return count;
    }
};
