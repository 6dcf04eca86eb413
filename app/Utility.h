// Utility: the program from its window's opening to its end.
#pragma once

namespace app {

/// Opens the window and runs until it is gone. The exit code: 0, or 1 when the window could not be opened, which a message box then
/// explains.
int RunUtility();

}  // namespace app
