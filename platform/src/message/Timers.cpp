// Timers of windows and threads. They mark themselves due; the queue makes WM_TIMER of that when nothing else waits.
#include "platform/src/core/Gate.h"
#include "platform/src/message/Inner.h"
#include "platform/src/message/MessageQueues.h"

#include <algorithm>

namespace platform {

namespace {

MessageTimer* Find(ThreadQueue& queue, HWND window, UINT_PTR id)
{
    const auto found = std::find_if(queue.timers.begin(), queue.timers.end(),
                                    [&](const MessageTimer& timer) { return timer.window == window && timer.id == id; });
    return found == queue.timers.end() ? nullptr : &*found;
}

void Start(Actor actor, MessageTimer& timer)
{
    timer.ticket = SimPc::Current().Clock().Schedule(timer.period, [actor, window = timer.window, id = timer.id] {
        ThreadQueue& queue = Queues().Of(actor);
        if (MessageTimer* running = Find(queue, window, id)) {
            running->due = true;
            queue.fresh |= QS_TIMER;
            Start(actor, *running);
        }
    });
}

}  // namespace

namespace inner {

UINT_PTR SetTimer(HWND handle, UINT_PTR id, UINT milliseconds, TIMERPROC procedure)
{
    SimPc& pc = SimPc::Current();
    const WindowPtr window = handle ? RequireWindow(handle) : nullptr;
    if (handle && !window)
        return 0;
    ThreadQueue& queue = window ? Queues().Of(*window) : Queues().Current();
    MessageTimer* timer = Find(queue, handle, id);
    if (!handle && !timer) {  // A timer without a window gets a number of its own.
        for (id = 1; Find(queue, nullptr, id);)
            ++id;
    }
    if (timer)
        pc.Clock().Cancel(timer->ticket);
    else
        timer = &queue.timers.emplace_back();
    *timer = MessageTimer{handle, id, std::clamp<UINT>(milliseconds, USER_TIMER_MINIMUM, USER_TIMER_MAXIMUM), procedure};
    Start(queue.actor, *timer);
    return id ? id : 1;
}

BOOL KillTimer(HWND handle, UINT_PTR id)
{
    const WindowPtr window = handle ? RequireWindow(handle) : nullptr;
    if (handle && !window)
        return FALSE;
    ThreadQueue& queue = window ? Queues().Of(*window) : Queues().Current();
    MessageTimer* timer = Find(queue, handle, id);
    if (!timer)
        return SimPc::Current().Fail(ERROR_INVALID_PARAMETER, FALSE);
    SimPc::Current().Clock().Cancel(timer->ticket);
    queue.timers.remove_if([&](const MessageTimer& candidate) { return &candidate == timer; });
    return TRUE;
}

}  // namespace inner

}  // namespace platform

using namespace platform;

UINT_PTR WINAPI SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure)
{
    SIM_CALL(0, ERROR_NOT_ENOUGH_MEMORY, window, id, milliseconds, procedure != nullptr);
    return inner::SetTimer(window, id, milliseconds, procedure);
}

BOOL WINAPI KillTimer(HWND window, UINT_PTR id)
{
    SIM_NOTE(window, id);
    return inner::KillTimer(window, id);
}
