#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>

#include "support/printing_fixture.h"

using namespace Qt::StringLiterals;

using testing::ElementsAre;

namespace {

/// As long as it lives, the process can write no file of more than 1,000 bytes, as on a full disk.
class SmallFilesOnly final {
  public:
    SmallFilesOnly() : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &usual_);
        const rlimit small{1000, usual_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallFilesOnly() {
        setrlimit(RLIMIT_FSIZE, &usual_);
        std::signal(SIGXFSZ, handler_);
    }
    SmallFilesOnly(const SmallFilesOnly &) = delete;
    SmallFilesOnly &operator=(const SmallFilesOnly &) = delete;

  private:
    void (*handler_)(int);
    rlimit usual_{};
};

TEST_F(PrintingIntoFile, on_a_full_disk_is_told_and_leaves_an_old_file_as_it_was) {
    write_file(place("old.pdf"), "old");
    dialogs_.choices = {place("old.pdf")};
    boxes_.answers = {Answer::yes};
    start();
    const QStringList before = shown();

    {
        const SmallFilesOnly full_disk;
        print();
    }

    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(boxes_.told[0].startsWith(u"A(z) „%1” fájl nem írható: "_s.arg(place("old.pdf"))));
    EXPECT_EQ(read_file(place("old.pdf")), QByteArray("old"));
    EXPECT_THAT(files(), ElementsAre(u"old.pdf"_s));
    expect_still_open(before);
}

}  // namespace
