#include "platform/sim/Modules.h"

#include "platform/sim/Processes.h"
#include "platform/src/core/Gate.h"
#include "platform/src/text/Buffers.h"
#include "platform/src/text/Case.h"

#include <advpub.h>
#include <oleacc.h>
#include <shlwapi.h>
#include <winternl.h>

#include <optional>

/// Exported by ntdll; the SDK leaves its declaration to those who call it.
extern "C" NTSTATUS WINAPI RtlAdjustPrivilege(ULONG privilege, BOOLEAN enable, BOOLEAN threadToken, PBOOLEAN wasEnabled);

using namespace platform;

namespace platform {

struct Modules::Module : Object {
    std::u16string path;
    bool loaded = false;  // by the program's imports
    HMODULE handle = nullptr;
    std::vector<std::uintptr_t> references;
    std::map<std::string, FARPROC, std::less<>> exports;

    [[nodiscard]] bool IsMapped() const { return loaded || !references.empty(); }
};

namespace {

/// One load of a library that has not been freed: the leak watch names the call that made it.
struct LibraryReference : Object {};
/// What gives a module its handle value.
struct ModuleNumber : Object {};

std::u16string Key(std::u16string_view name)
{
    const std::u16string_view file = name.substr(name.find_last_of(u"\\/") + 1);
    const bool bare = file.find(u'.') == std::u16string_view::npos;
    return UpperCase(file) + (bare ? u".DLL" : u"");
}

HRESULT CALLBACK CommonControlsGetVersion(DLLVERSIONINFO* version)
{
    const Gate gate("DllGetVersion", ERROR_GEN_FAILURE);
    if (gate.Fails())
        return E_FAIL;
    if (version->cbSize < sizeof *version)
        return E_INVALIDARG;
    const Modules& modules = SimPc::Current().Get<Modules>();
    version->dwMajorVersion = modules.CommonControlsMajor();
    version->dwMinorVersion = modules.CommonControlsMinor();
    version->dwBuildNumber = 7601;
    version->dwPlatformID = DLLVER_PLATFORM_NT;
    return S_OK;
}

template <class Function>
FARPROC AsExport(Function function)
{
    return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(function));
}

}  // namespace

Modules::Modules(SimPc& pc) : Area(pc), own_(std::make_unique<Module>())
{
    own_->loaded = true;
    own_->handle = AsHandle<HMODULE>(pc.Handles().Open(std::make_shared<ModuleNumber>(), HandleTable::Watch::Ignore));
    for (const char16_t* name : {u"ntdll", u"kernel32", u"user32", u"gdi32", u"advapi32", u"comctl32", u"shlwapi", u"uxtheme"})
        AddLibrary(name, true);
    for (const char16_t* name : {u"shell32", u"advpack", u"oleacc", u"psapi", u"netapi32"})
        AddLibrary(name, false);
    Export(u"kernel32", "SetProcessDEPPolicy", AsExport(&SetProcessDEPPolicy));
    Export(u"kernel32", "IsWow64Process", AsExport(&IsWow64Process));
    Export(u"ntdll", "RtlAdjustPrivilege", AsExport(&RtlAdjustPrivilege));
    Export(u"ntdll", "NtQuerySystemInformation", AsExport(&NtQuerySystemInformation));
    Export(u"advpack", "IsNTAdmin", AsExport(&IsNTAdmin));
    Export(u"oleacc", "GetProcessHandleFromHwnd", AsExport(&GetProcessHandleFromHwnd));
    Export(u"comctl32", "DllGetVersion", AsExport(&CommonControlsGetVersion));
}

Modules::~Modules() = default;

void Modules::AddLibrary(std::u16string_view name, bool loaded)
{
    auto module = std::make_unique<Module>();
    const std::u16string bare(name.substr(0, name.find(u'.')));
    module->path = u"C:\\Windows\\System32\\" + bare + u".dll";
    module->loaded = loaded;
    module->handle = AsHandle<HMODULE>(pc_.Handles().Open(std::make_shared<ModuleNumber>(), HandleTable::Watch::Ignore));
    modules_[Key(name)] = std::move(module);
}

void Modules::RemoveLibrary(std::u16string_view name)
{
    modules_.erase(Key(name));
}

