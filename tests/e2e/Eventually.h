// Eventually: patience with what other processes do.
#pragma once

#include <windows.h>

#include <chrono>

namespace e2e {

using Milliseconds = std::chrono::milliseconds;

/// How long to wait for what should happen at once. Generous: only failures wait that long.
constexpr Milliseconds soon{15000};
/// One period of the service panel's timer, and of the agent monitor's, with slack for a busy machine.
constexpr Milliseconds serviceTick{1000 + 1500};
constexpr Milliseconds agentTick{2000 + 1500};

/// Asks `condition` again and again until it is true or the time is over; its last answer.
template <class Condition>
[[nodiscard]] bool Eventually(Condition condition, Milliseconds patience = soon)
{
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return condition();
        Sleep(10);
    }
    return true;
}

}  // namespace e2e
