// CheckBox: persistence, life and the system's button.
#include "controls/CheckBox/CheckBox.h"

#include "controls/PropertyTable.h"

#include <uxtheme.h>

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
        StoredAs<C, int32_t>(TEXT("BackStyle"), &C::backStyle_, 0),
        StoredAs<C, uint8_t>(TEXT("AlignRight"), &C::alignRight_, 0),
        StoredAs<C, uint8_t>(TEXT("FontAutoSize"), &C::fontAutoSize_, 0),
        StoredAs<C, uint8_t>(TEXT("BorderStyle"), &C::borderStyle_, BorderNone),
        StoredAs<C, String>(TEXT("ToolTipTextW"), Tip<C, &Settings::text>(), String()),
        StoredAs<C, String>(TEXT("Tooltiptitle"), Tip<C, &Settings::title>(), String()),
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
        StoredAs<C, int32_t>(TEXT("Style"), &C::style_, 0),
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

void CheckBox::UserControl_InitProperties()
{
    TakeFont(*Ambient().Font());
    caption_ = Ambient().DisplayName();
    Begin();
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

void CheckBox::UserControl_Resize()
{
    if (autoSize_)
        ResizeToCaption();
    hosted_.Cover();
    if (fontAutoSize_)
        FitFont();
}

void CheckBox::ReleaseButton()
{
    DestroyToolTip();
    buttonDc_.Release();
    hosted_.Destroy();
    backgroundBrush_.Reset();
    transparencyBrush_.Reset();
    narrowedFont_.Reset();
    shownFont_.reset();
}

void CheckBox::CreateWindowAnew()
{
    const HostedWindow::Creation creation(hosted_);
    ReleaseButton();
    const BorderBits border = BorderBitsOf(borderStyle_);
    DWORD style = BS_NOTIFY | BS_3STATE | border.style | AlignmentBits(alignment_);
    style |= alignRight_ ? BS_LEFTTEXT : 0;
    style |= style_ == 1 ? BS_PUSHLIKE : 0;
    style |= multiLine_ ? BS_MULTILINE : 0;
    const DWORD extendedStyle = border.extendedStyle | (Ambient().RightToLeft() ? WS_EX_RTLREADING : 0);
    if (!hosted_.Create({TEXT("Button"), style, extendedStyle, caption_, enabled_}))
        return;
    buttonDc_.Take(hosted_.Window(), WindowDc::Area::Client);
    if (useClassicTheme_)
        SetWindowTheme(hosted_.Window(), TEXT(""), TEXT(""));
    // A new window is unchecked, so any other value counts as a change and raises Click.
    Value(value_);
    ShowFont();
    if (fontAutoSize_)
        FitFont();
    if (backStyle_ == 1) {
        foreColor_ = Ambient().ForeColor();
        backColor_ = Ambient().BackColor();
    }
    GetSurface().ForeColor(foreColor_);
    GetSurface().BackColor(backColor_);
    MakeBackgroundBrush();
    hosted_.Subclass();
}

void CheckBox::MakeBackgroundBrush()
{
    backgroundBrush_.Reset(CreateSolidBrush(TranslateOleColor(backColor_)));
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
