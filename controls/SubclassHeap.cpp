#include "controls/SubclassHeap.h"

#include "base/Handle.h"
#include "controls/OutOfMemory.h"

#include <algorithm>
#include <map>

namespace controls {

using base::String;
using base::StringView;

namespace {

struct HeapTraits {
    using Type = HANDLE;
    static Type None() noexcept { return nullptr; }
    static void Close(Type heap) noexcept { HeapDestroy(heap); }
};
using HeapHandle = base::Handle<HeapTraits>;

struct LiveHeap {
    HANDLE handle = nullptr;
    std::size_t blocks = 0;
};

/// The live heaps of this process by their published number. A number that a parent process left in the inherited environment is not among
/// them.
std::map<DWORD, LiveHeap>& LiveHeaps()
{
    static std::map<DWORD, LiveHeap> heaps;
    return heaps;
}

/// How many blocks of a live heap were given out and not yet taken back.
std::size_t& KnownBlocks(HANDLE heap)
{
    return std::ranges::find_if(LiveHeaps(), [heap](const auto& entry) { return entry.second.handle == heap; })->second.blocks;
}

/// Also when memory has run out.
bool Publish(const String& name, DWORD number) noexcept
{
    WCHAR digits[9]{};
    for (std::size_t place = 8; place-- > 0; number >>= 4)
        digits[place] = TEXT("0123456789ABCDEF")[number & 0xF];
    return SetEnvironmentVariableW(name.c_str(), digits) != FALSE;
}

DWORD NumberFromHex(StringView digits)
{
    DWORD number = 0;
    for (const WCHAR digit : digits) {
        const std::size_t value = StringView(TEXT("0123456789ABCDEF")).find(digit);
        if (value == StringView::npos)
            return 0;
        number = number << 4 | static_cast<DWORD>(value);
    }
    return number;
}

/// The heap that is published under `name`, or NULL.
HANDLE PublishedHeap(const String& name)
{
    WCHAR digits[9];
    const DWORD length = GetEnvironmentVariableW(name.c_str(), digits, 9);
    if (length == 0 || length > 8)
        return nullptr;
    const auto found = LiveHeaps().find(NumberFromHex({digits, length}));
    return found == LiveHeaps().end() ? nullptr : found->second.handle;
}

/// Makes a heap that only the user-interface thread uses, hence without a lock of its own, and enters it in the table and the environment.
HANDLE CreatePublishedHeap(const String& name)
{
    HeapHandle heap(HeapCreate(HEAP_NO_SERIALIZE, 0, 0));
    if (!heap)
        throw OutOfMemory();
    DWORD number = static_cast<DWORD>(reinterpret_cast<ULONG_PTR>(heap.Get()));
    while (number == 0 || LiveHeaps().contains(number))
        ++number;
    LiveHeaps().emplace(number, LiveHeap{heap.Get()});
    if (!Publish(name, number)) {
        LiveHeaps().erase(number);
        throw OutOfMemory();
    }
    return heap.Release();
}

void DestroyPublishedHeap(const String& name, HANDLE heap) noexcept
{
    std::erase_if(LiveHeaps(), [heap](const auto& entry) { return entry.second.handle == heap; });
    HeapDestroy(heap);
    Publish(name, 0);
}

/// The blocks in use, or 0 when the walk broke off: what it had counted until then may miss blocks of living objects.
std::size_t BusyBlocks(HANDLE heap)
{
    std::size_t count = 0;
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heap);
    while (HeapWalk(heap, &entry))
        count += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
    const bool isWhole = GetLastError() == ERROR_NO_MORE_ITEMS;
    HeapUnlock(heap);
    return isWhole ? count : 0;
}

}  // namespace

String HeapName(HWND window)
{
    const auto handle = static_cast<LONG>(reinterpret_cast<LONG_PTR>(window));
    String digits;
    if (handle == 0)
        digits = TEXT("0");
    for (LONG rest = handle; rest > 0; rest /= 36)
        digits += TEXT("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ")[rest % 36];
    return TEXT("DSC") + String(digits.rbegin(), digits.rend());
}

void SubclassBlock::Allocate(HWND window, std::size_t size)
{
    String name = HeapName(window);
    HANDLE heap = PublishedHeap(name);
    const bool isNew = !heap;
    if (isNew)
        heap = CreatePublishedHeap(name);
    memory_ = HeapAlloc(heap, HEAP_ZERO_MEMORY | HEAP_NO_SERIALIZE, size);
    if (!memory_) {
        if (isNew)
            DestroyPublishedHeap(name, heap);
        throw OutOfMemory();
    }
    ++KnownBlocks(heap);
    heap_ = heap;
    heapName_ = std::move(name);
}

void SubclassBlock::Free() noexcept
{
    if (!memory_)
        return;
    // This block is one of them, so a walk that counts none has failed.
    const std::size_t counted = BusyBlocks(heap_);
    if ((counted == 0 ? KnownBlocks(heap_) : counted) == 1) {
        DestroyPublishedHeap(heapName_, heap_);
    } else {
        --KnownBlocks(heap_);
        HeapFree(heap_, HEAP_NO_SERIALIZE, memory_);
    }
    memory_ = nullptr;
}

}  // namespace controls
