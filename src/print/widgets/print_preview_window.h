#pragma once

#include <QPushButton>
#include <QSpinBox>

#include "print/page_recorder.h"
#include "print/widgets/page_view.h"
#include "ui/window/window.h"
#include "ui/window/window_fitting.h"

/// Shows the pages of a print-out as they will come out, one at a time.
class frm_nyomtatásikép final : public ablak {
  public:
    /// `lapok` must outlive the window, and hold a page at least.
    frm_nyomtatásikép(const Module_hasznos &hasznos, const ablak &főablak, const PageRecorder &lapok);

  protected:
    void Form_Resize() override;
    void showEvent(QShowEvent *event) override;

  private:
    QPushButton *gomb(const char16_t *név, const QString &felirat, double szélesség, const QList<QKeySequence> &kulcsok,
                      void (frm_nyomtatásikép::*mit)());
    void elhelyezés();
    /// Tells how many lines the edges of the paper cut off, if they do; the height that it takes.
    double lemaradókat_mutat();

    void cmd_első_Click() { lapra(0); }
    void cmd_előző_Click() { lapra(kép_->page() - 1); }
    void cmd_következő_Click() { lapra(kép_->page() + 1); }
    void cmd_utolsó_Click() { lapra(lapok_.page_count() - 1); }
    void cmd_kicsinyít_Click();
    void cmd_nagyít_Click();
    void cmd_egészoldal_Click() { kép_->fit(PageView::Fit::whole_page); }
    void cmd_oldalszélesség_Click() { kép_->fit(PageView::Fit::page_width); }
    void cmd_bezár_Click() { hide(); }

    void lapra(int lap);
    /// Enables the buttons that lead somewhere.
    void gombokat_beállít();

    const PageRecorder &lapok_;
    /// Right edge of the buttons that have been placed.
    double idáig_ = 0;
    QPushButton *cmd_első_;
    QPushButton *cmd_előző_;
    QSpinBox *UpDown_oldal_;
    QPushButton *cmd_következő_;
    QPushButton *cmd_utolsó_;
    PageView *kép_;
};
