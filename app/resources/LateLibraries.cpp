// Where a library that is bound late comes from when it is needed.
#include "base/String.h"
#include "base/SystemLibrary.h"

#include <delayimp.h>

namespace {

/// The linker's helper asks here before it loads a library by name alone. What is loaded stays until the program ends.
/// https://learn.microsoft.com/cpp/build/reference/notification-hooks
FARPROC WINAPI LoadFromSystemFolder(unsigned int notification, PDelayLoadInfo what)
{
    if (notification != dliNotePreLoadLibrary)
        return nullptr;
    const base::String name(what->szDll, what->szDll + lstrlenA(what->szDll));
    // The manifest leads the name of the common controls, and only the name alone, to their version 6, which is not in the system folder.
    const HMODULE library = name == TEXT("COMCTL32.dll") ? LoadLibraryW(name.c_str()) : base::LoadSystemLibrary(name.c_str()).Release();
    return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(library));
}

}  // namespace

// The helper declares it, and means it to be defined by the program.
PfnDliHook __pfnDliNotifyHook2 = LoadFromSystemFolder;
