#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <utility>

#include "platform/linux/sound_player.h"

using namespace Qt::StringLiterals;

/// What became of the sounds of a fake player, which notes everything here because it is owned by the code under test.
struct SoundNotes {
    /// In order: "wave a.wav opened", "midi b.mid played", "a.wav silenced".
    QStringList events;
    /// How often a player was asked for.
    int players = 0;
    /// Whether the machine has a sound device, and whether anything can be played at all.
    bool device = true;
    bool player = true;
    /// Whether files can be opened, and played when they are.
    bool readable = true;
    bool playable = true;
    /// Whether what was played is still heard.
    bool heard = true;

    QStringList take_events() { return std::exchange(events, {}); }
};

class FakeSound final : public Sound {
  public:
    FakeSound(SoundNotes &notes, QString path) : notes_(notes), path_(std::move(path)) {}
    ~FakeSound() override { notes_.events.append(path_ + u" silenced"_s); }

    bool play() override {
        notes_.events.append(path_ + u" played"_s);
        played_ = notes_.playable;
        return played_;
    }

    [[nodiscard]] bool playing() const override { return played_ && notes_.heard; }

  private:
    SoundNotes &notes_;
    QString path_;
    bool played_ = false;
};

class FakeSoundPlayer final : public SoundPlayer {
  public:
    explicit FakeSoundPlayer(SoundNotes &notes) : notes_(notes), silent_(!notes.device) {}

    /// Makes players that note everything in `notes`.
    static SoundPlayerFactory factory(SoundNotes &notes) {
        return [&notes]() -> std::unique_ptr<SoundPlayer> {
            ++notes.players;
            return notes.player ? std::make_unique<FakeSoundPlayer>(notes) : nullptr;
        };
    }

    [[nodiscard]] std::unique_ptr<Sound> open(SoundType type, const QString &path) override {
        notes_.events.append((type == SoundType::wave ? u"wave "_s : u"midi "_s) + path + u" opened"_s);
        return notes_.readable ? std::make_unique<FakeSound>(notes_, path) : nullptr;
    }

    [[nodiscard]] bool silent() const override { return silent_; }

  private:
    SoundNotes &notes_;
    const bool silent_;
};
