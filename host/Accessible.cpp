#include "host/Accessible.h"

#include "base/SystemExport.h"
#include "host/AccessibleFacts.h"
#include "host/Form.h"
#include "host/TabOrder.h"
#include "host/Wall.h"

namespace host {

namespace {

using base::String;

/// As it is read: one "&" marks the access key, two are one.
String WithoutMarks(base::StringView caption)
{
    String read;
    for (std::size_t at = 0; at < caption.size(); ++at)
        if (caption[at] != TEXT('&') || (++at < caption.size()))
            read += caption[at];
    return read;
}

/// The label that stands directly before the control in its container and so is its name.
Control* LabelOf(Control& control)
{
    Control* before = nullptr;
    for (Control* const beside : control.GetExtender().Container().ContainedControls()) {
        if (beside == &control)
            break;
        before = beside;
    }
    return before && before->Kind() == TEXT("Label") ? before : nullptr;
}

bool IsTypedInto(const AccessibleFacts& facts)
{
    return facts.role == ROLE_SYSTEM_TEXT || facts.role == ROLE_SYSTEM_COMBOBOX;
}

/// Whether the user can reach it: neither the control nor anything that it stands on is disabled.
bool IsAvailable(const Control& control)
{
    HWND place = control.OwnHandle();
    while (place && IsWindowEnabled(place))
        place = GetParent(place);
    return control.Enabled() && !place;
}

/// A system window that lies over the control's own is the one that is met; the own one then counts as hidden.
LONG StateOf(const Control& control, const AccessibleFacts& facts, HWND window)
{
    const bool isSeen = window == control.hWnd() && IsWindowVisible(window);
    return facts.state | (isSeen ? 0 : STATE_SYSTEM_INVISIBLE) | (IsAvailable(control) ? 0 : STATE_SYSTEM_UNAVAILABLE) |
           (CanGetFocusNow(control) ? STATE_SYSTEM_FOCUSABLE : 0) | (GetFocus() == window ? STATE_SYSTEM_FOCUSED : 0);
}

bool IsSelf(const VARIANT& child)
{
    return child.vt == VT_I4 && child.lVal == CHILDID_SELF;
}

HRESULT Give(const String& text, BSTR* given)
{
    *given = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return *given ? S_OK : E_OUTOFMEMORY;
}

}  // namespace

HRESULT Accessible::QueryInterface(REFIID wanted, void** object) noexcept
{
    if (!object)
        return E_POINTER;
    if (IsEqualIID(wanted, IID_IEnumVARIANT)) {
        // Readers list the windows inside by this one.
        *object = nullptr;
        const ComPointer<IAccessible> standard = Shower() ? Standard() : ComPointer<IAccessible>();
        return standard ? standard->QueryInterface(wanted, object) : E_NOINTERFACE;
    }
    return ComObject::QueryInterface(IsEqualIID(wanted, IID_IDispatch) ? IID_IAccessible : wanted, object);
}

Control* Accessible::Shower() const noexcept
{
    const Form* const form = Form::Of(window_);
    return form ? form->ControlOf(window_) : nullptr;
}

ComPointer<IAccessible> Accessible::Standard() const noexcept
{
    const auto make = [this] {
        const base::SystemExport<HRESULT WINAPI(HWND, LONG, REFIID, void**)> create(TEXT("oleacc.dll"), "CreateStdAccessibleObject");
        void* made = nullptr;
        if (!create || FAILED(create(window_, OBJID_CLIENT, IID_IAccessible, &made)) || !made)
            return ComPointer<IAccessible>();
        ComPointer<IAccessible> standard(static_cast<IAccessible*>(made));
        standard->Release();
        return standard;
    };
    return BehindWall(make, [] { return ComPointer<IAccessible>(); });
}

template <class Ask>
HRESULT Accessible::AskWindows(Ask ask) const noexcept
{
    if (!Shower())
        return CO_E_OBJNOTCONNECTED;
    const ComPointer<IAccessible> standard = Standard();
    return standard ? ask(*standard.Get()) : E_OUTOFMEMORY;
}

HRESULT Accessible::Tell(Text which, TextMember member, const VARIANT& child, BSTR* text) const noexcept
{
    if (!text)
        return E_INVALIDARG;
    *text = nullptr;
    const auto tell = [&]() -> HRESULT {
        Control* const control = Shower();
        if (!control)
            return CO_E_OBJNOTCONNECTED;
        const auto askWindows = [&] { return AskWindows([&](IAccessible& window) { return (window.*member)(child, text); }); };
        if (!IsSelf(child))
            return askWindows();
        const AccessibleFacts facts = control->Accessibility();
        Control* const label = IsTypedInto(facts) ? LabelOf(*control) : nullptr;
        String told;
        switch (which) {
            case Text::Name:
                told = WithoutMarks(label ? label->Accessibility().caption : facts.caption);
                break;
            case Text::Value:
                if (!IsTypedInto(facts))
                    return DISP_E_MEMBERNOTFOUND;
                return (facts.state & STATE_SYSTEM_PROTECTED) != 0 ? E_ACCESSDENIED : Give(facts.value, text);
            case Text::Description:
                told = facts.description;
                break;
            case Text::Shortcut:
                told = (label ? *label : *control).AccessKey();
                if (!told.empty())
                    told = TEXT("Alt+") + base::ToUpper(told);
                break;
            case Text::Action:
                // What Windows' own kinds of windows do, Windows knows.
                if (!facts.action)
                    return askWindows();
                told = facts.action;
        }
        return told.empty() ? S_FALSE : Give(told, text);
    };
    return BehindWall(tell, [] { return E_OUTOFMEMORY; });
}

HRESULT Accessible::Tell(Number which, NumberMember member, const VARIANT& child, VARIANT* number) const noexcept
{
    if (!number)
        return E_INVALIDARG;
    number->vt = VT_EMPTY;
    const auto tell = [&]() -> HRESULT {
        Control* const control = Shower();
        if (!control)
            return CO_E_OBJNOTCONNECTED;
        if (!IsSelf(child))
            return AskWindows([&](IAccessible& window) { return (window.*member)(child, number); });
        const AccessibleFacts facts = control->Accessibility();
        number->vt = VT_I4;
        number->lVal = which == Number::Role ? facts.role : StateOf(*control, facts, window_);
        return S_OK;
    };
    return BehindWall(tell, [] { return E_OUTOFMEMORY; });
}

HRESULT Accessible::get_accName(VARIANT child, BSTR* name) noexcept
{
    return Tell(Text::Name, &IAccessible::get_accName, child, name);
}

HRESULT Accessible::get_accValue(VARIANT child, BSTR* value) noexcept
{
    return Tell(Text::Value, &IAccessible::get_accValue, child, value);
}

HRESULT Accessible::get_accDescription(VARIANT child, BSTR* description) noexcept
{
    return Tell(Text::Description, &IAccessible::get_accDescription, child, description);
}

HRESULT Accessible::get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) noexcept
{
    return Tell(Text::Shortcut, &IAccessible::get_accKeyboardShortcut, child, shortcut);
}

