// Blocks: memory that the system gives out by pointer and expects back: GlobalAlloc, network buffers, automation's texts.
#pragma once

#include "platform/sim/SimPc.h"

#include <cstddef>
#include <map>
#include <memory>
#include <span>

namespace platform {

class Blocks : public Area {
public:
    enum class Kind { Global, Net, Text };
    using Area::Area;

    /// Zeroed memory; a block that is never given back is a leak, named after the call that made it.
    void* Allocate(std::size_t size, Kind kind);
    /// False when the pointer is not a live block of this kind.
    bool Free(void* memory, Kind kind);
    /// Bytes of a live block, 0 for anything else.
    [[nodiscard]] std::size_t SizeOf(const void* memory, Kind kind) const;

private:
    struct Block : Object {
        std::unique_ptr<std::byte[]> bytes;
        std::size_t size = 0;
        Kind kind{};
    };
    [[nodiscard]] std::shared_ptr<Block> Find(const void* memory, Kind kind) const;
    std::map<const void*, std::uintptr_t> handles_;
};

/// Memory that may move: GlobalAlloc with GMEM_MOVEABLE gives a handle of this.
struct MoveableBlock : Object {
    std::unique_ptr<std::byte[]> bytes;
    std::size_t size = 0;
    unsigned locks = 0;
};

/// The bytes behind what GlobalAlloc gave, of either kind; empty for anything else.
[[nodiscard]] std::span<std::byte> GlobalBytes(void* block);
/// Gives such memory back; false for anything else.
bool FreeGlobal(void* block);

}  // namespace platform
