#include "print/pdf_document.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "print/font_choice.h"
#include "print/page_layouts.h"
#include "print/pdf_job.h"
#include "print/widgets/drawn_job.h"
#include "support/files_for_tests.h"
#include "support/pdf_reader.h"
#include "support/printing.h"
#include "support/word_pairs.h"

using namespace Qt::StringLiterals;

namespace {

const QString serif = u"Liberation Serif"_s;
constexpr double margin = 10;

/// PDF documents, read by other programs. A line of Liberation Serif begins at the top of its letters' box.
class PdfOutput : public testing::Test {
  protected:
    [[nodiscard]] QString file() const { return root_.filePath(u"out.pdf"_s); }

    void write(PdfDocument &document) const {
        ASSERT_TRUE(document.printer().end_document());
        write_file(file(), document.bytes());
    }
    void print(nyomtatástípus kind, const QVector<szópár> &pairs, int columns = 1,
               PagePrinter::Orientation orientation = PagePrinter::Orientation::portrait) const {
        PdfDocument document(u"állatok"_s);
        document.printer().set_face({serif, false, false});
        document.printer().set_font_size(14);
        document.printer().set_orientation(orientation);
        EXPECT_EQ(
            nyomtat(document.printer(), kind, {pairs, u"/állatok.szs"_s, 14, columns}, [](int, int) { return true; }),
            nyomtatásvége::kész);
        write_file(file(), document.bytes());
    }

