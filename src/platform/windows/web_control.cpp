#include "platform/web_control.h"

#include <windows.h>

#include <exdisp.h>
#include <ole2.h>
#include <wrl/client.h>

#include <utility>

#include "platform/windows/web_control_events.h"
#include "platform/windows/web_control_site.h"

namespace {

using Microsoft::WRL::ComPtr;

/// A text as the system's automation has it.
class AutomationText final {
  public:
    explicit AutomationText(const QString &text) : text_(SysAllocString(text.toStdWString().c_str())) {}
    ~AutomationText() { SysFreeString(text_); }

    AutomationText(const AutomationText &) = delete;
    AutomationText &operator=(const AutomationText &) = delete;

    [[nodiscard]] BSTR get() const { return text_; }

  private:
    BSTR text_;
};

/// Without this entry the control shows pages as a browser of the year 2006 did. For the user's own account only, under
/// the name of the executable.
void ask_for_newest_engine() {
    constexpr DWORD newest = 11001;
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const QString name = QString::fromWCharArray(path).section(u'\\', -1);
    RegSetKeyValueW(HKEY_CURRENT_USER,
                    L"Software\\Microsoft\\Internet Explorer\\Main\\FeatureControl\\FEATURE_BROWSER_EMULATION",
                    name.toStdWString().c_str(), REG_DWORD, &newest, sizeof newest);
}

class HostedControl final : public WebControl {
  public:
    HostedControl(HWND window, ComPtr<IWebBrowser2> control, const Events &events)
        : window_(window), control_(std::move(control)) {
        site_.Attach(new WebControlSite(window));
        sink_.Attach(new WebControlEvents(*control_.Get(), events));
    }

    ~HostedControl() override {
        if (connected_)
            connection_->Unadvise(connected_);
        ComPtr<IOleObject> object;
        if (FAILED(control_.As(&object)))
            return;
        object->Close(OLECLOSE_NOSAVE);
        object->SetClientSite(nullptr);
    }

    HostedControl(const HostedControl &) = delete;
    HostedControl &operator=(const HostedControl &) = delete;

    /// Puts the control into its window; false when that fails.
    bool settle() {
        ComPtr<IOleObject> object;
        RECT place{};
        GetClientRect(window_, &place);
        if (FAILED(control_.As(&object)) || FAILED(object->SetClientSite(site_.Get())) ||
            FAILED(object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, site_.Get(), 0, window_, &place)))
            return false;
        ComPtr<IConnectionPointContainer> points;
        if (FAILED(control_.As(&points)) ||
            FAILED(points->FindConnectionPoint(DIID_DWebBrowserEvents2, connection_.GetAddressOf())) ||
            FAILED(connection_->Advise(sink_.Get(), &connected_)))
            return false;
        control_->put_Silent(VARIANT_TRUE);
        return true;
    }

    void resize(int width, int height) override {
        ComPtr<IOleInPlaceObject> object;
        const RECT place{0, 0, width, height};
        if (SUCCEEDED(control_.As(&object)))
            object->SetObjectRects(&place, &place);
    }

    void take_focus() override {
        ComPtr<IOleObject> object;
        RECT place{};
        GetClientRect(window_, &place);
        if (SUCCEEDED(control_.As(&object)))
            object->DoVerb(OLEIVERB_UIACTIVATE, nullptr, site_.Get(), 0, window_, &place);
    }

    bool take_key(void *message) override {
        auto *key = static_cast<MSG *>(message);
        ComPtr<IOleInPlaceActiveObject> object;
        return key->message >= WM_KEYFIRST && key->message <= WM_KEYLAST && IsChild(window_, key->hwnd) != 0 &&
               SUCCEEDED(control_.As(&object)) && object->TranslateAccelerator(key) == S_OK;
    }

    void set_zoom(int percent) override {
        VARIANT wanted{};
        wanted.vt = VT_I4;
        wanted.lVal = percent;
        control_->ExecWB(OLECMDID_OPTICAL_ZOOM, OLECMDEXECOPT_DONTPROMPTUSER, &wanted, nullptr);
    }

    void navigate(const QString &address) override {
        const AutomationText text(address);
        VARIANT where{};
        where.vt = VT_BSTR;
        where.bstrVal = text.get();
        VARIANT nothing{};
        control_->Navigate2(&where, &nothing, &nothing, &nothing, &nothing);
    }

    void go_back() override { control_->GoBack(); }
    void go_forward() override { control_->GoForward(); }
    void refresh() override { control_->Refresh(); }
    void go_home() override { control_->GoHome(); }
    void go_search() override { control_->GoSearch(); }
    void stop() override { control_->Stop(); }

    [[nodiscard]] bool busy() const override {
        VARIANT_BOOL answer = VARIANT_FALSE;
        return SUCCEEDED(control_->get_Busy(&answer)) && answer != VARIANT_FALSE;
    }

    [[nodiscard]] QString location_name() const override { return text_by(&IWebBrowser2::get_LocationName); }
    [[nodiscard]] QString location_address() const override { return text_by(&IWebBrowser2::get_LocationURL); }

  private:
    [[nodiscard]] QString text_by(HRESULT (STDMETHODCALLTYPE IWebBrowser2::*question)(BSTR *)) const {
        BSTR answer = nullptr;
        if (FAILED((control_.Get()->*question)(&answer)) || answer == nullptr)
            return {};
        QString text = QString::fromWCharArray(answer, static_cast<qsizetype>(SysStringLen(answer)));
        SysFreeString(answer);
        return text;
    }

    HWND window_;
    ComPtr<IWebBrowser2> control_;
    ComPtr<WebControlSite> site_;
    ComPtr<WebControlEvents> sink_;
    ComPtr<IConnectionPoint> connection_;
    DWORD connected_ = 0;
};

}  // namespace

std::unique_ptr<WebControl> make_web_control(quintptr window, const WebControl::Events &events) {
    ask_for_newest_engine();
    ComPtr<IWebBrowser2> control;
    if (FAILED(CoCreateInstance(CLSID_WebBrowser, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(control.GetAddressOf()))))
        return nullptr;
    auto hosted = std::make_unique<HostedControl>(reinterpret_cast<HWND>(window), std::move(control), events);
    return hosted->settle() ? std::move(hosted) : nullptr;
}
