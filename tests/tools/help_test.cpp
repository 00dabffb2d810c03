#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "help/pack.h"
#include "help/web_archive.h"
#include "support/files_for_tests.h"
#include "support/printing.h"
#include "support/test_places.h"
#include "support/web_archive_reader.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray page(const char *title, const char *body) {
    return QByteArray("<!DOCTYPE html>\n<html lang=\"hu\">\n<head>\n<meta charset=\"utf-8\"/>\n<title>") + title +
           "</title>\n<link rel=\"stylesheet\" href=\"sugo.css\"/>\n</head>\n<body>\n" + body + "\n</body>\n</html>\n";
}

/// A small help: a title page, a page with a picture and two places, and a page beside the document.
class HelpPacker : public testing::Test {
  protected:
    HelpPacker() {
        QDir(root_.path()).mkpath(u"pages/kepek"_s);
        write("tartalom.txt", "# A lapok\n\nindex.html\r\n  ablak.html\nmasik.html\nmellette: keszito.html\n");
        write("index.html", page("Próba – súgó",
                                 "<h1>Súgó</h1><p>Az <a href=\"ablak.html\">ablak</a> és "
                                 "<a href=\"ablak.html#hely\">a helye</a>, "
                                 "<a href=\"keszito.html\">készítők</a>, "
                                 "<a href=\"https://x.hu/?a=1&amp;b=2#c\">web</a></p>"));
        write("ablak.html", page("Az ablak",
                                 "<h1>Ablak</h1><h2 id=\"hely\">A <em>jó</em> hely</h2><h2>Más</h2>"
                                 "<p><a href=\"#hely\">fel</a><br/>őű &lt;b&gt;</p><p id=\"ures\"/>"
                                 "<img src=\"kepek/a.png\" alt=\"Kép\"/>"
                                 "<img src=\"kepek/a.png\" alt=\"\"/>"));
        write("masik.html", page("Másik", "<p>Más</p>"));
        write("keszito.html",
              "<!DOCTYPE html>\n<html><head><title>K</title><style>p{}</style></head><body><p><a "
              "href=\"Kavaro%20s%C3%BAg%C3%B3.mht\">súgó</a></p></body></html>\n");
        write("sugo.css", "h1 { color: green }\n");
        write("kepek/a.png", picture_);
    }

    void write(const char *name, const QByteArray &bytes) {
        write_file(pages() + u'/' + QString::fromUtf8(name), bytes);
    }

    [[nodiscard]] QString pages() const { return root_.filePath(u"pages"_s); }
    [[nodiscard]] QString output() const { return root_.filePath(u"out/help"_s); }
    [[nodiscard]] QByteArray archive() const { return read_file(output() + u"/Kavaro súgó.mht"_s); }

    /// Packs and returns the document.
    [[nodiscard]] QString packed_document() {
        const auto result = help::pack(pages(), output());
        if (const auto *failure = std::get_if<Failure>(&result))
            return u"FAILURE: "_s + failure->sentence;
        return QString::fromUtf8(parts_of(archive()).value(0).bytes);
    }

    void expect_failure(const QString &sentence) {
        const auto result = help::pack(pages(), output());
        const auto *failure = std::get_if<Failure>(&result);
        ASSERT_TRUE(failure) << "for " << sentence.toStdString();
        EXPECT_EQ(failure->sentence, sentence);
        EXPECT_FALSE(QFileInfo::exists(output()));
    }

    void expect_failure_of_body(const char *body, const char16_t *what) {
        write("masik.html", page("Másik", body));
        expect_failure(u"masik.html, 9. sor: "_s + QString::fromUtf16(what));
    }

    QTemporaryDir root_{QDir::tempPath() + u"/zimboraXXXXXX"_s};
    const QByteArray picture_ = QByteArray("\x89PNG\r\n\x1a\n\0--\r\n=_", 15) + QByteArray(300, '\xff');
};

