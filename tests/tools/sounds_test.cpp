#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <map>

#include "support/files_for_tests.h"
#include "support/printing.h"
#include "support/test_places.h"
#include "tools/wave_reader.h"

using namespace Qt::StringLiterals;

namespace {

const QString program = test_places::program();

QByteArrayList sound_names() {
    QByteArrayList names;
    for (const QString &name : QDir(program + u"/hangok"_s).entryList({u"*.wav"_s}))
        names.append(name.toUtf8());
    return names;
}

QByteArray bytes_of_sound(const QByteArray &name) {
    return read_file(program + u"/hangok/"_s + QString::fromUtf8(name));
}

/// The sounds of the program folder by their names; a file that is no such wave fails the test.
std::map<QByteArray, Wave> sounds() {
    std::map<QByteArray, Wave> all;
    for (const QByteArray &name : sound_names()) {
        const std::optional<Wave> wave = read_wave(bytes_of_sound(name));
        EXPECT_TRUE(wave) << name.toStdString();
        if (wave)
            all[name] = *wave;
    }
    return all;
}

double decibels(double level) {
    return 20 * std::log10(std::max(level, 1e-9));
}

/// How alike two sounds are, from 0 to 1 (the same, but for its loudness), when both begin at the same time.
double likeness(const Wave &one, const Wave &other) {
    double product = 0;
    double one_square = 0;
    double other_square = 0;
    for (std::size_t i = 0; i < std::max(one.samples.size(), other.samples.size()); ++i) {
        const double a = i < one.samples.size() ? one.samples[i] : 0;
        const double b = i < other.samples.size() ? other.samples[i] : 0;
        product += a * b;
        one_square += a * a;
        other_square += b * b;
    }
    return std::abs(product) / std::sqrt(one_square * other_square);
}

TEST(Sounds, are_at_least_twelve_and_have_names_with_accents_and_blanks) {
    const QByteArrayList names = sound_names();

    EXPECT_GE(names.size(), 12);
    EXPECT_TRUE(names.contains("csengő.wav"));
    EXPECT_TRUE(names.contains("mély duda.wav"));
}

TEST(Sounds, are_waves_of_a_fifth_of_a_second_to_three_seconds) {
    for (const auto &[name, wave] : sounds()) {
        EXPECT_EQ(wave.rate, 44100U) << name.toStdString();
        EXPECT_GE(wave.seconds(), 0.2) << name.toStdString();
        EXPECT_LE(wave.seconds(), 3) << name.toStdString();
    }
}

TEST(Sounds, are_about_equally_loud) {
    for (const auto &[name, wave] : sounds())
        EXPECT_NEAR(decibels(wave.loudness()), -15.5, 2.5) << name.toStdString();
}

TEST(Sounds, have_no_peak_at_the_limit) {
    for (const auto &[name, wave] : sounds())
        EXPECT_LT(wave.peak(), 0.9) << name.toStdString();
}

TEST(Sounds, begin_and_end_without_a_click) {
    for (const auto &[name, wave] : sounds()) {
        ASSERT_GT(wave.samples.size(), 2000U) << name.toStdString();
        EXPECT_LT(std::abs(wave.samples.front()), 0.005) << name.toStdString();
        EXPECT_LT(wave.level(0, 8), 0.01) << name.toStdString();
        EXPECT_LT(wave.level(wave.samples.size() - 200, 200), 0.01) << name.toStdString();
    }
}

TEST(Sounds, are_all_different) {
    const std::map<QByteArray, Wave> all = sounds();
    for (auto one = all.begin(); one != all.end(); ++one) {
        for (auto other = std::next(one); other != all.end(); ++other)
            EXPECT_LT(likeness(one->second, other->second), 0.5)
                << one->first.toStdString() << " and " << other->first.toStdString();
    }
}

TEST(Sounds, include_a_silence_where_its_name_directly_follows_the_program_folder) {
    const std::optional<Wave> silence = read_wave(read_file(program + u"null.wav"_s));

    ASSERT_TRUE(silence);
    EXPECT_GT(silence->seconds(), 0.05);
    EXPECT_LT(silence->seconds(), 1);
    EXPECT_EQ(silence->peak(), 0);
}

TEST(Sounds, come_out_the_same_each_time_they_are_made) {
    const QTemporaryDir made;
    const QString silence = made.filePath(u"null.wav"_s);

    QProcess script;
    script.start(u"" ZIMBORA_SOUND_SCRIPT ""_s, {made.filePath(u"hangok"_s), silence});
    ASSERT_TRUE(script.waitForFinished(120'000));
    ASSERT_EQ(script.exitCode(), 0) << script.readAllStandardError().toStdString();

    // Sound by sound what the build has made before.
    EXPECT_EQ(QDir(made.filePath(u"hangok"_s)).entryList(QDir::Files).size(), sound_names().size());
    for (const QByteArray &name : sound_names())
        EXPECT_TRUE(read_file(made.filePath(u"hangok/"_s + QString::fromUtf8(name))) == bytes_of_sound(name))
            << name.toStdString();
    EXPECT_EQ(read_file(silence), read_file(program + u"null.wav"_s));
}

}  // namespace
