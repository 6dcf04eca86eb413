// CommonControls: the system's library of controls, made ready and kept until the program ends.
#pragma once

namespace helpers {

/// Registers all classes of the common controls and keeps shell32.dll loaded until `ReleaseShellLibrary`: unloading it while themed windows
/// close is a known way to crash at exit.
void InitCommonControlsAndShell();
void ReleaseShellLibrary();

}  // namespace helpers
