#include "tools/agent/AgentWindow.h"

#include "tools/agent/AgentSettings.h"

namespace agent {

namespace {

constexpr WCHAR mainClass[] = TEXT("VelmoraAgent");
constexpr WCHAR identificationClass[] = TEXT("VelmoraAgentIdentification");

LRESULT CALLBACK MainProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcW(window, message, wParam, lParam);
}

/// Whoever closes the identification window means the agent.
LRESULT CALLBACK IdentificationProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_CLOSE)
        return PostMessageW(GetWindow(window, GW_OWNER), WM_CLOSE, 0, 0), 0;
    return DefWindowProcW(window, message, wParam, lParam);
}

void RegisterWindowClass(HINSTANCE instance, const WCHAR* name, WNDPROC procedure)
{
    WNDCLASSEXW windowClass = {};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    windowClass.lpszClassName = name;
    RegisterClassExW(&windowClass);
}

}  // namespace

int RunWindow(HINSTANCE instance, bool hidden)
{
    RegisterWindowClass(instance, mainClass, &MainProcedure);
    RegisterWindowClass(instance, identificationClass, &IdentificationProcedure);
    const HWND window = CreateWindowExW(0, mainClass, TEXT("Velmora"), WS_OVERLAPPEDWINDOW & ~WS_THICKFRAME, 420, 80, 320, 110, nullptr,
                                        nullptr, instance, nullptr);
    if (!window)
        return 1;
    CreateWindowExW(0, TEXT("Static"), (TEXT("Shutdown password: ") + ReadPassword()).c_str(), WS_CHILD | WS_VISIBLE, 16, 24, 280, 24,
                    window, nullptr, instance, nullptr);
    if (!hidden)
        ShowWindow(window, SW_SHOWNORMAL);
    // Owned by the main window, so that it is not taken for a main window itself.
    CreateWindowExW(0, identificationClass, TEXT("VELMORA-IDENTIFICATION-WINDOW"), WS_POPUP, 0, 0, 0, 0, window, nullptr, instance,
                    nullptr);

    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}

}  // namespace agent
