// RegistryKeys: the tree of keys that the registry functions work on, and the handles to them.
#pragma once

#include "platform/sim/Registry.h"
#include "platform/src/text/Case.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace platform {

struct KeyNode {
    std::u16string name;
    bool forAdministrators = false;  // others may only read it
    bool deleted = false;
    std::map<std::u16string, RegistryValue, NameLess> values;
    std::map<std::u16string, std::shared_ptr<KeyNode>, NameLess> children;
};

class RegistryKeys : public Area {
public:
    /// The "Run" key exists in both views; administrators may write below HKEY_LOCAL_MACHINE, others only read there.
    explicit RegistryKeys(SimPc& pc);

    /// The key below another one, made on the way when `create`; NULL when there is none.
    static std::shared_ptr<KeyNode> Walk(std::shared_ptr<KeyNode> start, std::u16string_view path, bool create);
    [[nodiscard]] std::shared_ptr<KeyNode> RootOf(HKEY root) const;
    /// The path below a root as that view has it: 32-bit programs see HKEY_LOCAL_MACHINE\SOFTWARE elsewhere.
    [[nodiscard]] static std::u16string Redirected(HKEY root, std::u16string_view path, Registry::View view);
    /// NO_ERROR when the user may have these rights on the key.
    [[nodiscard]] DWORD Check(const KeyNode& key, REGSAM access) const;

private:
    std::shared_ptr<KeyNode> machine_, user_, classes_, users_;
};

struct OpenKey : Object {
    std::shared_ptr<KeyNode> node;
    REGSAM access = 0;
    HKEY root = nullptr;  // which tree it lies in
    std::u16string path;  // below the root, already redirected
};

}  // namespace platform
