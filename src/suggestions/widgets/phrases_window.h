#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <functional>

#include "suggestions/phrase_list.h"
#include "ui/window/window.h"
#include "ui/window/window_surroundings.h"

/// What the window of phrases is given. Everything referred to must outlive it.
struct kifejezéskörnyezet {
    ablakkörnyezet közös;
    /// Called on a thread of its own.
    kifejezéslista::keresés keresés;
    /// Adds a pair to the word list, with a beep, or tells why not; true when it is there.
    std::function<bool(const QString &angol, const QString &magyar)> hozzáad;
    /// Called from the event loop after the user has closed the window, which may be destroyed then.
    std::function<void()> bezárva;
};

/// The window of phrases: finds words anywhere in headwords and meanings of both dictionaries, while they are typed.
/// Enter and a double click add the pair, Ctrl+C copies it.
class frm_kifejezések final : public ablak {
  public:
    explicit frm_kifejezések(const kifejezéskörnyezet &környezet);

    /// Searches for a text as if it were typed.
    void keres(const QString &szöveg);

  protected:
    void Form_Resize() override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

  private:
    void elhelyezés();
    void eseményeket_köt();
    void txt_kifejezés_Change();
    /// All that there is has been found.
    void keresés_vége(bool volt_mit);
    void lst_kifejezések_Change();
    void cmd_kifejezést_ad_Click();
    void másol();

    const kifejezéskörnyezet k_;
    kifejezéslista lista_;
    QLabel *Label_kifejezés_;
    QLineEdit *txt_kifejezés_;
    QLabel *Label_kifejezések_;
    QTreeView *lst_kifejezések_;
    QPushButton *cmd_kifejezést_ad_;
    QPushButton *cmd_bezár_;
};