TEST_F(HelpPacker, makes_an_archive_of_the_document_the_style_sheet_and_each_picture_once) {
    const auto result = help::pack(pages(), output());

    ASSERT_TRUE(std::holds_alternative<help::Packed>(result));
    EXPECT_EQ(std::get<help::Packed>(result).pages, 3);
    EXPECT_EQ(std::get<help::Packed>(result).pictures, 1);
    const auto parts = parts_of(archive());
    ASSERT_EQ(parts.size(), 3);
    EXPECT_EQ(parts[0].type, "text/html; charset=utf-8");
    EXPECT_EQ(parts[0].location, "thismessage:/index.html");
    EXPECT_EQ(parts[1].type, "text/css; charset=utf-8");
    EXPECT_EQ(parts[1].location, "thismessage:/sugo.css");
    EXPECT_EQ(parts[1].bytes, "h1 { color: green }\n");
    EXPECT_EQ(parts[2].type, "image/png");
    EXPECT_EQ(parts[2].location, "thismessage:/kepek/a.png");
    EXPECT_EQ(parts[2].bytes, picture_);
}

TEST_F(HelpPacker, ends_every_line_with_cr_lf_after_at_most_76_characters) {
    write("index.html", page("Cím", "<p>" + QByteArray("árvíztűrő tükörfúrógép ").repeated(20) + "</p>\n \t\n"));
    ASSERT_FALSE(packed_document().startsWith(u"FAILURE"_s));

    const QByteArray bytes = archive();
    EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n"));
    EXPECT_EQ(bytes.count('\r'), bytes.count("\r\n"));
    for (const QByteArray &line : bytes.split('\n')) {
        EXPECT_LE(line.size(), 77) << line.toStdString();
        EXPECT_FALSE(line.endsWith(" \r") || line.endsWith("\t\r"));
        for (const char character : line)
            EXPECT_LT(static_cast<unsigned char>(character), 128U);
    }
}

TEST_F(HelpPacker, brings_every_text_through_the_archive_as_it_was) {
    const QByteArray bytes = "a=b =3D \t\nőű\n.\n--\n" + QByteArray(200, ' ') + "\n" + QByteArray(200, '=') + "\nvége";

    const auto parts = parts_of(help::web_archive({{u"index.html"_s, "text/html", bytes}}));

    ASSERT_EQ(parts.size(), 1);
    EXPECT_EQ(parts[0].bytes, bytes);
}

TEST_F(HelpPacker, turns_links_between_pages_into_places_of_the_document) {
    const QString html = packed_document();

    for (const char16_t *piece :
         {u"<a href=\"#ablak\">ablak</a>", u"<a href=\"#ablak.hely\">a helye</a>",
          u"<section class=\"lap\" id=\"ablak\">", u"<h2 id=\"ablak.hely\">", u"<a href=\"#ablak.hely\">fel</a>",
          u"<a href=\"keszito.html\">készítők</a>", u"<a href=\"https://x.hu/?a=1&amp;b=2#c\">web</a>"})
        EXPECT_TRUE(html.contains(QString::fromUtf16(piece)))
            << QString::fromUtf16(piece).toStdString() << " in " << html.toStdString();
}

TEST_F(HelpPacker, leaves_no_link_that_leads_to_nothing_in_the_real_help) {
    const QString html = QString::fromUtf8(
        parts_of(read_file(test_places::program() + u"kavaro/help/Kavaro súgó.mht"_s)).value(0).bytes);
    static const QRegularExpression link(u"href=\"#([^\"]+)\""_s);

    int links = 0;
    for (auto found = link.globalMatch(html); found.hasNext(); ++links) {
        const QString id = found.next().captured(1);
        EXPECT_EQ(html.count(u"id=\"%1\""_s.arg(id)), 1) << id.toStdString();
    }
    EXPECT_GT(links, 5);
}

TEST_F(HelpPacker, titles_the_document_after_the_first_page_and_lists_the_others) {
    const QString html = packed_document();

    EXPECT_TRUE(html.contains(u"<title>Próba – súgó</title>"_s));
    const QString contents = html.section(u"<nav id=\"tartalom\">"_s, 1).section(u"</nav>"_s, 0, 0);
    EXPECT_EQ(contents.simplified(),
              u"<h2>Tartalom</h2> <ol> <li><a href=\"#ablak\">Az ablak</a> <ul> <li><a "
              "href=\"#ablak.hely\">A jó hely</a></li> </ul> </li> <li><a href=\"#masik\">Másik</a></li> </ol>"_s);
    EXPECT_EQ(html.count(u"<a href=\"#tartalom\">"_s), 2);
}

