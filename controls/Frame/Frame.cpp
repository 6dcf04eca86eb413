// Frame: properties, persistence and life.
#include "controls/Frame/Frame.h"

#include "controls/FontRule.h"
#include "controls/Frame/FramePainter.h"
#include "controls/PropertyTable.h"
#include "controls/ThemeState.h"

#include <algorithm>

namespace controls {

using base::String;
using base::StringView;
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
    const auto whatever = WhenDefault::Stored;
    static const PropertyTable<Frame> table{
        StoredAs<Frame, int32_t>(TEXT("BackStyle"), &Frame::backStyle_, 0),
        StoredAs<Frame, uint8_t>(TEXT("DragDropEnabled"), &Frame::dragDropEnabled_, 0),
        StoredAs<Frame, uint8_t>(TEXT("Invisible"), &Frame::invisible_, 0),
        StoredAs<Frame, int32_t>(TEXT("BorderRound"), &Frame::borderRound_, 0),
        StoredAs<Frame, uint32_t>(TEXT("BorderColorDark"), &Frame::borderColorDark_, host::SystemColor(COLOR_BTNSHADOW)),
        StoredAs<Frame, uint32_t>(TEXT("BorderColorLight"), &Frame::borderColorLight_, host::SystemColor(COLOR_BTNHIGHLIGHT)),
        StoredAs<Frame, String>(TEXT("ToolTipTextW"), Tip<Frame, &Settings::text>(), String()),
        StoredAs<Frame, String>(TEXT("Tooltiptitle"), Tip<Frame, &Settings::title>(), String(), whatever),
        StoredAs<Frame, int32_t>(TEXT("ToolTipIcon"), Tip<Frame, &Settings::icon>(), 0, whatever),
        StoredAs<Frame, uint8_t>(TEXT("TooltipBalloon"), Tip<Frame, &Settings::balloon>(), 0, whatever),
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
        StoredAs<Frame, int32_t>(TEXT("BorderStyle"), &Frame::borderStyle_, 1),
        StoredThrough<Frame, std::int16_t>(
            TEXT("OLEDropMode"), [](Frame& frame) { return frame.OLEDropMode(); },
            [](Frame& frame, std::int16_t mode) { frame.GetSurface().OleDropMode(mode); }, 0),
        StoredInItsOwnWay<Frame>(
            TEXT("BackStyle"),
            [](Frame& frame, const PropertyBag& bag, const WCHAR* key) {
                const std::int16_t only = bag.Read<std::int16_t>(key, 1);
                frame.GetSurface().BackStyle(bag.Read<std::int16_t>(key, only, 1));
            },
            [](Frame& frame, PropertyBag& bag, const WCHAR* key) { bag.Write<std::int16_t>(key, frame.GetSurface().BackStyle(), 1); }),
        StoredThrough<Frame, String>(
            TEXT("Caption"), [](Frame& frame) { return frame.Caption(); },
            [](Frame& frame, const String& caption) { frame.caption_ = caption; },
            [](Frame& frame) { return frame.Ambient().DisplayName(); }),
        StoredAs<Frame, uint8_t>(TEXT("Enabled"), &Frame::enabled_, 1),
        StoredAs<Frame, uint8_t>(TEXT("Appearance"), &Frame::appearance_, 1),
        StoredThrough<Frame, std::shared_ptr<host::Font>>(
            TEXT("Font"), [](Frame& frame) { return frame.Font(); },
            [](Frame& frame, const std::shared_ptr<host::Font>& font) { frame.TakeFont(*font); },
            [](Frame& frame) { return frame.Ambient().Font(); }),
    };
    return table;
}

Frame::Frame()
{
    subclassControl_.WndProc.Connect([this](auto&&... arguments) { SubclassControl_WndProc(arguments...); });
}

void Frame::UserControl_InitProperties()
{
    TakeFont(*Ambient().Font());
    caption_ = Ambient().DisplayName();
    Start();
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

void Frame::Start()
{
    windowDc_.Take(hWnd(), WindowDc::Area::Whole);
    if (forceTrueType_)
        ApplyForceTrueType(*Font(), ForceTrueTypeChoice::MessageFontFirst);
    if (Ambient().UserMode())
        GetSurface().Enabled(enabled_);
    Caption(caption_);
    if (dragDropEnabled_)
        AcceptFiles(true);
    if (Ambient().UserMode())
        subclassControl_.TryEnable(hWnd());
}

void Frame::UserControl_Terminate()
{
    DestroyToolTip();
    windowDc_.Release();
    subclassControl_.Release();
}

void Frame::UserControl_Show()
{
    if (Ambient().UserMode())
        AdoptExtenderToolTip();
}

void Frame::UserControl_Paint()
{
    if (!Ambient().UserMode())
        DrawFrame();
}

void Frame::UserControl_Resize()
{
    if (drawnOnce_)
        DrawFrame();
}

void Frame::UserControl_AmbientChanged(StringView name)
{
    if (name == TEXT("BackColor") && backStyle_ == 1)
        DrawFrame();
}

void Frame::DrawFrame()
{
    drawnOnce_ = true;
    host::Surface& surface = GetSurface();
    surface.Clear();
    if (invisible_)
        return;
    if (backStyle_ == 1) {
        TakeForeColor(Ambient().ForeColor());
        TakeBackColor(Ambient().BackColor());
        surface.Clear();
    }
    FrameLook look;
    look.window = hWnd();
    look.themed = IsThemeAvailable() && !useClassicTheme_;
    look.enabled = enabled_;
    look.hasBorder = borderStyle_ == 1;
    look.appearance = appearance_;
    look.borderRound = borderRound_;
    look.systemBorderColors =
        borderColorDark_ == host::SystemColor(COLOR_BTNSHADOW) && borderColorLight_ == host::SystemColor(COLOR_BTNHIGHLIGHT);
    look.dark = TranslateOleColor(borderColorDark_);
    look.light = TranslateOleColor(borderColorLight_);
    look.back = TranslateOleColor(surface.BackColor());
    look.caption = Caption();

    const FrameCaption caption = AnalyseFrameCaption(look.caption);
    surface.AccessKey(caption.accessKey);
    const HDC dc = surface.Dc();
    SetTextColor(dc, TranslateOleColor(surface.ForeColor()));
    SetBkMode(dc, TRANSPARENT);
    PaintFrame(dc, look, LayOutFrame(surface.ScaleWidth(), surface.ScaleHeight(), MeasureFrameCaption(dc, caption.measured)));
}

}  // namespace controls
