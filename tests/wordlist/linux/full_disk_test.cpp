#include <sys/resource.h>

#include <csignal>

#include "support/word_list_files_fixture.h"

namespace {

/// From here on the process can write no file larger than this, as on a full disk.
void limit_file_size() {
    const rlimit limit{4096, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &limit);
}

TEST_F(WordListFiles, save_on_a_full_disk_is_told_and_leaves_the_old_file_whole) {
    add("apple", "alma");
    add("long", QByteArray(10000, 'x').constData());
    state_.aktuálisfájl = file("a.szs", "old:r\xe9gi\r\n");
    EXPECT_EXIT(
        {
            std::signal(SIGXFSZ, SIG_IGN);
            limit_file_size();
            files_.mnufájlment();
            const bool kept = state_.változott == 1 && list_.darab() == 2;
            std::exit(boxes_.told.size() == 1 && kept ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");

    EXPECT_EQ(read_file(place("a.szs")), "old:r\xe9gi\r\n");
}

}  // namespace
