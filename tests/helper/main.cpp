// The process that the toolkit's tests start on Windows. Its command line is its script; it says the id of its waiting thread when it is
// ready.
#include "tests/toolkit/TestWindows.h"

#include <cstdio>
#include <string>

namespace {

constexpr UINT lifeTime = 60'000;  // milliseconds; it never outlives a test program that was ended by force

DWORD WINAPI Idle(void*)
{
    Sleep(INFINITE);
    return 0;
}

}  // namespace

int main(int argumentCount, char** arguments)
{
    std::string script;
    for (int i = 1; i < argumentCount; ++i)
        script += std::string(arguments[i]) + ' ';
    tests::TestWindows windows;
    windows.Make(script);
    DWORD thread = 0;
    if (script.find("thread") != std::string::npos)
        CloseHandle(CreateThread(nullptr, 0, Idle, nullptr, CREATE_SUSPENDED, &thread));
    SetTimer(nullptr, 0, lifeTime, nullptr);
    std::printf("%lu\n", thread);
    std::fflush(stdout);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (message.message == WM_TIMER && !message.hwnd)
            return 1;
        DispatchMessageW(&message);
    }
    return 0;
}
