// CommandButtonFont: fitting the caption's font to the button.
#include "controls/CommandButton/CommandButton.h"
#include "controls/FontNarrowing.h"

namespace controls {

namespace {

/// The next smaller size in points.
float Smaller(float points)
{
    return points - (points > 20 ? 2.0F : points > 12 ? 1.0F : 0.5F);
}

SIZE SizeOf(const RECT& rectangle)
{
    return {rectangle.right - rectangle.left, rectangle.bottom - rectangle.top};
}

}  // namespace

void CommandButton::FitFont()
{
    const bool wasApplied = autoSizeApplied_;
    autoSizeApplied_ = false;
    if (wasApplied || caption_.empty())
        GiveNarrowedFontBack();
    if (caption_.empty())
        return;
    fittingFont_ = true;
    if (wasApplied && Font()->Size() < baseFontSize_)
        Font()->Size(baseFontSize_);
    if (fontAutoSize_ == AutoSizeNarrow)
        NarrowFont();
    else if (fontAutoSize_ != AutoSizeOff)
        ShrinkFont();
    fittingFont_ = false;
}

void CommandButton::TellFont(HFONT font)
{
    SendMessageUnsubclassed(subclassControl_, hWnd(), WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void CommandButton::GiveNarrowedFontBack()
{
    if (!narrowedFont_)
        return;
    if (const std::shared_ptr<const base::FontHandle> own = Font()->Share())
        TellFont(own->Get());
    narrowedFont_.Reset();
}

void CommandButton::ShrinkFont()
{
    const SIZE room = SizeOf(GetExtender().PixelRect());
    for (;;) {
        SIZE text{};
        if (!GetTextExtentPoint32W(GetSurface().Dc(), caption_.c_str(), static_cast<int>(caption_.size()), &text))
            return;
        if ((text.cy + 2 < room.cy && text.cx + 2 < room.cx) || Font()->Size() < 1)
            return;
        Font()->Size(Smaller(Font()->Size()));
    }
}

/// Starts from the width that the font has by itself. The narrowed font is selected for each drawing, and the window is told of each
/// step for those who listen.
void CommandButton::NarrowFont()
{
    const HDC dc = GetSurface().Dc();
    TEXTMETRICW metrics{};
    if (!GetTextMetricsW(dc, &metrics))
        return;
    LOGFONTW start = Font()->LogicalFont();
    start.lfWidth = metrics.tmAveCharWidth;
    const HGDIOBJ own = GetCurrentObject(dc, OBJ_FONT);
    const int tooWide = SizeOf(GetExtender().PixelRect()).cx + 1;
    narrowedFont_ = NarrowToFit(dc, start, caption_, tooWide, [this](HFONT font) { TellFont(font); });
    SelectObject(dc, own);
    if (!narrowedFont_)
        return;
    autoSizeApplied_ = true;
    RedrawWindow(hWnd(), nullptr, nullptr, RDW_INVALIDATE);
}

}  // namespace controls
