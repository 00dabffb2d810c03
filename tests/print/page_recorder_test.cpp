#include "print/page_recorder.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>

#include "print/page_layouts.h"
#include "print/pdf_document.h"
#include "support/files_for_tests.h"
#include "support/pdf_reader.h"
#include "support/word_pairs.h"

using namespace Qt::StringLiterals;

namespace {

/// The rectangle of the dark dots of a picture.
QRect ink(const QImage &picture) {
    QRect found;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) < 128)
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

/// Page `page` at 72 dots per inch, as it is shown.
QImage shown(const PageRecorder &pages, int page) {
    QImage picture((pages.paper_size() / 20).toSize(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(0.05, 0.05);
    pages.paint(painter, page);
    return picture;
}

TEST(PageRecorder, shows_the_pages_that_are_printed) {
    for (const auto kind : {nyomtatástípus::szószedet, nyomtatástípus::szópárok, nyomtatástípus::szókártyák}) {
        const nyomtatandó what{numbered_pairs(40), u"/lists/numbers.szs"_s, 26, 1};
        const auto print = [&](PagePrinter &printer) {
            printer.set_face({u"Liberation Serif"_s, true, true});
            printer.set_font_size(26);
            EXPECT_EQ(nyomtat(printer, kind, what, [](int, int) { return true; }), nyomtatásvége::kész);
        };
        PdfDocument document{QString()};
        print(document.printer());
        PdfDocument measure{QString()};
        PageRecorder recorder(measure.device());
        print(recorder);

        const QTemporaryDir root;
        const QString file = root.filePath(u"out.pdf"_s);
        write_file(file, document.bytes());
        ASSERT_EQ(QString::number(recorder.page_count()), pdf_info(file, u"Pages"_s));
        for (int page = 0; page < std::min(3, recorder.page_count()); ++page) {
            const QString number = QString::number(page + 1);
            const QImage printed = QImage::fromData(
                output_of(u"pdftoppm"_s, {u"-r"_s, u"72"_s, u"-png"_s, u"-f"_s, number, u"-l"_s, number, file}));
            const QImage seen = shown(recorder, page);
            ASSERT_EQ(seen.size(), printed.size());
            const QRect of_printed = ink(printed);
            const QRect of_seen = ink(seen);
            EXPECT_FALSE(of_seen.isEmpty());
            EXPECT_NEAR(of_seen.left(), of_printed.left(), 1) << page;
            EXPECT_NEAR(of_seen.right(), of_printed.right(), 1) << page;
            EXPECT_NEAR(of_seen.top(), of_printed.top(), 1) << page;
            EXPECT_NEAR(of_seen.bottom(), of_printed.bottom(), 1) << page;
        }
    }
}

TEST(PageRecorder, has_the_blank_pages_too) {
    PdfDocument measure{QString()};
    PageRecorder recorder(measure.device());
    ASSERT_TRUE(recorder.new_page());
    recorder.print(u"second"_s);
    ASSERT_TRUE(recorder.new_page());
    ASSERT_TRUE(recorder.end_document());

    ASSERT_EQ(recorder.page_count(), 3);
    EXPECT_TRUE(ink(shown(recorder, 0)).isEmpty());
    EXPECT_FALSE(ink(shown(recorder, 1)).isEmpty());
    EXPECT_TRUE(ink(shown(recorder, 2)).isEmpty());
}

TEST(PageRecorder, of_nothing_has_one_page) {
    PdfDocument measure{QString()};
    PageRecorder recorder(measure.device());

    ASSERT_TRUE(recorder.end_document());

    EXPECT_EQ(recorder.page_count(), 1);
}

}  // namespace
