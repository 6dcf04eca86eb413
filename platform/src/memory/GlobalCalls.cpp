// Global memory. https://learn.microsoft.com/windows/win32/api/winbase/nf-winbase-globalalloc
#include "platform/src/core/Gate.h"
#include "platform/src/memory/Blocks.h"

#include <windows.h>

using namespace platform;

HGLOBAL WINAPI GlobalAlloc(UINT flags, SIZE_T size)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, flags, size);
    SimPc& pc = SimPc::Current();
    if ((flags & GMEM_MOVEABLE) == 0)
        return pc.Get<Blocks>().Allocate(size, Blocks::Kind::Global);
    auto block = std::make_shared<MoveableBlock>();
    block->bytes = std::make_unique<std::byte[]>(size);
    block->size = size;
    return AsHandle<HGLOBAL>(pc.Handles().Open(block));
}

HGLOBAL WINAPI GlobalFree(HGLOBAL block)
{
    SIM_NOTE(block);
    return FreeGlobal(block) ? nullptr : SimPc::Current().Fail(ERROR_INVALID_HANDLE, block);
}

LPVOID WINAPI GlobalLock(HGLOBAL block)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, block);
    SimPc& pc = SimPc::Current();
    if (const auto moveable = pc.Handles().Find<MoveableBlock>(block)) {
        ++moveable->locks;
        return moveable->bytes.get();
    }
    return GlobalBytes(block).empty() ? pc.Fail<LPVOID>(ERROR_INVALID_HANDLE, nullptr) : block;
}

BOOL WINAPI GlobalUnlock(HGLOBAL block)
{
    SIM_NOTE(block);
    SimPc& pc = SimPc::Current();
    const auto moveable = pc.Handles().Find<MoveableBlock>(block);
    if (!moveable || moveable->locks == 0)
        return pc.Fail(moveable ? ERROR_NOT_LOCKED : ERROR_INVALID_HANDLE, FALSE);
    // FALSE with no error says that the last lock has gone.
    return --moveable->locks != 0 || pc.Fail(NO_ERROR, FALSE);
}

SIZE_T WINAPI GlobalSize(HGLOBAL block)
{
    SIM_NOTE(block);
    return GlobalBytes(block).size();
}
