// HandleTable: every handle of the stand-in PC, as numbers that tell a stale handle from a live one.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace platform {

/// What a handle stands for. Windows, services, GDI objects and the rest derive from this; their destructors release what they hold.
class Object {
public:
    virtual ~Object() = default;
};

class HandleTable {
public:
    /// Whether a handle that is still open at the end of a test counts as a leak.
    enum class Watch { Leak, Ignore };

    /// Gives `object` a new handle. Values are multiples of 4, never 0, at most 32 bits significant.
    std::uintptr_t Open(std::shared_ptr<Object> object, Watch watch = Watch::Leak);

    /// The object behind a handle when it is live and of type `T`, else empty.
    template <class T>
    [[nodiscard]] std::shared_ptr<T> Find(std::uintptr_t handle) const
    {
        return std::dynamic_pointer_cast<T>(FindAny(handle));
    }
    template <class T>
    [[nodiscard]] std::shared_ptr<T> Find(const void* handle) const
    {
        return Find<T>(reinterpret_cast<std::uintptr_t>(handle));
    }
    [[nodiscard]] std::shared_ptr<Object> FindAny(std::uintptr_t handle) const;

    /// Forgets a live handle of type `T`; false when it is stale or of another type.
    template <class T>
    bool Close(const void* handle)
    {
        return Find<T>(handle) && CloseAny(reinterpret_cast<std::uintptr_t>(handle));
    }
    bool CloseAny(std::uintptr_t handle);

    /// One line for each watched handle that is still open: its number and the call that made it.
    [[nodiscard]] std::vector<std::string> Leaks() const;
    /// Handles that are open now, watched or not.
    [[nodiscard]] std::size_t Count() const { return live_; }

private:
    struct Slot {
        std::shared_ptr<Object> object;
        std::uint32_t generation = 1;
        Watch watch = Watch::Ignore;
        std::string maker;
    };
    [[nodiscard]] const Slot* SlotOf(std::uintptr_t handle) const;

    std::vector<Slot> slots_{1};
    std::deque<std::uint32_t> free_;
    std::size_t live_ = 0;
};

/// A handle value as the pointer type that Windows gives it.
template <class T>
[[nodiscard]] T AsHandle(std::uintptr_t value)
{
    return reinterpret_cast<T>(value);
}

}  // namespace platform
