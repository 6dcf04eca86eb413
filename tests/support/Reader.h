// Reader: what a screen reader hears of a window.
#pragma once

#include "base/SystemExport.h"

#include <oleacc.h>
#include <windows.h>

#include <string>
#include <utility>

namespace tests {

inline VARIANT Child(LONG number)
{
    VARIANT child{};
    child.vt = VT_I4;
    child.lVal = number;
    return child;
}
inline const VARIANT itself = Child(CHILDID_SELF);

/// Holds one accessible object.
class Reader {
public:
    Reader() = default;
    /// Takes over the caller's reference.
    explicit Reader(IAccessible* object) : object_(object) {}
    Reader(Reader&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Reader& operator=(Reader&& other) noexcept
    {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Reader()
    {
        if (object_)
            object_->Release();
    }

    /// Takes what a window of this process answered to WM_GETOBJECT; holds nothing where it answered with no object.
    static Reader Of(LRESULT answer)
    {
        const base::SystemExport<HRESULT WINAPI(LRESULT, REFIID, WPARAM, void**)> take(TEXT("oleacc.dll"), "ObjectFromLresult");
        void* object = nullptr;
        if (answer > 0)
            take(answer, IID_IAccessible, WPARAM{0}, &object);
        return Reader(static_cast<IAccessible*>(object));
    }

    IAccessible* operator->() const { return object_; }
    [[nodiscard]] explicit operator bool() const { return object_ != nullptr; }

    // What it answers, 0 or empty where it refuses.

    [[nodiscard]] LONG Role() const { return Number(&IAccessible::get_accRole); }
    [[nodiscard]] LONG State() const { return Number(&IAccessible::get_accState); }
    [[nodiscard]] std::string Name() const { return Text(&IAccessible::get_accName); }
    [[nodiscard]] std::string Action() const { return Text(&IAccessible::get_accDefaultAction); }
    [[nodiscard]] std::string Shortcut() const { return Text(&IAccessible::get_accKeyboardShortcut); }
    [[nodiscard]] std::string Value() const { return Text(&IAccessible::get_accValue); }
    [[nodiscard]] std::string Description() const { return Text(&IAccessible::get_accDescription); }

private:
    [[nodiscard]] LONG Number(HRESULT (STDMETHODCALLTYPE IAccessible::*member)(VARIANT, VARIANT*)) const
    {
        VARIANT number{};
        return SUCCEEDED((object_->*member)(itself, &number)) && number.vt == VT_I4 ? number.lVal : 0;
    }
    [[nodiscard]] std::string Text(HRESULT (STDMETHODCALLTYPE IAccessible::*member)(VARIANT, BSTR*)) const
    {
        BSTR text = nullptr;
        std::string read;
        if (SUCCEEDED((object_->*member)(itself, &text)) && text)
            for (const OLECHAR* unit = text; *unit != 0; ++unit)
                read += static_cast<char>(*unit);
        SysFreeString(text);
        return read;
    }

    IAccessible* object_ = nullptr;
};

}  // namespace tests
