// Gate: the one line at the head of every function of the stand-in PC. It records the call, counts it and asks whether it fails now.
#pragma once

#include "platform/sim/SimPc.h"

#include <windef.h>

#include <concepts>
#include <string>
#include <type_traits>

namespace platform {

/// How an argument looks in a trace.
std::string Describe(const WCHAR* text);
std::string Describe(const char* text);
std::string Describe(std::uint64_t number);
template <class T>
std::string Describe(const T& value)
{
    if constexpr (std::is_pointer_v<T>)
        return Describe(static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(value)));
    else if constexpr (std::is_integral_v<T> || std::is_enum_v<T>)
        return Describe(
            static_cast<std::uint64_t>(static_cast<std::make_unsigned_t<std::conditional_t<std::is_same_v<T, bool>, int, T>>>(value)));
    else
        return "...";
}

class Gate {
public:
    /// Enters a call that may fail. `error` is the last error that an injected failure leaves.
    template <class... Arguments>
    Gate(const char* function, DWORD error, const Arguments&... arguments)
    {
        Enter(function, [&] { return Join(arguments...); });
        fails_ = Strike(function, error);
    }
    Gate(const Gate&) = delete;
    Gate& operator=(const Gate&) = delete;
    [[nodiscard]] bool Fails() const { return fails_; }

    /// Enters a call that cannot fail.
    template <class... Arguments>
    static void Note(const char* function, const Arguments&... arguments)
    {
        Enter(function, [&] { return Join(arguments...); });
    }

    /// Text of the call that was entered last: "CreateFileW (call 1234)". It names the maker of a leaked handle.
    [[nodiscard]] static std::string CurrentCall();

private:
    template <class Join>
    static void Enter(const char* function, Join join)
    {
        SimPc& pc = SimPc::Current();
        Count(pc, function);
        if (pc.Trace().Recording())
            Record(pc, function, join());
    }
    template <class... Arguments>
    static std::string Join(const Arguments&... arguments)
    {
        std::string text;
        ((text += (text.empty() ? "" : ", ") + Describe(arguments)), ...);
        return text;
    }
    static void Count(SimPc& pc, const char* function);
    static void Record(SimPc& pc, const char* function, std::string arguments);
    static bool Strike(const char* function, DWORD error);

    bool fails_ = false;
};

}  // namespace platform

/// At the head of a function that can fail: `SIM_CALL(FALSE, ERROR_ACCESS_DENIED, window, flags);`
#define SIM_CALL(failure, error, ...)                                                             \
    if (const ::platform::Gate gate_(__func__, (error)__VA_OPT__(, ) __VA_ARGS__); gate_.Fails()) \
    return failure

/// At the head of a function that always succeeds or whose failure means nothing (GetLastError, closing, pure queries).
#define SIM_NOTE(...) ::platform::Gate::Note(__func__ __VA_OPT__(, ) __VA_ARGS__)
