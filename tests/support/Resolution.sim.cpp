#include "tests/support/Resolution.h"

#include "platform/sim/Desktop.h"
#include "platform/sim/SimPc.h"

namespace tests {

bool AtDotsPerInch(int dots)
{
    platform::SimPc::Current().Get<platform::Desktop>().Dpi(dots);
    return true;
}

}  // namespace tests
