#pragma once

#include <QByteArray>
#include <QString>
#include <algorithm>
#include <map>
#include <set>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

/// A standard MIDI file, read strictly.
struct MidiPiece {
    struct Note {
        long start = 0;
        long end = 0;
        int channel = 0;
        int key = 0;
        int velocity = 0;
    };

    /// What is wrong with the file; empty for a well-formed one.
    QString fault;
    int ticks_a_quarter = 0;
    /// Microseconds a quarter, by the tick from which they count.
    std::map<long, int> tempi;
    std::vector<Note> notes;
    /// The channels that name their instrument before their first note.
    std::set<int> channels_with_instrument;
    std::set<int> channels;

    [[nodiscard]] double seconds() const {
        long end = 0;
        for (const Note &note : notes)
            end = std::max(end, note.end);
        double sum = 0;
        for (auto tempo = tempi.begin(); tempo != tempi.end(); ++tempo) {
            const long until = std::next(tempo) == tempi.end() ? end : std::min(end, std::next(tempo)->first);
            sum += double(std::max(0L, until - tempo->first)) / ticks_a_quarter * tempo->second / 1e6;
        }
        return sum;
    }
};

/// Reads the file: "MThd" with its length 6, format, number of tracks and division, then as many chunks "MTrk", each
/// with its length before it. An event is the time since the last one, seven bits a byte, and a message whose first
/// byte may be left out where it is that of the message before.
class MidiReader {
  public:
    explicit MidiReader(QByteArray bytes) : bytes_(std::move(bytes)) {}

    [[nodiscard]] MidiPiece read() {
        if (bytes_.size() < 14 || !bytes_.startsWith("MThd") || number(4, 4) != 6)
            return failed(u"no header");
        const long format = number(8, 2);
        const long tracks = number(10, 2);
        piece_.ticks_a_quarter = int(number(12, 2));
        if (format != 1 || tracks < 1 || piece_.ticks_a_quarter < 1 || piece_.ticks_a_quarter > 0x7fff)
            return failed(u"a header that says something else");
        at_ = 14;
        for (long track = 0; track < tracks; ++track) {
            if (at_ + 8 > bytes_.size() || bytes_.mid(at_, 4) != "MTrk")
                return failed(u"a track is missing");
            const long length = number(at_ + 4, 4);
            at_ += 8;
            end_ = at_ + length;
            if (end_ > bytes_.size())
                return failed(u"a track is longer than the file");
            if (!read_track())
                return piece_;
        }
        if (at_ != bytes_.size())
            return failed(u"something follows the last track");
        return piece_;
    }

  private:
    MidiPiece failed(const char16_t *fault) {
        piece_.fault = QString::fromUtf16(fault) + u" (byte %1)"_s.arg(at_);
        return piece_;
    }

    bool track_failed(const char16_t *fault) {
        static_cast<void>(failed(fault));
        return false;
    }

    [[nodiscard]] long number(qsizetype at, int size) const {
        long value = 0;
        for (int i = 0; i < size; ++i)
            value = value << 8 | static_cast<unsigned char>(bytes_[at + i]);
        return value;
    }

    /// The next byte of the track; -1 behind its end.
    int next() { return at_ < end_ ? static_cast<unsigned char>(bytes_[at_++]) : -1; }

    /// A number of seven bits a byte; -1 behind the end of the track.
    long next_number() {
        long value = 0;
        for (int i = 0; i < 4; ++i) {
            const int byte = next();
            if (byte < 0)
                return -1;
            value = value << 7 | (byte & 0x7f);
            if (byte < 0x80)
                return value;
        }
        return -1;
    }

    bool read_track() {
        long tick = 0;
        int status = 0;
        sounding_.clear();
        while (true) {
            const long wait = next_number();
            if (wait < 0)
                return track_failed(u"a track without its end");
            tick += wait;
            if (at_ < end_ && static_cast<unsigned char>(bytes_[at_]) >= 0x80)
                status = next();
            if (status == 0xff) {
                const int kind = next();
                const long length = next_number();
                if (kind < 0 || length < 0 || at_ + length > end_)
                    return track_failed(u"a cut message");
                if (kind == 0x51 && length == 3)
                    piece_.tempi[tick] = int(number(at_, 3));
                at_ += length;
                if (kind != 0x2f)
                    continue;
                if (at_ != end_ || length != 0)
                    return track_failed(u"the end of a track is not where its length says");
                return sounding_.empty() || track_failed(u"a note without an end");
            }
            if (!read_message(status, tick))
                return false;
        }
    }

    bool read_message(int status, long tick) {
        const int kind = status >> 4;
        const int channel = status & 0xf;
        if (kind < 8 || kind > 14)
            return track_failed(u"an unknown message");
        const int first = next();
        const int second = kind == 12 || kind == 13 ? 0 : next();
        if (first < 0 || second < 0 || first > 127 || second > 127)
            return track_failed(u"a cut message");
        const auto note = std::pair(channel, first);
        if (kind == 12 && !piece_.channels.contains(channel))
            piece_.channels_with_instrument.insert(channel);
        if (kind == 9 && second > 0) {
            piece_.channels.insert(channel);
            if (!sounding_.try_emplace(note, MidiPiece::Note{tick, tick, channel, first, second}).second)
                return track_failed(u"a note begins that sounds already");
        } else if (kind == 8 || kind == 9) {
            const auto begun = sounding_.find(note);
            if (begun == sounding_.end())
                return track_failed(u"a note ends that has not begun");
            begun->second.end = tick;
            piece_.notes.push_back(begun->second);
            sounding_.erase(begun);
        }
        return true;
    }

    QByteArray bytes_;
    qsizetype at_ = 0;
    qsizetype end_ = 0;
    std::map<std::pair<int, int>, MidiPiece::Note> sounding_;
    MidiPiece piece_;
};
