#include "support/odd_files.h"
#include "support/word_list_files_fixture.h"

using namespace Qt::StringLiterals;

namespace {

const QString exit_question = u"Kilépés|Akarja menteni a változtatásokat?|yes no cancel"_s;
const QString new_list_question = u"Kilépés|Akarja menteni a változtatásokat?|yes no"_s;

TEST_F(WordListFiles, first_save_proposes_the_program_folder_and_the_first_english_word) {
    add("apple", "alma");
    dialogs_.choices = {place("gyumi.szs")};

    files_.mnufájlment();

    EXPECT_EQ(dialogs_.proposals, QStringList{in_program_folder("apple.szs")});
    EXPECT_EQ(read_file(place("gyumi.szs")), "apple:alma\r\n");
    EXPECT_EQ(state_.aktuálisfájl, place("gyumi.szs"));
    EXPECT_EQ(state_.változott, 0);
    EXPECT_EQ(window_.title, u"Zimbora Angol-Magyar szótár - %1 szószedet"_s.arg(place("gyumi.szs")));
    EXPECT_EQ(window_.recent, QStringList{place("gyumi.szs")});
}

TEST_F(WordListFiles, proposed_name_has_nothing_that_a_file_name_cannot_have) {
    add("and/or\\ etc.: what?", "és/vagy");

    files_.mnufájlment();

    EXPECT_EQ(dialogs_.proposals, QStringList{in_program_folder("and_or_ etc__ what_.szs")});
}

TEST_F(WordListFiles, second_save_asks_nothing) {
    add("apple", "alma");
    dialogs_.choices = {place("a.szs")};
    files_.mnufájlment();
    add("dog", "kutya");

    files_.mnufájlment();

    EXPECT_EQ(dialogs_.proposals.size(), 1);
    EXPECT_TRUE(boxes_.asked.isEmpty());
    EXPECT_EQ(read_file(place("a.szs")), "apple:alma\r\ndog:kutya\r\n");
}

TEST_F(WordListFiles, cancelled_first_save_writes_nothing_and_leaves_no_current_file) {
    add("apple", "alma");

    files_.mnufájlment();

    EXPECT_EQ(state_.aktuálisfájl, QString());
    EXPECT_EQ(state_.változott, 1);
    EXPECT_EQ(QDir(place("angol")).entryList(QDir::Files), QStringList());
}

TEST_F(WordListFiles, name_with_a_dot_before_its_last_four_characters_is_refused_without_a_word) {
    add("apple", "alma");
    QDir(root_.path()).mkdir(u"a.b"_s);
    dialogs_.choices = {place("a.b/lista.szs"), place("lista")};

    files_.mnufájlment();

    EXPECT_EQ(dialogs_.proposals.size(), 2);
    EXPECT_TRUE(boxes_.told.isEmpty());
    EXPECT_EQ(read_file(place("lista")), "apple:alma\r\n");
    EXPECT_FALSE(QFile::exists(place("a.b/lista.szs")));
}

TEST_F(WordListFiles, existing_file_is_overwritten_only_after_a_yes) {
    add("apple", "alma");
    const QString old = file("régi.szs", "old:r\xe9gi\r\n");
    dialogs_.choices = {old, place("más.szs")};
    boxes_.answers = {Answer::no};

    files_.mnufájlment();

    EXPECT_EQ(boxes_.asked,
              QStringList{u"Fájl felülírása|A %1 szószedet fájl már létezik. Felülírja?|yes no"_s.arg(old)});
    EXPECT_EQ(read_file(old), "old:r\xe9gi\r\n");
    EXPECT_EQ(read_file(place("más.szs")), "apple:alma\r\n");
}

TEST_F(WordListFiles, existing_file_is_replaced_after_a_yes) {
    add("apple", "alma");
    dialogs_.choices = {file("régi.szs",
                             "old:r\xe9gi\r\nmore:t\xf6"
                             "bb\r\n")};
    boxes_.answers = {Answer::yes};

    files_.mnufájlment();

    EXPECT_EQ(read_file(place("régi.szs")), "apple:alma\r\n");
}

TEST_F(WordListFiles, save_as_writes_under_the_new_name_and_goes_on_with_it) {
    add("apple", "alma");
    state_.aktuálisfájl = file("a.szs", "");
    dialogs_.choices = {place("b.szs")};

    files_.mnufájlmentmásként();

    EXPECT_EQ(dialogs_.proposals, QStringList{place("a.szs")});
    EXPECT_EQ(read_file(place("a.szs")), "");
    EXPECT_EQ(read_file(place("b.szs")), "apple:alma\r\n");
    EXPECT_EQ(state_.aktuálisfájl, place("b.szs"));
}

TEST_F(WordListFiles, cancelled_save_as_stars_the_name_and_later_saves_write_nothing_until_there_is_a_new_one) {
    add("apple", "alma");
    state_.aktuálisfájl = file("a.szs", "old:r\xe9gi\r\n");

    files_.mnufájlmentmásként();
    EXPECT_EQ(state_.aktuálisfájl, u'*' + place("a.szs"));
    files_.mnufájlment();
    EXPECT_EQ(read_file(place("a.szs")), "old:r\xe9gi\r\n");
    EXPECT_EQ(state_.változott, 1);

    dialogs_.choices = {place("b.szs")};
    files_.mnufájlmentmásként();
    EXPECT_EQ(dialogs_.proposals.back(), place("a.szs"));
    EXPECT_EQ(read_file(place("b.szs")), "apple:alma\r\n");
    EXPECT_EQ(state_.változott, 0);
}

/// A changed list in "a.szs", after "Ment másként..." was cancelled.
class CancelledSaveAs : public WordListFiles {
  protected:
    CancelledSaveAs() {
        add("apple", "alma");
        state_.aktuálisfájl = place("a.szs");
        files_.mnufájlmentmásként();
        other_ = file("b.szs", "dog:kutya\r\n");
        boxes_.answers = {Answer::yes};
    }

