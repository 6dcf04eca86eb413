// Windows, messages, input and the system's controls, as the Windows SDK names them, by subject.
// https://learn.microsoft.com/windows/win32/api/winuser/
#pragma once

#include "winuser/accessibility.h"
#include "winuser/control.h"
#include "winuser/input.h"
#include "winuser/message.h"
#include "winuser/metrics.h"
#include "winuser/painting.h"
#include "winuser/placement.h"
#include "winuser/scroll.h"
#include "winuser/window.h"
