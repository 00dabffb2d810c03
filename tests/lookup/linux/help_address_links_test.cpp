#include <QFile>

#include "support/help_address_fixture.h"

using namespace Qt::StringLiterals;

namespace {

TEST_F(HelpAddress, of_a_link_opens_where_its_target_may) {
    QFile::link(path("other/secret.txt"), path("program/link.txt"));
    QFile::link(path("other"), path("program/out"));
    QFile::link(path("program/am.txt"), path("other/in.txt"));

    EXPECT_FALSE(opens(path("program/link.txt")));
    EXPECT_FALSE(opens(path("program/out/secret.txt")));
    EXPECT_TRUE(opens(path("other/in.txt")));
}

TEST_F(HelpAddress, of_an_installed_document_opens_through_the_linked_folder) {
    QDir(path("programkavaro/help")).removeRecursively();
    QDir(root_.path()).mkpath(u"share/help"_s);
    write_file(path("share/help/Kavaro súgó.mht"), "x");
    QFile::link(path("share/help"), path("programkavaro/help"));

    EXPECT_TRUE(opens(súgócímek::url(addresses_.kezdőcím())));
}

}  // namespace
