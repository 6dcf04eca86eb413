// SystemClasses: the window classes that the system brings along: Button, Edit, ComboBox with its list, Static and tooltips.
#pragma once

#include <windows.h>

namespace platform {

/// Makes the classes that the system brings along known, when the PC is switched on.
void RegisterSystemClasses();

LRESULT CALLBACK ButtonProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK EditProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK ComboBoxProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK ComboListProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK StaticProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK TooltipProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace platform
