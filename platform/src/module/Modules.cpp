#include "platform/sim/Modules.h"

#include "platform/src/core/Gate.h"
#include "platform/src/module/LoadedModules.h"

#include <advpub.h>
#include <oleacc.h>
#include <shlwapi.h>
#include <winternl.h>

/// Exported by ntdll; the SDK leaves its declaration to those who call it.
extern "C" NTSTATUS WINAPI RtlAdjustPrivilege(ULONG privilege, BOOLEAN enable, BOOLEAN threadToken, PBOOLEAN wasEnabled);

using namespace platform;

namespace platform {

namespace {

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

Modules::Modules(SimPc& pc) : Area(pc), loaded_(std::make_unique<LoadedModules>(pc))
{
    for (const char16_t* name : {u"ntdll", u"kernel32", u"user32", u"gdi32", u"advapi32", u"comctl32", u"shlwapi", u"uxtheme"})
        loaded_->Add(name, true);
    for (const char16_t* name : {u"shell32", u"advpack", u"oleacc", u"psapi", u"netapi32"})
        loaded_->Add(name, false);
    Export(u"kernel32", "SetDefaultDllDirectories", AsExport(&SetDefaultDllDirectories));
    Export(u"kernel32", "SetProcessDEPPolicy", AsExport(&SetProcessDEPPolicy));
    Export(u"kernel32", "IsWow64Process", AsExport(&IsWow64Process));
    Export(u"ntdll", "RtlAdjustPrivilege", AsExport(&RtlAdjustPrivilege));
    Export(u"ntdll", "NtQuerySystemInformation", AsExport(&NtQuerySystemInformation));
    Export(u"advpack", "IsNTAdmin", AsExport(&IsNTAdmin));
    Export(u"oleacc", "GetProcessHandleFromHwnd", AsExport(&GetProcessHandleFromHwnd));
    Export(u"oleacc", "LresultFromObject", AsExport(&LresultFromObject));
    Export(u"oleacc", "ObjectFromLresult", AsExport(&ObjectFromLresult));
    Export(u"oleacc", "CreateStdAccessibleObject", AsExport(&CreateStdAccessibleObject));
    Export(u"comctl32", "DllGetVersion", AsExport(&CommonControlsGetVersion));
}

Modules::~Modules() = default;

void Modules::RemoveLibrary(std::u16string_view name)
{
    loaded_->Remove(name);
}

void Modules::PlantBesideExe(std::u16string_view name)
{
    loaded_->PlantBesideExe(name);
}

bool Modules::SearchesCurrentFolder() const
{
    return loaded_->searchesCurrentFolder;
}

void Modules::Export(std::u16string_view library, std::string_view name, FARPROC function)
{
    loaded_->Find(library)->exports[std::string(name)] = function;
}

std::size_t Modules::LoadsOf(std::u16string_view name) const
{
    const Module* module = loaded_->Find(name);
    return module ? module->references.size() : 0;
}

}  // namespace platform
