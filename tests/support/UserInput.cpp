#include "tests/support/UserInput.h"

#include "tests/support/MessageLog.h"

namespace tests {

namespace {

/// Windows needs a moment to hand input on.
constexpr DWORD moment = 30;

void Send(INPUT input)
{
    EXPECT_EQ(SendInput(1, &input, sizeof input), 1u);
    PumpMessages(moment);
}

INPUT Mouse(DWORD flags)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    return input;
}

INPUT Key(WORD virtualKey, WCHAR character, DWORD flags)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = character;
    input.ki.dwFlags = flags;
    return input;
}

}  // namespace

void MoveMouse(int x, int y)
{
    INPUT input = Mouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE);
    input.mi.dx = (x * 65536 + 32768) / GetSystemMetrics(SM_CXSCREEN);
    input.mi.dy = (y * 65536 + 32768) / GetSystemMetrics(SM_CYSCREEN);
    Send(input);
}

void MoveMouse(HWND window, int x, int y)
{
    POINT point{x, y};
    ClientToScreen(window, &point);
    MoveMouse(point.x, point.y);
}

void ParkMouse()
{
    INPUT input = Mouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE);
    input.mi.dx = input.mi.dy = 65535;
    EXPECT_EQ(SendInput(1, &input, sizeof input), 1u);
}

void MouseButton(DWORD flag)
{
    Send(Mouse(flag));
}

void ClickMouse()
{
    MouseButton(MOUSEEVENTF_LEFTDOWN);
    MouseButton(MOUSEEVENTF_LEFTUP);
}

void SendKey(WORD virtualKey, DWORD flags)
{
    Send(Key(virtualKey, 0, flags));
}

void PressKey(WORD virtualKey)
{
    SendKey(virtualKey);
    SendKey(virtualKey, KEYEVENTF_KEYUP);
}

void SendCharacter(WCHAR character)
{
    Send(Key(0, character, KEYEVENTF_UNICODE));
    Send(Key(0, character, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP));
}

}  // namespace tests
