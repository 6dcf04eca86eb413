// Heaps. https://learn.microsoft.com/windows/win32/api/heapapi/
#include "platform/src/core/Gate.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

using namespace platform;

namespace {

struct Heap : Object {
    struct Block {
        std::unique_ptr<std::byte[]> bytes;
        std::size_t size;
    };
    std::vector<Block> blocks;
    std::size_t maximum = 0;  // 0: grows
    unsigned locks = 0;

    [[nodiscard]] std::size_t Used() const
    {
        std::size_t used = 0;
        for (const Block& block : blocks)
            used += block.size;
        return used;
    }
};

std::shared_ptr<Heap> FindHeap(HANDLE handle)
{
    SimPc& pc = SimPc::Current();
    auto heap = pc.Handles().Find<Heap>(handle);
    return heap ? heap : pc.Fail(ERROR_INVALID_HANDLE, std::shared_ptr<Heap>());
}

std::size_t PlaceOf(const Heap& heap, const void* memory)
{
    const auto found =
        std::find_if(heap.blocks.begin(), heap.blocks.end(), [&](const Heap::Block& block) { return block.bytes.get() == memory; });
    return static_cast<std::size_t>(found - heap.blocks.begin());
}

}  // namespace

HANDLE WINAPI HeapCreate(DWORD options, SIZE_T initial, SIZE_T maximum)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, options, initial, maximum);
    auto heap = std::make_shared<Heap>();
    heap->maximum = maximum;
    return AsHandle<HANDLE>(SimPc::Current().Handles().Open(heap));
}

BOOL WINAPI HeapDestroy(HANDLE heap)
{
    SIM_NOTE(heap);
    SimPc& pc = SimPc::Current();
    return pc.Handles().Close<Heap>(heap) || pc.Fail(ERROR_INVALID_HANDLE, FALSE);
}

LPVOID WINAPI HeapAlloc(HANDLE heap, DWORD flags, SIZE_T size)
{
    SIM_CALL(nullptr, ERROR_NOT_ENOUGH_MEMORY, heap, flags, size);
    const auto found = FindHeap(heap);
    if (!found)
        return nullptr;
    if (found->maximum != 0 && found->Used() + size > found->maximum)
        return SimPc::Current().Fail<LPVOID>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
    auto bytes = std::make_unique<std::byte[]>(std::max<std::size_t>(size, 1));
    if ((flags & HEAP_ZERO_MEMORY) == 0)
        std::fill_n(bytes.get(), size, std::byte{0xCD});  // Nobody may rely on what fresh memory holds.
    found->blocks.push_back({std::move(bytes), size});
    return found->blocks.back().bytes.get();
}

BOOL WINAPI HeapFree(HANDLE heap, DWORD flags, LPVOID block)
{
    SIM_NOTE(heap, flags);
    const auto found = FindHeap(heap);
    if (!found)
        return FALSE;
    if (!block)
        return TRUE;
    const std::size_t place = PlaceOf(*found, block);
    if (place == found->blocks.size())
        return SimPc::Current().Fail(ERROR_INVALID_PARAMETER, FALSE);
    found->blocks.erase(found->blocks.begin() + static_cast<std::ptrdiff_t>(place));
    return TRUE;
}

BOOL WINAPI HeapLock(HANDLE heap)
{
    SIM_CALL(FALSE, ERROR_INVALID_HANDLE, heap);
    const auto found = FindHeap(heap);
    if (found)
        ++found->locks;
    return found != nullptr;
}

BOOL WINAPI HeapUnlock(HANDLE heap)
{
    SIM_NOTE(heap);
    const auto found = FindHeap(heap);
    if (!found || found->locks == 0)
        return SimPc::Current().Fail(found ? ERROR_NOT_LOCKED : ERROR_INVALID_HANDLE, FALSE);
    --found->locks;
    return TRUE;
}

BOOL WINAPI HeapWalk(HANDLE heap, LPPROCESS_HEAP_ENTRY entry)
{
    SIM_CALL(FALSE, ERROR_INVALID_PARAMETER, heap);
    SimPc& pc = SimPc::Current();
    const auto found = FindHeap(heap);
    if (!found)
        return FALSE;
    // The region comes first, then what is in use, then the rest of the region.
    std::size_t next = 0;
    if (!entry->lpData) {
        *entry = {};
        entry->lpData = found.get();
        entry->wFlags = PROCESS_HEAP_REGION;
        return TRUE;
    }
    if (entry->lpData == &found->blocks)
        return pc.Fail(ERROR_NO_MORE_ITEMS, FALSE);
    if (entry->lpData != found.get()) {
        next = PlaceOf(*found, entry->lpData);
        if (next == found->blocks.size())
            return pc.Fail(ERROR_INVALID_PARAMETER, FALSE);
        ++next;
    }
    *entry = {};
    if (next < found->blocks.size()) {
        entry->lpData = found->blocks[next].bytes.get();
        entry->cbData = static_cast<DWORD>(found->blocks[next].size);
        entry->wFlags = PROCESS_HEAP_ENTRY_BUSY;
    } else {
        entry->lpData = &found->blocks;
        entry->wFlags = PROCESS_HEAP_UNCOMMITTED_RANGE;
    }
    return TRUE;
}
