#include "app/main_window_controls.h"

#include <QMenuBar>
#include <limits>

#include "ui/controls/named.h"

namespace {

// The design, in twips. Two heights follow from it: `Ok` ends at 3860 and `módosít` at 7370, 850 above the window's
// resting heights of 4710 and 8220.
constexpr double margin = 120;
constexpr double gap = 180;
constexpr double list_width = 3850;
constexpr double button_width = 2300;
constexpr double row_height = 420;
constexpr double left_column = margin;
constexpr double middle_column = left_column + list_width + gap;
constexpr double right_column = middle_column + list_width + gap;

constexpr double caption_top = 100;
constexpr double caption_height = 300;
constexpr double search_top = caption_top + caption_height;
constexpr double hits_top = search_top + row_height + 90;
constexpr double lookup_bottom = 3320;
constexpr double lookup_buttons_top = 3860 - row_height;
constexpr double mini_window_top = 1420;
constexpr double address_top = 2960;
constexpr double pairs_top = 4060;
constexpr double pairs_bottom = 6830;
constexpr double edit_top = 7370 - row_height;

template <class Control>
Control *placed(ablak &window, Control *control, const char16_t *name, const QRectF &place,
                const char16_t *accessible_name) {
    window.elhelyez(named(control, name, accessible_name), place);
    return control;
}

/// Reads a million letters in one line too, as a file may hold them.
QLineEdit *text_box() {
    auto *box = new QLineEdit;
    box->setMaxLength(std::numeric_limits<int>::max());
    return box;
}

QPushButton *disabled_button(const QString &caption) {
    auto *button = new QPushButton(caption);
    button->setEnabled(false);
    return button;
}

/// The control exists and is found by its name, but is never seen.
template <class Control>
Control *never_shown(Control *control) {
    control->hide();
    return control;
}

/// What the makers' page is called; its address is nothing that anybody would want to read.
const QString készítők_lapja = QStringLiteral("A Zimbora lapja");

/// A label that looks like what it is: a click on it opens something.
QLabel *link(const QString &caption) {
    auto *label = new QLabel(QStringLiteral("<a href='#'>%1</a>").arg(caption));
    label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QAction *separator(QMenu &menu, const char16_t *name) {
    return named(menu.addSeparator(), name);
}

}  // namespace

szótárvezérlők::szótárvezérlők(ablak &mire, szópárlista &lista)
    // In the order of reading, which is the order of Tab. "Szószedetből töröl" comes right behind the list: it
    // would be disabled if the focus went anywhere else.
    : Label1(placed(mire, new QLabel(QStringLiteral("&Angolul:")), u"Label1",
                    {left_column, caption_top, list_width, caption_height}, nullptr)),
      angolszó(
          placed(mire, text_box(), u"angolszó", {left_column, search_top, list_width, row_height}, u"Keresett szó")),
      Ok(placed(mire, disabled_button(QStringLiteral("Ok")), u"Ok",
                {left_column, lookup_buttons_top, list_width * 0.4, row_height}, u"Ok, keresés")),
      szólist(placed(mire, new ListBox, u"szólist", {left_column, hits_top, list_width, lookup_bottom - hits_top},
                     u"Találatok")),
      Label2(placed(mire, new QLabel(QStringLiteral("Magyarul:")), u"Label2",
                    {middle_column, caption_top, list_width, caption_height}, nullptr)),
      magyarlist(placed(mire, new ListBox, u"magyarlist",
                        {middle_column, search_top, list_width, lookup_bottom - search_top}, u"Jelentések")),
      Label3(placed(mire, new QLabel, u"Label3",
                    {left_column + list_width * 0.44, lookup_buttons_top, list_width * 0.56, row_height}, nullptr)),
      hozzáad(placed(mire, disabled_button(QStringLiteral("Szószedethez ad")), u"hozzáad",
                     {middle_column, lookup_buttons_top, list_width, row_height}, u"Szószedethez ad")),
      nyelv{placed(mire, new QRadioButton(QStringLiteral("Angolról magyarra")), u"nyelv(0)",
                   {right_column, search_top, button_width, row_height}, u"Angolról magyarra"),
            placed(mire, new QRadioButton(QStringLiteral("Magyarról angolra")), u"nyelv(1)",
                   {right_column, search_top + row_height, button_width, row_height}, u"Magyarról angolra")},
      cmd_kisablak(placed(mire, new QPushButton(QStringLiteral("Kisablak")), u"cmd_kisablak",
                          {right_column, mini_window_top, button_width, row_height}, u"Kisablak")),
      Label4(placed(mire, link(készítők_lapja), u"Label4", {right_column, address_top, button_width, caption_height},
                    u"A készítők lapja")),
      kilép(placed(mire, new QPushButton(QStringLiteral("Kilép")), u"kilép",
                   {right_column, lookup_buttons_top, button_width, row_height}, u"Kilép")),
      megoldlist(placed(mire, never_shown(new ListBox), u"megoldlist", {left_column, hits_top, list_width, row_height},
                        u"A találatok jelentései")),
      Command2(placed(mire, never_shown(new QPushButton(QStringLiteral("Állományt átalakít (nem látható)"))),
                      u"Command2", {right_column, hits_top, button_width, row_height}, u"Állományt átalakít")),
      szószedet(placed(mire, new ListBox(&lista, szópárlista::angol_oszlop), u"szószedet",
                       {left_column, pairs_top, list_width, pairs_bottom - pairs_top}, u"Szószedet, angol szavak")),
      szómagylist(placed(mire, new ListBox(&lista, szópárlista::magyar_oszlop), u"szómagylist",
                         {middle_column, pairs_top, list_width, pairs_bottom - pairs_top},
                         u"Szószedet, magyar szavak")),
      sztöröl(placed(mire, disabled_button(QStringLiteral("Szószedetből töröl")), u"sztöröl",
                     {right_column, pairs_top, button_width, row_height}, u"Szószedetből töröl")),
      szóangtext(placed(mire, text_box(), u"szóangtext", {left_column, edit_top, list_width, row_height},
                        u"A kijelölt pár angol szava")),
      szómagytext(placed(mire, text_box(), u"szómagytext", {middle_column, edit_top, list_width, row_height},
                         u"A kijelölt pár magyar szava")),
      módosít(placed(mire, disabled_button(QStringLiteral("Módosít")), u"módosít",
                     {right_column, edit_top, button_width, row_height}, u"Módosít")) {
    Label1->setBuddy(angolszó);
    nyelv[0]->setChecked(true);
    sztöröl->setProperty("tag", QStringLiteral("*"));
    // The Hungarian list shows the same pairs in step; the English one takes the keyboard for both.
    szómagylist->setFocusPolicy(Qt::NoFocus);
    QWidget *előző = angolszó;
    for (QWidget *következő :
         std::initializer_list<QWidget *>{szólist, Ok, magyarlist, hozzáad, nyelv[0], nyelv[1], cmd_kisablak, Label4,
                                          kilép, szószedet, sztöröl, szóangtext, szómagytext, módosít}) {
        QWidget::setTabOrder(előző, következő);
        előző = következő;
    }
}

szótármenü::szótármenü(QMenuBar &sor)
    : mnufájl(named(sor.addMenu(QStringLiteral("&Fájl")), u"mnufájl")),
      mnufájlúj(named(mnufájl->addAction(QStringLiteral("&Új")), u"mnufájlúj")),
      mnufájlmegnyit(named(mnufájl->addAction(QStringLiteral("Meg&nyit...")), u"mnufájlmegnyit")),
      mnufájlhozzáfűz(named(mnufájl->addAction(QStringLiteral("Szószedetet &hozzáfűz")), u"mnufájlhozzáfűz")),
      elv1(separator(*mnufájl, u"elv1")),
      mnufájlment(named(mnufájl->addAction(QStringLiteral("&Ment")), u"mnufájlment")),
      mnufájlmentmásként(named(mnufájl->addAction(QStringLiteral("Ment másként...")), u"mnufájlmentmásként")),
      elv2(separator(*mnufájl, u"elv2")),
      mnufájlnyomtatás(named(mnufájl->addAction(QStringLiteral("Nyomtatás...")), u"mnufájlnyomtatás")),
      elv3(separator(*mnufájl, u"elv3")),
      mnufeladat(named(sor.addMenu(QStringLiteral("Fel&adatok")), u"mnufeladat")),
      mnufeladattanul(named(mnufeladat->addAction(QStringLiteral("&Tanulás")), u"mnufeladattanul")),
      mnufeladatkikérd(named(mnufeladat->addAction(QStringLiteral("&Kikérdezés")), u"mnufeladatkikérd")),
      mnufeladatválaszt(named(mnufeladat->addAction(QStringLiteral("&Választás")), u"mnufeladatválaszt")),
      mnu_fájl_kirakó(named(mnufeladat->addAction(QStringLiteral("&Kirakó")), u"mnu_fájl_kirakó")),
      mnufeladatmemória(named(mnufeladat->addAction(QStringLiteral("&Memória")), u"mnufeladatmemória")),
      mnu_info(named(sor.addMenu(QStringLiteral("&Info")), u"mnu_info")),
      mnu_súgó(named(mnu_info->addAction(QStringLiteral("&Súgó")), u"mnu_súgó")),
      mnunévjegy(named(mnu_info->addAction(QStringLiteral("&Névjegy")), u"mnunévjegy")),
      mnu_cim(named(mnu_info->addAction(készítők_lapja), u"mnu_cim")),
      mnubeállítás(named(sor.addMenu(QStringLiteral("&Beállítások")), u"mnubeállítás")),
      mnubeállításhang(named(mnubeállítás->addAction(QStringLiteral("&Hangok...")), u"mnubeállításhang")),
      mnubeállítászene(named(mnubeállítás->addAction(QStringLiteral("&Zene...")), u"mnubeállítászene")) {
    mnufájlnyomtatás->setShortcut(QKeySequence::Print);
    mnu_súgó->setShortcut(Qt::Key_F1);
    sor.setObjectName(QStringLiteral("menüsor"));
    for (size_t i = 0; i < mnufájlfájl.size(); ++i) {
        mnufájlfájl[i] = mnufájl->addAction(QString());
        mnufájlfájl[i]->setObjectName(QStringLiteral("mnufájlfájl(%1)").arg(i + 1));
        mnufájlfájl[i]->setVisible(false);
    }
}
