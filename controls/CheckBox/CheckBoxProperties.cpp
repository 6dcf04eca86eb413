// CheckBoxProperties: what setting a check box's properties does.
#include "controls/CheckBox/CheckBox.h"
#include "controls/FontNarrowing.h"

#include <cmath>

namespace controls {

using base::String;

std::uint8_t CheckBox::Value()
{
    if (hosted_.Window())
        value_ = static_cast<std::uint8_t>(hosted_.Send(BM_GETCHECK));
    return value_;
}

/// -1 is compared before it becomes 1: setting it on a checked box counts as a change.
void CheckBox::Value(std::int32_t value)
{
    if (value == hosted_.Send(BM_GETCHECK))
        return;
    if (value == -1)
        value = Checked;
    value_ = value == Checked || value == Grayed ? static_cast<std::uint8_t>(value) : std::uint8_t{Unchecked};
    hosted_.Send(BM_SETCHECK, value_);
    PropertyChanged(TEXT("Value"));
    Click.Raise();
}

void CheckBox::Toggle()
{
    Value(Value() == Unchecked ? Checked : Unchecked);
}

String CheckBox::Caption()
{
    if (hosted_.Window())
        caption_ = hosted_.Text();
    return caption_;
}

void CheckBox::Caption(const String& caption)
{
    caption_ = caption;
    hosted_.Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(caption_.c_str()));
    if (fontAutoSize_)
        FitFont();
    PropertyChanged(TEXT("Caption"));
    if (autoSize_)
        ResizeToCaption();
}

void CheckBox::Alignment(std::int32_t alignment)
{
    alignment_ = alignment;
    hosted_.SetStyleBits(BS_LEFT | BS_RIGHT | BS_CENTER, AlignmentBits(alignment));
    Refresh();
    PropertyChanged(TEXT("TextAlignment"));
}

void CheckBox::MultiLine(bool multiLine)
{
    multiLine_ = multiLine;
    hosted_.SetStyleBits(BS_MULTILINE, multiLine ? BS_MULTILINE : 0);
    Refresh();
    PropertyChanged(TEXT("MultiLine"));
}

void CheckBox::Style(std::int32_t style)
{
    if (style == style_)
        return;
    style_ = style;
    PropertyChanged(TEXT("Style"));
    CreateWindowAnew();
}

void CheckBox::BackStyle(std::int32_t style)
{
    backStyle_ = style;
    PropertyChanged(TEXT("BackStyle"));
    CreateWindowAnew();
}

void CheckBox::BorderStyle(std::uint8_t style)
{
    borderStyle_ = style;
    PropertyChanged(TEXT("BorderStyle"));
    CreateWindowAnew();
}

void CheckBox::AlignRight(bool right)
{
    alignRight_ = right;
    PropertyChanged(TEXT("AlignRight"));
    CreateWindowAnew();
}

void CheckBox::Transparent(bool transparent)
{
    transparent_ = transparent;
    Refresh();
    PropertyChanged(TEXT("Transparent"));
}

void CheckBox::ForeColor(OleColor color)
{
    if (color == foreColor_)
        return;
    foreColor_ = color;
    GetSurface().ForeColor(color);
    PropertyChanged(TEXT("ForeColor"));
    Refresh();
}

void CheckBox::BackColor(OleColor color)
{
    if (color == backColor_)
        return;
    backColor_ = color;
    GetSurface().BackColor(color);
    MakeBackgroundBrush();
    PropertyChanged(TEXT("BackColor"));
    Refresh();
}

void CheckBox::FontChanged()
{
    ShowFont();
    if (autoSize_)
        ResizeToCaption();
}

/// The window keeps using the font that it was given, so that one lives on until the window has another.
void CheckBox::ShowFont()
{
    const std::shared_ptr<const base::FontHandle> font = Font()->Share();
    const HFONT handle = font ? font->Get() : nullptr;
    if (buttonDc_.Get() && handle)
        SelectObject(buttonDc_.Get(), handle);
    hosted_.Send(WM_SETFONT, reinterpret_cast<WPARAM>(handle), TRUE);
    shownFont_ = font;
    narrowedFont_.Reset();
}

/// A narrowed font begins again at half the font's height, its width by rule of thumb.
void CheckBox::FitFont()
{
    if (caption_.empty() || !buttonDc_.Get())
        return;
    ShowFont();
    LOGFONTW start = Font()->LogicalFont();
    start.lfWidth = MulDiv(static_cast<int>(std::lrint(Font()->Size() / 2)), GetDeviceCaps(buttonDc_.Get(), LOGPIXELSX), 72);
    const RECT place = GetExtender().PixelRect();
    narrowedFont_ = NarrowToFit(buttonDc_.Get(), start, caption_, RoomForCaption(place.right - place.left));
    if (!narrowedFont_)
        return;
    hosted_.Send(WM_SETFONT, reinterpret_cast<WPARAM>(narrowedFont_.Get()), TRUE);
    Refresh();
}

void CheckBox::AutoSize(bool autoSize)
{
    if (autoSize && fontAutoSize_)
        FontAutoSize(false);
    autoSize_ = autoSize;
    PropertyChanged(TEXT("AutoSize"));
    if (autoSize)
        ResizeToCaption();
}

void CheckBox::ResizeToCaption()
{
    SIZE text{};
    GetTextExtentPoint32W(GetSurface().Dc(), caption_.c_str(), static_cast<int>(caption_.size()), &text);
    const int pixels = AutoSizeWidth(text.cx);
    GetExtender().Width(ContainerScale() == host::ScaleMode::pixels ? static_cast<float>(pixels) : host::PixelsToTwipsX(pixels));
    hosted_.Cover();
}

void CheckBox::FontAutoSize(bool fontAutoSize)
{
    if (fontAutoSize && autoSize_)
        AutoSize(false);
    fontAutoSize_ = fontAutoSize;
    PropertyChanged(TEXT("FontAutoSize"));
}

}  // namespace controls
