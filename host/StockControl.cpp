#include "host/StockControl.h"

#include "host/Form.h"
#include "host/TabOrder.h"
#include "host/Wall.h"

#include <commctrl.h>

namespace host {

namespace {

constexpr UINT_PTR subclassId = 1;
constexpr const WCHAR* enabledKey = TEXT("Enabled");
constexpr const WCHAR* fontKey = TEXT("Font");

}  // namespace

StockControl::~StockControl() = default;

void StockControl::LoadNew()
{
    font_ = Ambient().Font();
    MakeWindow();
}

void StockControl::LoadStored(const PropertyBag& bag)
{
    ReadProperties(bag);
    enabled_ = bag.Read<bool>(enabledKey, true);
    font_ = bag.Read<std::shared_ptr<host::Font>>(fontKey, Ambient().Font());
    MakeWindow();
}

void StockControl::Store(PropertyBag& bag)
{
    WriteProperties(bag);
    bag.Write(enabledKey, enabled_, true);
    bag.Write(fontKey, font_, Ambient().Font());
}

void StockControl::MakeWindow()
{
    if (!ContainerWindow())
        return;
    const SystemWindow window = Describe();
    const RECT place = WindowRect(GetExtender().PixelRect());
    const DWORD style =
        window.style | WS_CHILD | WS_CLIPSIBLINGS | (GetExtender().Visible() ? WS_VISIBLE : 0) | (enabled_ ? 0 : WS_DISABLED);
    window_.Reset(CreateWindowExW(0, window.className, window.text.c_str(), style, place.left, place.top, place.right - place.left,
                                  place.bottom - place.top, ContainerWindow(), nullptr, GetModuleHandleW(nullptr), nullptr));
    if (!window_)
        return;
    SetWindowSubclass(hWnd(), &StockControl::Procedure, subclassId, reinterpret_cast<DWORD_PTR>(this));
    SendMessageW(hWnd(), WM_SETFONT, reinterpret_cast<WPARAM>(font_->Handle()), FALSE);
    Made();
}

void StockControl::Enabled(bool enabled)
{
    enabled_ = enabled;
    if (hWnd())
        EnableWindow(hWnd(), enabled);
}

void StockControl::Font(std::shared_ptr<host::Font> font)
{
    // The window keeps using the former font until it has the new one.
    const std::shared_ptr<host::Font> former = std::exchange(font_, font ? std::move(font) : Ambient().Font());
    if (hWnd())
        SendMessageW(hWnd(), WM_SETFONT, reinterpret_cast<WPARAM>(font_->Handle()), TRUE);
    Placed();
}

void StockControl::SetFocus()
{
    if (!CanGetFocusNow(*this))
        return;
    ParentForm().Activate(this);
    if (ParentForm().ActiveControl() == this && hWnd())
        ::SetFocus(hWnd());
}

void StockControl::Placed()
{
    if (!hWnd())
        return;
    const RECT place = WindowRect(GetExtender().PixelRect());
    SetWindowPos(hWnd(), nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

void StockControl::ContainerChanged()
{
    if (hWnd())
        SetParent(hWnd(), ContainerWindow());
    Placed();
}

LRESULT CALLBACK StockControl::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR control) noexcept
{
    auto* const self = reinterpret_cast<StockControl*>(control);
    const auto byDefault = [=] { return DefSubclassProc(window, message, wParam, lParam); };
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, &StockControl::Procedure, subclassId);
        (void)self->window_.Release();
        return byDefault();
    }
    return BehindWall([=] { return self->OnMessage(window, message, wParam, lParam); }, byDefault);
}

LRESULT StockControl::OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            // The window would take the focus by itself, but the control that has it is to be told before.
            SetFocus();
            break;
        case WM_GETOBJECT:
            if (const LRESULT answer = ParentForm().Accessibles().Answer(window, wParam, lParam))
                return answer;
            break;
        case WM_SETFOCUS:
            ParentForm().Activate(this);
            break;
        case WM_ENABLE:
            if (wParam == FALSE)
                ParentForm().PassFocusOn(*this);
            else
                ParentForm().GiveFocusBack(*this);
            break;
        default:
            if (const auto event = KeyEventOf(message); event && !OnKey(*event, wParam))
                return 0;
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace host
