// Files for which the memory is too small. The sanitizers need more memory than these tests allow.

#include <sys/resource.h>

#include <QTemporaryDir>

#include "platform/files.h"
#include "support/word_list_files_fixture.h"

namespace {

/// From here on the process has no more memory than 1 GiB.
void limit_memory() {
    const rlimit limit{1ULL << 30, RLIM_INFINITY};
    setrlimit(RLIMIT_AS, &limit);
}

/// Ends the process: with 0 when it is told that the file `path` is too large.
[[noreturn]] void read_with_little_memory(const QString &path) {
    limit_memory();
    const FileContent content = files::read_whole(path);
    const auto *failure = std::get_if<Failure>(&content);
    std::_Exit(failure && failure->sentence.endsWith(u"túl nagy, nem fér a memóriába."_s) ? 0 : 1);
}

using LargeFiles = WordListFiles;

TEST_F(LargeFiles, beyond_the_memory_are_told) {
    const QString path = file("a.szs", "");
    ASSERT_TRUE(QFile::resize(path, 1LL << 36));

    EXPECT_EXIT(read_with_little_memory(path), testing::ExitedWithCode(0), "");
}

TEST_F(LargeFiles, whose_words_go_beyond_the_memory_are_told_and_nothing_is_lost) {
    add("apple", "alma");
    state_.változott = 0;
    // The bytes of one line have room, its letters twice their size have not.
    const QString path = file("a.szs", "");
    ASSERT_TRUE(QFile::resize(path, 3LL << 27));
    dialogs_.choices = {path};

    EXPECT_EXIT(
        {
            limit_memory();
            files_.mnufájlmegnyit();
            const bool kept = pairs() == u"apple:alma"_s && state_.aktuálisfájl.isEmpty();
            const bool told = boxes_.told.size() == 1 && boxes_.told[0].endsWith(u"nem fér a memóriába."_s);
            std::_Exit(kept && told ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

}  // namespace
