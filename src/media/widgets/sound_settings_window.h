#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "media/sound_settings.h"
#include "media/widgets/media_surroundings.h"
#include "ui/controls/file_list.h"
#include "ui/controls/list_box.h"

/// The settings of the feedback sounds: which waves are heard when, and where sounds are used at all. "Ok" and closing
/// save, "Mégsem" and Escape put back what is saved; the window only hides. A list plays what the user selects in it;
/// what the program selects is not heard.
class frm_hangbeáll final : public ablak {
  public:
    explicit frm_hangbeáll(const hangkörnyezet &környezet);

    /// Shows the window, with the sounds that are there now, until it is hidden.
    void mutat();

  protected:
    void closeEvent(QCloseEvent *event) override;

  private:
    /// One of the three lists with what belongs to it.
    struct Hangsor {
        névlista &nevek;
        QLabel *cím;
        ListBox *lista;
        QLabel *szám;
        QPushButton *hozzáad;
        QPushButton *töröl;
    };

    void Form_Load();
    void elhelyezés();
    void hangsort_elhelyez(const Hangsor &sor, double fent);
    void eseményeket_köt();

    void Filelist_Click();
    void cmd_play_Click();
    void cmd_hangtörlése_Click();
    void lista_Click(const Hangsor &sor);
    void hozzáadás(const Hangsor &sor);
    void törlés(const Hangsor &sor);
    void cmd_ok_Click();
    void cmd_mégsem_Click();

    void betölt();
    /// False, after telling why, when the files could not be written.
    [[nodiscard]] bool ment();
    void listát_mutat(const Hangsor &sor);
    void listákat_mutat();
    void kapcsolókat_mutat();
    void feliratok();
    void engedélyezés();

    const hangkörnyezet k_;
    hangbeállítások beállítások_;
    /// What has to be told when the window is shown next.
    std::optional<Failure> betöltés_baja_;

    QLabel *Label_hangszám_;
    FileListBox *Filelist_;
    QPushButton *cmd_play_;
    QPushButton *cmd_hangtörlése_;
    QGroupBox *frame_hangjelzések_;
    /// In the order of the file (hangbeállítások::kapcsoló), which is the order in the window, too.
    std::array<QCheckBox *, 5> chk_;
    std::array<Hangsor, 3> sorok_;
    QPushButton *cmd_ok_;
    QPushButton *cmd_mégsem_;
};
