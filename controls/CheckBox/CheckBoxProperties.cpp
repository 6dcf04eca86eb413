// CheckBoxProperties: what a check box stores, and what setting its properties does.
#include "controls/CheckBox/CheckBox.h"
#include "controls/CheckBox/CheckBoxLayout.h"
#include "controls/FontNarrowing.h"
#include "controls/PropertyTable.h"

#include <cmath>

namespace controls {

using base::String;
using host::PropertyBag;

const PropertyTable<CheckBox>& CheckBox::Properties()
{
    using C = CheckBox;
    using std::int32_t;
    using std::uint32_t;
    using std::uint8_t;
    static const PropertyTable<C> table{
        StoredAs<C, int32_t>(TEXT("BackStyle"), &C::backStyle_, OwnColors),
        StoredAs<C, uint8_t>(TEXT("AlignRight"), &C::alignRight_, 0),
        StoredAs<C, uint8_t>(TEXT("FontAutoSize"), &C::fontAutoSize_, 0),
        StoredAs<C, uint8_t>(TEXT("BorderStyle"), &C::borderStyle_, BorderNone),
        StoredAs<C, String>(TEXT("ToolTipTextW"), Tip<C, &Settings::text>(), nullptr),
        StoredAs<C, String>(TEXT("Tooltiptitle"), Tip<C, &Settings::title>(), nullptr),
        StoredAs<C, int32_t>(TEXT("ToolTipIcon"), Tip<C, &Settings::icon>(), 0),
        StoredAs<C, uint8_t>(TEXT("TooltipBalloon"), Tip<C, &Settings::balloon>(), 0),
        StoredAs<C, uint8_t>(TEXT("ToolTipCentred"), Tip<C, &Settings::centred>(), 0),
        StoredAs<C, int32_t>(TEXT("ToolTipWidth"), Tip<C, &Settings::width>(), 0),
        StoredAs<C, uint32_t>(TEXT("TooltipBackColor"), Tip<C, &Settings::backColor>(), 0x80000018),
        StoredAs<C, uint32_t>(TEXT("ToolTipForeColor"), Tip<C, &Settings::foreColor>(), 0x80000017),
        StoredAs<C, uint8_t>(TEXT("ForceTrueType"), &C::forceTrueType_, 0),
        StoredAs<C, uint8_t>(TEXT("AutoSize"), &C::autoSize_, 0),
        StoredAs<C, uint32_t>(TEXT("ForeColor"), &C::foreColor_, host::SystemColor(COLOR_BTNTEXT)),
        StoredAs<C, uint32_t>(TEXT("BackColor"), &C::backColor_, host::SystemColor(COLOR_BTNFACE)),
        StoredAs<C, uint8_t>(TEXT("MultiLine"), &C::multiLine_, 0),
        StoredAs<C, uint8_t>(TEXT("Transparent"), &C::transparent_, 0),
        StoredAs<C, int32_t>(TEXT("Style"), &C::style_, StandardCheckBox),
        StoredAs<C, int32_t>(TEXT("Alignment"), &C::alignment_, TextLeft),
        StoredThrough<C, String>(
            TEXT("Caption"), [](C& box) { return box.Caption(); }, [](C& box, const String& caption) { box.caption_ = caption; },
            [](C& box) { return box.Ambient().DisplayName(); }),
        StoredThrough<C, uint8_t>(
            TEXT("Value"), [](C& box) { return box.Value(); }, [](C& box, uint8_t value) { box.value_ = value; }, Unchecked),
        StoredThrough<C, std::shared_ptr<host::Font>>(
            TEXT("Font"), [](C& box) { return box.Font(); }, [](C& box, const std::shared_ptr<host::Font>& font) { box.TakeFont(*font); },
            [](C& box) { return box.Ambient().Font(); }),
        StoredAs<C, uint8_t>(TEXT("UseClassicTheme"), &C::useClassicTheme_, 0),
        StoredThrough<C, bool>(
            TEXT("Visible"), [](C& box) { return box.GetExtender().Visible(); },
            [](C& box, bool visible) { box.GetExtender().Visible(visible); }, true),
        StoredAs<C, uint8_t>(TEXT("Enabled"), &C::enabled_, 1),
    };
    return table;
}

void CheckBox::UserControl_ReadProperties(const PropertyBag& bag)
{
    Properties().Read(*this, bag);
    Begin();
}

void CheckBox::UserControl_WriteProperties(PropertyBag& bag)
{
    Properties().Write(*this, bag);
}

std::uint8_t CheckBox::Value()
{
    if (hosted_.Window())
        value_ = static_cast<std::uint8_t>(hosted_.Send(BM_GETCHECK));
    return value_;
}

/// -1 is compared before it becomes 1: setting it on a checked box counts as a change.
void CheckBox::Value(std::int32_t value)
{
    if (value == (hosted_.Window() ? hosted_.Send(BM_GETCHECK) : value_))
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
    hosted_.SetStyleBits(BS_LEFT | BS_RIGHT | BS_CENTER, AlignmentBits(alignment));
    Keep(alignment_, alignment, TEXT("TextAlignment"), After::Redraw);
}

void CheckBox::MultiLine(bool multiLine)
{
    hosted_.SetStyleBits(BS_MULTILINE, multiLine ? BS_MULTILINE : 0);
    Keep(multiLine_, multiLine, TEXT("MultiLine"), After::Redraw);
}

void CheckBox::Style(std::int32_t style)
{
    if (style != style_)
        Keep(style_, style, TEXT("Style"), After::NewWindow);
}

void CheckBox::ForeColor(OleColor color)
{
    if (color == foreColor_)
        return;
    GetSurface().ForeColor(color);
    Keep(foreColor_, color, TEXT("ForeColor"), After::Redraw);
}

void CheckBox::BackColor(OleColor color)
{
    if (color == backColor_)
        return;
    GetSurface().BackColor(color);
    Keep(backColor_, color, TEXT("BackColor"), After::Redraw);
}

void CheckBox::FontChanged()
{
    ShowFont();
    if (autoSize_)
        ResizeToCaption();
}

void CheckBox::ShowFont()
{
    const HFONT font = Font()->Handle();
    if (buttonDc_.Get() && font)
        SelectObject(buttonDc_.Get(), font);
    HostedControl::ShowFont();
    fittedFont_.Reset();
    isNarrowed_ = false;
}

/// A narrowed font begins again at a width by rule of thumb, half the font's height.
void CheckBox::FitFont()
{
    if (caption_.empty() || !buttonDc_.Get())
        return;
    LOGFONTW wide = Font()->LogicalFont();
    wide.lfWidth = MulDiv(static_cast<int>(std::lrint(Font()->Size() / 2)), GetDeviceCaps(buttonDc_.Get(), LOGPIXELSX), 72);
    if (std::exchange(isNarrowed_, false)) {
        base::FontHandle font(CreateFontIndirectW(&wide));
        SelectObject(buttonDc_.Get(), font.Get());
        ShowFittedFont(std::move(font));
    }
    const RECT place = GetExtender().PixelRect();
    base::FontHandle narrower = NarrowToFit(buttonDc_.Get(), wide, caption_, RoomForCaption(place.right - place.left));
    if (!narrower)
        return;
    isNarrowed_ = true;
    ShowFittedFont(std::move(narrower));
    Refresh();
}

/// The button draws with the font that it was told last.
void CheckBox::ShowFittedFont(base::FontHandle font)
{
    hosted_.Send(WM_SETFONT, reinterpret_cast<WPARAM>(font.Get()), TRUE);
    fittedFont_ = std::move(font);
}

void CheckBox::AutoSize(bool autoSize)
{
    if (autoSize && fontAutoSize_)
        FontAutoSize(false);
    Keep(autoSize_, autoSize, TEXT("AutoSize"));
    if (autoSize)
        ResizeToCaption();
}

void CheckBox::ResizeToCaption()
{
    SIZE text{};
    GetTextExtentPoint32W(GetSurface().Dc(), caption_.c_str(), static_cast<int>(caption_.size()), &text);
    const int pixels = AutoSizeWidth(text.cx);
    GetExtender().Width(ContainerScale() == host::ScaleMode::Pixels ? static_cast<float>(pixels) : host::PixelsToTwipsX(pixels));
    hosted_.Cover();
}

void CheckBox::FontAutoSize(bool fontAutoSize)
{
    if (fontAutoSize && autoSize_)
        AutoSize(false);
    Keep(fontAutoSize_, fontAutoSize, TEXT("FontAutoSize"));
}

}  // namespace controls
