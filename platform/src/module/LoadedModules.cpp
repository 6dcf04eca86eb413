#include "platform/src/module/LoadedModules.h"

#include "platform/sim/Modules.h"
#include "platform/sim/Processes.h"
#include "platform/src/core/Gate.h"
#include "platform/src/text/Buffers.h"
#include "platform/src/text/Case.h"

using namespace platform;

namespace platform {

namespace {

/// One load of a library that has not been freed: the leak watch names the call that made it.
struct LibraryReference : Object {};
/// What gives a module its handle value.
struct ModuleNumber : Object {};

constexpr std::u16string_view kSystemFolder = u"C:\\Windows\\System32\\";

std::u16string Key(std::u16string_view name)
{
    const std::u16string_view file = name.substr(name.find_last_of(u"\\/") + 1);
    const bool bare = file.find(u'.') == std::u16string_view::npos;
    return UpperCase(file) + (bare ? u".DLL" : u"");
}

}  // namespace

LoadedModules::LoadedModules(SimPc& pc) : pc_(pc), own_(std::make_unique<Module>())
{
    own_->loaded = true;
    own_->handle = AsHandle<HMODULE>(pc.Handles().Open(std::make_shared<ModuleNumber>(), HandleTable::Watch::Ignore));
}

std::unique_ptr<Module> LoadedModules::Make(std::u16string_view folder, std::u16string_view name)
{
    auto module = std::make_unique<Module>();
    module->path = std::u16string(folder).append(name.substr(0, name.find(u'.'))).append(u".dll");
    module->handle = AsHandle<HMODULE>(pc_.Handles().Open(std::make_shared<ModuleNumber>(), HandleTable::Watch::Ignore));
    return module;
}

void LoadedModules::Add(std::u16string_view name, bool loaded)
{
    (modules_[Key(name)] = Make(kSystemFolder, name))->loaded = loaded;
}

void LoadedModules::PlantBesideExe(std::u16string_view name)
{
    besideExe_[Key(name)] = Make(u"C:\\Tools\\", name);
}

Module* LoadedModules::Search(std::u16string_view name) const
{
    const std::u16string key = Key(name);
    if (name.find(u'\\') != std::u16string_view::npos)
        return UpperCase(name) == UpperCase(kSystemFolder) + key ? Find(name) : nullptr;
    // A library that is in the process already is not searched for.
    Module* module = Find(name);
    if (module && module->IsMapped())
        return module;
    const auto planted = besideExe_.find(key);
    return searchesExeFolder && planted != besideExe_.end() ? planted->second.get() : module;
}

Module* LoadedModules::Find(std::u16string_view name) const
{
    const auto found = modules_.find(Key(name));
    return found == modules_.end() ? nullptr : found->second.get();
}

Module* LoadedModules::Find(HMODULE module) const
{
    if (!module || module == own_->handle)
        return own_.get();
    for (const ByName* modules : {&modules_, &besideExe_}) {
        for (const auto& entry : *modules) {
            if (entry.second->handle == module && entry.second->IsMapped())
                return entry.second.get();
        }
    }
    return nullptr;
}

HMODULE LoadedModules::Load(Module& module)
{
    module.references.push_back(pc_.Handles().Open(std::make_shared<LibraryReference>()));
    return module.handle;
}

bool LoadedModules::Free(Module& module)
{
    if (module.references.empty())
        return module.loaded;  // Freeing an import is allowed and does nothing.
    pc_.Handles().CloseAny(module.references.back());
    module.references.pop_back();
    return true;
}

void LoadedModules::Remove(std::u16string_view name)
{
    modules_.erase(Key(name));
}

}  // namespace platform

HMODULE WINAPI GetModuleHandleW(LPCWSTR name)
{
    SIM_CALL(nullptr, ERROR_MOD_NOT_FOUND, name);
    SimPc& pc = SimPc::Current();
    const LoadedModules& modules = pc.Get<Modules>().Loaded();
    if (!name)
        return modules.Own();
    const Module* module = modules.Find(name);
    return module && module->IsMapped() ? module->handle : pc.Fail<HMODULE>(ERROR_MOD_NOT_FOUND, nullptr);
}

HMODULE WINAPI LoadLibraryW(LPCWSTR name)
{
    SIM_CALL(nullptr, ERROR_MOD_NOT_FOUND, name);
    SimPc& pc = SimPc::Current();
    LoadedModules& modules = pc.Get<Modules>().Loaded();
    Module* module = modules.Search(OrEmpty(name));
    return module ? modules.Load(*module) : pc.Fail<HMODULE>(ERROR_MOD_NOT_FOUND, nullptr);
}

HMODULE WINAPI LoadLibraryExW(LPCWSTR name, HANDLE file, DWORD flags)
{
    SIM_CALL(nullptr, ERROR_MOD_NOT_FOUND, name, file, flags);
    SimPc& pc = SimPc::Current();
    const std::u16string_view path = OrEmpty(name);
    // Searched beside the library means: by its full path only.
    if (file || flags != LOAD_WITH_ALTERED_SEARCH_PATH || path.find(u':') == std::u16string_view::npos)
        return pc.Fail<HMODULE>(ERROR_INVALID_PARAMETER, nullptr);
    LoadedModules& modules = pc.Get<Modules>().Loaded();
    Module* module = modules.Search(path);
    return module ? modules.Load(*module) : pc.Fail<HMODULE>(ERROR_MOD_NOT_FOUND, nullptr);
}

BOOL WINAPI SetDefaultDllDirectories(DWORD flags)
{
    SIM_CALL(FALSE, ERROR_INVALID_PARAMETER, flags);
    SimPc& pc = SimPc::Current();
    if (flags != LOAD_LIBRARY_SEARCH_SYSTEM32)
        return pc.Fail(ERROR_INVALID_PARAMETER, FALSE);
    LoadedModules& modules = pc.Get<Modules>().Loaded();
    modules.searchesExeFolder = modules.searchesCurrentFolder = false;
    return TRUE;
}

BOOL WINAPI SetDllDirectoryW(LPCWSTR folder)
{
    SIM_CALL(FALSE, ERROR_INVALID_PARAMETER, folder);
    // No folder at all takes the current one out of the search; others are nobody's business here.
    if (!folder || *folder)
        return SimPc::Current().Fail(ERROR_INVALID_PARAMETER, FALSE);
    SimPc::Current().Get<Modules>().Loaded().searchesCurrentFolder = false;
    return TRUE;
}

BOOL WINAPI FreeLibrary(HMODULE module)
{
    SIM_NOTE(module);
    SimPc& pc = SimPc::Current();
    LoadedModules& modules = pc.Get<Modules>().Loaded();
    Module* found = module ? modules.Find(module) : nullptr;
    return (found && modules.Free(*found)) || pc.Fail(ERROR_MOD_NOT_FOUND, FALSE);
}

FARPROC WINAPI GetProcAddress(HMODULE module, LPCSTR name)
{
    SIM_CALL(nullptr, ERROR_PROC_NOT_FOUND, module, name);
    SimPc& pc = SimPc::Current();
    const Module* found = pc.Get<Modules>().Loaded().Find(module);
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
    const LoadedModules& modules = pc.Get<Modules>().Loaded();
    const Module* found = modules.Find(module);
    if (!found)
        return pc.Fail(ERROR_MOD_NOT_FOUND, 0);
    const std::u16string& path = found->handle == modules.Own() ? pc.Get<Processes>().Own().image : found->path;
    const DWORD length = CopyCut(path, buffer, size);
    return length == path.size() ? length : pc.Fail(ERROR_INSUFFICIENT_BUFFER, size);  // Cut, and ended with a zero.
}
