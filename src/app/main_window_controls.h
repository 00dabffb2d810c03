#pragma once

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <array>

#include "dictionary/word_lookup.h"
#include "suggestions/offer_list.h"
#include "ui/controls/link_list.h"
#include "ui/controls/list_box.h"
#include "ui/window/window.h"
#include "wordlist/recent_files.h"
#include "wordlist/word_pair_list.h"

// The controls of the main window: what they are called, what they say, where they stand before the window is scaled.
// They belong to the window.

/// Looking a word up.
struct keresővezérlők {
    keresővezérlők(ablak &mire, szókereső &kereső, ajánlatlista &ajánlatok);

    QLabel *Label1;
    QLineEdit *angolszó;
    QPushButton *Ok;
    ListBox *szólist;
    QLabel *Label2;
    ListBox *magyarlist;
    QLabel *Label3;
    QPushButton *hozzáad;
    /// 0 "Angolról magyarra", 1 "Magyarról angolra".
    std::array<QRadioButton *, 2> nyelv;
    /// What was probably meant by a text without an exact hit.
    LinkList *lst_ajánlatok;

    // Never shown: the meanings field of each hit, and the conversion tool.
    ListBox *megoldlist;
    QPushButton *Command2;
};

/// The word list; its two lists show the columns of `lista`.
struct szószedetvezérlők {
    szószedetvezérlők(ablak &mire, szópárlista &lista);

    ListBox *szószedet;
    ListBox *szómagylist;
    QPushButton *sztöröl;
    /// Seen while there are changes that are not saved.
    QLabel *Label_mentetlen;
    QLineEdit *szóangtext;
    QLineEdit *szómagytext;
    QPushButton *módosít;
};

/// All controls, in the order of reading, which is the order of Tab.
struct szótárvezérlők {
    szótárvezérlők(ablak &mire, szókereső &kereső, ajánlatlista &ajánlatok, szópárlista &lista);

    keresővezérlők keresés;
    QPushButton *cmd_kisablak;
    /// The address of the program's makers.
    QLabel *Label4;
    QPushButton *kilép;
    szószedetvezérlők szószedet;
};

/// The menus of the main window.
struct szótármenü {
    explicit szótármenü(QMenuBar &sor);

    QMenu *mnufájl;
    QAction *mnufájlúj;
    QAction *mnufájlmegnyit;
    QAction *mnufájlhozzáfűz;
    QAction *elv1;
    QAction *mnufájlment;
    QAction *mnufájlmentmásként;
    QAction *elv2;
    QAction *mnufájlnyomtatás;
    QAction *elv3;
    /// The recent files, numbered from 1 on the screen and from 0 here; hidden unless filled.
    std::array<QAction *, legutóbbifájlok::legfeljebb> mnufájlfájl;

    QMenu *mnufeladat;
    QAction *mnufeladattanul;
    QAction *mnufeladatkikérd;
    QAction *mnufeladatválaszt;
    QAction *mnu_fájl_kirakó;
    QAction *mnufeladatmemória;

    QMenu *mnu_info;
    QAction *mnu_súgó;
    QAction *mnunévjegy;
    QAction *mnu_cim;

    QMenu *mnuszótár;
    QAction *mnuszótárkifejezések;

    QMenu *mnubeállítás;
    QAction *mnubeállításhang;
    QAction *mnubeállítászene;
};
