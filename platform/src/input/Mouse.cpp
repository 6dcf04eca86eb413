// The mouse: which window gets its messages, and what that window and its parents hear first.
#include "platform/src/core/Gate.h"
#include "platform/src/input/Focus.h"
#include "platform/src/input/Hardware.h"
#include "platform/src/input/Inner.h"
#include "platform/src/message/ParentNotify.h"

#include <cstdlib>

namespace platform {

namespace {

constexpr DWORD kDoubleClickTime = 500;
constexpr int kDoubleClickReach = 2;  // half of SM_CXDOUBLECLK
// The messages of the frame stand in the same order as those of the client area.
static_assert(WM_NCLBUTTONDOWN - WM_NCMOUSEMOVE == WM_LBUTTONDOWN - WM_MOUSEMOVE);
static_assert(WM_NCLBUTTONUP - WM_NCMOUSEMOVE == WM_LBUTTONUP - WM_MOUSEMOVE);
static_assert(WM_NCLBUTTONDBLCLK - WM_NCMOUSEMOVE == WM_LBUTTONDBLCLK - WM_MOUSEMOVE);

struct Hit {
    WindowPtr window;
    int code = HTNOWHERE;
};

/// Windows at a point, the deepest and topmost first, each before the one that lies below it. A disabled child lets the mouse through to
/// its parent.
void Collect(const std::vector<Window*>& siblings, POINT point, bool topLevel, std::vector<WindowPtr>& into)
{
    for (Window* window : siblings) {
        if (!(window->style & WS_VISIBLE) || !Holds(window->frame, point) || (!topLevel && (window->style & WS_DISABLED)))
            continue;
        if (window->shape && !window->shape->Contains({point.x - window->frame.left, point.y - window->frame.top}))
            continue;
        if (Holds(window->client, point) && !(window->style & WS_DISABLED))
            Collect(window->children, point, false, into);
        into.push_back(window->shared_from_this());
        if (topLevel)
            return;
    }
}

/// Asks the windows at a point with WM_NCHITTEST until one does not call itself transparent.
Hit HitTest(POINT point)
{
    std::vector<WindowPtr> windows;
    Collect(Tree().Desktop().children, point, true, windows);
    for (const WindowPtr& window : windows) {
        if (window->style & WS_DISABLED)
            return {window, HTERROR};
        const int code = static_cast<int>(inner::SendMessage(window->handle, WM_NCHITTEST, 0, MAKELPARAM(point.x, point.y)));
        if (code != HTTRANSPARENT)
            return {window, code};
    }
    return {};
}

WPARAM HeldKeys(const InputState& input)
{
    static constexpr struct {
        int key;
        WPARAM flag;
    } flags[] = {
        {VK_LBUTTON, MK_LBUTTON}, {VK_RBUTTON, MK_RBUTTON}, {VK_SHIFT, MK_SHIFT}, {VK_CONTROL, MK_CONTROL}, {VK_MBUTTON, MK_MBUTTON}};
    WPARAM held = 0;
    for (const auto& [key, flag] : flags)
        if (input.keys[key] & 0x80)
            held |= flag;
    return held;
}

bool IsDown(UINT message)
{
    return message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN;
}

void UpdateButton(InputState& input, UINT message)
{
    const int key = message <= WM_LBUTTONUP ? VK_LBUTTON : message <= WM_RBUTTONUP ? VK_RBUTTON : VK_MBUTTON;
    BYTE& state = input.keys[key];
    state = IsDown(message) ? static_cast<BYTE>((state ^ 0x01) | 0x80) : static_cast<BYTE>(state & ~0x80);
}

/// Counts presses: the second one in the same place, soon enough, is a double click (conformance test
/// Input.TwoQuickClicks_AreADoubleClick); a third begins anew.
UINT CountClick(InputState& input, const Window& window, UINT message, const HardwareEvent& event, bool client)
{
    const bool twice = input.clickWindow == window.handle && input.clickMessage == message &&
                       event.time - input.clickTime <= kDoubleClickTime &&
                       std::abs(event.point.x - input.clickPoint.x) <= kDoubleClickReach &&
                       std::abs(event.point.y - input.clickPoint.y) <= kDoubleClickReach;
    input.clickWindow = twice ? nullptr : window.handle;
    input.clickMessage = message;
    input.clickTime = event.time;
    input.clickPoint = event.point;
    const bool wanted = !client || (window.windowClass->style & CS_DBLCLKS);
    return twice && wanted ? message + (WM_LBUTTONDBLCLK - WM_LBUTTONDOWN) : message;
}

/// A press: the parents hear of it, then the top-level window may become active (conformance test
/// Input.ClickOnAChildOfAnInactiveWindow_ActivatesFirst). False when the press is swallowed.
bool AnnouncePress(const Hit& hit, UINT message, const HardwareEvent& event)
{
    Queues().foregroundLockedBy = 0;  // The user's click opens a lock on the foreground.
    NotifyParents(*hit.window, message, 0, event.point);
    Window& root = hit.window->TopLevel();
    const WindowPtr keep = root.shared_from_this();
    const LRESULT answer =
        inner::SendMessage(hit.window->handle, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(root.handle), MAKELPARAM(hit.code, message));
    if ((answer == MA_ACTIVATE || answer == MA_ACTIVATEANDEAT || answer == 0) && WindowOf(root.handle) &&
        !(root.exStyle & WS_EX_NOACTIVATE))
        Activate(root, WA_CLICKACTIVE);
    return answer != MA_ACTIVATEANDEAT && answer != MA_NOACTIVATEANDEAT;
}

MSG MakeMessage(const HardwareEvent& event, HWND window, UINT message, WPARAM wParam, POINT point)
{
    return MSG{window, message, wParam, MAKELPARAM(point.x, point.y), event.time, event.point};
}

std::optional<MSG> FindWheelReceiver(const InputState& input, const HardwareEvent& event)
{
    const HWND window = input.focus ? input.focus : input.active;
    if (!window)
        return {};
    return MakeMessage(event, window, WM_MOUSEWHEEL, MAKEWPARAM(HeldKeys(input), event.wheel), event.point);
}

}  // namespace

std::optional<MSG> FindMouseReceiver(ThreadQueue& queue, const HardwareEvent& event)
{
    InputState& input = *queue.input;
    if (event.kind == HardwareEvent::Kind::Wheel)
        return FindWheelReceiver(input, event);
    UINT message = event.kind == HardwareEvent::Kind::Move ? WM_MOUSEMOVE : event.message;
    if (message != WM_MOUSEMOVE)
        UpdateButton(input, message);
    const bool down = IsDown(message);

    const WindowPtr captor = WindowOf(input.capture);
    const Hit hit = captor ? Hit{captor, HTCLIENT} : HitTest(event.point);
    if (!captor && input.tracked &&
        (!hit.window || hit.window->handle != input.tracked || (hit.code != HTCLIENT) != input.trackedNonClient))
        Leave(input);
    if (!hit.window || !WindowOf(hit.window->handle))
        return {};
    const bool client = hit.code == HTCLIENT;
    const HWND handle = hit.window->handle;
    const UINT plain = message;
    if (down && hit.code != HTERROR)
        message = CountClick(input, *hit.window, message, event, client);
    if (!captor) {
        if (down && hit.code != HTERROR && !AnnouncePress(hit, plain, event))
            return {};
        if (!WindowOf(handle))
            return {};
        inner::SendMessage(handle, WM_SETCURSOR, reinterpret_cast<WPARAM>(handle), MAKELPARAM(hit.code, plain));
        if (hit.code == HTERROR || hit.code == HTNOWHERE || !WindowOf(handle))
            return {};
    }
    if (!client)
        return MakeMessage(event, handle, message - WM_MOUSEMOVE + WM_NCMOUSEMOVE, static_cast<WPARAM>(hit.code), event.point);
    const POINT point = inner::MapPoint(nullptr, handle, event.point);
    return MakeMessage(event, handle, message, HeldKeys(input), point);
}

namespace inner {

BOOL TrackMouseEvent(TRACKMOUSEEVENT& track)
{
    SimPc& pc = SimPc::Current();
    if (track.cbSize != sizeof track)
        return pc.Fail(ERROR_INVALID_PARAMETER, FALSE);
    if (track.dwFlags & TME_QUERY) {
        const InputState& input = *Queues().Current().input;
        track.hwndTrack = input.tracked;
        track.dwFlags = !input.tracked ? 0 : input.trackedNonClient ? TME_LEAVE | TME_NONCLIENT : TME_LEAVE;
        return TRUE;
    }
    const WindowPtr window = RequireWindow(track.hwndTrack);
    if (!window)
        return FALSE;
    if (track.dwFlags & TME_HOVER) {
        pc.Unsupported("TrackMouseEvent: TME_HOVER");
        return FALSE;
    }
    InputState& input = *Queues().Of(*window).input;
    if (track.dwFlags & TME_CANCEL) {
        if (input.tracked == window->handle)
            input.tracked = nullptr;
        return TRUE;
    }
    input.tracked = window->handle;
    input.trackedNonClient = (track.dwFlags & TME_NONCLIENT) != 0;
    // A window that the mouse is not over is told at once.
    if (!input.capture && HitTest(Queues().cursor).window != window)
        Leave(input);
    return TRUE;
}

}  // namespace inner

}  // namespace platform

using namespace platform;

BOOL WINAPI TrackMouseEvent(LPTRACKMOUSEEVENT track)
{
    SIM_CALL(FALSE, ERROR_INVALID_PARAMETER, track->dwFlags, track->hwndTrack, track->dwHoverTime);
    return inner::TrackMouseEvent(*track);
}

BOOL WINAPI GetCursorPos(LPPOINT point)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED);
    *point = Queues().cursor;
    return TRUE;
}

/// Nobody listens on the stand-in PC.
void WINAPI NotifyWinEvent(DWORD event, HWND window, LONG object, LONG child)
{
    SIM_NOTE(event, window, object, child);
}

UINT WINAPI GetDoubleClickTime()
{
    SIM_NOTE();
    return kDoubleClickTime;
}

HWND WINAPI WindowFromPoint(POINT point)
{
    SIM_NOTE(point.x, point.y);
    const Hit hit = HitTest(point);
    return hit.window ? hit.window->handle : Tree().Desktop().handle;
}
