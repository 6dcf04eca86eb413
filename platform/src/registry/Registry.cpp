#include "platform/sim/Registry.h"

#include "platform/sim/Users.h"
#include "platform/src/registry/KeyNode.h"

#include <cstring>

namespace platform {

RegistryValue TextValue(std::u16string_view text, DWORD type)
{
    RegistryValue value{type, std::string(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(char16_t))};
    value.bytes.append(sizeof(char16_t), '\0');
    return value;
}

RegistryValue NumberValue(DWORD number)
{
    return {REG_DWORD, std::string(reinterpret_cast<const char*>(&number), sizeof number)};
}

Registry::Registry(SimPc& pc)
    : Area(pc),
      machine_(std::make_shared<KeyNode>()),
      user_(std::make_shared<KeyNode>()),
      classes_(std::make_shared<KeyNode>()),
      users_(std::make_shared<KeyNode>())
{
    machine_->forAdministrators = classes_->forAdministrators = true;
    constexpr std::u16string_view kRun = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
    for (const View view : {View::Bits64, View::Bits32})
        Walk(machine_, Redirected(HKEY_LOCAL_MACHINE, kRun, view), true);
    Walk(user_, kRun, true);
}

Registry::~Registry() = default;

std::shared_ptr<KeyNode> Registry::RootOf(HKEY root) const
{
    return root == HKEY_LOCAL_MACHINE  ? machine_
           : root == HKEY_CURRENT_USER ? user_
           : root == HKEY_CLASSES_ROOT ? classes_
           : root == HKEY_USERS        ? users_
                                       : nullptr;
}

std::u16string Registry::Redirected(HKEY root, std::u16string_view path, View view)
{
    const std::u16string_view first = path.substr(0, path.find(u'\\'));
    if (root != HKEY_LOCAL_MACHINE || view == View::Bits64 || !SameName(first, u"SOFTWARE"))
        return std::u16string(path);
    const std::u16string_view rest = path.substr(first.size());
    if (SameName(rest.substr(0, 12), u"\\WOW6432Node"))
        return std::u16string(path);
    return std::u16string(first) + u"\\WOW6432Node" + std::u16string(rest);
}

std::shared_ptr<KeyNode> Registry::Walk(std::shared_ptr<KeyNode> start, std::u16string_view path, bool create)
{
    std::shared_ptr<KeyNode> node = std::move(start);
    while (!path.empty()) {
        const std::u16string_view name = path.substr(0, path.find(u'\\'));
        path.remove_prefix(std::min(name.size() + 1, path.size()));
        if (name.empty())
            continue;
        const auto found = node->children.find(name);
        if (found != node->children.end()) {
            node = found->second;
            continue;
        }
        if (!create)
            return nullptr;
        auto child = std::make_shared<KeyNode>();
        child->name = name;
        child->forAdministrators = node->forAdministrators;
        node->children[std::u16string(name)] = child;
        node = child;
    }
    return node;
}

DWORD Registry::Check(const KeyNode& key, REGSAM access) const
{
    const REGSAM wanted = access & ~REGSAM{KEY_WOW64_RES};
    if ((key.denied & wanted) != 0)
        return ERROR_ACCESS_DENIED;
    constexpr REGSAM kWrites =
        KEY_SET_VALUE | KEY_CREATE_SUB_KEY | KEY_CREATE_LINK | DELETE | WRITE_DAC | WRITE_OWNER | GENERIC_WRITE | GENERIC_ALL;
    if (key.forAdministrators && !pc_.Get<Users>().Administrator() && (wanted & kWrites) != 0)
        return ERROR_ACCESS_DENIED;
    return NO_ERROR;
}

void Registry::Set(HKEY root, std::u16string_view key, std::u16string_view name, RegistryValue value, View view)
{
    Walk(RootOf(root), Redirected(root, key, view), true)->values[std::u16string(name)] = std::move(value);
}

std::optional<RegistryValue> Registry::Get(HKEY root, std::u16string_view key, std::u16string_view name, View view) const
{
    const auto node = Walk(RootOf(root), Redirected(root, key, view), false);
    if (!node)
        return std::nullopt;
    const auto found = node->values.find(name);
    return found == node->values.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::u16string> Registry::GetText(HKEY root, std::u16string_view key, std::u16string_view name, View view) const
{
    const auto value = Get(root, key, name, view);
    if (!value || (value->type != REG_SZ && value->type != REG_EXPAND_SZ))
        return std::nullopt;
    std::u16string text(value->bytes.size() / sizeof(char16_t), u'\0');
    std::memcpy(text.data(), value->bytes.data(), text.size() * sizeof(char16_t));
    return text.substr(0, text.find(u'\0'));
}

void Registry::Remove(HKEY root, std::u16string_view key, std::u16string_view name, View view)
{
    if (const auto node = Walk(RootOf(root), Redirected(root, key, view), false)) {
        const auto found = node->values.find(name);
        if (found != node->values.end())
            node->values.erase(found);
    }
}

void Registry::Deny(HKEY root, std::u16string_view key, REGSAM access, View view)
{
    Walk(RootOf(root), Redirected(root, key, view), true)->denied |= access;
}

}  // namespace platform
