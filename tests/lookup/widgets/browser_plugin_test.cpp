#include "lookup/widgets/browser_plugin.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/files_for_tests.h"
#include "support/printing.h"

namespace {

WebBrowserRules no_rules() {
    return {{}, {}, [](const QUrl &) { return std::nullopt; }};
}

QString reason(const QStringList &folders) {
    const auto result = make_browser_of_plugin(folders, no_rules());
    const auto *failure = std::get_if<Failure>(&result);
    return failure ? failure->sentence : QStringLiteral("(a browser)");
}

TEST(BrowserPlugin, that_is_missing_is_named) {
    const QTemporaryDir empty;

    const QString sentence = reason({empty.path(), empty.filePath(QStringLiteral("nincs"))});

    EXPECT_TRUE(sentence.startsWith(QStringLiteral("A súgó böngészője nem tölthető be")));
    EXPECT_TRUE(sentence.endsWith(QStringLiteral("a(z) „zimbora_webengine.so” fájl nem található.")));
}

TEST(BrowserPlugin, that_is_no_library_is_told_with_the_reason) {
    const QTemporaryDir folder;
    for (const QByteArray &bytes : {QByteArray(), QByteArray("not a library"),
                                    QByteArray("\x7f"
                                               "ELF",
                                               4)}) {
        write_file(folder.filePath(QStringLiteral("zimbora_webengine.so")), bytes);

        const QString sentence = reason({folder.path()});

        EXPECT_TRUE(sentence.startsWith(QStringLiteral("A súgó böngészője nem tölthető be")));
        EXPECT_TRUE(sentence.contains(QStringLiteral("zimbora_webengine.so"))) << sentence.toStdString();
    }
}

TEST(BrowserPlugin, is_looked_for_beside_the_executable_and_among_the_installed_libraries) {
    const QStringList folders = browser_plugin_folders(QStringLiteral("/usr/bin"));

    ASSERT_EQ(folders.size(), 2);
    EXPECT_EQ(folders[0], QStringLiteral("/usr/bin/plugins"));
    EXPECT_TRUE(folders[1].startsWith(QStringLiteral("/usr/lib"))) << folders[1].toStdString();
    EXPECT_TRUE(folders[1].endsWith(QStringLiteral("/zimbora")));
}

}  // namespace
