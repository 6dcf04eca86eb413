#include "tests/e2e/Desktop.h"

#include <vector>

namespace e2e {

namespace {

INPUT Key(WORD virtualKey, DWORD flags)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    return input;
}

INPUT Unicode(WCHAR character, DWORD flags)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = static_cast<WORD>(character);
    input.ki.dwFlags = KEYEVENTF_UNICODE | flags;
    return input;
}

INPUT Mouse(POINT screen, DWORD flags)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    // Absolute positions count 65536 over the whole screen; half a unit more lands in the pixel's middle.
    input.mi.dx = (screen.x * 65536 + 32768) / GetSystemMetrics(SM_CXSCREEN);
    input.mi.dy = (screen.y * 65536 + 32768) / GetSystemMetrics(SM_CYSCREEN);
    input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | flags;
    return input;
}

void Send(std::vector<INPUT> inputs)
{
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

}  // namespace

void Click(POINT screen)
{
    // Clicks that lie this far apart are never taken for a double click.
    static LONG side = 0;
    side = side ? 0 : GetSystemMetrics(SM_CXDOUBLECLK) + 1;
    screen.x += side;
    Send({Mouse(screen, 0), Mouse(screen, MOUSEEVENTF_LEFTDOWN), Mouse(screen, MOUSEEVENTF_LEFTUP)});
}

void Press(std::initializer_list<WORD> virtualKeys)
{
    std::vector<INPUT> inputs;
    for (const WORD key : virtualKeys)
        inputs.push_back(Key(key, 0));
    for (auto key = std::rbegin(virtualKeys); key != std::rend(virtualKeys); ++key)
        inputs.push_back(Key(*key, KEYEVENTF_KEYUP));
    Send(std::move(inputs));
}

void Type(base::StringView text)
{
    for (const WCHAR character : text) {
        const bool hasKey = (character >= TEXT('a') && character <= TEXT('z')) || (character >= TEXT('0') && character <= TEXT('9'));
        if (hasKey)
            Press({static_cast<WORD>(base::ToUpper({&character, 1})[0])});
        else
            Send({Unicode(character, 0), Unicode(character, KEYEVENTF_KEYUP)});
    }
}

}  // namespace e2e
