#include "controls/HostedControl.h"

#include "host/Form.h"

#include <uxtheme.h>

namespace controls {

HostedControl::HostedControl(BorderStyleValue border, int foreColor, int backColor)
    : borderStyle_(border), foreColor_(host::SystemColor(foreColor)), backColor_(host::SystemColor(backColor))
{
    hosted_.SubclassControl.WndProc.Connect([this](auto&&... arguments) { SubclassControl_WndProc(arguments...); });
    hosted_.SubclassParent.WndProc.Connect([this](auto&&... arguments) { SubclassParent_WndProc(arguments...); });
    hosted_.SubclassOwner.WndProc.Connect(
        [this](HWND, UINT message, WPARAM wParam, LPARAM, LRESULT&, bool& handled) { hosted_.FormMessage(message, wParam, handled); });
}

/// A program with visual styles whose common controls nobody has initialised gets no window of a system class. The shell is kept loaded
/// meanwhile: it must not go before the common controls that it uses.
void HostedControl::UserControl_Initialize()
{
    shellLibrary_.Reset(LoadLibraryW(TEXT("SHELL32.DLL")));
    if (!shellLibrary_)
        return;
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&classes);
}

void HostedControl::UserControl_Terminate()
{
    ReleaseWindow();
    shellLibrary_.Reset();
}

void HostedControl::Begin()
{
    KeepTrueType();
    UserControl_ContainerChanged();
}

void HostedControl::UserControl_ContainerChanged()
{
    hosted_.Attach();
    CreateWindowAnew();
}

void HostedControl::UserControl_Show()
{
    LibraryControl::UserControl_Show();
    hosted_.ControlShown();
}

void HostedControl::CreateWindowAnew()
{
    const HostedWindow::Creation creation(hosted_);
    ReleaseWindow();
    const BorderBits border = BorderBitsOf(borderStyle_);
    HostedWindow::Shape shape = Shape();
    shape.style |= border.style;
    shape.extendedStyle |= border.extendedStyle;
    if (!hosted_.Create(shape))
        return;
    if (useClassicTheme_)
        SetWindowTheme(hosted_.Window(), TEXT(""), TEXT(""));
    WindowMade();
}

void HostedControl::ReleaseWindow()
{
    MouseLeft();
    hosted_.Destroy();
    shownFont_.reset();
}

void HostedControl::Follow(After after)
{
    if (after == After::NewWindow)
        CreateWindowAnew();
    else
        Refresh();
}

void HostedControl::Enabled(bool enabled)
{
    if (!hosted_.Window())
        return;
    enabled_ = enabled;
    if (!enabled)
        ParentForm().PassFocusOn(*this);
    EnableWindow(hosted_.Window(), enabled);
    if (enabled)
        ParentForm().GiveFocusBack(*this);
    PropertyChanged(TEXT("Enabled"));
}

/// Windows may have refused to hand the focus over to the system window the last time.
void HostedControl::SetFocus()
{
    LibraryControl::SetFocus();
    if (enabled_ && hosted_.Window() && hosted_.ControlFocused() && GetFocus() == OwnHandle())
        hosted_.TakeFocus();
}

/// An empty name takes the window's visual style away, no name gives it back.
void HostedControl::UseClassicTheme(bool classic)
{
    useClassicTheme_ = classic;
    const WCHAR* const name = classic ? TEXT("") : nullptr;
    if (hosted_.Window())
        SetWindowTheme(hosted_.Window(), name, name);
    PropertyChanged(TEXT("UseClassicTheme"));
    Refresh();
}

/// The window keeps using the font that it was given, so that one lives on until the window has another.
void HostedControl::ShowFont()
{
    const std::shared_ptr<const base::FontHandle> font = Font()->Share();
    hosted_.Send(WM_SETFONT, reinterpret_cast<WPARAM>(font ? font->Get() : nullptr), TRUE);
    shownFont_ = font;
}

void HostedControl::ShowColors()
{
    GetSurface().ForeColor(foreColor_);
    GetSurface().BackColor(backColor_);
}

bool HostedControl::WantsKey(std::int16_t keyCode) const
{
    return keyCode != VK_TAB && LibraryControl::WantsKey(keyCode);
}

bool HostedControl::IsOver(LPARAM position) const
{
    RECT client{};
    GetClientRect(hosted_.Window(), &client);
    const LONG x = static_cast<SHORT>(LOWORD(position)), y = static_cast<SHORT>(HIWORD(position));
    return x >= 0 && y >= 0 && x < client.right && y < client.bottom;
}

void HostedControl::SubclassControl_WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result, bool& handled)
{
    switch (message) {
        // The mouse may rest where the window has just been enabled or shown; it moves no more before it clicks.
        case WM_LBUTTONDOWN:
        case WM_MOUSEMOVE:
            if (MouseMovedOver(window))
                MouseEntered();
            break;
        case WM_MOUSELEAVE:
            MouseLeft();
            MouseGone();
            break;
        case WM_SETFOCUS:
            hosted_.WindowFocused(true);
            SetFocus();
            break;
        case WM_GETOBJECT:
            result = ParentForm().Accessibles().Answer(window, wParam, lParam);
            handled = result != 0;
            break;
        case WM_THEMECHANGED:
        case WM_SYSCOLORCHANGE:
            CreateWindowAnew();
            break;
        case WM_PAINT:
            hosted_.Painted();
            break;
        default:
            if (host::KeyEventOf(message))
                OnKey(window, message, wParam, lParam, result, handled);
            else
                OnHostedMessage(message, wParam, lParam, handled);
    }
}

void HostedControl::OnKey(HWND, UINT message, WPARAM wParam, LPARAM lParam, LRESULT&, bool& handled)
{
    auto code = static_cast<std::int16_t>(wParam);
    TellKey(message, lParam, code);
    handled = code == 0;
}

void HostedControl::TellKey(UINT message, LPARAM lParam, std::int16_t& code)
{
    const host::KeyEvent event = *host::KeyEventOf(message);
    std::int16_t shift = host::ShiftState();
    hosted_.Keys.Forward(ParentForm(), event, lParam, code, shift);
    // The form may have gone by now, and the window with it.
    if (event == host::KeyEvent::Down && hosted_.Window())
        ActOnKey(message, code);
    RaiseKey(event, code, shift);
}

void HostedControl::ActOnKey(UINT, std::int16_t keyCode)
{
    if (!hosted_.ContainerIsForm())
        PostToFormButtons(ParentForm(), keyCode);
}

void HostedControl::SubclassParent_WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result, bool& handled)
{
    if (hosted_.Window() && reinterpret_cast<HWND>(lParam) == hosted_.Window()) {
        switch (message) {
            case WM_COMMAND:
                OnNotification(HIWORD(wParam));
                break;
            case WM_CTLCOLORBTN:
            case WM_CTLCOLOREDIT:
            case WM_CTLCOLORSTATIC: {
                hosted_.SubclassParent.CallOriginalProc(window, message, wParam, lParam, handled);
                const auto dc = reinterpret_cast<HDC>(wParam);
                SetBkColor(dc, TranslateOleColor(CurrentBackColor()));
                SetTextColor(dc, TranslateOleColor(foreColor_));
                result = reinterpret_cast<LRESULT>(Background(dc));
                handled = true;
                break;
            }
            default:
                break;
        }
    }
    if (hosted_.ContainerIsForm())
        hosted_.FormMessage(message, wParam, handled);
}

}  // namespace controls
