// SystemExport: a function that a system library exports, looked up at run time because old systems or import libraries lack it.
#pragma once

#include "base/SystemLibrary.h"

namespace base {

/// `SystemExport<BOOL WINAPI(DWORD)> f(TEXT("kernel32.dll"), "Name"); if (f) f(0);`
/// A module that is not yet in the process is loaded from the system folder and stays as long as this object lives.
/// https://learn.microsoft.com/windows/win32/api/libloaderapi/nf-libloaderapi-getprocaddress
template <class Function>
class SystemExport {
public:
    SystemExport(const WCHAR* module, const char* name)
    {
        HMODULE handle = GetModuleHandleW(module);
        if (!handle) {
            loaded_ = LoadSystemLibrary(module);
            handle = loaded_.Get();
        }
        if (handle)
            function_ = reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(handle, name)));
    }

    [[nodiscard]] explicit operator bool() const { return function_ != nullptr; }

    template <class... Arguments>
    auto operator()(Arguments... arguments) const
    {
        return function_(arguments...);
    }

private:
    ModuleHandle loaded_;
    Function* function_ = nullptr;
};

}  // namespace base
