#include "controls/CheckBox/CheckBox.h"

#include "host/AccessibleFacts.h"

#include <oleacc.h>

namespace controls {

void CheckBox::UserControl_InitProperties()
{
    TakeFont(*Ambient().Font());
    caption_ = Ambient().DisplayName();
    Begin();
}

void CheckBox::UserControl_Resize()
{
    if (autoSize_)
        ResizeToCaption();
    else
        hosted_.Cover();
    if (fontAutoSize_)
        FitFont();
}

host::AccessibleFacts CheckBox::Accessibility()
{
    host::AccessibleFacts facts = LibraryControl::Accessibility();
    facts.role = ROLE_SYSTEM_CHECKBUTTON;
    const std::uint8_t value = Value();
    facts.state = value == Checked ? STATE_SYSTEM_CHECKED : value == Grayed ? STATE_SYSTEM_MIXED : 0;
    facts.caption = Caption();
    facts.action = value == Unchecked ? TEXT("Check") : TEXT("Uncheck");
    return facts;
}

void CheckBox::ReleaseWindow()
{
    buttonDc_.Release();
    HostedControl::ReleaseWindow();
    transparencyBrush_.Reset();
    fittedFont_.Reset();
}

DWORD CheckBox::AlignmentBits(std::int32_t alignment)
{
    return alignment == TextRight ? BS_RIGHT : alignment == TextCenter ? BS_CENTER : BS_LEFT;
}

HostedWindow::Shape CheckBox::Shape()
{
    DWORD style = BS_NOTIFY | BS_3STATE | AlignmentBits(alignment_);
    style |= alignRight_ ? BS_LEFTTEXT : 0;
    style |= style_ == PushLikeCheckBox ? BS_PUSHLIKE : 0;
    style |= multiLine_ ? BS_MULTILINE : 0;
    return {TEXT("Button"), style, Ambient().RightToLeft() ? WS_EX_RTLREADING : DWORD{0}, caption_};
}

void CheckBox::WindowMade()
{
    buttonDc_.Take(hosted_.Window(), WindowDc::Area::Client);
    // What follows may draw at once, and asks for the colours then.
    hosted_.Subclass();
    // A new window is unchecked, so any other value counts as a change and raises Click.
    Value(value_);
    ShowFont();
    if (fontAutoSize_)
        FitFont();
    if (backStyle_ == ContainerColors) {
        ForeColor(Ambient().ForeColor());
        BackColor(Ambient().BackColor());
    }
    ShowColors();
}

HBRUSH CheckBox::Background(HDC dc)
{
    if (!transparent_)
        return HostedControl::Background(dc);
    SetBkMode(dc, TRANSPARENT);
    if (!transparencyBrush_)
        MakeTransparencyBrush();
    return transparencyBrush_.Get();
}

/// The container paints itself into a picture as large as the control, moved so that the part behind the control falls into it.
void CheckBox::MakeTransparencyBrush()
{
    RECT place{};
    GetWindowRect(hosted_.Window(), &place);
    MapWindowPoints(nullptr, hosted_.Container(), reinterpret_cast<POINT*>(&place), 2);
    const base::MemoryDc memory(CreateCompatibleDC(buttonDc_.Get()));
    const base::BitmapHandle picture(CreateCompatibleBitmap(buttonDc_.Get(), place.right - place.left, place.bottom - place.top));
    if (!memory || !picture)
        return;
    const HGDIOBJ former = SelectObject(memory.Get(), picture.Get());
    POINT origin{};
    SetViewportOrgEx(memory.Get(), -place.left, -place.top, &origin);
    SendMessageW(hosted_.Container(), WM_PAINT, reinterpret_cast<WPARAM>(memory.Get()), 0);
    SetViewportOrgEx(memory.Get(), origin.x, origin.y, nullptr);
    SelectObject(memory.Get(), former);
    transparencyBrush_.Reset(CreatePatternBrush(picture.Get()));
}

}  // namespace controls
