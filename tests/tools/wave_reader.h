#pragma once

#include <QByteArray>
#include <QString>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <vector>

/// The samples of a wave file, from -1 to 1.
struct Wave {
    unsigned rate = 0;
    std::vector<double> samples;

    [[nodiscard]] double seconds() const { return double(samples.size()) / rate; }

    /// Root of the mean square of `count` samples from `first` on, as far as there are so many.
    [[nodiscard]] double level(std::size_t first, std::size_t count) const {
        double sum = 0;
        const std::size_t end = std::min(samples.size(), first + count);
        for (std::size_t i = first; i < end; ++i)
            sum += samples[i] * samples[i];
        return end > first ? std::sqrt(sum / double(end - first)) : 0;
    }

    /// The level of the loudest 50 ms.
    [[nodiscard]] double loudness() const {
        const std::size_t window = rate / 20;
        double loudest = 0;
        for (std::size_t first = 0; first < samples.size(); first += window / 5)
            loudest = std::max(loudest, level(first, window));
        return loudest;
    }

    [[nodiscard]] double peak() const {
        double highest = 0;
        for (const double sample : samples)
            highest = std::max(highest, std::abs(sample));
        return highest;
    }
};

/// The wave in `bytes`: "RIFF", the number of bytes that follow, "WAVE", then the chunks "fmt " (PCM, one channel,
/// 16 bit) and "data", each with its length before it. Nothing where a length or a field says otherwise.
inline std::optional<Wave> read_wave(const QByteArray &bytes) {
    const auto number = [&bytes](qsizetype at, int size) {
        unsigned value = 0;
        for (int i = size - 1; i >= 0; --i)
            value = value << 8U | static_cast<unsigned char>(bytes[at + i]);
        return value;
    };
    constexpr qsizetype header = 44;
    if (bytes.size() < header || !bytes.startsWith("RIFF") || number(4, 4) != unsigned(bytes.size() - 8) ||
        bytes.mid(8, 8) != "WAVEfmt " || number(16, 4) != 16 || bytes.mid(36, 4) != "data")
        return std::nullopt;
    constexpr unsigned pcm = 1;
    const unsigned rate = number(24, 4);
    if (number(20, 2) != pcm || number(22, 2) != 1 || number(28, 4) != 2 * rate || number(32, 2) != 2 ||
        number(34, 2) != 16 || number(40, 4) != unsigned(bytes.size() - header))
        return std::nullopt;
    Wave wave{rate, {}};
    for (qsizetype at = header; at + 1 < bytes.size(); at += 2)
        wave.samples.push_back(qFromLittleEndian<qint16>(bytes.constData() + at) / 32768.0);
    return wave;
}
