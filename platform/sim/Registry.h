// Registry: the keys and values of the stand-in PC, in the 64-bit and the 32-bit view.
#pragma once

#include "platform/sim/SimPc.h"

#include <winerror.h>
#include <winreg.h>

#include <optional>
#include <string>
#include <string_view>

namespace platform {

struct RegistryValue {
    DWORD type = REG_NONE;
    std::string bytes;
    bool operator==(const RegistryValue&) const = default;
};

/// A text as REG_SZ keeps it, with its zero.
[[nodiscard]] RegistryValue TextValue(std::u16string_view text, DWORD type = REG_SZ);
[[nodiscard]] RegistryValue NumberValue(DWORD number);

class Registry : public Area {
public:
    enum class View { Bits64, Bits32 };

    using Area::Area;

    // Rights do not hold the test back; missing keys are made.

    void Set(HKEY root, std::u16string_view key, std::u16string_view name, RegistryValue value, View view = View::Bits64);
    [[nodiscard]] std::optional<RegistryValue> Get(HKEY root, std::u16string_view key, std::u16string_view name,
                                                   View view = View::Bits64) const;
    /// A REG_SZ or REG_EXPAND_SZ value without its zero; empty when there is none.
    [[nodiscard]] std::optional<std::u16string> GetText(HKEY root, std::u16string_view key, std::u16string_view name,
                                                        View view = View::Bits64) const;
    void Remove(HKEY root, std::u16string_view key, std::u16string_view name, View view = View::Bits64);
};

}  // namespace platform