    QTemporaryDir root_;
};

TEST_F(PdfOutput, has_texts_where_they_were_put) {
    PdfDocument document(u"title"_s);
    PagePrinter &printer = document.printer();
    printer.set_face({serif, false, false});
    printer.set_font_size(20);
    printer.set_x(1440);
    printer.set_y(2880);
    printer.print_line(u"first"_s);
    printer.print(u"second"_s);
    ASSERT_TRUE(printer.new_page());
    printer.set_x(5000);
    printer.print(u"third"_s);
    const double line = printer.text_height(QString()) / 20;
    write(document);

    const QList<PdfWord> words = pdf_words(file());
    ASSERT_EQ(words.size(), 3);
    EXPECT_NEAR(words[0].place.left(), margin + 72, 0.1);
    EXPECT_NEAR(words[0].place.top(), margin + 144, 0.2);
    EXPECT_NEAR(words[1].place.left(), margin, 0.1);
    EXPECT_NEAR(words[1].place.top(), margin + 144 + line, 0.2);
    EXPECT_EQ(words[2].page, 2);
    EXPECT_NEAR(words[2].place.left(), margin + 250, 0.1);
    EXPECT_NEAR(words[2].place.top(), margin, 0.2);
}

TEST_F(PdfOutput, has_texts_as_wide_as_they_were_measured) {
    PdfDocument document(u"title"_s);
    document.printer().set_face({serif, true, false});
    document.printer().set_font_size(37);
    document.printer().print(u"AVATAR-megkülönböztető"_s);
    const double width = document.printer().text_width(u"AVATAR-megkülönböztető"_s) / 20;
    write(document);

    EXPECT_NEAR(pdf_words(file()).at(0).place.width(), width, 0.1);
}

TEST_F(PdfOutput, is_a4_less_ten_points_all_round_and_turned_in_landscape) {
    PdfDocument document{QString()};
    EXPECT_EQ(document.printer().page_width(), 575 * 20);
    EXPECT_EQ(document.printer().page_height(), 822 * 20);

    document.printer().set_orientation(PagePrinter::Orientation::landscape);
    EXPECT_EQ(document.printer().page_width(), 822 * 20);
    EXPECT_EQ(document.printer().page_height(), 575 * 20);
    write(document);
    EXPECT_EQ(pdf_info(file(), u"Page size"_s), u"842 x 595 pts (A4)"_s);
}

TEST_F(PdfOutput, carries_its_title) {
    PdfDocument document(u"Őszi űrhajók (2. rész)"_s);
    document.printer().print(u"text"_s);
    write(document);

    EXPECT_EQ(pdf_info(file(), u"Title"_s), u"Őszi űrhajók (2. rész)"_s);
    EXPECT_EQ(pdf_info(file(), u"Creator"_s), u"Zimbora"_s);
}

TEST_F(PdfOutput, is_searched_and_copied_letter_by_letter_and_has_its_fonts_in_it) {
    const QString text = u"árvíztűrő tükörfúrógép ÁRVÍZTŰRŐ TÜKÖRFÚRÓGÉP office fiú flotta affix"_s;
    for (const QString &name :
         {serif, u"Liberation Sans"_s, u"DejaVu Serif"_s, u"DejaVu Sans"_s, u"Liberation Mono"_s}) {
        for (const auto &[bold, italic] : {std::pair{false, false}, {true, false}, {false, true}, {true, true}}) {
            PdfDocument document{QString()};
            document.printer().set_face({name, bold, italic});
            document.printer().set_font_size(8);
            document.printer().print(text);
            write(document);

            EXPECT_EQ(pdf_text(file()).simplified(), text) << name.toStdString() << bold << italic;
            EXPECT_EQ(pdf_fonts(file()), 1) << name.toStdString();
        }
    }
}

TEST_F(PdfOutput, keeps_letters_that_its_font_lacks) {
    PdfDocument document{QString()};
    document.printer().set_face({serif, false, false});
    document.printer().set_font_size(20);
    document.printer().print(u"ə ʃ ŋ → ☎"_s);
    write(document);

    EXPECT_EQ(pdf_text(file()).remove(u' ').trimmed(), u"əʃŋ→☎"_s);
}

TEST_F(PdfOutput, of_a_document_without_text_is_one_blank_page) {
    PdfDocument document{QString()};
    write(document);

    EXPECT_EQ(pdf_info(file(), u"Pages"_s), u"1"_s);
    EXPECT_TRUE(pdf_words(file()).isEmpty());
}

// The layouts: the hyphens' axes are at 10 + 575 · k / (c + 1), the rows two lines apart. A millimetre is 2.8 points.

TEST_F(PdfOutput, of_a_list_has_its_hyphens_on_the_axes_of_the_columns) {
    const std::pair<int, QList<double>> all[] = {{1, {297.5}}, {2, {201.667, 393.333}}, {3, {153.75, 297.5, 441.25}}};
    for (const auto &[columns, axes] : all) {
        print(nyomtatástípus::szószedet, numbered_pairs(7), columns);

        QList<PdfWord> hyphens;
        for (const PdfWord &word : pdf_words(file())) {
            if (word.text == u"-")
                hyphens.append(word);
        }
        ASSERT_EQ(hyphens.size(), 7);
        std::sort(hyphens.begin(), hyphens.end(), [](const PdfWord &one, const PdfWord &other) {
            return std::tuple(qRound(one.place.top()), one.place.left()) <
                   std::tuple(qRound(other.place.top()), other.place.left());
        });
        for (int i = 0; i < 7; ++i) {
            EXPECT_NEAR(hyphens[i].place.center().x(), axes[i % columns], 0.1) << columns << ' ' << i;
            EXPECT_NEAR(hyphens[i].place.top() - hyphens[0].place.top(), i / columns * 2 * 14 * (0.891 + 0.216),
                        0.2);  // the face's ascent and descent
        }
    }
}

TEST_F(PdfOutput, of_five_hundred_pairs_breaks_its_pages_at_95_percent) {
    // A line of 14 points is 14 · 1.107 = 15.5 high, one of 12 points 13.3. The first row stands at 41.1 + 13.3 + 15.5
    // = 69.9, others 31 below: the last that ends before 0.95 · 822 = 780.9 is the 23rd; from 41.1 on it is the 24th.
    print(nyomtatástípus::szószedet, numbered_pairs(500));

    QList<int> rows;
    for (const PdfWord &word : pdf_words(file())) {
        rows.resize(std::max<qsizetype>(rows.size(), word.page));
        if (word.text == u"-")
            ++rows[word.page - 1];
    }
    QList<int> expected{23};
    expected.append(QList<int>(19, 24));
    expected.append(500 - 23 - 19 * 24);
    EXPECT_EQ(rows, expected);
    EXPECT_EQ(pdf_info(file(), u"Pages"_s), u"21"_s);
}

TEST_F(PdfOutput, of_cards_has_each_in_the_middle_of_a_turned_page_and_a_blank_one_at_the_end) {
    print(nyomtatástípus::szókártyák, pairs_of({{u"deer", u"őz"}, {u"spaceship", u"űrhajó"}}));

    const QList<PdfWord> words = pdf_words(file());
    ASSERT_EQ(words.size(), 4);
    const QStringList texts{u"deer"_s, u"őz"_s, u"spaceship"_s, u"űrhajó"_s};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(words[i].page, i + 1);
        EXPECT_EQ(words[i].text, texts[i]);
        EXPECT_NEAR(words[i].place.center().x(), 421, 0.1);
        EXPECT_NEAR(words[i].place.center().y(), 297.5, 1);
    }
    EXPECT_LT(words[2].place.width(), 0.9 * 822);
    EXPECT_GT(words[2].place.width(), 0.89 * 822);
    EXPECT_EQ(pdf_info(file(), u"Pages"_s), u"5"_s);
    EXPECT_EQ(pdf_info(file(), u"Page size"_s), u"842 x 595 pts (A4)"_s);
}

