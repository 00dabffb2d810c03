#include "app/main_window_controls.h"

#include <QMenuBar>

#include "ui/controls/link_label.h"
#include "ui/controls/named.h"
#include "ui/controls/search_box.h"
#include "ui/controls/unlimited_line_edit.h"

using namespace Qt::StringLiterals;

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
constexpr double offers_top = mini_window_top + row_height + 60;
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
const QString készítők_lapja = u"A Zimbora lapja"_s;

/// A label that looks like what it is: a click on it opens something.
QLabel *link(const QString &caption) {
    auto *label = new LinkLabel(caption);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

/// Seen when looked for, and not before; hidden as long as it does not apply.
QLabel *quiet(QLabel *label) {
    QFont letters = label->font();
    letters.setItalic(true);
    label->setFont(letters);
    label->hide();
    return label;
}

LinkList *offers(ajánlatlista &list) {
    return new LinkList(&list, {ajánlatlista::hivatkozás_kezdete, ajánlatlista::hivatkozás_hossza},
                        LinkList::Layout::lines);
}

/// A key that does what the menu item does, once while it is held down.
void set_shortcut(QAction &item, const QKeySequence &keys) {
    item.setShortcut(keys);
    item.setAutoRepeat(false);
}

QAction *separator(QMenu &menu, const char16_t *name) {
    return named(menu.addSeparator(), name);
}

}  // namespace

keresővezérlők::keresővezérlők(ablak &mire, szókereső &kereső, ajánlatlista &ajánlatok)
    : Label1(placed(mire, new QLabel(u"&Angolul:"_s), u"Label1", {left_column, caption_top, list_width, caption_height},
                    nullptr)),
      angolszó(
          placed(mire, new SearchBox, u"angolszó", {left_column, search_top, list_width, row_height}, u"Keresett szó")),
      Ok(placed(mire, disabled_button(u"Ok"_s), u"Ok", {left_column, lookup_buttons_top, list_width * 0.4, row_height},
                u"Ok, keresés")),
      szólist(placed(mire, new ListBox(&kereső.találatok(), találatlista::címszó_oszlop, &kereső.kijelölt_találat()),
                     u"szólist", {left_column, hits_top, list_width, lookup_bottom - hits_top}, u"Találatok")),
      Label2(placed(mire, new QLabel(u"Magyarul:"_s), u"Label2",
                    {middle_column, caption_top, list_width, caption_height}, nullptr)),
      magyarlist(placed(mire, new ListBox(&kereső.jelentések(), 0, &kereső.kijelölt_jelentés()), u"magyarlist",
                        {middle_column, search_top, list_width, lookup_bottom - search_top}, u"Jelentések")),
      Label3(placed(mire, new QLabel, u"Label3",
                    {left_column + list_width * 0.44, lookup_buttons_top, list_width * 0.56, row_height}, nullptr)),
      hozzáad(placed(mire, disabled_button(u"Szószedethez ad"_s), u"hozzáad",
                     {middle_column, lookup_buttons_top, list_width, row_height}, u"Szószedethez ad")),
      nyelv{placed(mire, new QRadioButton(u"Angolról magyarra"_s), u"nyelv(0)",
                   {right_column, search_top, button_width, row_height}, u"Angolról magyarra"),
            placed(mire, new QRadioButton(u"Magyarról angolra"_s), u"nyelv(1)",
                   {right_column, search_top + row_height, button_width, row_height}, u"Magyarról angolra")},
      lst_ajánlatok(placed(mire, offers(ajánlatok), u"lst_ajánlatok",
                           {right_column, offers_top, button_width, address_top - offers_top}, u"Erre gondolt?")),
      megoldlist(placed(mire, never_shown(new ListBox(&kereső.találatok(), találatlista::jelentések_oszlop)),
                        u"megoldlist", {left_column, hits_top, list_width, row_height}, u"A találatok jelentései")),
      Command2(placed(mire, never_shown(new QPushButton(u"Állományt átalakít (nem látható)"_s)), u"Command2",
                      {right_column, hits_top, button_width, row_height}, u"Állományt átalakít")) {
    Label1->setBuddy(angolszó);
    nyelv[0]->setChecked(true);
}

szószedetvezérlők::szószedetvezérlők(ablak &mire, szópárlista &lista)
    : szószedet(placed(mire, new ListBox(&lista, szópárlista::angol_oszlop), u"szószedet",
                       {left_column, pairs_top, list_width, pairs_bottom - pairs_top}, u"Szószedet, angol szavak")),
      szómagylist(placed(mire, new ListBox(&lista, szópárlista::magyar_oszlop), u"szómagylist",
                         {middle_column, pairs_top, list_width, pairs_bottom - pairs_top},
                         u"Szószedet, magyar szavak")),
      sztöröl(placed(mire, disabled_button(u"Szószedetből töröl"_s), u"sztöröl",
                     {right_column, pairs_top, button_width, row_height}, u"Szószedetből töröl")),
      Label_mentetlen(placed(mire, quiet(new QLabel(u"Mentetlen változások"_s)), u"Label_mentetlen",
                             {right_column, pairs_top + row_height + 90, button_width, caption_height}, nullptr)),
      szóangtext(placed(mire, unlimited_line_edit(), u"szóangtext", {left_column, edit_top, list_width, row_height},
                        u"A kijelölt pár angol szava")),
      szómagytext(placed(mire, unlimited_line_edit(), u"szómagytext", {middle_column, edit_top, list_width, row_height},
                         u"A kijelölt pár magyar szava")),
      módosít(placed(mire, disabled_button(u"Módosít"_s), u"módosít",
                     {right_column, edit_top, button_width, row_height}, u"Módosít")) {
    sztöröl->setProperty("tag", u"*"_s);
    // The Hungarian list shows the same pairs in step; the English one takes the keyboard for both.
    szómagylist->setFocusPolicy(Qt::NoFocus);
}

