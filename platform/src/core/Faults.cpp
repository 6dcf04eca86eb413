#include "platform/sim/Faults.h"

namespace platform {

void Faults::FailCall(std::string_view function, DWORD error, int nth)
{
    orders_[std::string(function)] = Order{nth, error, false};
}

void Faults::FailAlways(std::string_view function, DWORD error)
{
    orders_[std::string(function)] = Order{0, error, true};
}

void Faults::FailNth(std::uint64_t n)
{
    counted_ = 0;
    failNth_ = n;
    struck_.clear();
}

void Faults::Clear()
{
    orders_.clear();
    failNth_ = 0;
}

bool Faults::Strikes(const char* function, DWORD& error)
{
    if (failNth_ != 0 && ++counted_ == failNth_) {
        struck_ = function;
        return true;
    }
    const auto order = orders_.find(std::string_view(function));
    if (order == orders_.end())
        return false;
    if (!order->second.always && --order->second.remaining > 0)
        return false;
    error = order->second.error;
    if (!order->second.always)
        orders_.erase(order);
    return true;
}

}  // namespace platform
