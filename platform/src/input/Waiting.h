// Waiting: what happens on the PC while a thread waits.
#pragma once

#include <cstdint>

namespace platform {

/// Lets the next thing happen while a thread waits: other processes, what is due, else the clock turns, by `limit` milliseconds at the
/// most. False when nothing will ever happen.
bool LetSomethingHappen(std::uint64_t limit);
/// A wait without a limit.
inline constexpr std::uint64_t kForever = ~std::uint64_t{0} / 2;
/// Turns the clock by so many milliseconds, and everything that falls due meanwhile happens; messages of the waiting thread wait.
void PassTime(std::uint64_t milliseconds);

}  // namespace platform
