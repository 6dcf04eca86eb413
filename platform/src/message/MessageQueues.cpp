// The queues of all threads.
#include "platform/src/message/MessageQueues.h"

#include "platform/sim/Desktop.h"
#include "platform/src/window/Inner.h"

#include <algorithm>

namespace platform {

MessageQueues::MessageQueues(SimPc& pc) : Area(pc)
{
    pc.AddBackground([this] { return RunOthers(); });
}

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

bool MessageQueues::RunOthers()
{
    if (running_)
        return false;
    queues_.remove_if([](const ThreadQueue& queue) { return queue.ended && queue.handlingSent == 0; });
    running_ = true;
    bool worked = false;
    for (ThreadQueue& queue : queues_) {
        if (queue.hangs || queue.ended || queue.actor.process == SimPc::Own().process)
            continue;
        pc_.ActAs(queue.actor, [&] {
            MSG message;
            while (inner::PeekMessage(message, nullptr, 0, 0, PM_REMOVE)) {
                worked = true;
                if (message.message == WM_QUIT) {
                    if (auto& onQuit = pc_.Get<Desktop>().OnQuit)
                        onQuit(queue.actor, static_cast<int>(message.wParam));
                    break;
                }
                inner::TranslateMessage(message);
                inner::DispatchMessage(message);
            }
        });
    }
    running_ = false;
    return worked;
}

MessageQueues& Queues()
{
    return SimPc::Current().Get<MessageQueues>();
}

}  // namespace platform