szótárvezérlők::szótárvezérlők(ablak &mire, szókereső &kereső, ajánlatlista &ajánlatok, szópárlista &lista)
    : keresés(mire, kereső, ajánlatok),
      cmd_kisablak(placed(mire, new QPushButton(u"Kisablak"_s), u"cmd_kisablak",
                          {right_column, mini_window_top, button_width, row_height}, u"Kisablak")),
      Label4(placed(mire, link(készítők_lapja), u"Label4", {right_column, address_top, button_width, caption_height},
                    u"A készítők lapja")),
      kilép(placed(mire, new QPushButton(u"Kilép"_s), u"kilép",
                   {right_column, lookup_buttons_top, button_width, row_height}, u"Kilép")),
      szószedet(mire, lista) {
    // "Szószedetből töröl" comes right behind the list: it would be disabled if the focus went anywhere else.
    QWidget *előző = keresés.angolszó;
    for (QWidget *következő : std::initializer_list<QWidget *>{
             keresés.szólist, keresés.Ok, keresés.magyarlist, keresés.hozzáad, keresés.nyelv[0], keresés.nyelv[1],
             cmd_kisablak, keresés.lst_ajánlatok, Label4, kilép, szószedet.szószedet, szószedet.sztöröl,
             szószedet.szóangtext, szószedet.szómagytext, szószedet.módosít}) {
        QWidget::setTabOrder(előző, következő);
        előző = következő;
    }
}

szótármenü::szótármenü(QMenuBar &sor)
    : mnufájl(named(sor.addMenu(u"&Fájl"_s), u"mnufájl")),
      mnufájlúj(named(mnufájl->addAction(u"&Új"_s), u"mnufájlúj")),
      mnufájlmegnyit(named(mnufájl->addAction(u"Meg&nyit..."_s), u"mnufájlmegnyit")),
      mnufájlhozzáfűz(named(mnufájl->addAction(u"Szószedetet &hozzáfűz"_s), u"mnufájlhozzáfűz")),
      elv1(separator(*mnufájl, u"elv1")),
      mnufájlment(named(mnufájl->addAction(u"&Ment"_s), u"mnufájlment")),
      mnufájlmentmásként(named(mnufájl->addAction(u"Ment másként..."_s), u"mnufájlmentmásként")),
      elv2(separator(*mnufájl, u"elv2")),
      mnufájlnyomtatás(named(mnufájl->addAction(u"Nyomtatás..."_s), u"mnufájlnyomtatás")),
      elv3(separator(*mnufájl, u"elv3")),
      mnufeladat(named(sor.addMenu(u"Fel&adatok"_s), u"mnufeladat")),
      mnufeladattanul(named(mnufeladat->addAction(u"&Tanulás"_s), u"mnufeladattanul")),
      mnufeladatkikérd(named(mnufeladat->addAction(u"&Kikérdezés"_s), u"mnufeladatkikérd")),
      mnufeladatválaszt(named(mnufeladat->addAction(u"&Választás"_s), u"mnufeladatválaszt")),
      mnu_fájl_kirakó(named(mnufeladat->addAction(u"&Kirakó"_s), u"mnu_fájl_kirakó")),
      mnufeladatmemória(named(mnufeladat->addAction(u"&Memória"_s), u"mnufeladatmemória")),
      mnu_info(named(sor.addMenu(u"&Info"_s), u"mnu_info")),
      mnu_súgó(named(mnu_info->addAction(u"&Súgó"_s), u"mnu_súgó")),
      mnunévjegy(named(mnu_info->addAction(u"&Névjegy"_s), u"mnunévjegy")),
      mnu_cim(named(mnu_info->addAction(készítők_lapja), u"mnu_cim")),
      mnuszótár(named(sor.addMenu(u"&Szótár"_s), u"mnuszótár")),
      mnuszótárkifejezések(named(mnuszótár->addAction(u"&Kifejezések..."_s), u"mnuszótárkifejezések")),
      mnubeállítás(named(sor.addMenu(u"&Beállítások"_s), u"mnubeállítás")),
      mnubeállításhang(named(mnubeállítás->addAction(u"&Hangok..."_s), u"mnubeállításhang")),
      mnubeállítászene(named(mnubeállítás->addAction(u"&Zene..."_s), u"mnubeállítászene")) {
    mnuszótárkifejezések->setShortcut(Qt::Key_F3);
    set_shortcut(*mnufájlúj, QKeySequence::New);
    set_shortcut(*mnufájlmegnyit, QKeySequence::Open);
    set_shortcut(*mnufájlment, QKeySequence::Save);
    set_shortcut(*mnufájlnyomtatás, QKeySequence::Print);
    mnu_súgó->setShortcut(Qt::Key_F1);
    sor.setObjectName(u"menüsor"_s);
    for (size_t i = 0; i < mnufájlfájl.size(); ++i) {
        mnufájlfájl[i] = mnufájl->addAction(QString());
        mnufájlfájl[i]->setObjectName(u"mnufájlfájl(%1)"_s.arg(i + 1));
        mnufájlfájl[i]->setVisible(false);
    }
}
