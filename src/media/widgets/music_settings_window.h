#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <optional>

#include "media/music_settings.h"
#include "media/music_timer.h"
#include "media/widgets/media_surroundings.h"
#include "ui/controls/file_list.h"
#include "ui/controls/list_box.h"

/// The settings of the background music: the playlist, and whether it may be heard. Made by the first tick of the music
/// timer and hidden until the user wants it; the timer plays the list as it stands here, saved or not. An entry that is
/// selected, by the user or the program, is started, unless it is the piece that was started last. "Ok" saves;
/// "Mégsem", Escape and closing put back what is saved; each stops the music and hides the window.
class frm_zenebeáll final : public ablak, public lejátszólista {
  public:
    explicit frm_zenebeáll(const hangkörnyezet &környezet);

    /// Shows the window, with the pieces that are there now, until it is hidden.
    void mutat();

    [[nodiscard]] bool zene_enged() const override { return chk_zene_enged_->isChecked(); }
    [[nodiscard]] int darab() const override { return list_playlist_->count(); }
    [[nodiscard]] int kijelölt() const override { return list_playlist_->selected(); }
    [[nodiscard]] QString kijelölt_neve() const override { return list_playlist_->item(kijelölt()); }
    void kijelöl(int index) override { list_playlist_->select(index); }

  protected:
    void closeEvent(QCloseEvent *event) override;

  private:
    void elhelyezés();
    void eseményeket_köt();
    void Form_Load();

    void list_playlist_Click();
    void filelist_zene_Click();
    void cmd_add_Click();
    void cmd_törl_Click();
    void cmd_áthelyez_Click(int index);
    void cmd_ok_Click();
    void cmd_mégsem_Click();

    void betölt();
    void indít(const QString &név);
    void türelmet_kér(const QString &név);
    /// Shows the playlist and what is selected in it, which counts as a click.
    void listát_mutat();
    void engedélyezés();
    void leállít_és_elrejt();

    const hangkörnyezet k_;
    zenebeállítások beállítások_;
    /// What has to be told when the window is shown next.
    std::optional<Failure> betöltés_baja_;
    /// Path of the piece that was started last; "" at first.
    QString utolsó_;

    QLabel *Label2_;
    FileListBox *filelist_zene_;
    QPushButton *cmd_add_;
    QLabel *Label1_;
    ListBox *list_playlist_;
    QPushButton *cmd_törl_;
    QPushButton *fel_;
    QPushButton *le_;
    QCheckBox *chk_zene_enged_;
    QPushButton *cmd_ok_;
    QPushButton *cmd_mégsem_;
    QLabel *lab_türelem_;
};
