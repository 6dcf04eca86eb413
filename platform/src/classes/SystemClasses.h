// SystemClasses: the window classes that the system brings along: Button, Edit, ComboBox with its list, Static and tooltips.
#pragma once

#include <windows.h>

namespace platform {

class Desktop;

/// Makes the system's classes known to every process. The desktop calls it once.
void RegisterSystemClasses(Desktop& desktop);

LRESULT CALLBACK ButtonProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK EditProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK ComboBoxProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK ComboListProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK StaticProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK TooltipProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace platform
