// Registry: the keys and values of the stand-in PC, in the 64-bit and the 32-bit view.
#pragma once

#include "platform/sim/SimPc.h"

#include <winerror.h>
#include <winreg.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

struct KeyNode;

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

    /// The "Run" key exists in both views; administrators may write below HKEY_LOCAL_MACHINE, others only read there.
    explicit Registry(SimPc& pc);
    ~Registry() override;

    // -- Scenes: rights do not hold the test back; missing keys are made --

    void Set(HKEY root, std::u16string_view key, std::u16string_view name, RegistryValue value, View view = View::Bits64);
    [[nodiscard]] std::optional<RegistryValue> Get(HKEY root, std::u16string_view key, std::u16string_view name,
                                                   View view = View::Bits64) const;
    /// A REG_SZ or REG_EXPAND_SZ value without its zero; empty when there is none.
    [[nodiscard]] std::optional<std::u16string> GetText(HKEY root, std::u16string_view key, std::u16string_view name,
                                                        View view = View::Bits64) const;
    void Remove(HKEY root, std::u16string_view key, std::u16string_view name, View view = View::Bits64);
    /// Nobody gets these rights on the key from now on; keys that are open keep what they have.
    void Deny(HKEY root, std::u16string_view key, REGSAM access = KEY_ALL_ACCESS, View view = View::Bits64);

    // -- For the registry functions --

    /// The key below another one, made on the way when `create`; NULL when there is none.
    static std::shared_ptr<KeyNode> Walk(std::shared_ptr<KeyNode> start, std::u16string_view path, bool create);
    [[nodiscard]] std::shared_ptr<KeyNode> RootOf(HKEY root) const;
    /// The path below a root as that view has it: 32-bit programs see HKEY_LOCAL_MACHINE\SOFTWARE elsewhere.
    [[nodiscard]] static std::u16string Redirected(HKEY root, std::u16string_view path, View view);
    /// NO_ERROR when the user may have these rights on the key.
    [[nodiscard]] DWORD Check(const KeyNode& key, REGSAM access) const;

private:
    std::shared_ptr<KeyNode> machine_, user_, classes_, users_;
};

}  // namespace platform
