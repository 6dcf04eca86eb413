// Inner: sending and posting messages and running timers, past the gate.
#pragma once

#include "platform/src/window/Inner.h"

namespace platform::inner {

LRESULT SendMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
BOOL PostMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CallWindowProc(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
void PostQuitMessage(int exitCode);
UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure);
BOOL KillTimer(HWND window, UINT_PTR id);

}  // namespace platform::inner
