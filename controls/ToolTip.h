// ToolTip: the balloon tip of a control, its eight properties and its life between mouse entry and mouse leave.
#pragma once

#include "base/String.h"
#include "controls/DSubclass.h"
#include "controls/TranslateOleColor.h"
#include "host/UserControl.h"

#include <commctrl.h>

#include <cstdint>
#include <memory>

namespace controls {

/// What the container is told has changed; not every control spells all names alike.
struct ToolTipNames {
    const WCHAR* icon = TEXT("ToolTipIcon");
    const WCHAR* backColor = TEXT("TooltipBackColor");
};

/// Every control has this as a second base, so that the tip's properties are the control's own. A change is seen the next time that
/// the mouse enters the control: the tip window is made anew at each entry and lives until the mouse leaves.
/// https://learn.microsoft.com/windows/win32/controls/tooltip-controls
class ToolTip {
public:
    /// Text of the tip. A text that is not empty also empties the container's own plain tip text.
    [[nodiscard]] const base::String& ToolTipTextW() const { return tip_.text; }
    void ToolTipTextW(const base::String& text);
    /// Title line; without it no icon is shown either.
    [[nodiscard]] const base::String& TooltipTitle() const { return tip_.title; }
    void TooltipTitle(const base::String& title);
    /// 0 none, 1 information, 2 warning, 3 error.
    [[nodiscard]] std::int32_t ToolTipIcon() const { return tip_.icon; }
    void ToolTipIcon(std::int32_t icon);
    [[nodiscard]] bool ToolTipBalloon() const { return tip_.balloon; }
    void ToolTipBalloon(bool balloon);
    /// Centred below the control.
    [[nodiscard]] bool ToolTipCentred() const { return tip_.centred; }
    void ToolTipCentred(bool centred);
    /// Greatest width in pixels, 0 for no limit.
    [[nodiscard]] std::int32_t ToolTipWidth() const { return tip_.width; }
    void ToolTipWidth(std::int32_t width);
    [[nodiscard]] OleColor TooltipBackColor() const { return tip_.backColor; }
    void TooltipBackColor(OleColor color);
    [[nodiscard]] OleColor ToolTipForeColor() const { return tip_.foreColor; }
    void ToolTipForeColor(OleColor color);

    /// The tip's window while there is one.
    [[nodiscard]] HWND ToolTipWindow() const { return window_; }
    /// Takes the tip away until the mouse comes in again.
    void DestroyToolTip();

protected:
    struct Settings {
        base::String text;
        base::String title;
        std::int32_t icon = 0;
        bool balloon = false;
        bool centred = false;
        std::int32_t width = 0;
        OleColor backColor = 0x80000018;
        OleColor foreColor = 0x80000017;
    };

    /// Leads to one of the settings, for a control's table of stored properties.
    template <class Control, auto Setting>
    [[nodiscard]] static auto Tip()
    {
        return [](Control & control) -> auto&
        {
            return static_cast<ToolTip&>(control).tip_.*Setting;
        };
    }

    explicit ToolTip(host::UserControl& control, ToolTipNames names = {}) : control_(control), names_(names) {}
    ToolTip(const ToolTip&) = delete;
    ToolTip& operator=(const ToolTip&) = delete;
    ~ToolTip() { DestroyToolTip(); }

    /// A mouse move over `window`, the one that the control watches: makes the tip and asks for the leave message when the mouse was
    /// outside. True for such an entry.
    bool MouseMovedOver(HWND window);
    [[nodiscard]] bool IsMouseInside() const { return isMouseInside_; }
    /// The mouse has left: the tip goes.
    void MouseLeft();
    /// Takes over the plain tip text that the container keeps for the control.
    void AdoptExtenderToolTip();

private:
    void Notify(const WCHAR* name);
    void CreateToolTip(HWND window);
    void SubclassToolTip_WndProc(UINT message, WPARAM timer, bool& handled);

    host::UserControl& control_;
    ToolTipNames names_;
    Settings tip_;
    HWND window_ = nullptr;
    bool isMouseInside_ = false;
    base::String shownText_;
    TOOLINFOW tool_{};
    std::unique_ptr<DSubclass> subclassToolTip_;
};

}  // namespace controls