void Modules::Export(std::u16string_view library, std::string_view name, FARPROC function)
{
    Find(library)->exports[std::string(name)] = function;
}

Modules::Module* Modules::Find(std::u16string_view name) const
{
    const auto found = modules_.find(Key(name));
    return found == modules_.end() ? nullptr : found->second.get();
}

Modules::Module* Modules::Find(HMODULE module) const
{
    if (!module || module == own_->handle)
        return own_.get();
    for (const auto& entry : modules_) {
        if (entry.second->handle == module && entry.second->IsMapped())
            return entry.second.get();
    }
    return nullptr;
}

HMODULE Modules::Load(Module& module)
{
    module.references.push_back(pc_.Handles().Open(std::make_shared<LibraryReference>()));
    return module.handle;
}

bool Modules::Free(Module& module)
{
    if (module.references.empty())
        return module.loaded;  // Freeing an import is allowed and does nothing.
    pc_.Handles().CloseAny(module.references.back());
    module.references.pop_back();
    return true;
}

HMODULE Modules::Own() const
{
    return own_->handle;
}

std::size_t Modules::LoadsOf(std::u16string_view name) const
{
    const Module* module = Find(name);
    return module ? module->references.size() : 0;
}

}  // namespace platform

HMODULE WINAPI GetModuleHandleW(LPCWSTR name)
{
    SIM_CALL(nullptr, ERROR_MOD_NOT_FOUND, name);
    SimPc& pc = SimPc::Current();
    const Modules& modules = pc.Get<Modules>();
    if (!name)
        return modules.Own();
    const Modules::Module* module = modules.Find(name);
    return module && module->IsMapped() ? module->handle : pc.Fail<HMODULE>(ERROR_MOD_NOT_FOUND, nullptr);
}

HMODULE WINAPI LoadLibraryW(LPCWSTR name)
{
    SIM_CALL(nullptr, ERROR_MOD_NOT_FOUND, name);
    SimPc& pc = SimPc::Current();
    Modules& modules = pc.Get<Modules>();
    Modules::Module* module = modules.Find(OrEmpty(name));
    return module ? modules.Load(*module) : pc.Fail<HMODULE>(ERROR_MOD_NOT_FOUND, nullptr);
}

BOOL WINAPI FreeLibrary(HMODULE module)
{
    SIM_NOTE(module);
    SimPc& pc = SimPc::Current();
    Modules& modules = pc.Get<Modules>();
    Modules::Module* found = module ? modules.Find(module) : nullptr;
    return (found && modules.Free(*found)) || pc.Fail(ERROR_MOD_NOT_FOUND, FALSE);
}

FARPROC WINAPI GetProcAddress(HMODULE module, LPCSTR name)
{
    SIM_CALL(nullptr, ERROR_PROC_NOT_FOUND, module, name);
    SimPc& pc = SimPc::Current();
    const Modules::Module* found = pc.Get<Modules>().Find(module);
    if (!found)
        return pc.Fail<FARPROC>(ERROR_MOD_NOT_FOUND, nullptr);
    const auto entry = found->exports.find(std::string_view(name));
    if (entry == found->exports.end()) {
        pc.Unsupported("GetProcAddress: \"" + std::string(name) + "\"");
        return nullptr;
    }
    return entry->second ? entry->second : pc.Fail<FARPROC>(ERROR_PROC_NOT_FOUND, nullptr);
}

DWORD WINAPI GetModuleFileNameW(HMODULE module, LPWSTR buffer, DWORD size)
{
    SIM_CALL(0, ERROR_MOD_NOT_FOUND, module, size);
    SimPc& pc = SimPc::Current();
    const Modules& modules = pc.Get<Modules>();
    const Modules::Module* found = modules.Find(module);
    if (!found)
        return pc.Fail(ERROR_MOD_NOT_FOUND, 0);
    const std::u16string& path = found->handle == modules.Own() ? pc.Get<Processes>().Own().image : found->path;
    const DWORD length = CopyCut(path, buffer, size);
    return length == path.size() ? length : pc.Fail(ERROR_INSUFFICIENT_BUFFER, size);  // Cut, and ended with a zero.
}
