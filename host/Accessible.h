// Accessible: a control's window as screen readers and other assistive programs meet it.
#pragma once

#include "host/ComObject.h"

#include <oleacc.h>

namespace host {

class Control;

/// Says of the window what its control says (`Control::Accessibility`), and for all else (place, children, neighbours) what Windows says of
/// any window. It holds on to the window's handle alone and looks for the control at every call: as soon as the control has ended, or shows
/// another window, it answers CO_E_OBJNOTCONNECTED, however long a reader keeps it.
class Accessible final : public ComObject<IAccessible, &IID_IAccessible> {
public:
    explicit Accessible(HWND window) : window_(window) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) noexcept override;

    // Readers call the members by their places in the table; nobody calls them by name.
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) noexcept override
    {
        return E_NOTIMPL;
    }

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT, BSTR*) noexcept override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR*, VARIANT, LONG*) noexcept override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) noexcept override;
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) noexcept override;
    HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) noexcept override;
    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) noexcept override;
    HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) noexcept override;
    HRESULT STDMETHODCALLTYPE accHitTest(LONG x, LONG y, VARIANT* child) noexcept override;
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) noexcept override;
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) noexcept override { return DISP_E_MEMBERNOTFOUND; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) noexcept override;

private:
    enum class Text { Name, Value, Description, Shortcut, Action };
    enum class Number { Role, State };
    using TextMember = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);
    using NumberMember = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, VARIANT*);

    /// The control that shows the window now, or null.
    [[nodiscard]] Control* Shower() const noexcept;
    /// What Windows knows of the window by itself; null when it can't be had.
    [[nodiscard]] ComPointer<IAccessible> Standard() const noexcept;
    template <class Ask>
    HRESULT AskWindows(Ask ask) const noexcept;
    HRESULT Tell(Text which, TextMember member, const VARIANT& child, BSTR* text) const noexcept;
    HRESULT Tell(Number which, NumberMember member, const VARIANT& child, VARIANT* number) const noexcept;

    const HWND window_;
};

}  // namespace host
