#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVector>
#include <array>
#include <functional>
#include <memory>
#include <optional>

#include "dictionary/word_lookup.h"
#include "lookup/clipboard_word.h"
#include "lookup/widgets/large_window.h"
#include "platform/clipboard_watch.h"
#include "platform/dialogs.h"
#include "platform/top_most.h"
#include "state/global.h"
#include "suggestions/offer_list.h"
#include "ui/controls/link_list.h"
#include "ui/controls/list_box.h"
#include "ui/window/window.h"
#include "ui/window/window_surroundings.h"

/// What the mini window is given. Everything referred to must outlive it.
struct kisablakkörnyezet {
    ablakkörnyezet közös;
    nagyablak &nagy;
    /// What is looked up in the main window and shown here, too.
    szókereső &kereső;
    /// What was probably meant by it.
    ajánlatlista &ajánlatok;
    global::programállapot &állapot;
    TopMost &legfelül;
    /// Begins to watch the clipboard.
    std::function<std::unique_ptr<ClipboardWatch>()> vágólap;
    /// Places of all screens, in twips.
    std::function<QVector<QRectF>()> képernyők;
    /// Lets a moment pass between two steps of a glide, without input.
    std::function<void()> lépésköz;
};

/// The mini lookup window: stays above the windows of other programs while the main window is hidden, looks up what is
/// typed into it and every word that another program copies, and adds to the word list. The main window does all of the
/// work; the lists of both are views of the same search.
class frm_kisablak final : public ablak {
  public:
    /// Loads the window; it opens when it is shown.
    explicit frm_kisablak(const kisablakkörnyezet &környezet);
    /// Tells that the window is lost, unless the program ends anyway.
    ~frm_kisablak() override;

    frm_kisablak(const frm_kisablak &) = delete;
    frm_kisablak &operator=(const frm_kisablak &) = delete;

    /// Glides from the middle of the main window to its own place; on a screen that is not there any more, to the
    /// nearest place on one that is.
    void Form_Activate();

    /// True while other events run in the midst of something: the window must not be destroyed now.
    [[nodiscard]] bool foglalt() const { return foglalt_ > 0; }

    bool eventFilter(QObject *watched, QEvent *event) override;

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

  private:
    /// Counts what lets other events run.
    struct Foglalt {
        explicit Foglalt(frm_kisablak &mi) : mi_(mi) { ++mi_.foglalt_; }
        ~Foglalt() { --mi_.foglalt_; }
        Foglalt(const Foglalt &) = delete;
        Foglalt &operator=(const Foglalt &) = delete;

      private:
        frm_kisablak &mi_;
    };

    void elhelyezés();
    void fejlécet_elrendez();
    void eseményeket_köt();
    void ablakcsúsztat(const QPointF &honnan, const QPointF &hová);
    void helyez(const QPointF &hová);
    void helyet_megjegyez();
    /// What the controls' events do to the window; true when the control itself is not to see them.
    bool billentyű(const QKeyEvent &esemény);
    bool fejlécgomb(QLabel &gomb, const QMouseEvent &esemény);
    bool fogás_gombon(QPushButton &gomb, const QMouseEvent &esemény);

    void txt_keres_Change();
    void cmd_keres_Click();
    void Timer1_Timer();
    void Timer_fejléc_Timer();
    void lst_találatlista_Click();
    void lst_translate_DblClick();
    void lst_ajánlatok_Click(int i);
    /// The title names the direction.
    void címet_ír();
    /// Tells in the header for a while what has been added to the word list.
    void felvettet_mutat();
    void keresőmezőbe();
    void cmd_szószedethez_ad_Click();
    void cmd_kilép_Click();
    void cmd_x_Click();
    void cmd_lent_Click();
    void label_fejléc_MouseDown(const QPointF &mutató);
    void label_fejléc_MouseMove(const QPointF &mutató);

    const kisablakkörnyezet k_;
    QLabel *label_fejléc_;
    QLabel *cmd_lent_;
    QLabel *cmd_x_;
    /// Top, bottom, left and right line round the header.
    std::array<QFrame *, 4> Line1_;
    QLabel *Label1_;
    LinkList *lst_ajánlatok_;
    QLineEdit *txt_keres_;
    QPushButton *cmd_keres_;
    ListBox *lst_találatlista_;
    ListBox *lst_translate_;
    QPushButton *cmd_szószedethez_ad_;
    QPushButton *cmd_kilép_;
    QTimer *Timer1_;
    /// Runs while the header tells something else than its title.
    QTimer *Timer_fejléc_;
    std::unique_ptr<ClipboardWatch> vágólap_;
    vágólapszó vágólapszöveg_;
    /// Place of the top left corner among all screens, in twips; exact where the program has put it.
    QPointF hol_;
    /// The corner that it was sent to last; nothing once it has been dragged away.
    std::optional<QPointF> sarok_;
    /// Where the left mouse button went down, in whole twips from the top left corner.
    qint32 fogáspontX_ = 0;
    qint32 fogáspontY_ = 0;
    /// A button has dragged the window, so letting it go is no click.
    bool gombbal_húz_ = false;
    QPointF fogás_kezdete_;
    /// Number of the newest word from the clipboard.
    int vágólapkeresés_ = 0;
    int foglalt_ = 0;
};
