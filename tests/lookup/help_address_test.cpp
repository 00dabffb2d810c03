#include "support/help_address_fixture.h"

using namespace Qt::StringLiterals;

namespace {

QString url(const char16_t *text) {
    return súgócímek::url(QString::fromUtf16(text)).toString();
}

TEST_F(HelpAddress, of_the_document_is_the_program_folder_text_and_the_name_without_a_separator) {
    EXPECT_EQ(súgócímek(u"C:\\Zimbora"_s).kezdőcím(), u"C:\\Zimborakavaro\\help\\Kavaro súgó.mht"_s);
    EXPECT_EQ(súgócímek(QString()).kezdőcím(), u"kavaro\\help\\Kavaro súgó.mht"_s);
}

TEST_F(HelpAddress, of_the_document_and_of_the_makers_page_can_be_opened) {
    EXPECT_EQ(súgócímek::url(addresses_.kezdőcím()), QUrl::fromLocalFile(path("programkavaro/help/Kavaro súgó.mht")));
    EXPECT_EQ(súgócímek::url(addresses_.készítőcím()), QUrl::fromLocalFile(path("programkavaro/help/keszito.html")));
    EXPECT_TRUE(opens(súgócímek::url(addresses_.kezdőcím())));
    EXPECT_TRUE(opens(súgócímek::url(addresses_.készítőcím())));
}

TEST_F(HelpAddress, may_be_a_path_with_slashes_or_backslashes) {
    EXPECT_EQ(url(u"/a/b c.html"), u"file:///a/b c.html"_s);
    EXPECT_EQ(url(u"\\a\\b.html"), u"file:///a/b.html"_s);
    EXPECT_EQ(url(u"/a\\b/c.html"), u"file:///a/b/c.html"_s);
    EXPECT_EQ(url(u"c:\\a\\b.html"), u"file:///c:/a/b.html"_s);
    EXPECT_EQ(url(u"/a/100%25.html"), u"file:///a/100%2525.html"_s);
}

TEST_F(HelpAddress, may_be_a_path_with_a_place_in_the_document) {
    const QUrl place = súgócímek::url(addresses_.kezdőcím() + u"#foablak.kereses"_s);
    EXPECT_EQ(place.fragment(), u"foablak.kereses"_s);
    EXPECT_EQ(place.toLocalFile(), path("programkavaro/help/Kavaro súgó.mht"));
    EXPECT_TRUE(opens(place));

    write_file(path("program/c#.txt"), "x");
    EXPECT_EQ(súgócímek::url(path("program/c#.txt")).toLocalFile(), path("program/c#.txt"));
}

TEST_F(HelpAddress, of_a_web_page_needs_no_scheme) {
    EXPECT_EQ(url(u"www.x.hu"), u"http://www.x.hu"_s);
    EXPECT_EQ(url(u"  www.x.hu/lap?a=1#b "), u"http://www.x.hu/lap?a=1#b"_s);
    EXPECT_EQ(url(u"x.hu:8080/lap"), u"http://x.hu:8080/lap"_s);
    EXPECT_EQ(url(u"localhost:8080"), u"http://localhost:8080"_s);
    EXPECT_EQ(url(u"https://x.hu"), u"https://x.hu"_s);
    EXPECT_EQ(url(u"HTTP://x.hu"), u"http://x.hu"_s);
}

TEST_F(HelpAddress, keeps_another_scheme_that_a_text_names) {
    EXPECT_EQ(url(u"javascript:alert(1)"), u"javascript:alert(1)"_s);
    EXPECT_EQ(url(u"file:///etc/passwd"), u"file:///etc/passwd"_s);
    EXPECT_EQ(url(u"mailto:a@x.hu"), u"mailto:a@x.hu"_s);
}

TEST_F(HelpAddress, is_none_for_other_texts) {
    EXPECT_TRUE(súgócímek::url(u"  "_s).isEmpty());
    EXPECT_FALSE(súgócímek::url(u"alma körte"_s).isValid());
    const auto result = addresses_.nyitható(u" alma körte "_s);
    ASSERT_TRUE(std::holds_alternative<Failure>(result));
    EXPECT_EQ(std::get<Failure>(result).sentence, u"A(z) „alma körte” nem cím."_s);
}

TEST_F(HelpAddress, of_the_web_opens) {
    EXPECT_TRUE(opens(QUrl(u"http://x.hu/"_s)));
    EXPECT_TRUE(opens(QUrl(u"https://x.hu/"_s)));
    EXPECT_FALSE(opens(QUrl(u"http:///lap"_s)));
}

TEST_F(HelpAddress, of_another_scheme_does_not_open_and_says_so) {
    for (const char16_t *address :
         {u"javascript:alert(1)", u"ftp://x.hu/", u"data:text/html,x", u"about:blank", u"mailto:a@x.hu",
          u"view-source:http://x.hu/", u"chrome://version", u"qrc:/x", u"blob:http://x.hu/1", u"x.html"}) {
        const QString text = QString::fromUtf16(address);
        EXPECT_TRUE(reason(QUrl(text)).startsWith(u"A(z) „%1” cím itt nem nyitható meg."_s.arg(text)))
            << text.toStdString();
    }
}

TEST_F(HelpAddress, of_a_file_opens_in_the_program_folder_and_beside_the_document) {
    EXPECT_TRUE(opens(path("program/am.txt")));
    EXPECT_TRUE(opens(path("programkavaro/help/keszito.html")));
    EXPECT_TRUE(opens(path("other/../program/am.txt")));
}

TEST_F(HelpAddress, of_a_file_elsewhere_does_not_open_and_says_so) {
    for (const char *file : {"other/secret.txt", "programs/x.html", "programkavaro/x.html",
                             "program/../other/secret.txt", "programkavaro/help/../../other/secret.txt"})
        EXPECT_TRUE(reason(QUrl::fromLocalFile(path(file))).endsWith(u"nem a program mappájában van."_s)) << file;
    EXPECT_FALSE(opens(QUrl(u"file:///etc/passwd"_s)));
    EXPECT_FALSE(opens(QUrl(u"file:etc/passwd"_s)));
}

TEST_F(HelpAddress, of_a_folder_does_not_open) {
    EXPECT_FALSE(opens(path("program")));
    EXPECT_FALSE(opens(path("program/lists")));
}

TEST_F(HelpAddress, with_an_encoded_separator_does_not_open) {
    const QString program = QUrl::fromLocalFile(path("program")).toString();
    for (const char16_t *rest : {u"/..%2fother%2Fsecret.txt", u"/lists%2f..%2Fam.txt", u"%5Cam.txt", u"/am.txt%00"})
        EXPECT_FALSE(opens(QUrl(program + QString::fromUtf16(rest)))) << QString::fromUtf16(rest).toStdString();
}

TEST_F(HelpAddress, of_another_machine_does_not_open) {
    EXPECT_FALSE(opens(QUrl(u"file://x.hu"_s + path("program/am.txt"))));
    EXPECT_FALSE(opens(súgócímek::url(u"\\\\x.hu\\am.txt"_s)));
}

TEST_F(HelpAddress, of_a_missing_file_says_that_it_is_missing_only_where_it_might_open) {
    EXPECT_EQ(reason(QUrl::fromLocalFile(path("program/nincs.html"))),
              u"Nem található: „%1”."_s.arg(QDir::toNativeSeparators(path("program/nincs.html"))));
    EXPECT_TRUE(reason(QUrl::fromLocalFile(path("other/nincs.html"))).endsWith(u"mappájában van."_s));
}

TEST_F(HelpAddress, of_no_file_opens_without_a_program_folder) {
    const súgócímek none{QString()};

    EXPECT_TRUE(none.akadály(QUrl(u"file:///etc/passwd"_s)));
    EXPECT_TRUE(none.akadály(QUrl::fromLocalFile(path("program/am.txt"))));
}

}  // namespace
