// Kernel handles: closing them, waiting for them; mutexes. https://learn.microsoft.com/windows/win32/api/synchapi/
#include "platform/src/input/Waiting.h"
#include "platform/src/core/Gate.h"
#include "platform/src/input/Retrieval.h"
#include "platform/src/process/Mutex.h"
#include "platform/src/process/ProcessHandle.h"
#include "platform/src/text/Buffers.h"

#include <windows.h>

#include <algorithm>

using namespace platform;

namespace {

/// Longer than any scene lasts; a wait without end that is not over by then never will be.
constexpr DWORD kLongEnough = 10 * 60 * 1000;

/// The waitable object behind a handle; empty with the last error set when there is none.
std::shared_ptr<KernelObject> FindWaitable(HANDLE handle)
{
    SimPc& pc = SimPc::Current();
    auto object = pc.Handles().Find<KernelObject>(handle);
    if (!object || !object->Waitable())
        return pc.Fail(object ? ERROR_ACCESS_DENIED : ERROR_INVALID_HANDLE, std::shared_ptr<KernelObject>());
    return object;
}

}  // namespace

namespace platform {

std::shared_ptr<Mutex> Mutexes::Open(std::u16string_view name, bool& existed)
{
    std::weak_ptr<Mutex>& entry = named_[std::u16string(name)];
    auto mutex = entry.lock();
    existed = mutex != nullptr;
    if (!mutex) {
        mutex = std::make_shared<Mutex>();
        entry = mutex;
    }
    return mutex;
}

bool MutexHandle::Signalled() const
{
    return mutex->owner == 0 || mutex->owner == SimPc::Current().CurrentActor().thread;
}

void MutexHandle::WaitEnded()
{
    mutex->owner = SimPc::Current().CurrentActor().thread;
    ++mutex->depth;
}

}  // namespace platform

BOOL WINAPI CloseHandle(HANDLE object)
{
    SIM_NOTE(object);
    SimPc& pc = SimPc::Current();
    return pc.Handles().Close<KernelObject>(object) || pc.Fail(ERROR_INVALID_HANDLE, FALSE);
}

DWORD WINAPI WaitForSingleObject(HANDLE object, DWORD milliseconds)
{
    SIM_CALL(WAIT_FAILED, ERROR_INVALID_HANDLE, object, milliseconds);
    SimPc& pc = SimPc::Current();
    const auto waitable = FindWaitable(object);
    if (!waitable)
        return WAIT_FAILED;
    if (pc.Block(std::min(milliseconds, kLongEnough), [&] { return waitable->Signalled(); })) {
        waitable->WaitEnded();
        return WAIT_OBJECT_0;
    }
    if (milliseconds != INFINITE)
        return WAIT_TIMEOUT;
    pc.Unsupported("WaitForSingleObject waits for ever");
    return WAIT_FAILED;
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

HANDLE WINAPI CreateMutexW(LPSECURITY_ATTRIBUTES, BOOL initialOwner, LPCWSTR name)
{
    SIM_CALL(nullptr, ERROR_ACCESS_DENIED, initialOwner, name);
    SimPc& pc = SimPc::Current();
    bool existed = false;
    auto mutex = OrEmpty(name).empty() ? std::make_shared<Mutex>() : pc.Get<Mutexes>().Open(name, existed);
    const auto handle = std::make_shared<MutexHandle>(std::move(mutex));
    if (!existed && initialOwner)
        handle->WaitEnded();
    pc.LastError(existed ? ERROR_ALREADY_EXISTS : NO_ERROR);
    return OpenHandle(pc, handle);
}
