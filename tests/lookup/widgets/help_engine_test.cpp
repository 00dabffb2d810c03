// The help viewer with the real browser engine and the real help document, on a screen (tests/e2e/with_screen.sh). Each
// test runs in a process of its own.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>

#include "lookup/widgets/browser_plugin.h"
#include "support/help_window_fixture.h"
#include "support/web_archive_reader.h"
#include "ui/drawing/font_sized_style.h"
#include "ui/drawing/fonts.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60000;

bool wait_for(const std::function<bool()> &condition) {
    return QTest::qWaitFor(condition, patience);
}

/// Answers every request with one page of the web, or with a file to be downloaded at "/fajl".
class Server final : public QTcpServer {
  public:
    explicit Server(const QByteArray &page) {
        connect(this, &QTcpServer::newConnection, this, [this, page] {
            QTcpSocket *client = nextPendingConnection();
            ++requests;
            connect(client, &QTcpSocket::readyRead, client, [client, page] {
                const bool file = client->readAll().startsWith("GET /fajl");
                client->write(QByteArray("HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Type: ") +
                              (file ? "application/octet-stream" : "text/html; charset=utf-8") +
                              "\r\nContent-Length: " + QByteArray::number(page.size()) + "\r\n\r\n" + page);
                client->disconnectFromHost();
            });
        });
        if (!listen(QHostAddress::LocalHost))
            qFatal("no port");
    }

    [[nodiscard]] QString address() const { return u"http://127.0.0.1:%1/"_s.arg(serverPort()); }

    int requests = 0;
};

/// What stands in an HTML text behind `before`, up to a quotation mark or the next element.
QString piece_of(const QByteArray &text, const char *before) {
    const auto begin = text.indexOf(before);
    if (begin < 0)
        qFatal("no %s", before);
    static const QRegularExpression end(u"[\"<]"_s);
    return QString::fromUtf8(text.mid(begin + qsizetype(qstrlen(before)))).section(end, 0, 0);
}

QByteArray html(const QByteArray &name, const QByteArray &body) {
    return "<!DOCTYPE html><html><head><meta charset=\"utf-8\"><title>" + name + "</title></head><body>" + body +
           "</body></html>";
}

class HelpEngine : public HelpWindowTest {
  protected:
    HelpEngine() {
        const QDir real(qEnvironmentVariable("ZIMBORA_PROGRAM") + u"kavaro/help"_s);
        for (const QString &file : real.entryList(QDir::Files))
            QFile::copy(real.filePath(file), QFileInfo(document()).dir().filePath(file));
        const QByteArray page = parts_of(read_file(document())).value(0).bytes;
        title_ = piece_of(page, "<title>");
        place_ = piece_of(page, "<li><a href=\"");
    }

    void open() {
        load([](const WebBrowserRules &rules) {
            return make_browser_of_plugin(browser_plugin_folders(QCoreApplication::applicationDirPath()), rules);
        });
        show();
    }

    void open_help() {
        open();
        ASSERT_TRUE(wait_for([this] { return caption() == title_; })) << caption().toStdString();
    }

    void open_page(const QString &address, const QString &name) {
        enter_address(address);
        ASSERT_TRUE(wait_for([&] { return caption() == name; })) << caption().toStdString();
    }

    /// Presses Enter on the link of this number, counted from 1.
    void follow_link(int number) {
        page()->setFocus();
        ASSERT_TRUE(wait_for([this] { return page()->focusProxy() && page()->focusProxy()->hasFocus(); }));
        // A page takes no keys before it has been drawn; the first that it takes draws a frame round a link.
        const QImage before = drawn_page();
        ASSERT_TRUE(wait_for([&] {
            QTest::keyClick(page()->focusProxy(), Qt::Key_Tab);
            return QTest::qWaitFor([&] { return page_picture() != before; }, 3000);
        }));
        for (int i = 1; i < number; ++i)
            QTest::keyClick(page()->focusProxy(), Qt::Key_Tab);
        QTest::keyClick(page()->focusProxy(), Qt::Key_Return);
    }

    [[nodiscard]] QImage page_picture() const { return window_->grab(page()->geometry()).toImage(); }

    /// The page as it looks when it does not change any more and is not blank.
    [[nodiscard]] QImage drawn_page() const {
        QImage last;
        int same = 0;
        wait_for([&] {
            const QImage now = page_picture();
            QImage blank = now;
            blank.fill(now.pixel(now.rect().center()));
            same = now == last && now != blank ? same + 1 : 0;
            last = now;
            return same == 20;
        });
        return last;
    }

