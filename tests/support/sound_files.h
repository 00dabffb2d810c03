#pragma once

#include <QByteArray>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#include <vector>

// Sounds that tests make themselves, and what of them is found in what was heard.

inline constexpr int frames_a_second = 44100;

template <typename Number>
QByteArray little_endian(Number number) {
    QByteArray bytes(sizeof number, 0);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

template <typename Number>
QByteArray big_endian(Number number) {
    QByteArray bytes(sizeof number, 0);
    qToBigEndian(number, bytes.data());
    return bytes;
}

/// What stands in a wave file before its samples: one channel of whole numbers.
inline QByteArray wave_header(quint32 bytes_of_samples, quint16 bits = 16, quint32 rate = frames_a_second) {
    const auto bytes_a_frame = static_cast<quint16>(bits / 8);
    constexpr quint32 behind_size = 36;
    return "RIFF" + little_endian(behind_size + bytes_of_samples) + "WAVEfmt " + little_endian(quint32{16}) +
           little_endian(quint16{1}) + little_endian(quint16{1}) + little_endian(rate) +
           little_endian(rate * bytes_a_frame) + little_endian(bytes_a_frame) + little_endian(bits) + "data" +
           little_endian(bytes_of_samples);
}

/// A wave file of one pure tone of whole hertz.
inline QByteArray wave_of(int hertz, int seconds) {
    constexpr double loudness = 8000;
    QByteArray second;
    for (int i = 0; i < frames_a_second; ++i) {
        const double angle = 2 * std::numbers::pi * hertz * i / frames_a_second;
        second += little_endian(static_cast<qint16>(loudness * std::sin(angle)));
    }
    return wave_header(static_cast<quint32>(second.size() * seconds)) + second.repeated(seconds);
}

/// A MIDI file of one chord of an organ.
inline QByteArray midi_of(const std::vector<int> &keys, int seconds) {
    constexpr char organ = 19;
    constexpr char loud = 100;
    constexpr quint16 ticks_a_beat = 96;
    const auto ticks = static_cast<quint32>(seconds * 2 * ticks_a_beat);
    QByteArray track = QByteArray("\x00\xC0", 2) + organ;
    for (const int key : keys)
        track += QByteArray("\x00\x90", 2) + static_cast<char>(key) + loud;
    for (size_t i = 0; i < keys.size(); ++i) {
        if (i > 0)
            track += '\0';
        else
            track.append(static_cast<char>(0x80U | ticks >> 14U))
                .append(static_cast<char>(0x80U | (ticks >> 7U & 0x7FU)))
                .append(static_cast<char>(ticks & 0x7FU));
        track += QByteArray("\x80") + static_cast<char>(keys[i]) + loud;
    }
    track += QByteArray("\x00\xFF\x2F\x00", 4);
    return "MThd" + big_endian(quint32{6}) + big_endian(quint16{0}) + big_endian(quint16{1}) +
           big_endian(ticks_a_beat) + "MTrk" + big_endian(static_cast<quint32>(track.size())) + track;
}

/// The frequency of a MIDI key.
inline double hertz_of_key(int key) {
    return 440 * std::exp2((key - 69) / 12.0);
}

/// How much of the frequency `hertz` is in `samples`: Goertzel's sum of the samples under Hann's window, squared.
inline double energy_at(double hertz, const std::vector<double> &samples) {
    const double step = 2 * std::numbers::pi * hertz / frames_a_second;
    const double turn = 2 * std::cos(step);
    const auto count = static_cast<double>(samples.size());
    double last = 0;
    double before = 0;
    for (size_t i = 0; i < samples.size(); ++i) {
        const double window = 0.5 - 0.5 * std::cos(2 * std::numbers::pi * static_cast<double>(i) / count);
        const double next = samples[i] * window + turn * last - before;
        before = std::exchange(last, next);
    }
    return (last * last + before * before - turn * last * before) / (count * count);
}

/// How many times more energy there is at `hertz` than half a key beside it.
inline double prominence_of(double hertz, const std::vector<double> &samples) {
    const double half_a_key = std::exp2(0.5 / 12);
    const double beside = std::max(energy_at(hertz / half_a_key, samples), energy_at(hertz * half_a_key, samples));
    constexpr double next_to_nothing = 1e-6;
    return energy_at(hertz, samples) / std::max(beside, next_to_nothing);
}
