#pragma once

#include <windows.h>

#include <unknwn.h>

#include <atomic>

/// An object that is handed to the system and lives as long as somebody holds it. `First` stands for it where only an
/// IUnknown is wanted. A class of this kind is made with new and given to a ComPtr by Attach().
template <class First, class... Others>
class ComObject : public First, public Others... {
  public:
    ComObject() = default;
    virtual ~ComObject() = default;
    ComObject(const ComObject &) = delete;
    ComObject &operator=(const ComObject &) = delete;

    ULONG STDMETHODCALLTYPE AddRef() final { return ++holders_; }

    ULONG STDMETHODCALLTYPE Release() final {
        const ULONG left = --holders_;
        if (left == 0)
            delete this;
        return left;
    }

  protected:
    /// Gives out one of the object's interfaces.
    template <class Interface>
    HRESULT give(Interface *one, void **to) {
        *to = one;
        AddRef();
        return S_OK;
    }

    static HRESULT refuse(void **to) {
        *to = nullptr;
        return E_NOINTERFACE;
    }

  private:
    std::atomic<ULONG> holders_ = 1;
};
