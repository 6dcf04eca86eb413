// Tooltip: the little window that explains what the mouse rests on.
#pragma once

#include "platform/src/classes/Control.h"

#include <commctrl.h>

#include <vector>

namespace platform {

class Tooltip : public Control {
public:
    using Control::Control;
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// What a painter needs to know.
    struct Look {
        std::u16string text;
        std::u16string title;  // empty: neither title nor icon
        int icon = TTI_NONE;
        bool balloon = false;
        bool noPrefix = false;
        int maxWidth = -1;  // pixels; -1 leaves the text on one line
        COLORREF backColor = 0;
        COLORREF textColor = 0;
        HFONT font = nullptr;
    };

    /// The mouse did something over a tool whose messages the tooltip follows.
    void Relay(HWND tool, UINT message, LPARAM lParam);

protected:
    void Paint(HDC dc) override;

private:
    struct Tool {
        UINT flags = 0;
        HWND window = nullptr;
        UINT_PTR id = 0;
        RECT rectangle{};  // client pixels of its window
        HINSTANCE instance = nullptr;
        std::u16string text;
        LPARAM data = 0;
    };

    // Tools and settings (TooltipTools.cpp).
    LRESULT HandleTooltipMessage(UINT message, WPARAM wParam, LPARAM lParam);
    bool AddTool(const TTTOOLINFOW& info);
    void RemoveTool(std::size_t index);
    [[nodiscard]] bool DescribeTool(TTTOOLINFOW& info) const;
    void Track(bool activate, const TTTOOLINFOW& info);
    void SetDelay(WPARAM which, int milliseconds);
    [[nodiscard]] int Delay(WPARAM which) const;

    // Coming and going (Tooltip.cpp).
    [[nodiscard]] int ToolAt(HWND window, POINT client) const;
    [[nodiscard]] bool MouseIsOn(const Tool& tool) const;
    void HandleTimer(WPARAM id);
    void Show(int tool);
    void Pop();
    [[nodiscard]] POINT PlaceFor(const Tool& tool, SIZE size) const;
    [[nodiscard]] Look LookOf(const Tool& tool) const;
    LRESULT NotifyTool(const Tool& tool, UINT code) const;

    std::vector<Tool> tools_;
    int current_ = -1;  // the tool below the mouse
    bool shown_ = false;
    bool spent_ = false;  // shown and gone, or clicked: nothing more until the mouse has left the tool
    int initialDelay_ = 500;
    int autoPopDelay_ = 5000;
    int reshowDelay_ = 100;
    POINT tracked_{};  // of the screen, where a tool that is tracked has its tip
    int maxWidth_ = -1;
    std::u16string title_;
    int icon_ = TTI_NONE;
    COLORREF backColor_ = SimPc::Current().Get<Graphics>().SystemColor(COLOR_INFOBK);
    COLORREF textColor_ = SimPc::Current().Get<Graphics>().SystemColor(COLOR_INFOTEXT);
};

/// The size of a tip's window in pixels.
[[nodiscard]] SIZE MeasureTooltip(const Tooltip::Look& look);
void PaintTooltip(HDC dc, const RECT& client, const Tooltip::Look& look);

}  // namespace platform
