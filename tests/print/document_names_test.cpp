#include "print/document_names.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/files_for_tests.h"
#include "support/printing.h"

namespace {

TEST(DocumentNames, are_those_of_the_lists_file) {
    const dokumentumnevek names = dokumentum(QStringLiteral("/lists/állatok és más.szs"), QStringLiteral("/program"));

    EXPECT_EQ(names.út, QStringLiteral("/lists/állatok és más.szs"));
    EXPECT_EQ(names.cím, QStringLiteral("állatok és más"));
    EXPECT_EQ(names.pdf, QStringLiteral("/lists/állatok és más.pdf"));
}

TEST(DocumentNames, of_a_list_never_saved_lie_in_the_program_folder) {
    const dokumentumnevek names = dokumentum(QString(), QStringLiteral("/program"));

    EXPECT_EQ(names.út, QString());
    EXPECT_EQ(names.cím, QStringLiteral("névtelen szószedet"));
    EXPECT_EQ(names.pdf, QStringLiteral("/program/névtelen szószedet.pdf"));
}

TEST(DocumentNames, know_a_saved_list_whose_new_naming_was_cancelled) {
    const QTemporaryDir folder;
    const QString saved = folder.filePath(QStringLiteral("saved.szs"));
    write_file(saved, "a:b\r\n");

    EXPECT_EQ(dokumentum(u'*' + saved, QStringLiteral("/program")).út, saved);
    EXPECT_EQ(dokumentum(QStringLiteral("**") + saved, QStringLiteral("/program")).cím, QStringLiteral("saved"));
    const QString proposed = folder.filePath(QStringLiteral("proposed.szs"));
    EXPECT_EQ(dokumentum(u'*' + proposed, QStringLiteral("/program")).út, QString());
    EXPECT_EQ(dokumentum(QStringLiteral("*"), QStringLiteral("/program")).cím, QStringLiteral("névtelen szószedet"));
}

TEST(DocumentNames, get_the_extension_of_a_pdf_when_it_is_missing) {
    EXPECT_EQ(pdfnév(QStringLiteral("/a/list")), QStringLiteral("/a/list.pdf"));
    EXPECT_EQ(pdfnév(QStringLiteral("/a/list.szs")), QStringLiteral("/a/list.szs.pdf"));
    EXPECT_EQ(pdfnév(QStringLiteral("/a/list.pdf")), QStringLiteral("/a/list.pdf"));
    EXPECT_EQ(pdfnév(QStringLiteral("/a/LIST.PDF")), QStringLiteral("/a/LIST.PDF"));
}

}  // namespace
