// CommandButton: life.
#include "controls/CommandButton/CommandButton.h"

namespace controls {

CommandButton::CommandButton()
    : LibraryControl({.icon = TEXT("TooltipIcon"), .backColor = TEXT("ToolTipBackColor")}, ForceTrueTypeChoice::FirstFamily)
{
    subclassControl_.WndProc.Connect([this](HWND window, UINT message, auto&&...) { SubclassControl_WndProc(window, message); });
}

void CommandButton::UserControl_InitProperties()
{
    RoundedValue(5);
    TakeFont(*Ambient().Font());
    baseFontSize_ = Font()->Size();
    backColor_ = backColorDisabled_ = TranslateOleColor(host::SystemColor(COLOR_BTNFACE));
    fontHighlightColor_ = TranslateOleColor(host::SystemColor(COLOR_BTNTEXT));
    if (Ambient().UserMode())
        subclassControl_.TryEnable(hWnd());
    Caption(Ambient().DisplayName());
}

void CommandButton::UserControl_Terminate()
{
    DestroyToolTip();
    subclassControl_.Release();
    narrowedFont_.Reset();
}

void CommandButton::UserControl_Show()
{
    shown_ = true;
    LibraryControl::UserControl_Show();
    Relayout();
}

void CommandButton::Refresh()
{
    const HWND window = hWnd();
    if (!window)
        return;
    place_.Follow(window, GetExtender());
    Relayout();
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

}  // namespace controls
