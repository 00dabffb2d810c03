#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QStringList>
#include <functional>
#include <utility>

#include "lookup/widgets/large_window.h"

using namespace Qt::StringLiterals;

/// A main window without a window: it finds the entries that begin with the searched text and notes what is asked of
/// it, one call a line.
class FakeLargeWindow final : public nagyablak {
  public:
    struct Entry {
        QString headword;
        QStringList meanings;
    };

    QList<Entry> dictionary;
    QStringList calls;
    bool from_english = true;
    bool ends = false;
    QRectF place{3000, 1500, 9000, 6000};
    QPointF came_back_at;
    /// Called with the text while it is searched for.
    std::function<void(const QString &)> during_search = [](const QString &) {};
    /// Called when the program is told to end, or the main window to come back.
    std::function<void()> when_left = [] {};

    /// The texts that were searched for as they were typed.
    [[nodiscard]] QStringList searched() const {
        QStringList texts;
        for (const QString &call : calls) {
            if (call.startsWith(typed))
                texts.append(call.mid(typed.size()));
        }
        return texts;
    }

    void angolszóba_ír(const QString &text) override {
        calls.append(typed + text);
        text_ = text;
        if (!text.isEmpty())
            search();
        // It may set itself anew.
        const auto act = during_search;
        act(text);
    }
    void Ok_Click() override {
        calls.append(u"Ok_Click"_s);
        search();
    }

    [[nodiscard]] QStringList szólist_elemei() const override {
        QStringList headwords;
        for (const Entry &hit : hits_)
            headwords.append(hit.headword);
        return headwords;
    }
    [[nodiscard]] int szólist_kijelölt() const override { return selected_; }
    void szólist_kijelöl(int index) override {
        calls.append(u"hit %1"_s.arg(index));
        selected_ = index;
    }
    [[nodiscard]] QStringList magyarlist_elemei() const override {
        return selected_ < 0 ? QStringList() : hits_[selected_].meanings;
    }
    void magyarlist_kijelöl(int index) override { calls.append(u"meaning %1"_s.arg(index)); }
    void magyarlist_DblClick() override { calls.append(u"magyarlist_DblClick"_s); }
    void hozzáad_Click() override { calls.append(u"hozzáad_Click"_s); }

    [[nodiscard]] bool angolról() const override { return from_english; }
    [[nodiscard]] QRectF helye() const override { return place; }
    void visszatér(const QPointF &middle) override {
        calls.append(u"visszatér"_s);
        came_back_at = middle;
        when_left();
    }
    void kilép_Click() override {
        calls.append(u"kilép_Click"_s);
        when_left();
    }
    [[nodiscard]] bool vége() const override { return ends; }

  private:
    static inline const QString typed = u"typed "_s;

    /// Selects the exact hit, else the first, as the dictionary does.
    void search() {
        hits_.clear();
        selected_ = -1;
        for (const Entry &entry : std::as_const(dictionary)) {
            if (!entry.headword.startsWith(text_))
                continue;
            if (selected_ < 0 || entry.headword == text_)
                selected_ = static_cast<int>(hits_.size());
            hits_.append(entry);
        }
    }

    QString text_;
    QList<Entry> hits_;
    int selected_ = -1;
};
