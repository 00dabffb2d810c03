#include "lookup/widgets/browser_plugin.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

WebBrowserRules no_rules() {
    return {{}, {}, [](const QUrl &) { return std::nullopt; }};
}

QString reason(const QStringList &folders) {
    const auto result = make_browser_of_plugin(folders, no_rules());
    const auto *failure = std::get_if<Failure>(&result);
    return failure ? failure->sentence : u"(a browser)"_s;
}

TEST(BrowserPlugin, that_is_missing_is_named) {
    const QTemporaryDir empty;

    const QString sentence = reason({empty.path(), empty.filePath(u"nincs"_s)});

    EXPECT_TRUE(sentence.startsWith(u"A súgó böngészője nem tölthető be"_s));
    EXPECT_TRUE(sentence.endsWith(u"a(z) „zimbora_webengine.so” fájl nem található."_s));
}

TEST(BrowserPlugin, that_is_no_library_is_told_with_the_reason) {
    const QTemporaryDir folder;
    for (const QByteArray &bytes : {QByteArray(), QByteArray("not a library"),
                                    QByteArray("\x7f"
                                               "ELF",
                                               4)}) {
        write_file(folder.filePath(u"zimbora_webengine.so"_s), bytes);

        const QString sentence = reason({folder.path()});

        EXPECT_TRUE(sentence.startsWith(u"A súgó böngészője nem tölthető be"_s));
        EXPECT_TRUE(sentence.contains(u"zimbora_webengine.so"_s)) << sentence.toStdString();
    }
}

TEST(BrowserPlugin, is_looked_for_beside_the_executable_and_among_the_installed_libraries) {
    const QStringList folders = browser_plugin_folders(u"/usr/bin"_s);

    ASSERT_EQ(folders.size(), 2);
    EXPECT_EQ(folders[0], u"/usr/bin/plugins"_s);
    EXPECT_TRUE(folders[1].startsWith(u"/usr/lib"_s)) << folders[1].toStdString();
    EXPECT_TRUE(folders[1].endsWith(u"/zimbora"_s));
}

}  // namespace
