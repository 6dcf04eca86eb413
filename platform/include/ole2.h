// OLE's functions as the Windows SDK names them.
#pragma once

#include "oaidl.h"
#include "oleidl.h"
#include "winerror.h"

HRESULT WINAPI OleInitialize(LPVOID reserved);
VOID WINAPI OleUninitialize();
HRESULT WINAPI RegisterDragDrop(HWND window, IDropTarget* target);
HRESULT WINAPI RevokeDragDrop(HWND window);
HRESULT WINAPI DoDragDrop(IDataObject* data, IDropSource* source, DWORD allowedEffects, DWORD* effect);
VOID WINAPI ReleaseStgMedium(STGMEDIUM* medium);
