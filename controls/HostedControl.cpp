// HostedControl: the properties that both have.
#include "controls/HostedControl.h"

#include "controls/FontRule.h"
#include "controls/ZedOrder.h"
#include "host/Form.h"

#include <uxtheme.h>

namespace controls {

HostedControl::HostedControl(ToolTipNames names) : LibraryControl(names)
{
    hosted_.SubclassControl.WndProc.Connect([this](auto&&... arguments) { SubclassControl_WndProc(arguments...); });
    hosted_.SubclassParent.WndProc.Connect([this](auto&&... arguments) { SubclassParent_WndProc(arguments...); });
    hosted_.SubclassOwner.WndProc.Connect([this](HWND, UINT message, WPARAM wParam, LPARAM, LRESULT&, bool& handled) {
        hosted_.FormMessage(message, wParam, enabled_, handled);
    });
}

void HostedControl::Begin()
{
    if (forceTrueType_)
        ApplyForceTrueType(*Font(), ForceTrueTypeChoice::MessageFontFirst);
    UserControl_ContainerChanged();
}

void HostedControl::UserControl_ContainerChanged()
{
    hosted_.Attach();
    CreateWindowAnew();
}

void HostedControl::UserControl_Show()
{
    if (IsRunTime())
        AdoptExtenderToolTip();
    hosted_.ControlShown();
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

void HostedControl::ForceTrueType(bool force)
{
    forceTrueType_ = force;
    PropertyChanged(TEXT("ForceTrueType"));
    if (force)
        ApplyForceTrueType(*Font(), ForceTrueTypeChoice::MessageFontFirst);
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

void HostedControl::ZedOrder(HWND insertAfter)
{
    if (MoveInZOrder(hosted_.Window(), hosted_.Container(), insertAfter))
        Refresh();
}

bool HostedControl::WantsKey(std::int16_t keyCode) const
{
    return keyCode != VK_TAB && LibraryControl::WantsKey(keyCode);
}

bool HostedControl::IsOver(HWND window, LPARAM position)
{
    RECT client{};
    GetClientRect(window, &client);
    const LONG x = static_cast<SHORT>(LOWORD(position)), y = static_cast<SHORT>(HIWORD(position));
    return x >= 0 && y >= 0 && x < client.right && y < client.bottom;
}

}  // namespace controls
