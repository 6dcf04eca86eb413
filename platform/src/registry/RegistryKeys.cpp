#include "platform/src/registry/RegistryKeys.h"

#include "platform/sim/Users.h"

namespace platform {

RegistryKeys::RegistryKeys(SimPc& pc)
    : Area(pc),
      machine_(std::make_shared<KeyNode>()),
      user_(std::make_shared<KeyNode>()),
      classes_(std::make_shared<KeyNode>()),
      users_(std::make_shared<KeyNode>())
{
    machine_->forAdministrators = classes_->forAdministrators = true;
    constexpr std::u16string_view kRun = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
    for (const Registry::View view : {Registry::View::Bits64, Registry::View::Bits32})
        Walk(machine_, Redirected(HKEY_LOCAL_MACHINE, kRun, view), true);
    Walk(user_, kRun, true);
}

std::shared_ptr<KeyNode> RegistryKeys::RootOf(HKEY root) const
{
    return root == HKEY_LOCAL_MACHINE  ? machine_
           : root == HKEY_CURRENT_USER ? user_
           : root == HKEY_CLASSES_ROOT ? classes_
           : root == HKEY_USERS        ? users_
                                       : nullptr;
}

std::u16string RegistryKeys::Redirected(HKEY root, std::u16string_view path, Registry::View view)
{
    const std::u16string_view first = path.substr(0, path.find(u'\\'));
    if (root != HKEY_LOCAL_MACHINE || view == Registry::View::Bits64 || !SameName(first, u"SOFTWARE"))
        return std::u16string(path);
    const std::u16string_view rest = path.substr(first.size());
    if (SameName(rest.substr(0, 12), u"\\WOW6432Node"))
        return std::u16string(path);
    return std::u16string(first) + u"\\WOW6432Node" + std::u16string(rest);
}

std::shared_ptr<KeyNode> RegistryKeys::Walk(std::shared_ptr<KeyNode> start, std::u16string_view path, bool create)
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

DWORD RegistryKeys::Check(const KeyNode& key, REGSAM access) const
{
    const REGSAM wanted = access & ~REGSAM{KEY_WOW64_RES};
    constexpr REGSAM kWrites =
        KEY_SET_VALUE | KEY_CREATE_SUB_KEY | KEY_CREATE_LINK | DELETE | WRITE_DAC | WRITE_OWNER | GENERIC_WRITE | GENERIC_ALL;
    if (key.forAdministrators && !pc_.Get<Users>().Administrator() && (wanted & kWrites) != 0)
        return ERROR_ACCESS_DENIED;
    return NO_ERROR;
}

}  // namespace platform
