#pragma once

#include <QString>
#include <QStringList>
#include <deque>
#include <functional>
#include <optional>
#include <utility>

#include "platform/dialogs.h"

using namespace Qt::StringLiterals;

/// Message boxes that note what they were told and answer from a list. A question beyond the list is answered with
/// cancel (or no), and the note makes a test that did not expect it fail.
class FakeMessageBoxes final : public MessageBoxes {
  public:
    QStringList told;
    QStringList asked;
    std::deque<Answer> answers;
    int beeps = 0;
    /// Called while a question is open.
    std::function<void()> meanwhile = [] {};

    void tell(const QString &text) override { told.append(text); }

    Answer ask_yes_no(const QString &title, const QString &text) override {
        return answer(title + u'|' + text + u"|yes no"_s, Answer::no);
    }

    Answer ask_yes_no_cancel(const QString &title, const QString &text) override {
        return answer(title + u'|' + text + u"|yes no cancel"_s, Answer::cancel);
    }

    void beep() override { ++beeps; }

  private:
    Answer answer(const QString &question, Answer otherwise) {
        asked.append(question);
        meanwhile();
        if (answers.empty())
            return otherwise;
        const Answer first = answers.front();
        answers.pop_front();
        return first;
    }
};

/// File dialogs in which the next of a list of names is chosen; they are cancelled when the list is empty.
class FakeFileDialogs final : public FileDialogs {
  public:
    QStringList proposals;
    std::deque<QString> choices;
    /// Called while a dialog is open.
    std::function<void()> meanwhile = [] {};

    std::optional<QString> open(const QString &proposal) override { return choose(proposal); }
    std::optional<QString> save(const QString &proposal) override { return choose(proposal); }
    std::optional<QString> save_pdf(const QString &proposal) override { return choose(proposal); }

  private:
    std::optional<QString> choose(const QString &proposal) {
        proposals.append(proposal);
        meanwhile();
        if (choices.empty())
            return std::nullopt;
        const QString first = choices.front();
        choices.pop_front();
        return first;
    }
};
