// A library that somebody has put where it does not belong: once it is in a process it writes a file of its own name with ".taken" behind.
#include <windows.h>

BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void*)
{
    WCHAR path[MAX_PATH + 8];
    const DWORD length = reason == DLL_PROCESS_ATTACH ? GetModuleFileNameW(module, path, MAX_PATH) : 0;
    if (length > 0 && length < MAX_PATH) {
        lstrcpyW(path + length, TEXT(".taken"));
        CloseHandle(CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    }
    return TRUE;
}
