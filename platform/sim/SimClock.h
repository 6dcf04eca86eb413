// SimClock: the time of the stand-in PC. It stands still until somebody turns it.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <utility>

namespace platform {

class SimClock {
public:
    using Ticket = std::uint64_t;

    /// Milliseconds since the PC started.
    [[nodiscard]] std::uint64_t Now() const { return now_; }

    /// Runs `action` once the clock has turned by `delay` milliseconds. Equal times run in the order in which they were scheduled.
    Ticket Schedule(std::uint64_t delay, std::function<void()> action);
    void Cancel(Ticket ticket);

    /// Milliseconds until the next action, or `limit` when none is due sooner.
    [[nodiscard]] std::uint64_t UntilNext(std::uint64_t limit) const;

    /// Turns the clock and runs one action that has become due, if any; true when one ran. `SimPc::Advance` is what tests call.
    void Turn(std::uint64_t milliseconds) { now_ += milliseconds; }
    bool RunOneDue();

private:
    std::uint64_t now_ = 1'000'000;
    Ticket lastTicket_ = 0;
    std::map<std::pair<std::uint64_t, Ticket>, std::function<void()>> actions_;
};

}  // namespace platform
