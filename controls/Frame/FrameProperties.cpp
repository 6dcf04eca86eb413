// FrameProperties: what setting a frame's properties does.
#include "controls/FontRule.h"
#include "controls/Frame/Frame.h"

#include <algorithm>

namespace controls {

using base::String;

void Frame::Changed(const WCHAR* name)
{
    PropertyChanged(name);
    DrawFrame();
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
    Changed(TEXT("Caption"));
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
    Changed(TEXT("BackColor"));
}

void Frame::ForeColor(OleColor color)
{
    TakeForeColor(color);
    Changed(TEXT("ForeColor"));
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

void Frame::BackStyle(std::int32_t style)
{
    backStyle_ = style;
    Changed(TEXT("BackStyle"));
}

void Frame::BorderStyle(std::int32_t style)
{
    borderStyle_ = style;
    Changed(TEXT("BorderStyle"));
}

void Frame::Appearance(std::uint8_t appearance)
{
    appearance_ = appearance;
    Changed(TEXT("Appearance"));
}

void Frame::BorderRound(std::int32_t round)
{
    borderRound_ = std::clamp(round, 0, 20);
    Changed(TEXT("BorderRound"));
}

void Frame::BorderColorDark(OleColor color)
{
    borderColorDark_ = color;
    Changed(TEXT("BorderColorDark"));
}

void Frame::BorderColorLight(OleColor color)
{
    borderColorLight_ = color;
    Changed(TEXT("BorderColorLight"));
}

void Frame::Invisible(bool invisible)
{
    invisible_ = invisible;
    Changed(TEXT("Invisible"));
}

void Frame::Enabled(bool enabled)
{
    if (enableDisableChilds_)
        EnableChildren(enabled);
    enabled_ = enabled;
    PropertyChanged(TEXT("Enabled"));
    if (Ambient().UserMode())
        GetSurface().Enabled(enabled);
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
    enableDisableChilds_ = enable;
    disabledBefore_.clear();
    PropertyChanged(TEXT("EnableDisableChilds"));
}

void Frame::DragDropEnabled(bool enable)
{
    dragDropEnabled_ = enable;
    AcceptFiles(enable);
    PropertyChanged(TEXT("DragDropEnabled"));
}

void Frame::AcceptFiles(bool accept)
{
    const LONG style = GetWindowLongW(hWnd(), GWL_EXSTYLE);
    SetWindowLongW(hWnd(), GWL_EXSTYLE, accept ? style | WS_EX_ACCEPTFILES : style & ~WS_EX_ACCEPTFILES);
}

void Frame::OLEDropMode(std::int16_t mode)
{
    GetSurface().OleDropMode(mode);
    PropertyChanged(TEXT("OLEDropMode"));
}

void Frame::UseClassicTheme(bool classic)
{
    useClassicTheme_ = classic;
    Changed(TEXT("UseClassicTheme"));
}

void Frame::ForceTrueType(bool force)
{
    forceTrueType_ = force;
    PropertyChanged(TEXT("ForceTrueType"));
    if (force)
        ApplyForceTrueType(*Font(), ForceTrueTypeChoice::MessageFontFirst);
}

}  // namespace controls
