// Handle: the one owner of Windows handles. A traits type says what is owned and how it is closed.
#pragma once

#include <windows.h>

#include <utility>

namespace base {

/// Owns one handle and closes it once. Move-only.
///
/// `Traits` gives `Type` (the handle's type), `static Type None()` (the value that owns nothing) and
/// `static void Close(Type)`. Closing keeps the thread's last error, so a result may be read after owners went out of scope.
template <class Traits>
class Handle {
public:
    using Type = typename Traits::Type;

    Handle() = default;
    explicit Handle(Type handle) noexcept : handle_(handle) {}
    Handle(Handle&& other) noexcept : handle_(other.Release()) {}
    Handle& operator=(Handle&& other) noexcept
    {
        Reset(other.Release());
        return *this;
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { Reset(); }

    [[nodiscard]] Type Get() const noexcept { return handle_; }
    [[nodiscard]] explicit operator bool() const noexcept { return handle_ != Traits::None(); }

    /// Closes what is owned and takes over `handle`.
    void Reset(Type handle = Traits::None()) noexcept
    {
        const Type old = std::exchange(handle_, handle);
        if (old == Traits::None())
            return;
        const DWORD error = GetLastError();
        Traits::Close(old);
        SetLastError(error);
    }

    /// Gives the handle away without closing it.
    [[nodiscard]] Type Release() noexcept { return std::exchange(handle_, Traits::None()); }

    /// Closes what is owned and gives the address to a call that fills it in.
    [[nodiscard]] Type* Receive() noexcept
    {
        Reset();
        return &handle_;
    }

private:
    Type handle_ = Traits::None();
};

}  // namespace base
