// LoadedModules: the libraries as the module functions work on them.
#pragma once

#include "platform/sim/SimPc.h"

#include <windows.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

struct Module : Object {
    std::u16string path;
    bool loaded = false;  // by the program's imports
    HMODULE handle = nullptr;
    std::vector<std::uintptr_t> references;
    std::map<std::string, FARPROC, std::less<>> exports;

    [[nodiscard]] bool IsMapped() const { return loaded || !references.empty(); }
};

class LoadedModules {
public:
    /// The program's own module alone.
    explicit LoadedModules(SimPc& pc);

    /// A library that LoadLibraryW finds. Loaded ones are there from the start, as the program's imports make it.
    void Add(std::u16string_view name, bool loaded);
    void Remove(std::u16string_view name);
    void PlantBesideExe(std::u16string_view name);
    /// What a library's name leads to: with a path, the system folder's; alone, first what was planted where Windows still searches.
    [[nodiscard]] Module* Search(std::u16string_view name) const;
    [[nodiscard]] Module* Find(std::u16string_view name) const;
    [[nodiscard]] Module* Find(HMODULE module) const;
    /// Counts a load; its reference is a leak until `Free`.
    HMODULE Load(Module& module);
    bool Free(Module& module);
    [[nodiscard]] HMODULE Own() const { return own_->handle; }

    /// Where Windows searches for a name alone, beside the system folder.
    bool searchesExeFolder = true, searchesCurrentFolder = true;

private:
    using ByName = std::map<std::u16string, std::unique_ptr<Module>>;  // upper-cased, with extension

    std::unique_ptr<Module> Make(std::u16string_view folder, std::u16string_view name);

    SimPc& pc_;
    ByName modules_, besideExe_;
    std::unique_ptr<Module> own_;
};

}  // namespace platform