    /// Puts an archive with one page in place of the help document.
    void replace_document(const QByteArray &page) {
        write_file(document(),
                   "MIME-Version: 1.0\r\nContent-Type: multipart/related;\r\n\ttype=\"text/html\";\r\n\tboundary="
                   "\"=_x\"\r\n\r\n--=_x\r\nContent-Type: text/html; charset=utf-8\r\n"
                   "Content-Location: thismessage:/index.html\r\n\r\n" +
                       page + "\r\n--=_x--\r\n");
    }

    [[nodiscard]] QWidget *page() const { return control<QWidget>("brwWebBrowser"); }
    [[nodiscard]] QString address() const { return address_box()->currentText(); }
    [[nodiscard]] QString document_address() const { return QUrl::fromLocalFile(document()).toString(); }

    /// The scroll bar as it is seen.
    [[nodiscard]] QImage scroll_bar() const {
        const QRect place = page()->geometry();
        return window_->grab(QRect(place.right() - 14, place.top(), 14, place.height())).toImage();
    }

    void expect_note(const QString &part) {
        ASSERT_TRUE(wait_for([this] { return !notes_.isEmpty(); })) << part.toStdString();
        EXPECT_EQ(notes_.size(), 1);
        EXPECT_TRUE(notes_.value(0).contains(part)) << notes_.value(0).toStdString();
    }

    /// Title of the real document.
    QString title_;
    /// A place in it that the table of contents names, such as "#foablak".
    QString place_;
};

QByteArray mapped_files() {
    QFile maps(u"/proc/self/maps"_s);
    return maps.open(QIODevice::ReadOnly) ? maps.readAll() : QByteArray();
}

TEST_F(HelpEngine, is_not_loaded_before_the_viewer_opens) {
    ASSERT_TRUE(mapped_files().contains("libQt6Widgets"));
    EXPECT_FALSE(mapped_files().contains("WebEngine"));
    EXPECT_FALSE(mapped_files().contains("libQt6Quick"));

    open_help();

    EXPECT_TRUE(mapped_files().contains("libQt6WebEngineCore"));
    EXPECT_TRUE(mapped_files().contains("zimbora_webengine.so"));
}

TEST_F(HelpEngine, opens_the_real_document) {
    open_help();

    EXPECT_EQ(address(), document_address());
    EXPECT_EQ(address_box()->itemText(1), program_ + u"kavaro\\help\\Kavaro súgó.mht"_s);
    EXPECT_TRUE(notes_.isEmpty());
    EXPECT_TRUE(boxes_.told.isEmpty());
}

TEST_F(HelpEngine, follows_a_link_within_the_document_and_goes_back_and_forward) {
    open_help();
    const QImage top = scroll_bar();

    follow_link(1);
    ASSERT_TRUE(wait_for([this] { return address().startsWith(document_address() + u'#'); }))
        << address().toStdString();
    const QString place = address();
    EXPECT_TRUE(wait_for([&] { return scroll_bar() != top; }));

    press("Back");
    ASSERT_TRUE(wait_for([this] { return address() == document_address(); })) << address().toStdString();
    EXPECT_TRUE(wait_for([&] { return scroll_bar() == top; }));

    press("Forward");
    ASSERT_TRUE(wait_for([&] { return address() == place; })) << address().toStdString();
    EXPECT_TRUE(wait_for([&] { return scroll_bar() != top; }));
    EXPECT_EQ(caption(), title_);
    EXPECT_TRUE(notes_.isEmpty());
}

TEST_F(HelpEngine, goes_on_when_there_is_nothing_to_go_back_to) {
    open_help();

    for (const char *button : {"Back", "Forward", "Stop", "Refresh"})
        press(button);

    ASSERT_TRUE(wait_for([this] { return !control<QTimer>("timTimer")->isActive(); }));
    EXPECT_EQ(address(), document_address());
    EXPECT_EQ(caption(), title_);
}

TEST_F(HelpEngine, follows_the_address_box) {
    open_help();
    const QImage top = scroll_bar();

    enter_address(program_ + u"kavaro\\help\\Kavaro súgó.mht"_s + place_);
    ASSERT_TRUE(wait_for([this] { return address() == document_address() + place_; })) << address().toStdString();
    EXPECT_TRUE(wait_for([&] { return scroll_bar() != top; }));

    const QByteArray beside = read_file(program_ + u"kavaro/help/keszito.html"_s);
    open_page(súgócímek(program_).készítőcím(), piece_of(beside, "<title>"));
    press("Home");
    EXPECT_TRUE(wait_for([this] { return caption() == title_ && address() == document_address(); }));
}

