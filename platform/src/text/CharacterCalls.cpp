// Upper case of texts.
#include "platform/src/core/Gate.h"
#include "platform/src/text/Case.h"

#include <windows.h>

#include <algorithm>

using namespace platform;

DWORD WINAPI CharUpperBuffW(LPWSTR text, DWORD length)
{
    SIM_NOTE(length);
    std::transform(text, text + length, text, [](WCHAR unit) { return UpperCase(unit); });
    return length;
}
