// Inner: taking messages from the queue, focus, capture and keys, past the gate.
#pragma once

#include "platform/src/message/Inner.h"

namespace platform::inner {

BOOL GetMessage(MSG& message, HWND window, UINT first, UINT last);
BOOL PeekMessage(MSG& message, HWND window, UINT first, UINT last, UINT remove);
BOOL TranslateMessage(const MSG& message);
LRESULT DispatchMessage(const MSG& message);

HWND SetFocus(HWND window);
HWND GetFocus();
HWND SetCapture(HWND window);
BOOL ReleaseCapture();
HWND GetCapture();
SHORT GetKeyState(int key);
BOOL TrackMouseEvent(TRACKMOUSEEVENT& track);
HWND SetActiveWindow(HWND window);
HWND GetActiveWindow();

}  // namespace platform::inner
