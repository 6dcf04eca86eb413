// Modules: the libraries of the stand-in PC and the functions that they export.
#pragma once

#include "platform/sim/SimPc.h"

#include <windows.h>

#include <memory>
#include <string_view>

namespace platform {

class LoadedModules;

class Modules : public Area {
public:
    explicit Modules(SimPc& pc);
    ~Modules() override;

    /// The library is not on this PC: neither loaded nor found.
    void RemoveLibrary(std::u16string_view name);
    /// A file of that name that somebody has put beside the exe; it exports nothing. Windows takes it for the name alone, until the program
    /// says that it searches elsewhere.
    void PlantBesideExe(std::u16string_view name);
    /// Whether a library that Windows does not have is searched in the current folder.
    [[nodiscard]] bool SearchesCurrentFolder() const;
    /// A function that GetProcAddress finds; `function` may be NULL: the export is missing on this PC.
    void Export(std::u16string_view library, std::string_view name, FARPROC function);
    void RemoveExport(std::u16string_view library, std::string_view name) { Export(library, name, nullptr); }

    /// Version that DllGetVersion of comctl32 tells (6.16), and that its controls behave as. The program's manifest decides which it gets.
    void CommonControlsVersion(DWORD major, DWORD minor)
    {
        commonControlsMajor_ = major;
        commonControlsMinor_ = minor;
    }
    [[nodiscard]] DWORD CommonControlsMajor() const { return commonControlsMajor_; }
    [[nodiscard]] DWORD CommonControlsMinor() const { return commonControlsMinor_; }

    /// Times that the program has loaded a library and not yet freed it.
    [[nodiscard]] std::size_t LoadsOf(std::u16string_view name) const;

    /// What the module functions work on.
    [[nodiscard]] LoadedModules& Loaded() const { return *loaded_; }

private:
    std::unique_ptr<LoadedModules> loaded_;
    DWORD commonControlsMajor_ = 6, commonControlsMinor_ = 16;
};

}  // namespace platform
