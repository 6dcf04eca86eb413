#include "platform/src/input/Retrieval.h"

#include "platform/src/core/Gate.h"
#include "platform/src/input/Hardware.h"
#include "platform/src/input/Inner.h"
#include "platform/src/input/Waiting.h"
#include "platform/src/window/Visibility.h"

#include <algorithm>

namespace platform {

bool MessageFilter::Takes(HWND receiver) const
{
    if (!window)
        return true;
    if (window == reinterpret_cast<HWND>(static_cast<INT_PTR>(-1)))
        return !receiver;
    const WindowPtr wanted = WindowOf(window);
    const WindowPtr found = WindowOf(receiver);
    return wanted && found && (found == wanted || found->IsBelow(wanted.get()));
}

namespace {

bool TakeFrom(std::deque<MSG>& waiting, MSG& message, const MessageFilter& filter, bool remove)
{
    const auto found = std::find_if(waiting.begin(), waiting.end(),
                                    [&](const MSG& candidate) { return filter.Takes(candidate.message) && filter.Takes(candidate.hwnd); });
    if (found == waiting.end())
        return false;
    message = *found;
    if (remove)
        waiting.erase(found);
    return true;
}

/// Lets one movement of the hardware find its window. False when none waits.
bool HandOut(ThreadQueue& queue)
{
    if (queue.input->events.empty())
        return false;
    const HardwareEvent event = queue.input->events.front();
    queue.input->events.pop_front();
    if (const auto found = FindReceiver(queue, event))
        if (const WindowPtr window = WindowOf(found->hwnd))
            Queues().Of(*window).ready.push_back(*found);
    return true;
}

bool TakePaint(const ThreadQueue& queue, MSG& message, const MessageFilter& filter)
{
    if (!filter.Takes(WM_PAINT))
        return false;
    const WindowPtr window = NextToPaint(queue.actor, [&](HWND candidate) { return filter.Takes(candidate); });
    if (!window)
        return false;
    message = MSG{window->handle, WM_PAINT, 0, 0, static_cast<DWORD>(SimPc::Current().Clock().Now()), Queues().cursor};
    return true;
}

bool TakeTimer(ThreadQueue& queue, MSG& message, const MessageFilter& filter, bool remove)
{
    if (!filter.Takes(WM_TIMER))
        return false;
    const auto found = std::find_if(queue.timers.begin(), queue.timers.end(),
                                    [&](const MessageTimer& timer) { return timer.due && filter.Takes(timer.window); });
    if (found == queue.timers.end())
        return false;
    message = MSG{
        found->window,  WM_TIMER, found->id, reinterpret_cast<LPARAM>(found->procedure), static_cast<DWORD>(SimPc::Current().Clock().Now()),
        Queues().cursor};
    if (remove) {
        found->due = false;
        queue.timers.splice(queue.timers.end(), queue.timers, found);  // Several due timers take turns.
    }
    return true;
}

}  // namespace

/// The order: conformance tests MessageQueue.PostedComeBeforeQuitBeforePaint and
/// PeriodsThatPassUnheard_AreOneTimerMessageAfterThePosted.
bool Retrieve(ThreadQueue& queue, MSG& message, const MessageFilter& filter, bool remove)
{
    queue.fresh = 0;
    const auto takeQuit = [&] {
        if (!queue.quits)
            return false;
        const POINT cursor = Queues().cursor;
        message = MSG{nullptr, WM_QUIT, static_cast<WPARAM>(queue.exitCode), 0, static_cast<DWORD>(SimPc::Current().Clock().Now()), cursor};
        queue.quits = !remove;
        return true;
    };
    while (!TakeFrom(queue.posted, message, filter, remove) && !takeQuit() && !TakeFrom(queue.ready, message, filter, remove)) {
        if (HandOut(queue))
            continue;
        if (TakePaint(queue, message, filter) || TakeTimer(queue, message, filter, remove))
            break;
        return false;
    }
    queue.messageTime = message.time;
    queue.messagePoint = message.pt;
    return true;
}

UINT WaitingTypes(const ThreadQueue& queue)
{
    UINT types = queue.posted.empty() && !queue.quits ? 0 : QS_POSTMESSAGE;
    for (const HardwareEvent& event : queue.input->events)
        types |= QueueBit(event);
    for (const MSG& message : queue.ready)
        types |= message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST        ? QS_KEY
                 : message.message == WM_MOUSEMOVE || message.message == WM_NCMOUSEMOVE ? QS_MOUSEMOVE
                                                                                        : QS_MOUSEBUTTON;
    if (NextToPaint(queue.actor, [](HWND) { return true; }))
        types |= QS_PAINT;
    if (std::any_of(queue.timers.begin(), queue.timers.end(), [](const MessageTimer& timer) { return timer.due; }))
        types |= QS_TIMER;
    return types;
}

namespace inner {

BOOL PeekMessage(MSG& message, HWND window, UINT first, UINT last, UINT remove)
{
    return Retrieve(Queues().Current(), message, MessageFilter{window, first, last}, (remove & PM_REMOVE) != 0);
}

BOOL GetMessage(MSG& message, HWND window, UINT first, UINT last)
{
    while (!Retrieve(Queues().Current(), message, MessageFilter{window, first, last}, true)) {
        if (!LetSomethingHappen(kForever)) {
            SimPc::Current().Unsupported("GetMessageW: nothing will ever come");
            return -1;
        }
    }
    return message.message != WM_QUIT;
}

LRESULT DispatchMessage(const MSG& message)
{
    if (message.message == WM_TIMER && message.lParam) {
        reinterpret_cast<TIMERPROC>(message.lParam)(message.hwnd, WM_TIMER, message.wParam,
                                                    static_cast<DWORD>(SimPc::Current().Clock().Now()));
        return 0;
    }
    if (!WindowOf(message.hwnd))
        return 0;
    return SendMessage(message.hwnd, message.message, message.wParam, message.lParam);
}

}  // namespace inner

}  // namespace platform

using namespace platform;

BOOL WINAPI GetMessageW(LPMSG message, HWND window, UINT first, UINT last)
{
    SIM_NOTE(window, first, last);
    if (window && window != reinterpret_cast<HWND>(static_cast<INT_PTR>(-1)) && !RequireWindow(window))
        return -1;
    return inner::GetMessage(*message, window, first, last);
}

BOOL WINAPI PeekMessageW(LPMSG message, HWND window, UINT first, UINT last, UINT remove)
{
    SIM_NOTE(window, first, last, remove);
    return inner::PeekMessage(*message, window, first, last, remove);
}

LRESULT WINAPI DispatchMessageW(const MSG* message)
{
    SIM_NOTE(message->hwnd, message->message, message->wParam, message->lParam);
    return inner::DispatchMessage(*message);
}

BOOL WINAPI TranslateMessage(const MSG* message)
{
    SIM_NOTE(message->hwnd, message->message, message->wParam, message->lParam);
    return inner::TranslateMessage(*message);
}
