// SubclassHeap: the small heap that all subclass objects of one window share.
#pragma once

#include "base/String.h"

namespace controls {

/// Name of the environment variable of this process under which a window's heap is published: "DSC" and the handle, read as a
/// signed 32-bit number, in base 36. Window handles have 32 significant bits on every Windows. A negative handle gives no digits.
[[nodiscard]] base::String HeapName(HWND window);

/// One block in the heap of one window. The heap is made with its first block and destroyed with its last one.
///
/// The heap is published as 8 hexadecimal digits. A heap handle is an address and may not fit into them, so they hold its low
/// 32 bits (counted up while another live heap has the same), and are looked up among the heaps that this process has made.
/// https://learn.microsoft.com/windows/win32/api/heapapi/nf-heapapi-heapcreate
class SubclassBlock {
public:
    SubclassBlock() = default;
    SubclassBlock(const SubclassBlock&) = delete;
    SubclassBlock& operator=(const SubclassBlock&) = delete;
    ~SubclassBlock() { Free(); }

    /// Takes a zeroed block of `size` bytes from the window's heap. Raises `OutOfMemory` with everything undone that this call had made.
    void Allocate(HWND window, std::size_t size);
    /// Gives the block back; with the last one the heap goes too, and eight zeros are published.
    void Free() noexcept;

    [[nodiscard]] void* Get() const { return memory_; }
    [[nodiscard]] explicit operator bool() const { return memory_ != nullptr; }

private:
    base::String heapName_;
    HANDLE heap_ = nullptr;
    void* memory_ = nullptr;
};

}  // namespace controls
