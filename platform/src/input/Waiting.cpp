#include "platform/src/input/Waiting.h"

#include "platform/src/core/Gate.h"
#include "platform/src/input/Inner.h"
#include "platform/src/input/OtherThreads.h"
#include "platform/src/input/Retrieval.h"
#include "platform/src/message/MessageQueues.h"

namespace platform {

bool LetSomethingHappen(std::uint64_t limit)
{
    SimPc& pc = SimPc::Current();
    if (pc.Get<OtherThreads>().Run() || pc.Clock().RunOneDue())
        return true;
    const std::uint64_t step = pc.Clock().UntilNext(limit);
    if (step == kForever)
        return false;
    pc.Clock().Turn(step);
    pc.Clock().RunOneDue();
    return true;
}

void PassTime(std::uint64_t milliseconds)
{
    SimPc& pc = SimPc::Current();
    const std::uint64_t end = pc.Clock().Now() + milliseconds;
    while (pc.Clock().Now() < end)
        LetSomethingHappen(end - pc.Clock().Now());
}

}  // namespace platform

using namespace platform;

// What counts as new and what as waiting: conformance test MessageQueue.Waiting_EndsWithWhatIsAskedFor.

DWORD WINAPI GetQueueStatus(UINT flags)
{
    SIM_NOTE(flags);
    ThreadQueue& queue = Queues().Current();
    const UINT waiting = WaitingTypes(queue) & flags;
    const UINT fresh = queue.fresh & flags;
    queue.fresh &= ~flags;
    return MAKELONG(fresh, waiting);
}

BOOL WINAPI WaitMessage()
{
    SIM_CALL(FALSE, ERROR_GEN_FAILURE);
    ThreadQueue& queue = Queues().Current();
    while (((queue.fresh | (WaitingTypes(queue) & (QS_PAINT | QS_TIMER))) & QS_ALLINPUT) == 0) {
        if (!LetSomethingHappen(kForever)) {
            SimPc::Current().Unsupported("WaitMessage: nothing will ever come");
            return FALSE;
        }
    }
    return TRUE;
}

LRESULT WINAPI SendMessageTimeoutW(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT flags, UINT timeout, DWORD_PTR* result)
{
    SIM_CALL(0, ERROR_TIMEOUT, window, message, wParam, lParam, flags, timeout);
    const WindowPtr found = RequireWindow(window);
    if (!found)
        return 0;
    if (Queues().Hangs(*found)) {
        if (!(flags & SMTO_ABORTIFHUNG))
            PassTime(timeout);
        return SimPc::Current().Fail(ERROR_TIMEOUT, 0);
    }
    const LRESULT answer = inner::SendMessage(window, message, wParam, lParam);
    if (result)
        *result = static_cast<DWORD_PTR>(answer);
    return 1;
}
