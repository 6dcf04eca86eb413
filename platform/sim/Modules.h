// Modules: the libraries of the stand-in PC and the functions that they export.
#pragma once

#include "platform/sim/SimPc.h"

#include <windows.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

class Modules : public Area {
public:
    explicit Modules(SimPc& pc);
    ~Modules() override;

    /// A library that LoadLibraryW finds. Loaded ones are there from the start, as the program's imports make it.
    void AddLibrary(std::u16string_view name, bool loaded);
    /// The library is not on this PC: neither loaded nor found.
    void RemoveLibrary(std::u16string_view name);
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

    struct Module;
    [[nodiscard]] Module* Find(std::u16string_view name) const;
    [[nodiscard]] Module* Find(HMODULE module) const;
    /// Counts a load; its reference is a leak until `Free`.
    HMODULE Load(Module& module);
    bool Free(Module& module);
    [[nodiscard]] HMODULE Own() const;

private:
    std::map<std::u16string, std::unique_ptr<Module>> modules_;  // by upper-cased name with extension
    std::unique_ptr<Module> own_;
    DWORD commonControlsMajor_ = 6, commonControlsMinor_ = 16;
};

}  // namespace platform
