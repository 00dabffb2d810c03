// Every file of the user's that the program writes, on a disk that fails: what cannot be written is told with its
// reason, and the file is then as it was.

#include <gtest/gtest.h>

#include <QDir>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <cerrno>
#include <functional>
#include <map>
#include <tuple>

#include "dictionary/order_tool.h"
#include "lookup/mini_window_file.h"
#include "media/music_settings.h"
#include "media/sound_settings.h"
#include "print/pdf_job.h"
#include "support/linux/failing_calls_fixture.h"
#include "support/word_list_files_fixture.h"

namespace {

using Contents = std::map<QString, QByteArray>;

QString told_of(const std::optional<Failure> &failure) {
    return failure ? failure->sentence : QString();
}

/// Where the files are, and what is in them before.
struct Places {
    Places() {
        for (const QString &folder : {u"program/hangok"_s, u"program/kavaro"_s, u"c/zbrmk/kavaro"_s})
            QDir(root.path()).mkpath(folder);
        write_file(root.filePath(u"program/hangok/a.wav"_s), "RIFF");
        write_file(root.filePath(u"program/magyar.skt"_s), "b\r\na\r\n");
    }

    [[nodiscard]] QString program() const { return root.filePath(u"program"_s); }

    QTemporaryDir root{QDir::tempPath() + u"/zimboraXXXXXX"_s};
};

/// Something that writes files, and returns what it tells of that; empty when all went well.
struct Writer {
    const char *name;
    QStringList files;
    std::function<QString(const Places &)> write;
};

QString write_word_list(const Places &places, const QString &recent) {
    global::programállapot state;
    szópárlista list;
    FakeWindow window;
    FakeMessageBoxes boxes;
    FakeFileDialogs dialogs;
    szószedetfájlok files(state, list, window, boxes, dialogs, places.root.filePath(recent));
    list.felvesz(u"apple"_s, u"alma"_s);
    state.aktuálisfájl = places.root.filePath(u"a.szs"_s);
    files.mnufájlment();
    return boxes.told.join(u'\n');
}

QString write_recent_files(const Places &places) {
    global::programállapot state;
    szópárlista list;
    FakeWindow window;
    FakeMessageBoxes boxes;
    FakeFileDialogs dialogs;
    szószedetfájlok files(state, list, window, boxes, dialogs, places.root.filePath(u"c/zbrmkfnh.ini"_s));
    files.mnufájlúj();
    return boxes.told.join(u'\n');
}

QString write_sound_settings(const Places &places) {
    hangbeállítások settings(places.program());
    settings.gratula.hozzáad(u"a.wav"_s);
    return told_of(settings.ment());
}

QString write_music_settings(const Places &places) {
    return told_of(zenebeállítások(DriveC(places.root.filePath(u"c"_s)), places.program()).ment());
}

QString write_mini_window(const Places &places) {
    return told_of(files::replace_whole(places.root.filePath(u"c/kisablak.ini"_s), kisablakfájl::ír({1000, 2000, 1})));
}

QString write_pdf(const Places &places) {
    PdfJob job(places.root.filePath(u"a.pdf"_s), u"a"_s);
    return told_of(job.hand_over());
}

QString write_ordered_words(const Places &places) {
    állományátalakító tool(
        places.program(), [](const QString &) {}, [] { return false; });
    return told_of(tool.átalakít());
}

const Writer writers[] = {
    {"word_list", {u"a.szs"_s}, [](const Places &places) { return write_word_list(places, u"c/recent"_s); }},
    {"recent_files", {u"c/zbrmkfnh.ini"_s}, write_recent_files},
    {"sound_settings",
     {u"program/kavaro/grathang.ini"_s, u"program/kavaro/helyeshang.ini"_s, u"program/kavaro/hibahang.ini"_s},
     write_sound_settings},
    {"music_settings", {u"c/zbrmk/kavaro/zenebeáll.ini"_s}, write_music_settings},
    {"mini_window", {u"c/kisablak.ini"_s}, write_mini_window},
    {"pdf_file", {u"a.pdf"_s}, write_pdf},
    {"ordered_words", {u"program/magyarvg.skt"_s}, write_ordered_words},
};

struct Error {
    const char *name;
    int number;
    QString reason;
};

const Error errors[] = {
    {"EIO", EIO, u"a lemez hibát jelzett, nem vette át az adatokat."_s},
    {"ENOSPC", ENOSPC, u"nincs elég hely a lemezen."_s},
    {"EDQUOT", EDQUOT, u"elfogyott az a hely, amelyet a felhasználó ezen a lemezen használhat (kvóta)."_s},
};

using Case = std::tuple<const Writer *, const Error *, const char *>;

class EveryFile : public WithFailingCalls, public testing::WithParamInterface<Case> {
  protected:
    [[nodiscard]] const Writer &writer() const { return *std::get<0>(GetParam()); }
    [[nodiscard]] const Error &error() const { return *std::get<1>(GetParam()); }
    [[nodiscard]] const char *call() const { return std::get<2>(GetParam()); }