TEST_F(HelpPacker, writes_html_that_a_browser_reads_as_it_was_meant) {
    const QString html = packed_document();

    EXPECT_TRUE(html.startsWith(u"<!DOCTYPE html>"_s));
    EXPECT_TRUE(html.contains(u"<br>őű &lt;b&gt;</p><p id=\"ablak.ures\"></p>"_s));
    EXPECT_TRUE(html.contains(u"<img src=\"kepek/a.png\" alt=\"\">"_s));
}

TEST_F(HelpPacker, lays_the_page_beside_the_document_as_it_is) {
    ASSERT_FALSE(packed_document().startsWith(u"FAILURE"_s));

    EXPECT_EQ(read_file(output() + u"/keszito.html"_s), read_file(pages() + u"/keszito.html"_s));
}

TEST_F(HelpPacker, fails_on_a_dead_link) {
    expect_failure_of_body("<a href=\"nincs.html\">x</a>", u"a hivatkozás nem vezet sehová: „nincs.html”.");
    expect_failure_of_body("<a href=\"index.html#nincs\">x</a>", u"a hivatkozás nem vezet sehová: „index.html#nincs”.");
    expect_failure_of_body("<a href=\"#nincs\">x</a>", u"a hivatkozás nem vezet sehová: „#nincs”.");
    expect_failure_of_body("<a href=\"file:///etc/passwd\">x</a>",
                           u"a hivatkozás nem vezet sehová: „file:///etc/passwd”.");
    expect_failure_of_body("<a href=\"javascript:x()\">x</a>", u"a hivatkozás nem vezet sehová: „javascript:x()”.");
}

TEST_F(HelpPacker, fails_on_a_picture_that_is_missing_or_says_nothing) {
    expect_failure_of_body("<img src=\"kepek/a.png\"/>", u"a képnek nincs leírása (alt): „kepek/a.png”.");
    expect_failure_of_body("<img src=\"../a.png\" alt=\"\"/>", u"a kép neve nem megfelelő: „../a.png”.");
    expect_failure_of_body("<img src=\"/etc/a.png\" alt=\"\"/>", u"a kép neve nem megfelelő: „/etc/a.png”.");
    expect_failure_of_body("<img src=\"kép.png\" alt=\"\"/>", u"a kép neve nem megfelelő: „kép.png”.");
    write("masik.html", page("Másik", "<img src=\"kepek/b.bmp\" alt=\"\"/>"));
    expect_failure(u"„kepek/b.bmp”: ilyen fajta kép nem lehet a súgóban."_s);
    write("masik.html", page("Másik", "<img src=\"kepek/b.png\" alt=\"\"/>"));
    expect_failure(u"A(z) „%1/kepek/b.png” fájl nem olvasható: a fájl nem létezik."_s.arg(pages()));
}

TEST_F(HelpPacker, fails_on_a_page_that_is_unknown_or_named_twice) {
    write("uj.html", page("Új", "<p>x</p>"));
    expect_failure(u"tartalom.txt: hiányzik belőle a „uj.html” lap."_s);
    write("tartalom.txt", "index.html\nablak.html\nindex.html\n");
    expect_failure(u"tartalom.txt, 3. sor: a lap már szerepel: „index.html”."_s);
    write("tartalom.txt", "index.html\n../x.html\n");
    expect_failure(u"tartalom.txt, 2. sor: ez nem lehet egy lap neve: „../x.html”."_s);
    write("tartalom.txt", "ablak.html\nindex.html\n");
    expect_failure(u"tartalom.txt: az első lap nem „index.html”."_s);
    write("tartalom.txt", "index.html\nablak.html\nmasik.html\nuj.html\nmellette: keszito.html\nnincs.html\n");
    expect_failure(u"A(z) „%1/nincs.html” fájl nem olvasható: a fájl nem létezik."_s.arg(pages()));
}

