#include "controls/LibraryControl.h"

#include "controls/GoldenSection.h"
#include "controls/WindowPlace.h"
#include "host/AccessibleFacts.h"

namespace controls {

void LibraryControl::UserControl_Show()
{
    if (IsRunTime())
        AdoptExtenderToolTip();
}

/// A text that the container has been given is the newer one: the next tip takes it over.
host::AccessibleFacts LibraryControl::Accessibility()
{
    const base::String& given = GetExtender().ToolTipText();
    return {.description = given.empty() ? ToolTipTextW() : given};
}

void LibraryControl::ZedOrder(HWND insertAfter)
{
    if (MoveInZOrder(hWnd(), ContainerWindow(), insertAfter))
        Refresh();
}

double LibraryControl::GetGoldenSection(std::int32_t In_SegmentLen, bool In_GetMaxSegment) const
{
    return controls::GetGoldenSection(In_SegmentLen, In_GetMaxSegment);
}

void LibraryControl::GoldenSection(bool apply)
{
    if (!apply)
        return;
    Width(static_cast<float>(controls::GetGoldenSection(static_cast<std::int32_t>(Height()), true)));
    PropertyChanged(TEXT("Width"));
}

/// The former font may outlive the control in somebody else's hands, so it must not lead here any more.
void LibraryControl::TakeFont(const host::Font& font)
{
    if (Font())
        Font()->FontChanged.Connect({});
    GetSurface().Font(font.Copy());
    Font()->FontChanged.Connect([this] {
        FontChanged();
        PropertyChanged(TEXT("Font"));
    });
}

void LibraryControl::Font(const std::shared_ptr<host::Font>& font)
{
    if (!font)
        return;
    TakeFont(*font);
    FontChanged();
    PropertyChanged(TEXT("Font"));
}

void LibraryControl::ForceTrueType(bool force)
{
    Keep(forceTrueType_, force, TEXT("ForceTrueType"));
    KeepTrueType();
}

void LibraryControl::KeepTrueType()
{
    if (forceTrueType_)
        ApplyForceTrueType(*Font(), trueTypeChoice_);
}

}  // namespace controls
