// Tooltip: when a tip comes, where it stands and when it goes.
#include "platform/src/classes/Tooltip.h"

#include "platform/src/classes/SystemClasses.h"
#include "platform/src/core/Gate.h"
#include "platform/src/gdi/Screen.h"
#include "platform/src/input/Hardware.h"
#include "platform/src/window/Window.h"

#include <algorithm>

namespace platform {

namespace {

enum TimerId : UINT_PTR {
    kShowTimer = 1,   // the mouse has rested long enough
    kLeaveTimer = 3,  // looks whether the mouse is still on the tool
    kPopTimer = 4,    // the tip has stood long enough
};
/// Where the mouse leaves a tool for nothing of its window no message comes: the tip looks for itself.
constexpr UINT kLeaveInterval = 100;
constexpr int kCursorHeight = 20;

}  // namespace

LRESULT CALLBACK TooltipProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ControlProcedure<Tooltip>(window, message, wParam, lParam);
}

LRESULT Tooltip::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_NCCREATE: {
            // Whatever style the creator asked for, a tip is a popup above everything else.
            const WindowPtr window = WindowOf(window_);
            window->style = (window->style & ~static_cast<DWORD>(WS_CHILD | WS_CAPTION)) | WS_POPUP;
            window->exStyle |= WS_EX_TOOLWINDOW | WS_EX_TOPMOST;
            return inner::DefWindowProc(window_, message, wParam, lParam);
        }
        case WM_DESTROY:
            while (!tools_.empty())
                RemoveTool(tools_.size() - 1);
            return 0;
        case WM_TIMER:
            HandleTimer(wParam);
            return 0;
        case WM_MOUSEACTIVATE:
            return MA_NOACTIVATE;
        default:
            return message > WM_USER && message < WM_APP ? HandleTooltipMessage(message, wParam, lParam)
                                                         : HandleShared(message, wParam, lParam);
    }
}

int Tooltip::ToolAt(HWND window, POINT client) const
{
    const auto found = std::find_if(tools_.begin(), tools_.end(),
                                    [&](const Tool& tool) { return tool.window == window && Holds(tool.rectangle, client); });
    return found == tools_.end() ? -1 : static_cast<int>(found - tools_.begin());
}

bool Tooltip::MouseIsOn(const Tool& tool) const
{
    const Window* under = WindowUnder(Queues().cursor);
    return under && under->handle == tool.window && Holds(tool.rectangle, inner::MapPoint(nullptr, tool.window, Queues().cursor));
}

void Tooltip::Relay(HWND tool, UINT message, LPARAM lParam)
{
    if (message != WM_MOUSEMOVE && message != WM_NCMOUSEMOVE) {  // A button or the wheel: the user does not need the tip any more.
        Pop();
        spent_ = true;  // Only leaving brings it back: test ToolTip.RestingMouse_BringsItAndOnlyLeavingTakesIt.
        return;
    }
    const int found = message == WM_MOUSEMOVE ? ToolAt(tool, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}) : -1;
    if (found != current_) {
        Pop();
        current_ = found;
        spent_ = false;
    }
    if (current_ >= 0 && !shown_ && !spent_) {
        inner::SetTimer(window_, kShowTimer, static_cast<UINT>(initialDelay_), nullptr);
        inner::SetTimer(window_, kLeaveTimer, kLeaveInterval, nullptr);
    }
}

void Tooltip::HandleTimer(WPARAM id)
{
    const bool onTool = current_ >= 0 && MouseIsOn(tools_[static_cast<std::size_t>(current_)]);
    switch (id) {
        case kShowTimer:
            inner::KillTimer(window_, kShowTimer);
            if (onTool)
                Show(current_);
            break;
        case kLeaveTimer:
            if (!onTool) {
                Pop();
                inner::KillTimer(window_, kLeaveTimer);
                current_ = -1;
                spent_ = false;
            }
            break;
        case kPopTimer:
            Pop();
            spent_ = true;
            break;
        default:
            break;
    }
}

void Tooltip::Show(int index)
{
    const Tool tool = tools_[static_cast<std::size_t>(index)];
    if (tool.text.empty())
        return;
    const SIZE size = MeasureTooltip(LookOf(tool));
    const POINT place = PlaceFor(tool, size);
    inner::SetWindowPos(window_, HWND_TOPMOST, place.x, place.y, size.cx, size.cy, SWP_NOACTIVATE);
    if (!std::exchange(shown_, true)) {
        NotifyTool(tool, TTN_SHOW);  // A window that wants the tip elsewhere moves it now.
        if (!Alive())
            return;
        if (!(tool.flags & TTF_TRACK))
            inner::SetTimer(window_, kPopTimer, static_cast<UINT>(autoPopDelay_), nullptr);
        inner::ShowWindow(window_, SW_SHOWNOACTIVATE);
    }
    Repaint();
}

void Tooltip::Pop()
{
    inner::KillTimer(window_, kShowTimer);
    inner::KillTimer(window_, kPopTimer);
    if (!std::exchange(shown_, false))
        return;
    if (current_ >= 0)
        NotifyTool(tools_[static_cast<std::size_t>(current_)], TTN_POP);
    if (Alive())
        inner::ShowWindow(window_, SW_HIDE);
}

POINT Tooltip::PlaceFor(const Tool& tool, SIZE size) const
{
    const RECT area = SimPc::Current().Get<Screen>().WorkArea();
    POINT place = Queues().cursor;
    place.y += kCursorHeight;
    if (tool.flags & TTF_TRACK) {
        place = {tracked_.x - size.cx / 2, tracked_.y};
    } else if (tool.flags & TTF_CENTERTIP) {
        const POINT below =
            inner::MapPoint(tool.window, nullptr, {(tool.rectangle.left + tool.rectangle.right) / 2, tool.rectangle.bottom});
        place = {below.x - size.cx / 2, below.y};
    }
    place.x = std::clamp<LONG>(place.x, area.left, std::max<LONG>(area.right - size.cx, area.left));
    if (place.y + size.cy > area.bottom)  // No room below: above the tool's point instead.
        place.y = std::max<LONG>(place.y - size.cy - 2 * kCursorHeight, area.top);
    return place;
}

Tooltip::Look Tooltip::LookOf(const Tool& tool) const
{
    return {tool.text, title_, icon_, Has(TTS_BALLOON), Has(TTS_NOPREFIX), maxWidth_, backColor_, textColor_, font_};
}

LRESULT Tooltip::NotifyTool(const Tool& tool, UINT code) const
{
    NMHDR header{window_, tool.id, code};
    return inner::SendMessage(tool.window, WM_NOTIFY, tool.id, reinterpret_cast<LPARAM>(&header));
}

void Tooltip::Paint(HDC dc)
{
    if (current_ >= 0)
        PaintTooltip(dc, Client(), LookOf(tools_[static_cast<std::size_t>(current_)]));
}

}  // namespace platform

BOOL WINAPI InitCommonControlsEx(const INITCOMMONCONTROLSEX* controls)
{
    SIM_CALL(FALSE, ERROR_NOT_ENOUGH_MEMORY, controls ? controls->dwSize : 0, controls ? controls->dwICC : 0);
    return controls && controls->dwSize == sizeof *controls;
}
