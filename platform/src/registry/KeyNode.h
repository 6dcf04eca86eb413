// KeyNode: one key of the registry; OpenKey: a handle to one.
#pragma once

#include "platform/sim/Registry.h"
#include "platform/src/text/Case.h"

#include <map>

namespace platform {

struct KeyNode {
    std::u16string name;
    bool forAdministrators = false;  // others may only read it
    bool deleted = false;
    REGSAM denied = 0;
    std::map<std::u16string, RegistryValue, NameLess> values;
    std::map<std::u16string, std::shared_ptr<KeyNode>, NameLess> children;
};

struct OpenKey : Object {
    std::shared_ptr<KeyNode> node;
    REGSAM access = 0;
    HKEY root = nullptr;  // which tree it lies in
    std::u16string path;  // below the root, already redirected
};

}  // namespace platform
