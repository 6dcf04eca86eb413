// A bare window: what a program costs that loads the same libraries under the same manifest as the utility and shows nothing else.
#include <windows.h>

#include <commctrl.h>

namespace {

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR, int)
{
    const WCHAR* const libraries[] = {TEXT("advapi32.dll"), TEXT("advpack.dll"), TEXT("comctl32.dll"), TEXT("ole32.dll"),
                                      TEXT("oleaut32.dll"), TEXT("shell32.dll"), TEXT("shlwapi.dll"),  TEXT("uxtheme.dll")};
    for (const WCHAR* library : libraries)
        LoadLibraryW(library);
    const INITCOMMONCONTROLSEX classes{sizeof classes, 0xFFFF};
    InitCommonControlsEx(&classes);
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = TEXT("BareWindow");
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    RegisterClassW(&windowClass);
    ShowWindow(CreateWindowExW(0, TEXT("BareWindow"), TEXT("Bare"), WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU, 100, 100, 328, 572, nullptr,
                               nullptr, instance, nullptr),
               SW_SHOWNORMAL);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    return 0;
}
