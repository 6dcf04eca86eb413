// FrameProperties: what a frame stores, and what setting its properties does.
#include "controls/Frame/Frame.h"
#include "controls/PropertyTable.h"

#include <algorithm>

namespace controls {

using base::String;
using host::PropertyBag;

/// Two values go by the name "BackStyle": the frame's own (0 by default) and then, behind "OLEDropMode", whether its drawing surface is
/// opaque (1, the default) or transparent. Each is left out when it equals its own default. So the first of that name is the frame's value
/// and the last one is the surface's: where there is only one, a 1 was the frame's and the surface is opaque, a 0 was the surface's and
/// the frame's value is 0.
const PropertyTable<Frame>& Frame::Properties()
{
    using std::int32_t;
    using std::uint32_t;
    using std::uint8_t;
    static const PropertyTable<Frame> table{
        StoredAs<Frame, int32_t>(TEXT("BackStyle"), &Frame::backStyle_, OwnColors),
        StoredAs<Frame, uint8_t>(TEXT("DragDropEnabled"), &Frame::dragDropEnabled_, 0),
        StoredAs<Frame, uint8_t>(TEXT("Invisible"), &Frame::invisible_, 0),
        StoredAs<Frame, int32_t>(TEXT("BorderRound"), &Frame::borderRound_, 0),
        StoredAs<Frame, uint32_t>(TEXT("BorderColorDark"), &Frame::borderColorDark_, host::SystemColor(COLOR_BTNSHADOW)),
        StoredAs<Frame, uint32_t>(TEXT("BorderColorLight"), &Frame::borderColorLight_, host::SystemColor(COLOR_BTNHIGHLIGHT)),
        StoredAs<Frame, String>(TEXT("ToolTipTextW"), Tip<Frame, &Settings::text>(), nullptr),
        StoredAs<Frame, String>(TEXT("Tooltiptitle"), Tip<Frame, &Settings::title>(), nullptr, WhenDefault::Stored),
        StoredAs<Frame, int32_t>(TEXT("ToolTipIcon"), Tip<Frame, &Settings::icon>(), 0, WhenDefault::Stored),
        StoredAs<Frame, uint8_t>(TEXT("TooltipBalloon"), Tip<Frame, &Settings::balloon>(), 0, WhenDefault::Stored),
        StoredAs<Frame, uint8_t>(TEXT("ToolTipCentred"), Tip<Frame, &Settings::centred>(), 0),
        StoredAs<Frame, int32_t>(TEXT("ToolTipWidth"), Tip<Frame, &Settings::width>(), 0),
        StoredAs<Frame, uint32_t>(TEXT("ToolTipBackColor"), Tip<Frame, &Settings::backColor>(), 0x80000018),
        StoredAs<Frame, uint32_t>(TEXT("ToolTipForeColor"), Tip<Frame, &Settings::foreColor>(), 0x80000017),
        StoredAs<Frame, uint8_t>(TEXT("ForceTrueType"), &Frame::forceTrueType_, 0),
        StoredAs<Frame, uint8_t>(TEXT("UseClassicTheme"), &Frame::useClassicTheme_, 0),
        StoredAs<Frame, uint8_t>(TEXT("EnableDisableChilds"), &Frame::enableDisableChilds_, 0),
        StoredThrough<Frame, uint32_t>(
            TEXT("BackColor"), [](Frame& frame) { return frame.BackColor(); },
            [](Frame& frame, uint32_t color) { frame.GetSurface().BackColor(color); }, host::SystemColor(COLOR_BTNFACE)),
        StoredThrough<Frame, uint32_t>(
            TEXT("ForeColor"), [](Frame& frame) { return frame.ForeColor(); },
            [](Frame& frame, uint32_t color) { frame.GetSurface().ForeColor(color); }, host::SystemColor(COLOR_BTNTEXT)),
        StoredAs<Frame, int32_t>(TEXT("BorderStyle"), &Frame::borderStyle_, FrameWithBorder),
        StoredThrough<Frame, std::int16_t>(
            TEXT("OLEDropMode"), [](Frame& frame) { return frame.OLEDropMode(); },
            [](Frame& frame, std::int16_t mode) { frame.Input().OleDropMode(mode); }, 0),
        StoredInItsOwnWay<Frame>(
            TEXT("BackStyle"),
            [](Frame& frame, const PropertyBag& bag, const WCHAR* key) {
                const std::int16_t only = bag.Read<std::int16_t>(key, 1);
                frame.surfaceBackStyle_ = bag.Read<std::int16_t>(key, only, 1);
            },
            [](Frame& frame, PropertyBag& bag, const WCHAR* key) { bag.Write<std::int16_t>(key, frame.surfaceBackStyle_, 1); }),
        StoredThrough<Frame, String>(
            TEXT("Caption"), [](Frame& frame) { return frame.Caption(); },
            [](Frame& frame, const String& caption) { frame.caption_ = caption; },
            [](Frame& frame) { return frame.Ambient().DisplayName(); }),
        StoredAs<Frame, uint8_t>(TEXT("Enabled"), &Frame::enabled_, 1),
        StoredAs<Frame, uint8_t>(TEXT("Appearance"), &Frame::appearance_, AppearanceEtched),
        StoredThrough<Frame, std::shared_ptr<host::Font>>(
            TEXT("Font"), [](Frame& frame) { return frame.Font(); },
            [](Frame& frame, const std::shared_ptr<host::Font>& font) { frame.TakeFont(*font); },
            [](Frame& frame) { return frame.Ambient().Font(); }),
    };
    return table;
}

void Frame::UserControl_ReadProperties(const PropertyBag& bag)
{
    Properties().Read(*this, bag);
    borderRound_ = std::clamp(borderRound_, 0, 20);
    Start();
}

void Frame::UserControl_WriteProperties(PropertyBag& bag)
{
    Properties().Write(*this, bag);
}

String Frame::Caption()
{
    if (WindowTextUnsubclassed(subclassControl_, hWnd()) != caption_)
        SendMessageUnsubclassed(subclassControl_, hWnd(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(caption_.c_str()));
    return caption_;
}

void Frame::Caption(const String& caption)
{
    caption_ = caption;
    SendMessageUnsubclassed(subclassControl_, hWnd(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(caption_.c_str()));
    PropertyChanged(TEXT("Caption"));
    DrawFrame();
    RepaintWindow();
}

void Frame::RepaintWindow()
{
    if (!hWnd())
        return;
    SendMessageW(hWnd(), WM_NCPAINT, 1, 0);
    SendMessageW(hWnd(), WM_PAINT, 0, 0);
}

void Frame::BackColor(OleColor color)
{
    TakeBackColor(color);
    PropertyChanged(TEXT("BackColor"));
    DrawFrame();
}

void Frame::ForeColor(OleColor color)
{
    TakeForeColor(color);
    PropertyChanged(TEXT("ForeColor"));
    DrawFrame();
}

void Frame::TakeBackColor(OleColor color)
{
    if (GetSurface().BackColor() == color)
        return;
    GetSurface().BackColor(color);
    TellContained(TEXT("BackColor"));
}

void Frame::TakeForeColor(OleColor color)
{
    if (GetSurface().ForeColor() == color)
        return;
    GetSurface().ForeColor(color);
    TellContained(TEXT("ForeColor"));
}

/// The frame's colours are the ambient ones of what stands in it.
void Frame::TellContained(base::StringView ambient)
{
    for (host::Control* const control : ContainedControls())
        control->AmbientChanged(ambient);
}

void Frame::BorderRound(std::int32_t round)
{
    Keep(borderRound_, std::clamp(round, 0, 20), TEXT("BorderRound"), After::Redraw);
}

void Frame::Enabled(bool enabled)
{
    if (enableDisableChilds_)
        EnableChildren(enabled);
    enabled_ = enabled;
    PropertyChanged(TEXT("Enabled"));
    if (Ambient().UserMode())
        Input().Enabled(enabled);
    DrawFrame();
    RepaintWindow();
}

/// A control that was disabled before the frame was is remembered by its name and stays disabled when the frame is enabled again.
/// The controls of a control array share a name.
void Frame::EnableChildren(bool enabled)
{
    for (host::Control* const child : ContainedControls()) {
        if (child->Kind() == TEXT("Timer"))
            continue;
        const String& name = child->GetExtender().Name();
        if (enabled) {
            if (std::ranges::find(disabledBefore_, name) == disabledBefore_.end())
                child->Enabled(true);
        } else if (child->Enabled()) {
            child->Enabled(false);
        } else {
            disabledBefore_.push_back(name);
        }
    }
    if (enabled)
        disabledBefore_.clear();
}

void Frame::EnableDisableChilds(bool enable)
{
    disabledBefore_.clear();
    Keep(enableDisableChilds_, enable, TEXT("EnableDisableChilds"));
}

void Frame::DragDropEnabled(bool enable)
{
    AcceptFiles(enable);
    Keep(dragDropEnabled_, enable, TEXT("DragDropEnabled"));
}

void Frame::AcceptFiles(bool accept)
{
    const LONG style = GetWindowLongW(hWnd(), GWL_EXSTYLE);
    SetWindowLongW(hWnd(), GWL_EXSTYLE, accept ? style | WS_EX_ACCEPTFILES : style & ~WS_EX_ACCEPTFILES);
}

void Frame::OLEDropMode(std::int16_t mode)
{
    Input().OleDropMode(mode);
    PropertyChanged(TEXT("OLEDropMode"));
}

}  // namespace controls
