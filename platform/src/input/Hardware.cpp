#include "platform/src/input/Hardware.h"

#include "platform/src/core/Gate.h"

#include <algorithm>

namespace platform {

namespace {

Window* FindUnder(const std::vector<Window*>& siblings, POINT point, bool topLevel)
{
    for (Window* window : siblings) {
        if (!(window->style & WS_VISIBLE) || !Holds(window->frame, point) || (!topLevel && (window->style & WS_DISABLED)))
            continue;
        if (window->shape && !window->shape->Contains({point.x - window->frame.left, point.y - window->frame.top}))
            continue;
        Window* child = Holds(window->client, point) ? FindUnder(window->children, point, false) : nullptr;
        return child ? child : window;
    }
    return nullptr;
}

/// The thread whose window is below the mouse, or that has captured it.
ThreadQueue* MouseThread()
{
    const auto& foreground = Queues().Foreground();
    const WindowPtr captor = foreground ? WindowOf(foreground->capture) : nullptr;
    if (captor)
        return &Queues().Of(*captor);
    const Window* window = WindowUnder(Queues().cursor);
    return window ? &Queues().Of(*window) : nullptr;
}

void SetAsyncKey(WORD key, bool up)
{
    BYTE& state = Queues().asyncKeys[key & 0xFF];
    state = up ? static_cast<BYTE>(state & ~0x80) : static_cast<BYTE>(0x81);
}

void InjectMouse(HardwareEvent event)
{
    MessageQueues& queues = Queues();
    if (event.kind == HardwareEvent::Kind::Move) {
        const RECT screen = Tree().Desktop().frame;
        queues.cursor = {std::clamp(event.point.x, 0, screen.right - 1), std::clamp(event.point.y, 0, screen.bottom - 1)};
    }
    event.point = queues.cursor;
    if (event.kind == HardwareEvent::Kind::Button) {
        const bool up = event.message == WM_LBUTTONUP || event.message == WM_RBUTTONUP || event.message == WM_MBUTTONUP;
        SetAsyncKey(event.message <= WM_LBUTTONUP ? VK_LBUTTON : event.message <= WM_RBUTTONUP ? VK_RBUTTON : VK_MBUTTON, up);
    }
    ThreadQueue* thread = event.kind == HardwareEvent::Kind::Wheel ? nullptr : MouseThread();
    if (event.kind == HardwareEvent::Kind::Wheel)  // The wheel belongs to the window with the focus.
        for (ThreadQueue& queue : queues.All())
            if (queues.IsForeground(queue))
                thread = &queue;
    for (ThreadQueue& queue : queues.All())
        if (queue.input->tracked && !queue.input->capture && (!thread || queue.input != thread->input))
            Leave(*queue.input);
    if (!thread)
        return;
    auto& events = thread->input->events;
    if (event.kind == HardwareEvent::Kind::Move && !events.empty() && events.back().kind == HardwareEvent::Kind::Move)
        events.pop_back();
    events.push_back(event);
    thread->fresh |= QueueBit(event);
}

void InjectKeyEvent(const HardwareEvent& event)
{
    SetAsyncKey(event.virtualKey, event.up);
    const auto& foreground = Queues().Foreground();
    if (!foreground)
        return;
    foreground->events.push_back(event);
    for (ThreadQueue& queue : Queues().All())
        if (Queues().IsForeground(queue))
            queue.fresh |= QS_KEY;
}

}  // namespace

void Leave(InputState& input)
{
    const WindowPtr window = WindowOf(std::exchange(input.tracked, nullptr));
    if (window)
        Queues().Post(Queues().Of(*window), window->handle, input.trackedNonClient ? WM_NCMOUSELEAVE : WM_MOUSELEAVE, 0, 0);
}

UINT QueueBit(const HardwareEvent& event)
{
    switch (event.kind) {
        case HardwareEvent::Kind::Move:
            return QS_MOUSEMOVE;
        case HardwareEvent::Kind::Key:
            return QS_KEY;
        default:
            return QS_MOUSEBUTTON;
    }
}

void Inject(HardwareEvent event)
{
    event.time = static_cast<DWORD>(SimPc::Current().Clock().Now());
    if (event.kind == HardwareEvent::Kind::Key)
        InjectKeyEvent(event);
    else
        InjectMouse(event);
}

void InjectKey(WORD virtualKey, bool up, WORD scanCode, bool extended)
{
    HardwareEvent event;
    event.kind = HardwareEvent::Kind::Key;
    event.virtualKey = virtualKey;
    event.up = up;
    event.scanCode = scanCode;
    event.extended = extended;
    Inject(event);
}

std::optional<MSG> FindReceiver(ThreadQueue& queue, const HardwareEvent& event)
{
    return event.kind == HardwareEvent::Kind::Key ? FindKeyReceiver(queue, event) : FindMouseReceiver(queue, event);
}

Window* WindowUnder(POINT point)
{
    return FindUnder(Tree().Desktop().children, point, true);
}

/// The hardware's next move is what tells, also when none comes: Windows makes one up. Conformance test
/// Input.Leaving_IsToldOnceToTheWindowThatAsked.
void MouseMayHaveLeft()
{
    const Window* under = WindowUnder(Queues().cursor);
    for (ThreadQueue& queue : Queues().All()) {
        if (!queue.input->tracked || queue.input->capture || (under && under->handle == queue.input->tracked))
            continue;
        HardwareEvent event;
        event.point = Queues().cursor;
        Inject(event);
        return;
    }
}

}  // namespace platform

