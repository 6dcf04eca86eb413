// Frame: life and drawing.
#include "controls/Frame/Frame.h"

#include "controls/Frame/FramePainter.h"
#include "controls/ThemeState.h"
#include "host/AccessibleFacts.h"

#include <oleacc.h>

namespace controls {

using base::StringView;

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

void Frame::Start()
{
    windowDc_.Take(hWnd(), WindowDc::Area::Whole);
    KeepTrueType();
    if (Ambient().UserMode())
        Input().Enabled(enabled_);
    Caption(caption_);
    if (dragDropEnabled_)
        AcceptFiles(true);
    if (Ambient().UserMode())
        subclassControl_.TryEnable(hWnd());
}

host::AccessibleFacts Frame::Accessibility()
{
    host::AccessibleFacts facts = LibraryControl::Accessibility();
    facts.role = ROLE_SYSTEM_GROUPING;
    facts.caption = caption_;
    return facts;
}

void Frame::UserControl_Terminate()
{
    DestroyToolTip();
    windowDc_.Release();
    subclassControl_.Release();
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
    if (name == TEXT("BackColor") && backStyle_ == ContainerColors)
        DrawFrame();
}

void Frame::DrawFrame()
{
    drawnOnce_ = true;
    host::Surface& surface = GetSurface();
    surface.Clear();
    if (invisible_)
        return;
    if (backStyle_ == ContainerColors) {
        TakeForeColor(Ambient().ForeColor());
        TakeBackColor(Ambient().BackColor());
        surface.Clear();
    }
    FrameLook look;
    look.window = hWnd();
    look.themed = IsThemeAvailable() && !useClassicTheme_;
    look.enabled = enabled_;
    look.hasBorder = borderStyle_ == FrameWithBorder;
    look.appearance = appearance_;
    look.borderRound = borderRound_;
    look.systemBorderColors =
        borderColorDark_ == host::SystemColor(COLOR_BTNSHADOW) && borderColorLight_ == host::SystemColor(COLOR_BTNHIGHLIGHT);
    look.dark = TranslateOleColor(borderColorDark_);
    look.light = TranslateOleColor(borderColorLight_);
    look.back = TranslateOleColor(surface.BackColor());
    look.caption = Caption();

    const FrameCaption caption = AnalyseFrameCaption(look.caption);
    Input().AccessKey(caption.accessKey);
    const HDC dc = surface.Dc();
    SetTextColor(dc, TranslateOleColor(surface.ForeColor()));
    SetBkMode(dc, TRANSPARENT);
    PaintFrame(dc, look, LayOutFrame(surface.ScaleWidth(), surface.ScaleHeight(), MeasureFrameCaption(dc, caption.measured)));
}

}  // namespace controls
