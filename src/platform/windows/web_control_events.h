#pragma once

#include <windows.h>

#include <exdisp.h>
#include <wrl/client.h>

#include "platform/web_control.h"
#include "platform/windows/com_object.h"

/// Takes what the control tells and asks (DWebBrowserEvents2), and hands it on.
class WebControlEvents final : public ComObject<IDispatch> {
  public:
    /// `control` outlives the connection to this object.
    WebControlEvents(IWebBrowser2 &control, WebControl::Events events);

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void **to) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT *count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo **) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR *, UINT, LCID, DISPID *) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS *arguments, VARIANT *, EXCEPINFO *,
                                     UINT *) override;

  private:
    /// True for the document that fills the window, false for a frame within it.
    [[nodiscard]] bool is_whole_window(const VARIANT &source) const;
    void before_navigation(VARIANT *arguments);
    void navigation_failed(VARIANT *arguments);
    void new_window(VARIANT *arguments);
    void file_offered(VARIANT *arguments);

    IWebBrowser2 &control_;
    const WebControl::Events events_;
};
