// Desktop: the hands of a person (mouse and keyboard) and patience.
#pragma once

#include "base/String.h"

#include <chrono>
#include <initializer_list>

namespace e2e {

using Milliseconds = std::chrono::milliseconds;

/// How long to wait for what should happen at once. Generous: only failures wait that long.
constexpr Milliseconds SOON{15000};
/// One period of the service panel's timer, and of the agent monitor's, with slack for a busy machine.
constexpr Milliseconds SERVICE_TICK{1000 + 1500};
constexpr Milliseconds AGENT_TICK{2000 + 1500};

/// Asks `condition` again and again until it is true or the time is over; its last answer.
template <class Condition>
[[nodiscard]] bool Eventually(Condition condition, Milliseconds patience = SOON)
{
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return condition();
        Sleep(10);
    }
    return true;
}

/// True when `condition` stays true for the whole time.
template <class Condition>
[[nodiscard]] bool Throughout(Milliseconds time, Condition condition)
{
    return !Eventually([&] { return !condition(); }, time);
}

/// A left click at a place of the screen, never the second half of a double click.
void Click(POINT screen);

/// Presses the keys in order, the last one with all others held, and lets them go in reverse.
void Press(std::initializer_list<WORD> virtualKeys);

/// Types the text; characters that have no key of their own come as Unicode input.
void Type(base::StringView text);

}  // namespace e2e
