// Timer: the stock control that ticks.
#pragma once

#include "host/Control.h"
#include "host/Event.h"

namespace host {

/// Ticks every `Interval` milliseconds while it is enabled, the interval is not 0 and the program runs (not in a designer). Setting either
/// starts the wait anew. A timer that Windows refuses never ticks.
class Timer final : public Control {
public:
    [[nodiscard]] base::StringView Kind() const override { return TEXT("Timer"); }
    [[nodiscard]] bool HasPlace() const override { return false; }
    [[nodiscard]] bool Enabled() const override { return enabled_; }
    void Enabled(bool enabled) override;
    /// Milliseconds, 0 for never.
    [[nodiscard]] int Interval() const { return interval_; }
    void Interval(int milliseconds);

    Event<1> Tick;

private:
    void LoadNew() override { Restart(); }
    void LoadStored(const PropertyBag& bag) override;
    void Store(PropertyBag& bag) override;
    void Unload() override;
    void Restart();

    bool enabled_ = true;
    int interval_ = 0;
    UINT_PTR timer_ = 0;
};

}  // namespace host
