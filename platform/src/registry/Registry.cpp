#include "platform/sim/Registry.h"

#include "platform/src/registry/RegistryKeys.h"

#include <cstring>

namespace platform {

namespace {

/// The node of a key as a test names it; NULL when there is none and none is to be made.
std::shared_ptr<KeyNode> NodeOf(SimPc& pc, HKEY root, std::u16string_view key, Registry::View view, bool create)
{
    const RegistryKeys& keys = pc.Get<RegistryKeys>();
    return RegistryKeys::Walk(keys.RootOf(root), RegistryKeys::Redirected(root, key, view), create);
}

}  // namespace

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

void Registry::Set(HKEY root, std::u16string_view key, std::u16string_view name, RegistryValue value, View view)
{
    NodeOf(pc_, root, key, view, true)->values[std::u16string(name)] = std::move(value);
}

std::optional<RegistryValue> Registry::Get(HKEY root, std::u16string_view key, std::u16string_view name, View view) const
{
    const auto node = NodeOf(pc_, root, key, view, false);
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
    if (const auto node = NodeOf(pc_, root, key, view, false)) {
        const auto found = node->values.find(name);
        if (found != node->values.end())
            node->values.erase(found);
    }
}

}  // namespace platform
