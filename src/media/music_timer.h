#pragma once

#include <QString>
#include <functional>

#include "media/playback.h"

/// The playlist as the music timer sees it.
class lejátszólista {
  public:
    virtual ~lejátszólista() = default;

    /// Whether music may be heard.
    [[nodiscard]] virtual bool zene_enged() const = 0;
    [[nodiscard]] virtual int darab() const = 0;
    /// −1 when nothing is selected.
    [[nodiscard]] virtual int kijelölt() const = 0;
    [[nodiscard]] virtual QString kijelölt_neve() const = 0;
    /// Selects an entry, which starts it unless it is the piece that was started last.
    virtual void kijelöl(int index) = 0;
};

/// What the timer `Timer_zene` does each second: when the music has fallen silent, the next entry of the playlist is
/// selected; after the last one comes the first.
class zeneóra final {
  public:
    /// `lista` gives the playlist, which is made at the first tick. `felirat` is told the name of each entry selected.
    zeneóra(lejátszó &játszó, std::function<lejátszólista &()> lista, std::function<void(const QString &)> felirat);

    void Timer_zene_Timer();

  private:
    lejátszó &játszó_;
    std::function<lejátszólista &()> lista_;
    std::function<void(const QString &)> felirat_;
};
