#pragma once

#include <QComboBox>
#include <QLabel>
#include <QTimer>
#include <QToolBar>
#include <functional>
#include <memory>

#include "lookup/help_address.h"
#include "lookup/widgets/web_browser.h"
#include "platform/dialogs.h"
#include "ui/controls/picture_box.h"
#include "ui/window/window.h"
#include "ui/window/window_surroundings.h"

/// What the help viewer is given. Everything referred to must outlive it.
struct súgókörnyezet {
    ablakkörnyezet közös;
    /// Text of the program folder, without a separator at its end.
    QString programkönyvtár;
    /// Shows a short note, such as why a link was not opened.
    std::function<void(const QString &szöveg)> rövidüzenet;
    /// Tells something in a message box, unless it was told before.
    std::function<void(const QString &szöveg)> egyszer_szól;
    WebBrowserFactory böngésző;
    /// Called from the event loop after the user has closed the window, which may be destroyed then.
    std::function<void()> bezárva;
};

/// The help viewer: a small browser that opens the help document when it loads. Without a browser engine it tells why,
/// and stays empty.
class frm_súgó final : public ablak {
  public:
    /// Loads the window and opens the help document.
    explicit frm_súgó(const súgókörnyezet &környezet);

    /// Puts an address into the address box and opens it.
    void megnyit(const QString &cím);
    /// Opens the help document unless it is the one that is shown.
    void súgóhoz();

  protected:
    void Form_Resize() override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

  private:
    /// What a button of the toolbar does to the browser.
    using teendő = void (WebBrowser::*)();

    void eszköztár();
    void címsor();
    void böngészőt_készít();
    void elhelyezés();
    void Form_Load();
    /// Tells when the help document is damaged, which is shown as a blank page.
    void sérülést_elmond();
    void navigál();
    void lapnév();

    void timTimer_Timer();
    void brwWebBrowser_DownloadComplete();
    void brwWebBrowser_NavigateComplete();
    void cboAddress_Click();
    void cboAddress_KeyPress();
    void tbToolBar_ButtonClick(teendő mi);

    const súgókörnyezet k_;
    const súgócímek címek_;
    const QString kezdőcím_;
    QToolBar *tbToolBar_;
    PictureBox *picAddress_;
    QLabel *lblAddress_;
    QComboBox *cboAddress_;
    QTimer *timTimer_;
    /// The control `brwWebBrowser` is its widget.
    std::unique_ptr<WebBrowser> brwWebBrowser_;
};
