#include "platform/sim/SimPc.h"

#include <winerror.h>

#include <algorithm>
#include <cassert>
#include <cstdio>
#include <cstdlib>

namespace platform {

namespace {
SimPc* current = nullptr;
}

void SimPc::SwitchOn()
{
    assert(!current && "one stand-in PC at a time");
    current = this;
}

SimPc::~SimPc()
{
    handles_ = HandleTable();  // Objects go while their areas still stand.
    for (auto index = born_.rbegin(); index != born_.rend(); ++index)
        areas_[*index].reset();
    current = nullptr;
}

SimPc& SimPc::Current()
{
    if (!current) {
        std::fputs("A Windows function was called while no stand-in PC was switched on.\n", stderr);
        std::abort();
    }
    return *current;
}

bool SimPc::IsOn()
{
    return current != nullptr;
}

std::size_t SimPc::NextAreaIndex()
{
    static std::size_t next = 0;
    return next++;
}

void SimPc::Settle()
{
    bool busy = true;
    while (busy) {
        busy = clock_.RunOneDue();
        if (pump_)
            pump_();
        for (std::size_t index = 0; index < background_.size(); ++index)
            busy = background_[index]() || busy;
    }
    if (pump_)
        pump_();
}

void SimPc::Advance(std::uint64_t milliseconds)
{
    Settle();
    while (milliseconds > 0) {
        const std::uint64_t step = std::max<std::uint64_t>(clock_.UntilNext(milliseconds), 1);
        clock_.Turn(std::min(step, milliseconds));
        milliseconds -= std::min(step, milliseconds);
        Settle();
    }
}

bool SimPc::Block(std::uint64_t milliseconds, const std::function<bool()>& done)
{
    for (;;) {
        for (bool busy = true; busy;) {
            busy = clock_.RunOneDue();
            for (std::size_t index = 0; index < background_.size(); ++index)
                busy = background_[index]() || busy;
        }
        if (done && done())
            return true;
        if (milliseconds == 0)
            return false;
        const std::uint64_t step = std::clamp<std::uint64_t>(clock_.UntilNext(milliseconds), 1, milliseconds);
        clock_.Turn(step);
        milliseconds -= step;
    }
}

void SimPc::Unsupported(std::string what)
{
    complaints_.push_back(std::move(what));
    lastError_ = ERROR_CALL_NOT_IMPLEMENTED;
}

}  // namespace platform
