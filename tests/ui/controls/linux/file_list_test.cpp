#include <sys/stat.h>

#include <QFile>

#include "support/file_list_fixture.h"

// What a folder of sounds can hold on Linux only: pipes, symbolic links, and a backslash in a name.

namespace {

TEST_F(FileList, shows_neither_pipes_nor_links_to_nothing) {
    make("hang.wav");
    ASSERT_EQ(mkfifo(qPrintable(place("cső.wav")), 0600), 0);
    QFile::link(place("cső.wav"), place("csőhöz.wav"));
    QFile::link(place("nincs.wav"), place("semmihez.wav"));

    list_.set_folder(folder_.path());

    EXPECT_EQ(list_.items(), names({"hang.wav"}));
}

TEST_F(FileList, shows_a_link_to_a_file) {
    make("hang.txt");
    QFile::link(place("hang.txt"), place("hang.wav"));

    list_.set_folder(folder_.path());

    EXPECT_EQ(list_.items(), names({"hang.wav"}));
}

TEST_F(FileList, leaves_out_a_name_that_another_system_would_take_for_a_path) {
    make("hang.wav");
    make("más\\mappa.wav");

    list_.set_folder(folder_.path());

    EXPECT_EQ(list_.items(), names({"hang.wav"}));
}

}  // namespace
