#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include "media/playback.h"
#include "support/files_for_tests.h"
#include "support/printing.h"
#include "support/sound_files.h"

using namespace Qt::StringLiterals;

/// The program's real player, whose device is a file: everything that is heard is written into it, some times faster
/// than it would sound.
class RealPlayback : public testing::Test {
  protected:
    /// From this energy on a frequency is taken for heard, as a multiple of what is beside it.
    static constexpr double heard_clearly = 100;
    /// Long enough for everything that a test does, however busy the machine is.
    static constexpr int long_seconds = 120;

    RealPlayback() {
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", QFile::encodeName(heard_));
        // Between two writes of 46 ms.
        qputenv("SDL_DISKAUDIODELAY", "10");
        qunsetenv("SDL_SOUNDFONTS");
    }

    [[nodiscard]] QString in_folder(const QString &name) const { return folder_.filePath(name); }
    [[nodiscard]] QString in_folder(const char *name) const { return in_folder(QString::fromLatin1(name)); }

    /// Makes the file `name` and returns its path.
    QString file(const char *name, const QByteArray &bytes) const {
        const QString path = in_folder(name);
        write_file(path, bytes);
        return path;
    }

    /// Makes a file of `size` bytes that begins with `bytes`; the rest are zeros that take no room.
    QString large_file(const char *name, const QByteArray &bytes, qint64 size) const {
        const QString path = file(name, bytes);
        EXPECT_TRUE(QFile::resize(path, size));
        return path;
    }

    /// What is heard from now on, for `seconds`.
    [[nodiscard]] std::vector<double> listen(double seconds = 0.5) const {
        // What was mixed before may not have been written yet.
        constexpr qint64 on_the_way = 4 * 2048;
        const qint64 from = QFileInfo(heard_).size() / bytes_a_frame + on_the_way;
        const auto frames = static_cast<qint64>(seconds * frames_a_second);
        const bool written = wait_for([&] { return QFileInfo(heard_).size() >= (from + frames) * bytes_a_frame; });
        EXPECT_TRUE(written) << "no sound came";
        if (!written)
            return std::vector<double>(static_cast<size_t>(frames));
        QFile file(heard_);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.seek(from * bytes_a_frame));
        return left_channel(file.read(frames * bytes_a_frame));
    }

    /// True when `condition` comes true before the deadline.
    [[nodiscard]] static bool wait_for(const std::function<bool()> &condition) {
        QDeadlineTimer deadline(std::chrono::seconds(60));
        while (!condition()) {
            if (deadline.hasExpired())
                return false;
            QThread::msleep(2);
        }
        return true;
    }

    static bool silent(const std::vector<double> &samples) {
        return std::all_of(samples.begin(), samples.end(), [](double sample) { return sample == 0; });
    }

    [[nodiscard]] QString wave_mode() { return commands_->send(u"status hang mode"_s, 255).text; }

    /// True when a wave that is played now is heard: the device has come through what was before.
    [[nodiscard]] bool can_play_a_wave() {
        constexpr int hertz = 1500;
        player_.hanglejátszás(file("good.wav", wave_of(hertz, long_seconds)));
        return prominence_of(hertz, listen()) > heard_clearly;
    }

    /// True when a MIDI piece that is played now is heard.
    [[nodiscard]] bool can_play_a_piece() {
        constexpr int key = 74;
        player_.midilejátszás(file("good.mid", midi_of({key}, long_seconds)));
        return prominence_of(hertz_of_key(key), listen()) > heard_clearly;
    }

  private:
    static constexpr qint64 bytes_a_frame = 4;

    static std::vector<double> left_channel(const QByteArray &bytes) {
        std::vector<double> samples;
        for (qsizetype at = 0; at + bytes_a_frame <= bytes.size(); at += bytes_a_frame)
            samples.push_back(qFromLittleEndian<qint16>(bytes.constData() + at));
        return samples;
    }

    // The player's library is looked for beside the executable, which the application knows.
    int argument_count_ = 1;
    char program_name_[5] = "test";
    char *arguments_[2] = {program_name_, nullptr};
    QCoreApplication application_{argument_count_, arguments_};
    QTemporaryDir folder_;
    const QString heard_ = folder_.filePath(u"heard.raw"_s);

  protected:
    std::unique_ptr<MultimediaCommands> commands_ = make_multimedia_commands();
    global::programállapot state_;
    lejátszó player_{*commands_, state_};
};
