#include "platform/sim/SimClock.h"

#include <algorithm>

namespace platform {

SimClock::Ticket SimClock::Schedule(std::uint64_t delay, std::function<void()> action)
{
    const Ticket ticket = ++lastTicket_;
    actions_.emplace(std::pair(now_ + delay, ticket), std::move(action));
    return ticket;
}

void SimClock::Cancel(Ticket ticket)
{
    const auto found = std::find_if(actions_.begin(), actions_.end(), [&](const auto& entry) { return entry.first.second == ticket; });
    if (found != actions_.end())
        actions_.erase(found);
}

std::uint64_t SimClock::UntilNext(std::uint64_t limit) const
{
    if (actions_.empty())
        return limit;
    const std::uint64_t due = actions_.begin()->first.first;
    return due <= now_ ? 0 : std::min(limit, due - now_);
}

bool SimClock::RunOneDue()
{
    if (actions_.empty() || actions_.begin()->first.first > now_)
        return false;
    const auto action = std::move(actions_.begin()->second);
    actions_.erase(actions_.begin());
    action();
    return true;
}

}  // namespace platform