    void expect_told_and_nothing_done() {
        ASSERT_EQ(boxes_.told.size(), 1);
        EXPECT_TRUE(boxes_.told[0].contains(u"nincsenek elmentve"_s)) << boxes_.told[0].toStdString();
        EXPECT_TRUE(boxes_.told[0].contains(u"„Ment másként...”"_s));
        EXPECT_EQ(pairs(), u"apple:alma"_s);
        EXPECT_EQ(state_.változott, 1);
        EXPECT_FALSE(QFile::exists(place("a.szs")));
    }

    QString other_;
};

TEST_F(CancelledSaveAs, says_why_it_does_not_save_before_a_new_list) {
    files_.mnufájlúj();

    expect_told_and_nothing_done();
}

TEST_F(CancelledSaveAs, says_why_it_does_not_save_before_opening) {
    files_.mnufájlmegnyit();

    expect_told_and_nothing_done();
}

TEST_F(CancelledSaveAs, says_why_it_does_not_save_before_a_recent_file) {
    files_.mnufájlfájl(other_);

    expect_told_and_nothing_done();
}

TEST_F(CancelledSaveAs, says_why_it_does_not_save_at_the_exit) {
    EXPECT_FALSE(files_.kilépéskérdés());

    expect_told_and_nothing_done();
}

TEST_F(CancelledSaveAs, still_knows_the_file_of_the_list) {
    files_.mnufájlmentmásként();

    EXPECT_EQ(state_.listafájl(), place("a.szs"));
}

TEST_F(WordListFiles, list_never_saved_has_no_file_though_one_of_its_proposed_name_exists) {
    add("apple", "alma");
    file("angol/apple.szs", "old:r\xe9gi\r\n");

    files_.mnufájlmentmásként();
    EXPECT_EQ(state_.aktuálisfájl, u'*' + in_program_folder("apple.szs"));
    EXPECT_EQ(state_.listafájl(), QString());
    files_.mnufájlmentmásként();

    EXPECT_EQ(state_.listafájl(), QString());
}

TEST_F(WordListFiles, opening_replaces_the_list_and_puts_the_file_first_in_the_menu) {
    add("old", "régi");
    state_.változott = 0;
    dialogs_.choices = {file("b.szs", cp1250(u"time:idő: 3 óra\r\n"))};

    files_.mnufájlmegnyit();

    EXPECT_EQ(dialogs_.proposals, QStringList{in_program_folder("*.szs")});
    EXPECT_EQ(pairs(), u"time:idő: 3 óra"_s);
    EXPECT_EQ(state_.aktuálisfájl, place("b.szs"));
    EXPECT_EQ(state_.változott, 0);
    EXPECT_EQ(window_.title, u"Zimbora Angol-Magyar szótár - %1 szószedet"_s.arg(place("b.szs")));
    EXPECT_EQ(window_.recent, QStringList{place("b.szs")});
    EXPECT_EQ(window_.cleared, 1);
    EXPECT_GE(window_.fitted, 1);
}

TEST_F(WordListFiles, open_dialog_comes_again_until_the_file_exists) {
    dialogs_.choices = {place("nincs.szs"), place("angol"), file("b.szs", "a:b\r\n")};

    files_.mnufájlmegnyit();

    EXPECT_EQ(dialogs_.proposals.size(), 3);
    EXPECT_EQ(pairs(), u"a:b"_s);
}

TEST_F(WordListFiles, cancelled_open_dialog_changes_nothing) {
    add("apple", "alma");
    state_.aktuálisfájl = file("a.szs", "");
    boxes_.answers = {Answer::no};

    files_.mnufájlmegnyit();

    EXPECT_EQ(boxes_.asked, QStringList{new_list_question});
    EXPECT_EQ(pairs(), u"apple:alma"_s);
    EXPECT_EQ(state_.aktuálisfájl, place("a.szs"));
    EXPECT_EQ(state_.változott, 1);
}

TEST_F(WordListFiles, file_that_cannot_be_read_after_the_dialog_is_told_and_nothing_is_lost) {
    add("apple", "alma");
    boxes_.answers = {Answer::no};
    state_.aktuálisfájl = place("a.szs");
    const UnreadableFile unreadable(place("b.szs"));
    dialogs_.choices = {place("b.szs")};

    files_.mnufájlmegnyit();

    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(
        boxes_.told[0].startsWith(u"A(z) „%1” fájl nem olvasható"_s.arg(QDir::toNativeSeparators(place("b.szs")))));
    EXPECT_EQ(pairs(), u"apple:alma"_s);
    EXPECT_EQ(state_.aktuálisfájl, place("a.szs"));
    EXPECT_EQ(state_.változott, 1);
}

TEST_F(WordListFiles, file_that_vanishes_before_it_is_opened_is_told_and_nothing_is_lost) {
    add("apple", "alma");
    const QString path = file("b.szs", "dog:kutya\r\n");
    boxes_.answers = {Answer::no};
    boxes_.meanwhile = [&] { QFile::remove(path); };

    files_.mnufájlfájl(path);

    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(boxes_.told[0].endsWith(u"b.szs” fájl nem olvasható: a fájl nem létezik."_s));
    EXPECT_EQ(pairs(), u"apple:alma"_s);
    EXPECT_EQ(state_.változott, 1);
}

TEST_F(WordListFiles, request_to_end_while_the_name_is_asked_never_saves_under_the_proposal) {
    add("apple", "alma");
    file("angol/apple.szs", "old:r\xe9gi\r\n");
    boxes_.answers = {Answer::yes};
    bool may_end = true;
    dialogs_.meanwhile = [&] {
        if (dialogs_.proposals.size() == 1)
            may_end = files_.kilépéskérdés();
    };

    files_.mnufájlment();

    EXPECT_FALSE(may_end);
    EXPECT_EQ(dialogs_.proposals.size(), 2);
    EXPECT_EQ(read_file(place("angol/apple.szs")), "old:r\xe9gi\r\n");
}

TEST_F(WordListFiles, appending_adds_every_pair_at_the_end_and_doubles_a_list_appended_twice) {
    add("dog", "kutya");
    state_.aktuálisfájl = place("saját.szs");
    const QString other = file("b.szs", "apple:alma\r\n");
    dialogs_.choices = {other, other};

    files_.mnufájlhozzáfűz();
    files_.mnufájlhozzáfűz();

    EXPECT_EQ(pairs(), u"dog:kutya apple:alma apple:alma"_s);
    EXPECT_EQ(state_.aktuálisfájl, place("saját.szs"));
    EXPECT_EQ(state_.változott, 1);
    EXPECT_EQ(dialogs_.proposals[0], in_program_folder("*.szs"));
}

TEST_F(WordListFiles, appending_to_a_list_without_a_file_makes_the_appended_file_current) {
    dialogs_.choices = {file("b.szs", "apple:alma\r\n")};

    files_.mnufájlhozzáfűz();

    EXPECT_EQ(state_.aktuálisfájl, place("b.szs"));
    EXPECT_EQ(state_.változott, 1);
    EXPECT_TRUE(window_.title.contains(place("b.szs")));
    EXPECT_EQ(window_.fitted, 1);
}

TEST_F(WordListFiles, cancelled_append_changes_nothing) {
    files_.mnufájlhozzáfűz();

    EXPECT_TRUE(list_.üres());
    EXPECT_EQ(state_.változott, 0);
}

TEST_F(WordListFiles, new_list_asks_saves_on_yes_and_keeps_the_file_name) {
    add("apple", "alma");
    state_.aktuálisfájl = place("a.szs");
    boxes_.answers = {Answer::yes};

    files_.mnufájlúj();

    EXPECT_EQ(boxes_.asked, QStringList{new_list_question});
    EXPECT_EQ(read_file(place("a.szs")), "apple:alma\r\n");
    EXPECT_TRUE(list_.üres());
    EXPECT_EQ(state_.aktuálisfájl, place("a.szs"));
    EXPECT_EQ(window_.cleared, 1);
    EXPECT_EQ(window_.recent, QStringList{place("a.szs")});
}

TEST_F(WordListFiles, new_list_without_saving_leaves_the_changed_flag_as_it_is) {
    add("apple", "alma");
    boxes_.answers = {Answer::no};

    files_.mnufájlúj();

    EXPECT_TRUE(list_.üres());
    EXPECT_EQ(state_.változott, 1);
}

TEST_F(WordListFiles, new_list_of_an_unchanged_one_asks_nothing) {
    add("apple", "alma");
    state_.változott = 0;

    files_.mnufájlúj();

    EXPECT_TRUE(boxes_.asked.isEmpty());
    EXPECT_TRUE(list_.üres());
}

TEST_F(WordListFiles, pairs_stay_when_the_save_before_a_new_list_is_cancelled) {
    add("apple", "alma");
    boxes_.answers = {Answer::yes};

    files_.mnufájlúj();

    EXPECT_EQ(pairs(), u"apple:alma"_s);
    EXPECT_EQ(state_.változott, 1);
}

TEST_F(WordListFiles, save_into_a_missing_folder_is_told_and_nothing_is_lost) {
    add("apple", "alma");
    dialogs_.choices = {place("nincs/lista")};

    files_.mnufájlment();

    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(boxes_.told[0].contains(u'„' + QDir::toNativeSeparators(place("nincs/lista")) + u'”'));
    EXPECT_EQ(pairs(), u"apple:alma"_s);
    EXPECT_EQ(state_.változott, 1);
    EXPECT_EQ(state_.aktuálisfájl, QString());
}

TEST_F(WordListFiles, save_with_a_letter_beyond_the_code_page_names_the_word_and_overwrites_nothing) {
    add("fire", "火");
    state_.aktuálisfájl = file("a.szs", "old:r\xe9gi\r\n");

    files_.mnufájlment();

    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(boxes_.told[0].contains(u"„火”"_s));
    EXPECT_EQ(read_file(place("a.szs")), "old:r\xe9gi\r\n");
    EXPECT_EQ(state_.változott, 1);
}

TEST_F(WordListFiles, fifth_file_opened_leaves_four_in_the_menu_the_newest_first) {
    for (const char *name : {"1.szs", "2.szs", "3.szs", "4.szs", "5.szs"}) {
        dialogs_.choices = {file(name, "a:b\r\n")};
        files_.mnufájlmegnyit();
    }

    EXPECT_EQ(window_.recent, QStringList({place("5.szs"), place("4.szs"), place("3.szs"), place("2.szs")}));
}

TEST_F(WordListFiles, recent_file_is_opened_and_moves_to_the_top) {
    file("1.szs", "egy:one\r\n");
    file("2.szs", "two:kett\xf5\r\n");
    write_file(recent_file_, place("2.szs").toUtf8() + "\r\n" + place("1.szs").toUtf8() + "\r\n");
    files_.fájlistolvas();

    files_.mnufájlfájl(place("1.szs"));

    EXPECT_EQ(pairs(), u"egy:one"_s);
    EXPECT_EQ(window_.recent, QStringList({place("1.szs"), place("2.szs")}));
}

TEST_F(WordListFiles, recent_file_that_is_gone_does_nothing) {
    add("apple", "alma");

    files_.mnufájlfájl(place("nincs.szs"));

    EXPECT_TRUE(boxes_.asked.isEmpty());
    EXPECT_EQ(pairs(), u"apple:alma"_s);
}

TEST_F(WordListFiles, place_of_the_recent_files_that_cannot_be_kept_is_told_once) {
    // A folder in the place of the file.
    QDir().mkpath(recent_file_);
    add("apple", "alma");
    dialogs_.choices = {place("a.szs"), place("b.szs")};

    files_.mnufájlmentmásként();
    files_.mnufájlmentmásként();

    EXPECT_EQ(boxes_.told.size(), 1) << boxes_.told.join(u'\n').toStdString();
    EXPECT_EQ(read_file(place("b.szs")), "apple:alma\r\n");
}

TEST_F(WordListFiles, missing_recent_files_drop_out_when_the_list_is_written) {
    write_file(recent_file_, "/nincs/ilyen.szs\r\n");
    files_.fájlistolvas();
    dialogs_.choices = {file("b.szs", "a:b\r\n")};

    files_.mnufájlmegnyit();

    EXPECT_FALSE(read_file(recent_file_).contains("ilyen"));
}

TEST_F(WordListFiles, command_line_may_quote_the_path_or_not) {
    const QString path = file("két szó.szs", "a:b\r\n");
    for (const QString &line : {path, u'"' + path + u'"'}) {
        list_.kiürít();
        files_.parancssorból(line);
        EXPECT_EQ(pairs(), u"a:b"_s);
        EXPECT_EQ(state_.aktuálisfájl, QDir::toNativeSeparators(path));
    }
}

TEST_F(WordListFiles, command_line_with_a_missing_file_or_a_folder_says_so) {
    files_.parancssorból(u'"' + place("nincs.szs") + u'"');
    files_.parancssorból(place("angol"));

    EXPECT_EQ(boxes_.told, QStringList({u"Sikertelen fájlmegnyitás!"_s, u"Sikertelen fájlmegnyitás!"_s}));
    EXPECT_EQ(state_.aktuálisfájl, QString());
    EXPECT_TRUE(list_.üres());
}

TEST_F(WordListFiles, exit_asks_only_after_a_change) {
    add("apple", "alma");
    state_.változott = 0;

    EXPECT_TRUE(files_.kilépéskérdés());

    EXPECT_TRUE(boxes_.asked.isEmpty());
}

TEST_F(WordListFiles, exit_saves_on_yes_goes_on_no_and_stays_on_cancel) {
    add("apple", "alma");
    state_.aktuálisfájl = place("a.szs");
    boxes_.answers = {Answer::cancel, Answer::no, Answer::yes};

    EXPECT_FALSE(files_.kilépéskérdés());
    EXPECT_TRUE(files_.kilépéskérdés());
    EXPECT_FALSE(QFile::exists(place("a.szs")));
    EXPECT_TRUE(files_.kilépéskérdés());

    EXPECT_EQ(boxes_.asked, QStringList({exit_question, exit_question, exit_question}));
    EXPECT_EQ(read_file(place("a.szs")), "apple:alma\r\n");
}

TEST_F(WordListFiles, exit_stays_when_the_name_is_cancelled_or_the_file_cannot_be_written) {
    add("apple", "alma");
    boxes_.answers = {Answer::yes, Answer::yes};

    EXPECT_FALSE(files_.kilépéskérdés());
    dialogs_.choices = {place("nincs/lista")};
    EXPECT_FALSE(files_.kilépéskérdés());

    EXPECT_EQ(pairs(), u"apple:alma"_s);
}

TEST_F(WordListFiles, recent_list_that_cannot_be_written_is_told) {
    file("nincs", "");
    szószedetfájlok files(state_, list_, window_, boxes_, dialogs_, place("nincs/zbrmkfnh.ini"));

    files.mnufájlúj();

    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(boxes_.told[0].contains(QDir::toNativeSeparators(place("nincs"))));
}

TEST_F(WordListFiles, recent_list_is_written_into_its_folder_made_anew_when_that_has_gone) {
    QDir(root_.path()).mkdir(u"c"_s);
    szószedetfájlok files(state_, list_, window_, boxes_, dialogs_, place("c/zbrmkfnh.ini"));
    files.fájlistolvas();
    QDir(place("c")).removeRecursively();
    dialogs_.choices = {file("a.szs", "a:b\r\n")};

    files.mnufájlmegnyit();

    EXPECT_TRUE(boxes_.told.isEmpty());
    EXPECT_EQ(read_file(place("c/zbrmkfnh.ini")), QFile::encodeName(place("a.szs")) + "\r\n");
}

TEST_F(WordListFiles, file_outside_the_code_page_leaves_the_others_in_the_menu_and_is_told_once) {
    dialogs_.choices = {file("a.szs", "a:b\r\n"), file("e\u0301n.szs", "c:d\r\n")};
    files_.mnufájlmegnyit();

    files_.mnufájlmegnyit();
    files_.mnufájlment();
    files_.mnufájlúj();

    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(boxes_.told[0].contains(u"nem kerülhet a legutóbbi fájlok közé"_s));
    EXPECT_EQ(window_.recent, QStringList{place("a.szs")});
    EXPECT_EQ(read_file(place("e\u0301n.szs")), "c:d\r\n");
}

TEST_F(WordListFiles, recent_list_that_is_there_and_cannot_be_read_is_told_once) {
    const UnreadableFile unreadable(recent_file_);

    files_.fájlistolvas();
    files_.fájlistolvas();

    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(boxes_.told[0].contains(u"fájl nem olvasható: "_s));
}

}  // namespace
