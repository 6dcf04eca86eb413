#include "platform/src/message/Waiting.h"

#include "platform/src/core/Gate.h"
#include "platform/src/message/MessageQueues.h"
#include "platform/src/message/Retrieval.h"
#include "platform/src/process/KernelObject.h"

#include <algorithm>

namespace platform {

bool LetSomethingHappen(std::uint64_t limit)
{
    SimPc& pc = SimPc::Current();
    if (Queues().RunOthers() || pc.Clock().RunOneDue())
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

DWORD WINAPI GetQueueStatus(UINT flags)
{
    SIM_NOTE(flags);
    ThreadQueue& queue = Queues().Current();
    const UINT waiting = WaitingTypes(queue) & flags;
    const UINT fresh = queue.fresh & flags;
    queue.fresh &= ~flags;
    return MAKELONG(fresh, waiting);
}

DWORD WINAPI MsgWaitForMultipleObjects(DWORD count, const HANDLE* handles, BOOL waitAll, DWORD milliseconds, DWORD wakeMask)
{
    SIM_CALL(WAIT_FAILED, ERROR_INVALID_HANDLE, count, handles, waitAll, milliseconds, wakeMask);
    SimPc& pc = SimPc::Current();
    std::vector<std::shared_ptr<KernelObject>> objects;
    for (DWORD index = 0; index < count; ++index) {
        objects.push_back(FindWaitable(handles[index]));
        if (!objects.back())
            return WAIT_FAILED;
    }
    ThreadQueue& queue = Queues().Current();
    const std::uint64_t end = milliseconds == INFINITE ? 0 : pc.Clock().Now() + milliseconds;
    while (true) {
        const bool input = ((queue.fresh | (WaitingTypes(queue) & (QS_PAINT | QS_TIMER))) & wakeMask) != 0;
        const auto signalled = [](const auto& object) { return object->Signalled(); };
        if (waitAll && count > 0) {
            if (input && std::all_of(objects.begin(), objects.end(), signalled)) {
                for (const auto& object : objects)
                    object->WaitEnded();
                return 0;
            }
        } else {
            const auto first = std::find_if(objects.begin(), objects.end(), signalled);
            if (first != objects.end()) {
                (*first)->WaitEnded();
                return static_cast<DWORD>(first - objects.begin());
            }
            if (input)
                return count;
        }
        if (milliseconds != INFINITE && pc.Clock().Now() >= end)
            return WAIT_TIMEOUT;
        if (!LetSomethingHappen(milliseconds == INFINITE ? kForever : end - pc.Clock().Now())) {
            pc.Unsupported("MsgWaitForMultipleObjects: nothing will ever come");
            return WAIT_FAILED;
        }
    }
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
