#include "tests/support/Resolution.h"

#include "host/Units.h"

namespace tests {

bool AtDotsPerInch(int dots)
{
    return host::ScreenResolution::Get().x == dots;
}

}  // namespace tests
