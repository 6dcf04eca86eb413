#include "app/helpers/CommonControls.h"

#include "base/Handles.h"

#include <commctrl.h>

namespace helpers {

namespace {

base::ModuleHandle shellLibrary;

}  // namespace

void InitCommonControlsAndShell()
{
    if (shellLibrary)
        return;
    INITCOMMONCONTROLSEX classes{};
    classes.dwSize = sizeof classes;
    classes.dwICC = 0xFFFF;
    InitCommonControlsEx(&classes);
    shellLibrary.Reset(LoadLibraryW(TEXT("shell32.dll")));
}

void ReleaseShellLibrary()
{
    shellLibrary.Reset();
}

}  // namespace helpers
