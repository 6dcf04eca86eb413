// System colours.
#include "platform/sim/Graphics.h"
#include "platform/src/core/Gate.h"

#include <windows.h>

using namespace platform;

DWORD WINAPI GetSysColor(int index)
{
    SIM_NOTE(index);
    return SimPc::Current().Get<Graphics>().SystemColor(index);
}