TEST_F(HelpPacker, fails_on_a_page_without_a_title_or_a_body) {
    write("ablak.html", page(" ", "<p>x</p>"));
    expect_failure(u"ablak.html, 12. sor: a lapnak nincs címe (title)."_s);
    write("ablak.html", "<html><head><title>T</title></head></html>");
    expect_failure(u"ablak.html, 1. sor: a lapnak nincs törzse (body)."_s);
}

TEST_F(HelpPacker, fails_on_a_page_that_is_not_well_formed) {
    write("ablak.html", page("Az ablak", "<p>x"));
    const auto result = help::pack(pages(), output());
    ASSERT_TRUE(std::holds_alternative<Failure>(result));
    EXPECT_TRUE(std::get<Failure>(result).sentence.startsWith(u"ablak.html, 10. sor: a lap nem jól formált ("_s));
}

TEST_F(HelpPacker, fails_on_ids_that_are_the_same_or_not_plain) {
    expect_failure_of_body("<p id=\"a\"/><p id=\"a\"/>", u"az azonosító már szerepel a lapon: „a”.");
    expect_failure_of_body("<p id=\"á\"/>", u"az azonosító nem megfelelő: „á”.");
}

TEST_F(HelpPacker, fails_on_scripts_and_foreign_elements) {
    expect_failure_of_body("<script>x()</script>", u"„script” elem itt nem lehet.");
    expect_failure_of_body("<p onclick=\"x()\">x</p>", u"a lapon nem futhat program („onclick”).");
    expect_failure_of_body("<iframe src=\"x\"/>", u"„iframe” elem itt nem lehet.");
}

TEST_F(HelpPacker, fails_on_a_style_sheet_that_names_other_files_or_differs) {
    write("sugo.css", "h1 { background: url(x.png) }");
    expect_failure(u"sugo.css: a stíluslap nem hivatkozhat más fájlra."_s);
    write("ablak.html", "<html><head><title>T</title></head><body/></html>");
    expect_failure(u"ablak.html: a lap stíluslapja más, mint a címlapé."_s);
}

TEST_F(HelpPacker, fails_on_a_page_beside_the_document_that_needs_other_files) {
    const auto beside = [this](const char *body) {
        write("keszito.html", QByteArray("<html><head><title>K</title></head><body>") + body + "</body></html>");
    };
    beside("<img src=\"a.png\" alt=\"\"/>");
    expect_failure(u"keszito.html, 1. sor: a dokumentum mellett nincsenek képek."_s);
    beside("<a href=\"index.html\">x</a>");
    expect_failure(u"keszito.html, 1. sor: a hivatkozás nem vezet sehová: „index.html”."_s);
}

struct Outcome {
    int code;
    QString out;
    QString error;
};

Outcome run(const QStringList &arguments) {
    QProcess process;
    process.start(u"" ZIMBORA_HELP ""_s, arguments);
    EXPECT_TRUE(process.waitForFinished());
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

TEST_F(HelpPacker, is_a_command_that_says_what_it_packed) {
    const Outcome outcome = run({pages(), output()});

    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.out, u"Kavaro súgó.mht: 3 lap, 1 kép.\n"_s);
    EXPECT_EQ(parts_of(archive()).size(), 3);
}

TEST_F(HelpPacker, is_a_command_that_names_what_is_wrong) {
    write("masik.html", page("Másik", "<a href=\"nincs.html\">x</a>"));

    const Outcome outcome = run({pages(), output()});

    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.error, u"masik.html, 9. sor: a hivatkozás nem vezet sehová: „nincs.html”.\n"_s);
}

TEST_F(HelpPacker, is_a_command_that_explains_itself_in_hungarian) {
    EXPECT_TRUE(run({u"--help"_s}).out.startsWith(u"Használat: zimbora-help"_s));
    EXPECT_EQ(run({u"--nincs"_s}).code, 2);
    EXPECT_EQ(run({u"a"_s}).code, 2);
}

}  // namespace
