#include "controls/ToolTip.h"

#include "host/Form.h"

namespace controls {

using base::String;

void ToolTip::Notify(const WCHAR* name)
{
    control_.ParentForm().OnPropertyChanged(control_, name);
}

void ToolTip::ToolTipTextW(const String& text)
{
    tip_.text = text;
    if (!text.empty())
        control_.GetExtender().ToolTipText({});
    Notify(TEXT("ToolTipTextW"));
}

void ToolTip::TooltipTitle(const String& title)
{
    tip_.title = title;
    Notify(TEXT("TooltipTitle"));
}

void ToolTip::ToolTipIcon(std::int32_t icon)
{
    tip_.icon = icon;
    Notify(names_.icon);
}

void ToolTip::ToolTipBalloon(bool balloon)
{
    tip_.balloon = balloon;
    Notify(TEXT("ToolTipBalloon"));
}

void ToolTip::ToolTipCentred(bool centred)
{
    tip_.centred = centred;
    Notify(TEXT("ToolTipCentred"));
}

void ToolTip::ToolTipWidth(std::int32_t width)
{
    tip_.width = width;
    Notify(TEXT("ToolTipWidth"));
}

void ToolTip::TooltipBackColor(OleColor color)
{
    tip_.backColor = color;
    Notify(names_.backColor);
}

void ToolTip::ToolTipForeColor(OleColor color)
{
    tip_.foreColor = color;
    Notify(TEXT("ToolTipForeColor"));
}

bool ToolTip::MouseMovedOver(HWND window)
{
    if (isMouseInside_)
        return false;
    CreateToolTip(window);
    isMouseInside_ = true;
    TRACKMOUSEEVENT tracking{sizeof tracking, TME_LEAVE, window, 0};
    TrackMouseEvent(&tracking);
    return true;
}

void ToolTip::MouseLeft()
{
    isMouseInside_ = false;
    DestroyToolTip();
}

void ToolTip::AdoptExtenderToolTip()
{
    const String plain = control_.GetExtender().ToolTipText();
    if (plain.empty())
        return;
    tip_.text = plain;
    control_.GetExtender().ToolTipText({});
}

void ToolTip::CreateToolTip(HWND window)
{
    DestroyToolTip();
    subclassToolTip_ = std::make_unique<DSubclass>();
    AdoptExtenderToolTip();
    if (tip_.text.empty())
        return;

    const HINSTANCE instance = GetModuleHandleW(nullptr);
    const DWORD style = TTS_ALWAYSTIP | TTS_NOPREFIX | (tip_.balloon ? TTS_BALLOON : 0);
    window_ = CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, style, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, window,
                              nullptr, instance, nullptr);
    if (!window_)
        return;

    // Version 5 of the common controls refuses the newest size of the record.
    shownText_ = tip_.text;
    tool_ = {};
    tool_.cbSize = TTTOOLINFOW_V2_SIZE;
    tool_.uFlags = TTF_SUBCLASS | (tip_.centred ? TTF_CENTERTIP : 0);
    tool_.hwnd = window;
    tool_.hinst = instance;
    tool_.lpszText = shownText_.data();
    GetClientRect(window, &tool_.rect);

    if (!tip_.title.empty())
        SendMessageW(window_, TTM_SETTITLEW, static_cast<WPARAM>(tip_.icon), reinterpret_cast<LPARAM>(tip_.title.c_str()));
    SendMessageW(window_, TTM_SETMAXTIPWIDTH, 0, tip_.width == 0 ? -1 : tip_.width);
    SendMessageW(window_, TTM_SETTIPBKCOLOR, TranslateOleColor(tip_.backColor), 0);
    SendMessageW(window_, TTM_SETTIPTEXTCOLOR, TranslateOleColor(tip_.foreColor), 0);
    // A tip stays for 5 s and 50 ms for each character.
    SendMessageW(window_, TTM_SETDELAYTIME, TTDT_AUTOPOP, static_cast<LPARAM>(5000 + 50 * tip_.text.size()));
    SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool_));

    subclassToolTip_->WndProc.Connect(
        [this](HWND, UINT message, WPARAM wParam, LPARAM, LRESULT&, bool& handled) { SubclassToolTip_WndProc(message, wParam, handled); });
    subclassToolTip_->TryEnable(window_);
}

/// With its timer 3 the tip window looks for itself whether the mouse is still there. It never gets to that: the control's own leave
/// message is what ends the tip.
void ToolTip::SubclassToolTip_WndProc(UINT message, WPARAM timer, bool& handled)
{
    handled = message == WM_TIMER && timer == 3;
}

void ToolTip::DestroyToolTip()
{
    subclassToolTip_.reset();
    if (!window_)
        return;
    DestroyWindow(window_);
    window_ = nullptr;
}

}  // namespace controls
