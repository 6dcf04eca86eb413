// The queues of all threads.
#include "platform/src/message/MessageQueues.h"

#include <algorithm>

namespace platform {

ThreadQueue& MessageQueues::Of(Actor actor)
{
    const auto found = std::find_if(queues_.begin(), queues_.end(), [&](const ThreadQueue& queue) { return queue.actor == actor; });
    if (found != queues_.end())
        return *found;
    queues_.emplace_back().actor = actor;
    return queues_.back();
}

ThreadQueue& MessageQueues::Current()
{
    return Of(pc_.CurrentActor());
}

bool MessageQueues::Hangs(const Window& window)
{
    return window.actor != pc_.CurrentActor() && Of(window).hangs;
}

void MessageQueues::Post(ThreadQueue& queue, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    queue.posted.push_back(MSG{window, message, wParam, lParam, static_cast<DWORD>(pc_.Clock().Now()), cursor});
    queue.fresh |= QS_POSTMESSAGE;
}

void MessageQueues::Forget(const Window& window)
{
    const HWND handle = window.handle;
    for (ThreadQueue& queue : queues_) {
        for (auto* waiting : {&queue.posted, &queue.ready})
            std::erase_if(*waiting, [&](const MSG& message) { return message.hwnd == handle; });
        for (const MessageTimer& timer : queue.timers)
            if (timer.window == handle)
                pc_.Clock().Cancel(timer.ticket);
        queue.timers.remove_if([&](const MessageTimer& timer) { return timer.window == handle; });
        for (HWND* remembered : {&queue.input->focus, &queue.input->active, &queue.input->capture, &queue.input->tracked})
            if (*remembered == handle)
                *remembered = nullptr;
    }
}

void MessageQueues::Forget(DWORD process)
{
    for (ThreadQueue& queue : queues_) {
        if (queue.actor.process != process)
            continue;
        queue.ended = true;
        for (const MessageTimer& timer : queue.timers)
            pc_.Clock().Cancel(timer.ticket);
        queue.timers.clear();
    }
}

MessageQueues& Queues()
{
    return SimPc::Current().Get<MessageQueues>();
}

}  // namespace platform
