// The utility: one window and the message loop.
#include "app/Utility.h"
#include "base/SystemLibrary.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int)
{
    // First of all, before anything can load a library.
    base::SearchSystemFolderOnly();
    return app::RunUtility();
}
