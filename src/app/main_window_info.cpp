#include <QCoreApplication>

#include "app/main_window.h"
#include "ui/system_description.h"
#include "ui/text_window.h"

void szótár::info_eseményeket_köt() {
    connect(m_.mnunévjegy, &QAction::triggered, &események_, [this] { mnunévjegy_Click(); });
}

void szótár::mnunévjegy_Click() {
    frmAbout névjegy(k_.hasznos, *this, QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
                     [this] { rendszeradatokat_mutat(); });
    névjegy.mutatmodálisan();
}

void szótár::rendszeradatokat_mutat() {
    const QString program = QCoreApplication::applicationName() + u' ' + QCoreApplication::applicationVersion();
    const QString mappák = QStringLiteral("Programkönyvtár: %1\nA „c:\\” mappa: %2")
                               .arg(k_.állapot.programkönyvtár, k_.meghajtó.path(u"c:\\"));
    frm_üzenet(k_.hasznos, *this).mutat(QStringLiteral("Rendszeradatok"), rendszerleírás(program, mappák));
}
