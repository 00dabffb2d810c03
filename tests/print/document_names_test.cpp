#include "print/document_names.h"

#include <gtest/gtest.h>

#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

TEST(DocumentNames, are_those_of_the_lists_file) {
    const dokumentumnevek names = dokumentum(u"/lists/állatok és más.szs"_s, u"/program"_s);

    EXPECT_EQ(names.út, u"/lists/állatok és más.szs"_s);
    EXPECT_EQ(names.cím, u"állatok és más"_s);
    EXPECT_EQ(names.pdf, u"/lists/állatok és más.pdf"_s);
}

TEST(DocumentNames, of_a_list_never_saved_lie_in_the_program_folder) {
    const dokumentumnevek names = dokumentum(QString(), u"/program"_s);

    EXPECT_EQ(names.út, QString());
    EXPECT_EQ(names.cím, u"névtelen szószedet"_s);
    EXPECT_EQ(names.pdf, u"/program/névtelen szószedet.pdf"_s);
}

TEST(DocumentNames, get_the_extension_of_a_pdf_when_it_is_missing) {
    EXPECT_EQ(pdfnév(u"/a/list"_s), u"/a/list.pdf"_s);
    EXPECT_EQ(pdfnév(u"/a/list.szs"_s), u"/a/list.szs.pdf"_s);
    EXPECT_EQ(pdfnév(u"/a/list.pdf"_s), u"/a/list.pdf"_s);
    EXPECT_EQ(pdfnév(u"/a/LIST.PDF"_s), u"/a/LIST.PDF"_s);
}

}  // namespace
