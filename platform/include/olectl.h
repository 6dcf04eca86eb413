// OLE controls as the Windows SDK names them.
#pragma once

#include "windef.h"

using OLE_COLOR = DWORD;

HRESULT WINAPI OleTranslateColor(OLE_COLOR color, HPALETTE palette, COLORREF* rgb);
