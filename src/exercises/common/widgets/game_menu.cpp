#include "exercises/common/widgets/game_menu.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "ui/controls/named.h"

using namespace Qt::StringLiterals;

void játékmenüt_rak(ablak &mire, const std::vector<játékmenüpont> &pontok) {
    QMenu *fájl = named(mire.menüsor()->addMenu(u"&Fájl"_s), u"mnu_fájl");
    for (const játékmenüpont &pont : pontok) {
        if (pont.felirat.isEmpty()) {
            named(fájl->addSeparator(), pont.név);
            continue;
        }
        QAction *új = named(fájl->addAction(pont.felirat), pont.név);
        QObject::connect(új, &QAction::triggered, &mire, pont.mit);
    }
}