TEST_F(HelpEngine, follows_a_link_to_the_page_beside_the_document_and_back) {
    title_ = u"Dokumentum"_s;
    replace_document(html("Dokumentum", "<a href=\"keszito.html\">1</a>"));
    write_file(program_ + u"kavaro/help/keszito.html"_s,
               html("Mellette", "<a href=\"Kavaro%20s%C3%BAg%C3%B3.mht\">1</a>"));
    open_help();

    follow_link(1);
    ASSERT_TRUE(wait_for([this] { return caption() == u"Mellette"_s; })) << address().toStdString();
    EXPECT_TRUE(address().endsWith(u"kavaro/help/keszito.html"_s));

    follow_link(1);
    EXPECT_TRUE(wait_for([this] { return caption() == title_; })) << address().toStdString();
    EXPECT_TRUE(notes_.isEmpty());
}

TEST_F(HelpEngine, refuses_links_of_the_document) {
    title_ = u"Dokumentum"_s;
    replace_document(html("Dokumentum",
                          "<a href=\"file:///etc/passwd\">1</a> <a href=\"../../secret.txt\">2</a> "
                          "<a href=\"mailto:a@x.hu\">3</a> <a href=\"nincs.html\">4</a>"));
    write_file(root_.filePath(u"secret.txt"_s), "secret");
    const std::pair<int, const char16_t *> links[] = {
        {1, u"itt nem nyitható meg"}, {2, u"Nem található"}, {3, u"itt nem nyitható meg"}, {4, u"Nem található"}};
    for (const auto &[link, reason] : links) {
        open_help();
        follow_link(link);
        expect_note(QString::fromUtf16(reason));
        EXPECT_EQ(caption(), title_);
        notes_.clear();
    }
}

TEST_F(HelpEngine, opens_the_document_of_an_installed_program) {
    const QString share = root_.filePath(u"share"_s);
    ASSERT_TRUE(QDir().rename(program_ + u"kavaro/help"_s, share));
    ASSERT_TRUE(QFile::link(share, program_ + u"kavaro/help"_s));

    open_help();

    EXPECT_TRUE(notes_.isEmpty());
}

TEST_F(HelpEngine, refuses_a_file_outside_the_program_folder) {
    open_help();

    enter_address(u"file:///etc/passwd"_s);

    expect_note(u"nem a program mappájában van"_s);
    EXPECT_EQ(caption(), title_);
}

TEST_F(HelpEngine, refuses_links_of_a_local_page) {
    write_file(program_ + u"/lap.html"_s, html("Lap",
                                               "<a href=\"file:///etc/passwd\">1</a> <a href=\"../secret.txt\">2</a> "
                                               "<a href=\"mailto:a@x.hu\">3</a> <a href=\"ftp://x.hu/\">4</a>"));
    write_file(root_.filePath(u"secret.txt"_s), "secret");
    open_help();
    for (int link = 1; link <= 4; ++link) {
        open_page(program_ + u"/lap.html"_s, u"Lap"_s);
        follow_link(link);
        expect_note(u"itt nem nyitható meg"_s);
        EXPECT_EQ(caption(), u"Lap"_s);
        notes_.clear();
        press("Home");
        ASSERT_TRUE(wait_for([this] { return caption() == title_; }));
    }
}

TEST_F(HelpEngine, opens_a_web_page_and_refuses_its_link_to_a_file) {
    const Server server(html("Web", "<a href=\"file:///etc/passwd\">1</a>"));
    open_help();
    open_page(server.address(), u"Web"_s);

    follow_link(1);

    expect_note(u"nem a program mappájában van"_s);
    EXPECT_EQ(address(), server.address());
}

TEST_F(HelpEngine, opens_a_link_for_a_new_window_in_the_same_view) {
    write_file(program_ + u"/masik.html"_s, html("Másik", "x"));
    write_file(program_ + u"/lap.html"_s, html("Lap", "<a target=\"_blank\" href=\"masik.html\">1</a>"));
    open_help();
    open_page(program_ + u"/lap.html"_s, u"Lap"_s);
    const auto windows = QApplication::topLevelWidgets().size();

    follow_link(1);

    ASSERT_TRUE(wait_for([this] { return caption() == u"Másik"_s; }));
    EXPECT_EQ(QApplication::topLevelWidgets().size(), windows);
    press("Back");
    EXPECT_TRUE(wait_for([this] { return caption() == u"Lap"_s; }));
}

TEST_F(HelpEngine, downloads_nothing) {
    const Server server(html("Web", "<a href=\"/fajl\">1</a>"));
    open_help();
    open_page(server.address(), u"Web"_s);

    follow_link(1);

    expect_note(u"Innen nem tölthető le fájl: „fajl”."_s);
    EXPECT_EQ(caption(), u"Web"_s);
}