using namespace platform;

UINT WINAPI SendInput(UINT count, LPINPUT inputs, int size)
{
    SIM_CALL(0, ERROR_ACCESS_DENIED, count, size);
    if (size != sizeof(INPUT))
        return SimPc::Current().Fail(ERROR_INVALID_PARAMETER, 0u);
    const RECT screen = Tree().Desktop().frame;
    const auto mouse = [&](const MOUSEINPUT& input) {
        HardwareEvent event;
        if (input.dwFlags & MOUSEEVENTF_MOVE) {
            const POINT from = Queues().cursor;
            if (input.dwFlags & MOUSEEVENTF_ABSOLUTE)
                event.point = {static_cast<LONG>((static_cast<LONGLONG>(input.dx) * screen.right) >> 16),
                               static_cast<LONG>((static_cast<LONGLONG>(input.dy) * screen.bottom) >> 16)};
            else
                event.point = {from.x + input.dx, from.y + input.dy};
            Inject(event);
        }
        static constexpr struct {
            DWORD flag;
            UINT message;
        } buttons[] = {{MOUSEEVENTF_LEFTDOWN, WM_LBUTTONDOWN},   {MOUSEEVENTF_LEFTUP, WM_LBUTTONUP},
                       {MOUSEEVENTF_RIGHTDOWN, WM_RBUTTONDOWN},  {MOUSEEVENTF_RIGHTUP, WM_RBUTTONUP},
                       {MOUSEEVENTF_MIDDLEDOWN, WM_MBUTTONDOWN}, {MOUSEEVENTF_MIDDLEUP, WM_MBUTTONUP}};
        event.kind = HardwareEvent::Kind::Button;
        for (const auto& button : buttons) {
            event.message = button.message;
            if (input.dwFlags & button.flag)
                Inject(event);
        }
        if (input.dwFlags & MOUSEEVENTF_WHEEL) {
            event.kind = HardwareEvent::Kind::Wheel;
            event.wheel = static_cast<int>(input.mouseData);
            Inject(event);
        }
    };
    for (UINT index = 0; index < count; ++index) {
        const INPUT& input = inputs[index];
        if (input.type == INPUT_MOUSE)
            mouse(input.mi);
        else if (input.type == INPUT_KEYBOARD)
            InjectKey((input.ki.dwFlags & KEYEVENTF_UNICODE) ? VK_PACKET : input.ki.wVk, (input.ki.dwFlags & KEYEVENTF_KEYUP) != 0,
                      input.ki.wScan, (input.ki.dwFlags & KEYEVENTF_EXTENDEDKEY) != 0);
        else
            return SimPc::Current().Fail(ERROR_INVALID_PARAMETER, index);
    }
    return count;
}
