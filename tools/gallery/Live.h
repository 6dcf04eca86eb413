// Live: the controls of the library to play with, in two windows.
#pragma once

namespace gallery {

/// Opens both windows and runs until they are closed. The process's exit code.
int ShowLive();

}  // namespace gallery
