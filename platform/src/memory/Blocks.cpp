#include "platform/src/memory/Blocks.h"

#include "platform/src/core/Gate.h"

#include <windows.h>

using namespace platform;

namespace platform {

void* Blocks::Allocate(std::size_t size, Kind kind)
{
    auto block = std::make_shared<Block>();
    block->bytes = std::make_unique<std::byte[]>(size == 0 ? 1 : size);
    block->size = size;
    block->kind = kind;
    void* const memory = block->bytes.get();
    std::uintptr_t& handle = handles_[memory];  // Made first: without memory for it nothing is open yet.
    handle = pc_.Handles().Open(block);
    return memory;
}

std::shared_ptr<Blocks::Block> Blocks::Find(const void* memory, Kind kind) const
{
    const auto found = handles_.find(memory);
    if (found == handles_.end())
        return nullptr;
    auto block = pc_.Handles().Find<Block>(found->second);
    return block && block->kind == kind ? block : nullptr;
}

bool Blocks::Free(void* memory, Kind kind)
{
    if (!Find(memory, kind))
        return false;
    pc_.Handles().CloseAny(handles_[memory]);
    handles_.erase(memory);
    return true;
}

std::size_t Blocks::SizeOf(const void* memory, Kind kind) const
{
    const auto block = Find(memory, kind);
    return block ? block->size : 0;
}

std::span<std::byte> GlobalBytes(void* block)
{
    SimPc& pc = SimPc::Current();
    if (const auto moveable = pc.Handles().Find<MoveableBlock>(block))
        return {moveable->bytes.get(), moveable->size};
    return {static_cast<std::byte*>(block), pc.Get<Blocks>().SizeOf(block, Blocks::Kind::Global)};
}

bool FreeGlobal(void* block)
{
    SimPc& pc = SimPc::Current();
    if (const auto moveable = pc.Handles().Find<MoveableBlock>(block); moveable && moveable->locks > 0)
        pc.Unsupported("freeing a block of global memory that is still locked");
    return pc.Handles().Close<MoveableBlock>(block) || pc.Get<Blocks>().Free(block, Blocks::Kind::Global);
}

}  // namespace platform
