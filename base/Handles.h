// The traits of every kind of handle that the program owns, and the owners' names.
#pragma once

#include "base/Handle.h"

#include <winsvc.h>

namespace base {

template <class T, auto CloseFunction>
struct NullHandleTraits {
    using Type = T;
    static Type None() noexcept { return nullptr; }
    static void Close(Type handle) noexcept { CloseFunction(handle); }
};

/// CreateFileW reports failure with INVALID_HANDLE_VALUE, all other kernel calls with NULL.
struct FileTraits {
    using Type = HANDLE;
    static Type None() noexcept { return INVALID_HANDLE_VALUE; }
    static void Close(Type handle) noexcept { CloseHandle(handle); }
};

using KernelHandle = Handle<NullHandleTraits<HANDLE, &CloseHandle>>;
using FileHandle = Handle<FileTraits>;
using GlobalMemory = Handle<NullHandleTraits<HGLOBAL, &GlobalFree>>;
using ModuleHandle = Handle<NullHandleTraits<HMODULE, &FreeLibrary>>;
using ServiceHandle = Handle<NullHandleTraits<SC_HANDLE, &CloseServiceHandle>>;
using RegistryKey = Handle<NullHandleTraits<HKEY, &RegCloseKey>>;

/// Any GDI object: font, brush, pen, bitmap, region. It must not be selected into a device context when it is closed.
template <class T>
struct GdiTraits {
    using Type = T;
    static Type None() noexcept { return nullptr; }
    static void Close(Type handle) noexcept { DeleteObject(handle); }
};
using FontHandle = Handle<GdiTraits<HFONT>>;
using BrushHandle = Handle<GdiTraits<HBRUSH>>;
using PenHandle = Handle<GdiTraits<HPEN>>;
using BitmapHandle = Handle<GdiTraits<HBITMAP>>;
using RegionHandle = Handle<GdiTraits<HRGN>>;

/// A memory device context from CreateCompatibleDC.
using MemoryDc = Handle<NullHandleTraits<HDC, &DeleteDC>>;

/// The device context of the whole screen, from GetDC without a window.
struct ScreenDcTraits {
    using Type = HDC;
    static Type None() noexcept { return nullptr; }
    static void Close(Type dc) noexcept { ReleaseDC(nullptr, dc); }
};
using ScreenDc = Handle<ScreenDcTraits>;

}  // namespace base