HRESULT Accessible::get_accDefaultAction(VARIANT child, BSTR* action) noexcept
{
    return Tell(Text::Action, &IAccessible::get_accDefaultAction, child, action);
}

HRESULT Accessible::get_accRole(VARIANT child, VARIANT* role) noexcept
{
    return Tell(Number::Role, &IAccessible::get_accRole, child, role);
}

HRESULT Accessible::get_accState(VARIANT child, VARIANT* state) noexcept
{
    return Tell(Number::State, &IAccessible::get_accState, child, state);
}

/// The key goes into the queue like one that was pressed: what it sets off may take its time, and the reader need not wait.
HRESULT Accessible::accDoDefaultAction(VARIANT child) noexcept
{
    const auto act = [&]() -> HRESULT {
        Control* const control = Shower();
        if (!control)
            return CO_E_OBJNOTCONNECTED;
        if (!IsSelf(child) || !control->Accessibility().action)
            return AskWindows([&](IAccessible& window) { return window.accDoDefaultAction(child); });
        const HWND pressed = control->hWnd();
        if (!IsAvailable(*control) || !IsWindowVisible(pressed))
            return E_FAIL;
        constexpr LPARAM once = 1, released = static_cast<LPARAM>(0xC0000001);
        return PostMessageW(pressed, WM_KEYDOWN, VK_SPACE, once) && PostMessageW(pressed, WM_KEYUP, VK_SPACE, released) ? S_OK
                                                                                                                        : E_OUTOFMEMORY;
    };
    return BehindWall(act, [] { return E_OUTOFMEMORY; });
}

HRESULT Accessible::get_accParent(IDispatch** parent) noexcept
{
    return AskWindows([&](IAccessible& window) { return window.get_accParent(parent); });
}

HRESULT Accessible::get_accChildCount(LONG* count) noexcept
{
    return AskWindows([&](IAccessible& window) { return window.get_accChildCount(count); });
}

HRESULT Accessible::get_accChild(VARIANT child, IDispatch** object) noexcept
{
    return AskWindows([&](IAccessible& window) { return window.get_accChild(child, object); });
}

HRESULT Accessible::get_accFocus(VARIANT* child) noexcept
{
    return AskWindows([&](IAccessible& window) { return window.get_accFocus(child); });
}

HRESULT Accessible::get_accSelection(VARIANT* children) noexcept
{
    return AskWindows([&](IAccessible& window) { return window.get_accSelection(children); });
}

HRESULT Accessible::accSelect(LONG flags, VARIANT child) noexcept
{
    return AskWindows([&](IAccessible& window) { return window.accSelect(flags, child); });
}

HRESULT Accessible::accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) noexcept
{
    return AskWindows([&](IAccessible& window) { return window.accLocation(left, top, width, height, child); });
}

HRESULT Accessible::accNavigate(LONG direction, VARIANT start, VARIANT* end) noexcept
{
    return AskWindows([&](IAccessible& window) { return window.accNavigate(direction, start, end); });
}

HRESULT Accessible::accHitTest(LONG x, LONG y, VARIANT* child) noexcept
{
    return AskWindows([&](IAccessible& window) { return window.accHitTest(x, y, child); });
}

HRESULT Accessible::put_accValue(VARIANT child, BSTR value) noexcept
{
    return AskWindows([&](IAccessible& window) { return window.put_accValue(child, value); });
}

}  // namespace host
