// A bare window: what a program costs that loads the same libraries under the same manifest as the utility and shows nothing else. With
// "windows" on its command line it also has as many windows of each class at the same places: what no program with this picture can save.
#include <windows.h>

#include <commctrl.h>

#include <iterator>

namespace {

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcW(window, message, wParam, lParam);
}

constexpr const WCHAR* own = TEXT("BareControl");

struct Place {
    const WCHAR* windowClass;
    DWORD style;
    int left, top, width, height;
    int parent = 0;  // the row of the frame that it stands in, 0 for the form
};

constexpr DWORD checkBox = BS_3STATE | BS_NOTIFY, list = CBS_DROPDOWNLIST | WS_VSCROLL;

/// The utility's windows at 96 dots per inch. A check box and a text box have an own window and the system's.
constexpr Place places[] = {
    {},
    {own, WS_CLIPCHILDREN, 8, 8, 305, 73},
    {TEXT("Static"), 0, 8, 25, 57, 17, 1},
    {own, 0, 72, 24, 209, 19, 1},
    {TEXT("Edit"), ES_PASSWORD | ES_AUTOHSCROLL, 72, 24, 209, 19, 1},
    {own, WS_CLIPCHILDREN, 8, 88, 305, 105},
    {own, 0, 8, 16, 170, 17, 5},
    {TEXT("Button"), checkBox, 8, 16, 170, 17, 5},
    {own, 0, 8, 40, 91, 17, 5},
    {TEXT("Button"), checkBox, 8, 40, 91, 17, 5},
    {own, 0, 8, 64, 91, 17, 5},
    {TEXT("Button"), checkBox, 8, 64, 91, 17, 5},
    {own, WS_CLIPCHILDREN, 8, 192, 305, 169},
    {own, 0, 8, 24, 113, 33, 12},
    {own, 0, 168, 24, 113, 33, 12},
    {TEXT("Static"), 0, 8, 72, 57, 17, 12},
    {own, 0, 88, 72, 185, 19, 12},
    {TEXT("Edit"), ES_AUTOHSCROLL, 88, 72, 185, 19, 12},
    {TEXT("Static"), 0, 8, 96, 57, 17, 12},
    {own, 0, 88, 96, 81, 19, 12},
    {TEXT("Edit"), ES_PASSWORD | ES_AUTOHSCROLL, 88, 96, 81, 19, 12},
    {own, 0, 176, 96, 98, 21, 12},
    {TEXT("Button"), checkBox, 176, 96, 98, 21, 12},
    {TEXT("Static"), 0, 8, 120, 73, 17, 12},
    {TEXT("ComboBox"), list, 88, 120, 193, 60, 12},
    {own, WS_CLIPCHILDREN, 8, 376, 305, 97},
    {own, 0, 8, 24, 129, 41, 25},
    {own, 0, 152, 24, 129, 41, 25},
    {own, 0, 72, 488, 177, 41},
};

void AddWindows(HINSTANCE instance, HWND form)
{
    HWND made[std::size(places)] = {form};
    for (int row = 1; row < std::ssize(places); ++row) {
        const Place& place = places[row];
        made[row] = CreateWindowExW(0, place.windowClass, TEXT("Bare"), WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | place.style, place.left,
                                    place.top, place.width, place.height, made[place.parent], nullptr, instance, nullptr);
    }
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR commandLine, int)
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
    windowClass.lpszClassName = own;
    RegisterClassW(&windowClass);
    const HWND form = CreateWindowExW(0, TEXT("BareWindow"), TEXT("Bare"), WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN, 100,
                                      100, 328, 572, nullptr, nullptr, instance, nullptr);
    if (lstrcmpW(commandLine, TEXT("windows")) == 0)
        AddWindows(instance, form);
    ShowWindow(form, SW_SHOWNORMAL);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    return 0;
}