    void put_old_files(const Places &places) const {
        for (const QString &file : writer().files)
            write_file(places.root.filePath(file), old_);
    }

    [[nodiscard]] Contents contents(const Places &places) const {
        Contents found;
        for (const QString &file : writer().files)
            found[file] = read_file(places.root.filePath(file));
        return found;
    }

    /// What stands in the files when nothing fails.
    [[nodiscard]] Contents written() const {
        const Places places;
        put_old_files(places);
        EXPECT_EQ(writer().write(places), QString());
        return contents(places);
    }

    /// A PDF file tells when it was made.
    [[nodiscard]] bool is_new(const QByteArray &bytes, const QByteArray &expected) const {
        return bytes == expected || (bytes.startsWith("%PDF") && bytes.endsWith("%%EOF\n"));
    }

    const QByteArray old_ = " 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n";
};

TEST_P(EveryFile, is_as_it_was_when_a_call_fails_and_that_is_told) {
    const Contents expected = written();
    bool failed = true;
    for (int after = 0; failed && after < 30; ++after) {
        const Places places;
        put_old_files(places);
        *calls_ = {call(), error().number, after};

        const QString told = writer().write(places);

        failed = calls_->failed > 0;
        *calls_ = {};
        bool all_new = true;
        for (const auto &[file, bytes] : contents(places)) {
            const bool is_old = bytes == old_;
            all_new = all_new && !is_old;
            EXPECT_TRUE(is_old || is_new(bytes, expected.at(file))) << file.toStdString() << bytes.toStdString();
            // The file that the message names is the one that stayed.
            if (told.contains(QFileInfo(file).fileName())) {
                EXPECT_TRUE(is_old) << told.toStdString();
            }
        }
        EXPECT_TRUE(all_new || !told.isEmpty()) << "after " << after;
        EXPECT_TRUE(told.isEmpty() || told.contains(error().reason)) << told.toStdString();
        if (failed && after == 0) {
            EXPECT_FALSE(all_new);
        }
        EXPECT_TRUE(failed || told.isEmpty()) << told.toStdString();
        const QDir::Filters all = QDir::Files | QDir::Hidden;
        EXPECT_EQ(QDir(places.root.path()).entryList({u".zimbora-*"_s}, all), QStringList());
    }
    EXPECT_FALSE(failed);
}

std::vector<Case> all_cases() {
    std::vector<Case> cases;
    for (const Writer &writer : writers) {
        for (const Error &error : errors) {
            for (const char *call : {"write", "fsync", "fdatasync", "close", "rename"})
                cases.emplace_back(&writer, &error, call);
        }
    }
    return cases;
}

std::string name_of(const testing::TestParamInfo<Case> &one) {
    return std::string(std::get<0>(one.param)->name) + '_' + std::get<2>(one.param) + '_' +
           std::get<1>(one.param)->name;
}

INSTANTIATE_TEST_SUITE_P(OnAFailingDisk, EveryFile, testing::ValuesIn(all_cases()), name_of);

}  // namespace

int main(int argc, char *argv[]) {
    const QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
