#include "support/main_window_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class MainWindowFiles : public MainWindowTest {
  protected:
    [[nodiscard]] QStringList recent_captions() const {
        QStringList captions;
        for (int i = 1; i <= 4; ++i) {
            const auto *item = window_->findChild<QAction *>(u"mnufájlfájl(%1)"_s.arg(i));
            if (item->isVisible())
                captions.append(item->text());
        }
        return captions;
    }
};

TEST_F(MainWindowFiles, saves_opens_and_shows_a_list) {
    start();
    type("apple");
    click("hozzáad");
    dialogs_.choices = {place("gyumi.szs")};
    action("mnufájlment")->trigger();
    EXPECT_EQ(read_file(place("gyumi.szs")), "apple:alma\r\n");

    action("mnufájlúj")->trigger();
    EXPECT_EQ(pairs(), QString());
    EXPECT_EQ(text_box("szóangtext")->text(), QString());

    dialogs_.choices = {place("gyumi.szs")};
    action("mnufájlmegnyit")->trigger();
    EXPECT_EQ(pairs(), u"apple:alma"_s);
    EXPECT_EQ(list("szószedet")->selected(), 0);
    EXPECT_EQ(text_box("szómagytext")->text(), u"alma"_s);
    EXPECT_EQ(window_->windowTitle(), u"Zimbora Angol-Magyar szótár - %1 szószedet"_s.arg(place("gyumi.szs")));
}

TEST_F(MainWindowFiles, opens_the_list_of_the_command_line) {
    const QString path = word_list("két szó.szs", "dog:kutya\r\n");

    start(u'"' + path + u'"');

    EXPECT_EQ(pairs(), u"dog:kutya"_s);
    EXPECT_EQ(state_.aktuálisfájl, QDir::toNativeSeparators(path));
    EXPECT_DOUBLE_EQ(window_->magasság(), window_->hely(button("módosít")).bottom() + 850);
}

TEST_F(MainWindowFiles, starts_empty_when_the_list_of_the_command_line_is_missing) {
    start(u"\"/nincs/ilyen.szs\""_s);

    EXPECT_EQ(boxes_.told, QStringList{u"Sikertelen fájlmegnyitás!"_s});
    EXPECT_EQ(pairs(), QString());
}

TEST_F(MainWindowFiles, shows_recent_files_as_numbered_items_and_opens_them) {
    const QString first = word_list("állatok.szs", "dog:kutya\r\n");
    const QString second = word_list("R&D.szs",
                                     "test:pr\xf3"
                                     "ba\r\n");
    write_file(place("c/zbrmkfnh.ini"), cp1250((first + u"\r\n/nincs.szs\r\n"_s + second).toStdU16String().c_str()));
    start();
    EXPECT_EQ(recent_captions(), QStringList({u"&1: "_s + first, u"&2: "_s + QString(second).replace(u'&', u"&&"_s)}));

    action("mnufájlfájl(2)")->trigger();

    EXPECT_EQ(pairs(), u"test:próba"_s);
    EXPECT_TRUE(recent_captions()[0].contains(u"R&&D"_s));
    EXPECT_EQ(recent_captions().size(), 2);
}

TEST_F(MainWindowFiles, has_no_recent_items_without_a_recent_files_list) {
    start();

    EXPECT_TRUE(recent_captions().isEmpty());
}

TEST_F(MainWindowFiles, shows_the_keys_of_its_menu_beside_the_captions) {
    start();

    for (const auto &[name, keys] : {std::pair("mnufájlúj", "Ctrl+N"), std::pair("mnufájlmegnyit", "Ctrl+O"),
                                     std::pair("mnufájlment", "Ctrl+S"), std::pair("mnufájlnyomtatás", "Ctrl+P")}) {
        EXPECT_EQ(action(name)->shortcut().toString(), QString::fromLatin1(keys));
        EXPECT_FALSE(action(name)->autoRepeat());
    }
}

TEST_F(MainWindowFiles, saves_opens_and_empties_the_list_by_keys) {
    dialogs_.choices = {word_list("a.szs", "dog:kutya\r\n")};
    start();

    QTest::keyClick(window_.get(), Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(pairs(), u"dog:kutya"_s);
    text_box("szóangtext")->setText(u"hound"_s);
    click("módosít");
    QTest::keyClick(text_box("angolszó"), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(read_file(place("a.szs")), "hound:kutya\r\n");
    QTest::keyClick(window_.get(), Qt::Key_N, Qt::ControlModifier);

    EXPECT_EQ(pairs(), QString());
}

TEST_F(MainWindowFiles, appended_list_is_seen_at_once) {
    start();
    dialogs_.choices = {word_list("a.szs", "dog:kutya\r\ncat:macska\r\n")};

    action("mnufájlhozzáfűz")->trigger();

    EXPECT_EQ(items("szószedet").size(), 2);
    EXPECT_DOUBLE_EQ(window_->magasság(), window_->hely(button("módosít")).bottom() + 850);
    EXPECT_TRUE(action("mnufájlment")->isEnabled());
}

TEST_F(MainWindowFiles, opens_a_hundred_thousand_pairs) {
    QByteArray bytes;
    for (int i = 0; i < 100000; ++i)
        bytes += "word" + QByteArray::number(i) + ":sz\xf3\r\n";
    start();
    dialogs_.choices = {word_list("a.szs", bytes)};

    action("mnufájlmegnyit")->trigger();

    EXPECT_EQ(list("szószedet")->count(), 100000);
    EXPECT_EQ(list("szómagylist")->item(99999), u"szó"_s);
}

}  // namespace
