#include "platform/windows/web_control_site.h"

#include <mshtmdid.h>
#include <mshtmlc.h>
#include <ocidl.h>

namespace {

using Microsoft::WRL::ComPtr;

/// The window around the control, as far as the control takes notice of it.
class Frame final : public ComObject<IOleInPlaceFrame> {
  public:
    explicit Frame(HWND window) : window_(window) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void **to) override {
        if (wanted == IID_IUnknown || wanted == IID_IOleWindow || wanted == IID_IOleInPlaceUIWindow ||
            wanted == IID_IOleInPlaceFrame)
            return give(static_cast<IOleInPlaceFrame *>(this), to);
        return refuse(to);
    }

    HRESULT STDMETHODCALLTYPE GetWindow(HWND *window) override {
        *window = window_;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }

    // It lends the control no room for tool bars, no menu and no status line.
    HRESULT STDMETHODCALLTYPE GetBorder(RECT *) override { return INPLACE_E_NOTOOLSPACE; }
    HRESULT STDMETHODCALLTYPE RequestBorderSpace(const BORDERWIDTHS *) override { return INPLACE_E_NOTOOLSPACE; }
    HRESULT STDMETHODCALLTYPE SetBorderSpace(const BORDERWIDTHS *) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject *, LPCOLESTR) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE InsertMenus(HMENU, OLEMENUGROUPWIDTHS *) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG *, WORD) override { return S_FALSE; }

  private:
    HWND window_;
};

}  // namespace

HRESULT WebControlSite::QueryInterface(REFIID wanted, void **to) {
    if (wanted == IID_IUnknown || wanted == IID_IOleClientSite)
        return give(static_cast<IOleClientSite *>(this), to);
    if (wanted == IID_IOleWindow || wanted == IID_IOleInPlaceSite)
        return give(static_cast<IOleInPlaceSite *>(this), to);
    if (wanted == IID_IDispatch)
        return give(static_cast<IDispatch *>(this), to);
    return refuse(to);
}

HRESULT WebControlSite::GetContainer(IOleContainer **container) {
    *container = nullptr;
    return E_NOINTERFACE;
}

HRESULT WebControlSite::GetWindow(HWND *window) {
    *window = window_;
    return S_OK;
}

HRESULT WebControlSite::GetWindowContext(IOleInPlaceFrame **frame, IOleInPlaceUIWindow **document, RECT *place,
                                         RECT *clip, OLEINPLACEFRAMEINFO *info) {
    *frame = new Frame(window_);
    *document = nullptr;
    GetClientRect(window_, place);
    *clip = *place;
    info->fMDIApp = FALSE;
    info->hwndFrame = window_;
    info->haccel = nullptr;
    info->cAccelEntries = 0;
    return S_OK;
}

HRESULT WebControlSite::GetTypeInfoCount(UINT *count) {
    *count = 0;
    return S_OK;
}

HRESULT WebControlSite::Invoke(DISPID which, REFIID, LCID, WORD, DISPPARAMS *, VARIANT *result, EXCEPINFO *, UINT *) {
    if (which != DISPID_AMBIENT_DLCONTROL || result == nullptr)
        return DISP_E_MEMBERNOTFOUND;
    result->vt = VT_I4;
    result->lVal = DLCTL_DLIMAGES | DLCTL_NO_DLACTIVEXCTLS | DLCTL_NO_RUNACTIVEXCTLS | DLCTL_NO_JAVA | DLCTL_SILENT;
    return S_OK;
}
