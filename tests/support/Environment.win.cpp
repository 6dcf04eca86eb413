#include "tests/support/Environment.h"

#include "base/Handles.h"

namespace tests {

void PrepareEnvironment() {}

bool AtDotsPerInch(int dots)
{
    const base::ScreenDc screen(GetDC(nullptr));
    return GetDeviceCaps(screen.Get(), LOGPIXELSX) == dots;
}

}  // namespace tests
