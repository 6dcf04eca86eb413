// OtherThreads: the message loops of all programs but the one under test.
#pragma once

#include "platform/sim/SimPc.h"

namespace platform {

class OtherThreads : public Area {
public:
    /// From now on they run whenever the PC lets things happen.
    explicit OtherThreads(SimPc& pc);
    /// Lets the threads of other processes handle what waits for them. True when something was handled.
    bool Run();

private:
    bool running_ = false;
};

}  // namespace platform