TEST_F(PdfOutput, of_pairs_takes_landscape_whatever_is_chosen_and_the_list_what_is_chosen) {
    print(nyomtatástípus::szópárok, numbered_pairs(3));
    EXPECT_EQ(pdf_info(file(), u"Page size"_s), u"842 x 595 pts (A4)"_s);
    EXPECT_EQ(pdf_info(file(), u"Pages"_s), u"3"_s);

    print(nyomtatástípus::szószedet, numbered_pairs(3));
    EXPECT_EQ(pdf_info(file(), u"Page size"_s), u"595 x 842 pts (A4)"_s);
    print(nyomtatástípus::szószedet, numbered_pairs(3), 1, PagePrinter::Orientation::landscape);
    EXPECT_EQ(pdf_info(file(), u"Page size"_s), u"842 x 595 pts (A4)"_s);
}

// Devices that fail, and the toolkit's own printer.

TEST_F(PdfOutput, of_a_device_that_cannot_be_opened_fails) {
    QPdfWriter writer(root_.filePath(u"nowhere/out.pdf"_s));
    DevicePrinter printer(writer);

    printer.print(u"text"_s);
    EXPECT_FALSE(printer.new_page());
    EXPECT_FALSE(printer.end_document());
}

TEST_F(PdfOutput, of_the_toolkits_printer_has_texts_where_they_were_put) {
    auto device = std::make_unique<QPrinter>(QPrinter::HighResolution);
    device->setOutputFormat(QPrinter::PdfFormat);
    device->setOutputFileName(file());
    device->setPageLayout({QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(30, 40, 30, 40)});
    DrawnJob job(std::move(device));
    job.printer().set_face({serif, false, false});
    job.printer().set_font_size(20);
    EXPECT_EQ(job.printer().page_width(), 535 * 20);
    job.printer().set_x(1440);
    job.printer().set_y(2880);
    job.printer().print(u"text"_s);

    EXPECT_TRUE(job.printer().end_document());
    EXPECT_EQ(job.hand_over(), std::nullopt);

    const PdfWord word = pdf_words(file()).at(0);
    EXPECT_NEAR(word.place.left(), 30 + 72, 0.1);
    EXPECT_NEAR(word.place.top(), 40 + 144, 0.2);
}

TEST_F(PdfOutput, of_the_toolkits_printer_tells_of_its_failure) {
    auto device = std::make_unique<QPrinter>(QPrinter::HighResolution);
    device->setOutputFormat(QPrinter::PdfFormat);
    device->setOutputFileName(root_.filePath(u"nowhere/out.pdf"_s));
    DrawnJob job(std::move(device));
    job.printer().print(u"text"_s);

    EXPECT_TRUE(job.printer().end_document());
    const auto failure = job.hand_over();
    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->sentence.endsWith(u"nem sikerült nyomtatni: a nyomtató hibát jelzett."_s));
}

TEST_F(PdfOutput, of_the_toolkits_printer_begins_when_the_document_is_whole) {
    auto device = std::make_unique<QPrinter>(QPrinter::HighResolution);
    device->setOutputFormat(QPrinter::PdfFormat);
    device->setOutputFileName(file());
    DrawnJob job(std::move(device));

    EXPECT_EQ(nyomtat(job.printer(), nyomtatástípus::szókártyák, {numbered_pairs(2), {}, 20, 1},
                      [](int, int) { return true; }),
              nyomtatásvége::kész);
    EXPECT_FALSE(QFile::exists(file()));

    EXPECT_EQ(job.hand_over(), std::nullopt);
    EXPECT_EQ(pdf_info(file(), u"Pages"_s), u"5"_s);
}

TEST_F(PdfOutput, that_is_never_handed_over_leaves_no_file) {
    {
        PdfJob job(file(), u"title"_s);
        job.printer().print(u"text"_s);
        EXPECT_TRUE(job.printer().end_document());
    }

    EXPECT_FALSE(QFile::exists(file()));
}

TEST(SerifFaces, are_told_by_their_own_description) {
    for (const char *name : {"Liberation Serif", "DejaVu Serif"})
        EXPECT_TRUE(talpas_betűtípus(QString::fromUtf8(name))) << name;
    for (const char *name : {"Liberation Sans", "DejaVu Sans", "There Is No Such Font"})
        EXPECT_FALSE(talpas_betűtípus(QString::fromUtf8(name))) << name;
}

}  // namespace
