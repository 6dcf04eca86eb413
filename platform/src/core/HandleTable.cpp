#include "platform/sim/HandleTable.h"

#include "platform/src/core/Gate.h"

#include <cstdio>

namespace platform {

namespace {
// A handle is generation : 13 | slot : 17 | two zero bits, so that 131071 objects can be open at once and the value fits 32 bits.
constexpr std::uint32_t kSlotBits = 17;
constexpr std::uint32_t kSlotMask = (1u << kSlotBits) - 1;
constexpr std::uint32_t kGenerationMask = (1u << 13) - 1;
}  // namespace

std::uintptr_t HandleTable::Open(std::shared_ptr<Object> object, Watch watch)
{
    // What may run out of memory comes before the handle is there.
    std::string maker = Gate::CurrentCall();
    std::uint32_t index;
    if (free_.size() > 64) {  // A slot rests for a while, so that a stale handle stays recognisably stale.
        index = free_.front();
        free_.pop_front();
    } else {
        index = static_cast<std::uint32_t>(slots_.size());
        slots_.emplace_back();
    }
    Slot& slot = slots_[index];
    slot.object = std::move(object);
    slot.watch = watch;
    slot.maker = std::move(maker);
    ++live_;
    return (static_cast<std::uintptr_t>(slot.generation) << (kSlotBits + 2)) | (static_cast<std::uintptr_t>(index) << 2);
}

const HandleTable::Slot* HandleTable::SlotOf(std::uintptr_t handle) const
{
    const std::uintptr_t index = (handle >> 2) & kSlotMask;
    const std::uintptr_t generation = handle >> (kSlotBits + 2);
    if ((handle & 3) != 0 || index >= slots_.size() || slots_[index].generation != generation || !slots_[index].object)
        return nullptr;
    return &slots_[index];
}

std::shared_ptr<Object> HandleTable::FindAny(std::uintptr_t handle) const
{
    const Slot* slot = SlotOf(handle);
    return slot ? slot->object : nullptr;
}

bool HandleTable::CloseAny(std::uintptr_t handle)
{
    const Slot* found = SlotOf(handle);
    if (!found)
        return false;
    const auto index = static_cast<std::uint32_t>(found - slots_.data());
    Slot& slot = slots_[index];
    const std::shared_ptr<Object> last = std::move(slot.object);  // Dies after the table is consistent again.
    slot.generation = (slot.generation + 1) & kGenerationMask;
    if (slot.generation == 0)
        slot.generation = 1;
    free_.push_back(index);
    --live_;
    return true;
}

std::vector<std::string> HandleTable::Leaks() const
{
    std::vector<std::string> leaks;
    for (std::size_t index = 0; index < slots_.size(); ++index) {
        const Slot& slot = slots_[index];
        if (!slot.object || slot.watch != Watch::Leak)
            continue;
        char number[40];
        std::snprintf(number, sizeof number, "0x%zX", (static_cast<std::size_t>(slot.generation) << (kSlotBits + 2)) | (index << 2));
        leaks.push_back(std::string(number) + " from " + slot.maker);
    }
    return leaks;
}

}  // namespace platform
