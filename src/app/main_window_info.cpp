#include <QCoreApplication>

#include "app/main_window.h"
#include "ui/messages/about_window.h"
#include "ui/messages/system_description.h"
#include "ui/messages/text_window.h"
#include "ui/messages/timed_text_window.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int rövid_üzenet_ideje = 5000;

}  // namespace

void szótár::info_eseményeket_köt() {
    connect(m_.mnu_súgó, &QAction::triggered, &események_, [this] { mnu_súgó_Click(); });
    connect(m_.mnunévjegy, &QAction::triggered, &események_, [this] { mnunévjegy_Click(); });
    connect(m_.mnu_cim, &QAction::triggered, &események_, [this] { mnu_cim_Click(); });
    connect(v_.Label4, &QLabel::linkActivated, &események_, [this] { Label4_Click(); });
}

std::unique_ptr<frm_súgó> szótár::új_súgó() {
    return std::make_unique<frm_súgó>(súgókörnyezet{k_.állapot.programkönyvtár, k_.hasznos, *this, k_.üzenetek,
                                                    [this](const QString &szöveg) { rövid_üzenetet_mutat(szöveg); },
                                                    k_.böngésző, [this] { súgó_.unload(); }});
}

void szótár::súgót_előhoz() {
    súgó_.get().show();
    súgó_.get().raise();
    súgó_.get().activateWindow();
}

void szótár::mnu_súgó_Click() {
    // A window that is made now opens the help by itself.
    const bool nyitva_volt = súgó_.loaded();
    súgót_előhoz();
    if (nyitva_volt)
        súgó_.get().súgóhoz();
}

void szótár::mnu_cim_Click() {
    súgót_előhoz();
    súgó_.get().megnyit(súgócímek(k_.állapot.programkönyvtár).készítőcím());
}

void szótár::mnunévjegy_Click() {
    frmAbout névjegy(k_.hasznos, *this, QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
                     [this] { rendszeradatokat_mutat(); });
    névjegy.mutatmodálisan();
}

void szótár::rendszeradatokat_mutat() {
    const InformationTool indult = k_.rendszeradatok();
    if (indult == InformationTool::unavailable)
        k_.üzenetek.tell(u"System Information Is Unavailable At This Time"_s);
    if (indult != InformationTool::unknown)
        return;
    const QString program = QCoreApplication::applicationName() + u' ' + QCoreApplication::applicationVersion();
    const QString mappák =
        u"Programkönyvtár: %1\nA „c:\\” mappa: %2"_s.arg(k_.állapot.programkönyvtár, k_.meghajtó.path(u"c:\\"));
    frm_üzenet(k_.hasznos, *this).mutat(u"Rendszeradatok"_s, rendszerleírás(program, mappák));
}

void szótár::rövid_üzenetet_mutat(const QString &szöveg) {
    frm_szövegüzenet(k_.hasznos, *this).mutat(szöveg, rövid_üzenet_ideje);
}
