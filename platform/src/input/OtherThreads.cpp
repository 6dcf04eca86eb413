#include "platform/src/input/OtherThreads.h"

#include "platform/src/input/Inner.h"
#include "platform/src/message/MessageQueues.h"

namespace platform {

OtherThreads::OtherThreads(SimPc& pc) : Area(pc)
{
    pc.AddBackground([this] { return Run(); });
}

bool OtherThreads::Run()
{
    if (running_)
        return false;
    MessageQueues& queues = Queues();
    queues.All().remove_if([](const ThreadQueue& queue) { return queue.ended && queue.handlingSent == 0; });
    running_ = true;
    bool worked = false;
    for (ThreadQueue& queue : queues.All()) {
        if (queue.hangs || queue.ended || queue.actor.process == SimPc::Own().process)
            continue;
        pc_.ActAs(queue.actor, [&] {
            MSG message;
            while (inner::PeekMessage(message, nullptr, 0, 0, PM_REMOVE)) {
                worked = true;
                if (message.message == WM_QUIT) {
                    if (queues.onQuit)
                        queues.onQuit(queue.actor, static_cast<int>(message.wParam));
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

}  // namespace platform