TEST_F(HelpEngine, tells_that_a_page_of_the_web_cannot_be_had) {
    QString address;
    {
        const Server gone({});
        address = gone.address();
    }
    open_help();

    enter_address(address);

    expect_note(u"nem lehet kapcsolódni"_s);
    EXPECT_TRUE(wait_for([this] { return !control<QTimer>("timTimer")->isActive(); }));
}

TEST_F(HelpEngine, keeps_a_page_from_asking_and_opening_windows) {
    const Server server(html("Web",
                             "<script>alert('x'); confirm('y'); prompt('z'); window.open('/');"
                             "document.title = 'Vége';</script>"));
    open_help();
    const auto windows = QApplication::topLevelWidgets().size();

    open_page(server.address(), u"Vége"_s);

    EXPECT_EQ(QApplication::topLevelWidgets().size(), windows);
}

TEST_F(HelpEngine, tells_one_thing_at_a_time_of_a_page_that_tries_again_and_again) {
    const Server server(html("Web",
                             "<script>var i = 0; setInterval(function() { new Image().src = 'file:///etc/passwd';"
                             "fetch('/' + ++i); }, 20);</script>"));
    qsizetype told_meanwhile = 0;
    during_note_ = [&] {
        const int requests = server.requests;
        ASSERT_TRUE(wait_for([&] { return server.requests > requests + 10; }));
        told_meanwhile = notes_.size();
        during_note_ = [] {};
    };
    open_help();

    enter_address(server.address());

    ASSERT_TRUE(wait_for([&] { return told_meanwhile > 0; }));
    EXPECT_EQ(told_meanwhile, 1);
}

TEST_F(HelpEngine, leaves_nothing_on_the_disk) {
    const Server server(html("Web",
                             "<script>document.cookie = 'a=b'; localStorage.setItem('a', 'b');"
                             "document.title = document.cookie + localStorage.getItem('a');</script>"));
    open_help();
    open_page(server.address(), u"a=bb"_s);
    window_.reset();

    for (const char *place : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "HOME"}) {
        QDirIterator all(qEnvironmentVariable(place), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (all.hasNext())
            ADD_FAILURE() << all.next().toStdString();
    }
}

TEST_F(HelpEngine, can_be_closed_and_opened_again) {
    open_help();
    window_->close();
    ASSERT_TRUE(wait_for([this] { return closed_ == 1; }));
    window_.reset();

    open_help();

    EXPECT_EQ(address(), document_address());
}

TEST_F(HelpEngine, can_be_closed_while_it_loads) {
    const Server server(html("Web", "x"));
    for (int i = 0; i < 5; ++i) {
        open();
        enter_address(server.address());
        window_.reset();
    }

    open_help();
}

QByteArray process_file(const QString &id, const char *name) {
    QFile file(u"/proc/%1/%2"_s.arg(id, QString::fromLatin1(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString parent_of(const QString &id) {
    return QString::fromLatin1(process_file(id, "status")).section(u"PPid:\t"_s, 1).section(u'\n', 0, 0);
}

/// The processes of the engine that this process has started, and those that they have.
QStringList engine_processes() {
    const QString own = QString::number(QCoreApplication::applicationPid());
    QStringList found;
    for (const QString &id : QDir(u"/proc"_s).entryList({u"[0-9]*"_s}, QDir::Dirs)) {
        QString ancestor = parent_of(id);
        while (ancestor.toLongLong() > 1 && ancestor != own)
            ancestor = parent_of(ancestor);
        if (ancestor == own && process_file(id, "cmdline").contains("QtWebEngineProcess"))
            found.append(id);
    }
    return found;
}

TEST_F(HelpEngine, locks_its_pages_in_for_everybody_but_the_administrator) {
    QProcess who;
    who.start(u"id"_s, {u"-u"_s});
    ASSERT_TRUE(who.waitForFinished());
    const bool administrator = who.readAllStandardOutput().trimmed() == "0";

    open_help();

    int locked_in = 0;
    const QStringList processes = engine_processes();
    ASSERT_FALSE(processes.isEmpty());
    for (const QString &id : processes) {
        EXPECT_EQ(process_file(id, "cmdline").contains("--no-sandbox"), administrator);
        locked_in += process_file(id, "status").contains("\nSeccomp:\t2") ? 1 : 0;
    }
    EXPECT_EQ(locked_in > 0, !administrator);
}

}  // namespace

int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    QApplication::setStyle(new FontSizedStyle);
    QApplication::setQuitOnLastWindowClosed(false);
    fonts::substitute_missing_faces();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
