#pragma once

#include <QSemaphore>
#include <QStringList>
#include <QThread>

#include "suggestions/offer_list.h"

using namespace Qt::StringLiterals;

/// An offer of the form `text`, whose link is the part `headword` of it.
inline ajánlat explained(const QString &text, const QString &headword) {
    return {.fajta = ajánlatfajta::alak,
            .szöveg = text,
            .hivatkozás = {text.indexOf(headword), headword.size()},
            .címszó = headword};
}

/// Answers every question alike, as soon as it may go on.
class FakeSuggestions final : public ajánlóadatok {
  public:
    ajánlás answer;
    QStringList asked;
    QThread *thread = nullptr;
    QSemaphore begins;
    QSemaphore goes_on{1000};

    ajánlás ajánl(const ajánlókérdés &question, const std::function<bool()> &) override {
        thread = QThread::currentThread();
        asked.append(question.szöveg);
        begins.release();
        goes_on.acquire();
        return answer;
    }
    QStringList hiányok() override { return {u"Nincs meg az egyik fájl."_s}; }
};
