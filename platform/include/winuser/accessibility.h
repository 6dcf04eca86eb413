// What assistive programs are told. https://learn.microsoft.com/windows/win32/winauto/event-constants
#pragma once

#include "../windef.h"

#define EVENT_SYSTEM_ALERT 0x0002
#define CHILDID_SELF 0
constexpr LONG OBJID_CLIENT = -4;

void WINAPI NotifyWinEvent(DWORD event, HWND window, LONG object, LONG child);
