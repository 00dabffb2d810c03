#include "platform/windows/web_control_events.h"

#include <exdispid.h>

#include <utility>

namespace {

using Microsoft::WRL::ComPtr;

// An event's arguments come last first.

/// The text that an argument is or refers to.
QString text_of(const VARIANT &argument) {
    const VARIANT *value = &argument;
    if (value->vt == (VT_BYREF | VT_VARIANT))
        value = value->pvarVal;
    if (value->vt == VT_BSTR)
        return QString::fromWCharArray(value->bstrVal, static_cast<qsizetype>(SysStringLen(value->bstrVal)));
    return {};
}

int number_of(const VARIANT &argument) {
    const VARIANT *value = &argument;
    if (value->vt == (VT_BYREF | VT_VARIANT))
        value = value->pvarVal;
    return value->vt == VT_I4 ? static_cast<int>(value->lVal) : 0;
}

void say_yes(const VARIANT &argument) {
    if (argument.vt == (VT_BYREF | VT_BOOL))
        *argument.pboolVal = VARIANT_TRUE;
}

}  // namespace

WebControlEvents::WebControlEvents(IWebBrowser2 &control, WebControl::Events events)
    : control_(control), events_(std::move(events)) {}

HRESULT WebControlEvents::QueryInterface(REFIID wanted, void **to) {
    if (wanted == IID_IUnknown || wanted == IID_IDispatch || wanted == DIID_DWebBrowserEvents2)
        return give(static_cast<IDispatch *>(this), to);
    return refuse(to);
}

HRESULT WebControlEvents::GetTypeInfoCount(UINT *count) {
    *count = 0;
    return S_OK;
}

HRESULT WebControlEvents::Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS *arguments, VARIANT *, EXCEPINFO *,
                                 UINT *) {
    struct Known {
        DISPID event;
        UINT arguments;
    };
    constexpr Known before{DISPID_BEFORENAVIGATE2, 7};
    constexpr Known navigated{DISPID_NAVIGATECOMPLETE2, 2};
    constexpr Known failed{DISPID_NAVIGATEERROR, 5};
    constexpr Known window{DISPID_NEWWINDOW3, 5};
    constexpr Known file{DISPID_FILEDOWNLOAD, 2};
    const auto is = [&](const Known &known) { return event == known.event && arguments->cArgs == known.arguments; };
    VARIANT *values = arguments->rgvarg;
    if (is(before))
        before_navigation(values);
    else if (is(failed))
        navigation_failed(values);
    else if (is(window))
        new_window(values);
    else if (is(file))
        file_offered(values);
    else if (is(navigated) && is_whole_window(values[1]))
        events_.navigation_finished();
    else if (event == DISPID_DOWNLOADCOMPLETE)
        events_.download_finished();
    else
        return DISP_E_MEMBERNOTFOUND;
    return S_OK;
}

bool WebControlEvents::is_whole_window(const VARIANT &source) const {
    if (source.vt != VT_DISPATCH || source.pdispVal == nullptr)
        return false;
    ComPtr<IUnknown> one;
    ComPtr<IUnknown> other;
    source.pdispVal->QueryInterface(IID_PPV_ARGS(one.GetAddressOf()));
    control_.QueryInterface(IID_PPV_ARGS(other.GetAddressOf()));
    return one.Get() == other.Get();
}

void WebControlEvents::before_navigation(VARIANT *arguments) {
    if (!events_.may_open(text_of(arguments[5]), is_whole_window(arguments[6])))
        say_yes(arguments[0]);
}

void WebControlEvents::navigation_failed(VARIANT *arguments) {
    const int code = number_of(arguments[1]);
    // A small number is a server's own, which has sent a page of its own.
    constexpr int greatest_of_servers = 999;
    if (!is_whole_window(arguments[4]) || (code > 0 && code <= greatest_of_servers))
        return;
    // The control's page about it would be in the language of the system.
    say_yes(arguments[0]);
    events_.failed(text_of(arguments[3]), code);
}

void WebControlEvents::new_window(VARIANT *arguments) {
    say_yes(arguments[3]);
    events_.new_window(text_of(arguments[0]));
}

void WebControlEvents::file_offered(VARIANT *arguments) {
    // A document that the control shows is no file to be saved.
    const bool shown = arguments[1].vt == VT_BOOL && arguments[1].boolVal != VARIANT_FALSE;
    if (shown)
        return;
    say_yes(arguments[0]);
    events_.file_refused();
}
