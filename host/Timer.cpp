#include "host/Timer.h"

#include "host/Form.h"
#include "host/PropertyBag.h"

namespace host {

namespace {

constexpr const WCHAR* intervalKey = TEXT("Interval");
constexpr const WCHAR* enabledKey = TEXT("Enabled");

}  // namespace

void Timer::Enabled(bool enabled)
{
    enabled_ = enabled;
    Restart();
}

void Timer::Interval(int milliseconds)
{
    interval_ = milliseconds;
    Restart();
}

void Timer::LoadStored(const PropertyBag& bag)
{
    interval_ = bag.Read<std::int32_t>(intervalKey, 0);
    enabled_ = bag.Read<bool>(enabledKey, true);
    Restart();
}

void Timer::Store(PropertyBag& bag)
{
    bag.Write(intervalKey, std::int32_t{interval_}, 0);
    bag.Write(enabledKey, enabled_, true);
}

void Timer::Unload()
{
    if (timer_ == 0)
        return;
    KillTimer(ParentForm().hWnd(), timer_);
    ParentForm().RemoveTimer(timer_);
    timer_ = 0;
}

/// A WM_TIMER that waits in the queue outlives KillTimer; each start therefore has a number of its own.
void Timer::Restart()
{
    Unload();
    const HWND window = ParentForm().hWnd();
    if (!enabled_ || interval_ <= 0 || !window || !Ambient().UserMode())
        return;
    const UINT_PTR timer = ParentForm().AddTimer([this] { Tick.Raise(); });
    if (SetTimer(window, timer, static_cast<UINT>(interval_), nullptr) != 0)
        timer_ = timer;
    else
        ParentForm().RemoveTimer(timer);
}

}  // namespace host
