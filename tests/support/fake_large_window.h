#pragma once

#include <QPointF>
#include <QRectF>
#include <QStringList>
#include <functional>
#include <variant>

#include "dictionary/word_lookup.h"
#include "lookup/widgets/large_window.h"

using namespace Qt::StringLiterals;

/// A main window without a window: it searches as the real one does and notes what is asked of it, one call a line.
class FakeLargeWindow final : public nagyablak {
  public:
    explicit FakeLargeWindow(szókereső &lookup) : lookup_(lookup) {}

    QStringList calls;
    bool ends = false;
    /// Whether what is to be added comes into the word list.
    bool adds = true;
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
        if (text.isEmpty())
            lookup_.ürít();
        else
            search();
        // It may set itself anew.
        const auto act = during_search;
        act(text);
    }
    void Ok_Click() override {
        calls.append(u"Ok_Click"_s);
        search();
    }
    void irányt_vált(bool from_english) override {
        calls.append(from_english ? u"from English"_s : u"from Hungarian"_s);
        lookup_.irányt_vált(from_english);
    }
    void kifejezéseket_keres(const QString &text) override { calls.append(u"phrases "_s + text); }
    bool magyarlist_DblClick() override {
        calls.append(u"magyarlist_DblClick"_s);
        return adds;
    }
    bool hozzáad_Click() override {
        calls.append(u"hozzáad_Click"_s);
        return adds;
    }

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

    void search() {
        const auto result = lookup_.keres(text_, [](const QString &) { return false; });
        const auto *end = std::get_if<keresésvége>(&result);
        if (end && end->kijelölendő >= 0)
            lookup_.kijelölt_találat().setCurrentIndex(lookup_.találatok().index(end->kijelölendő, 0),
                                                       QItemSelectionModel::ClearAndSelect);
    }

    szókereső &lookup_;
    QString text_;
};
