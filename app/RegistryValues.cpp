#include "app/RegistryValues.h"

#include <array>
#include <cstring>
#include <limits>
#include <utility>

namespace app {

using base::RegistryKey;
using base::String;
using base::StringView;

namespace {

constexpr REGSAM readAndWrite = KEY_READ | KEY_WRITE | KEY_CREATE_LINK;
static_assert(readAndWrite == 0x2003F);

bool Set(const RegistryKey& key, StringView name, DWORD type, const void* data, std::size_t size)
{
    return RegSetValueExW(key.Get(), String(name).c_str(), 0, type, static_cast<const BYTE*>(data), static_cast<DWORD>(size)) ==
           ERROR_SUCCESS;
}

RegistryKey Open(HKEY hive, StringView subkey, REGSAM access, bool use64BitView)
{
    HKEY key = nullptr;
    const REGSAM view = use64BitView ? KEY_WOW64_64KEY : 0;
    return RegistryKey(RegOpenKeyExW(hive, String(subkey).c_str(), 0, access | view, &key) == ERROR_SUCCESS ? key : nullptr);
}

/// A decimal number that fits into 32 bits, signed or unsigned.
std::optional<DWORD> ParseDword(StringView text)
{
    const String trimmed = base::Trim(text);
    const bool negative = trimmed.starts_with(TEXT('-'));
    const String digits = trimmed.substr(negative ? 1 : 0);
    const std::int64_t limit = negative ? std::int64_t{1} << 31 : std::numeric_limits<std::uint32_t>::max();
    std::int64_t number = 0;
    for (const WCHAR digit : digits) {
        if (digit < TEXT('0') || digit > TEXT('9'))
            return std::nullopt;
        number = number * 10 + (digit - TEXT('0'));
        if (number > limit)
            return std::nullopt;
    }
    if (digits.empty())
        return std::nullopt;
    return static_cast<DWORD>(negative ? -number : number);
}

}  // namespace

RegistryKey OpenRegKey(HKEY hive, StringView subkey, bool use64BitView)
{
    return Open(hive, subkey, readAndWrite, use64BitView);
}

bool CloseRegKey(RegistryKey key)
{
    return RegCloseKey(key.Release()) == ERROR_SUCCESS;
}

std::optional<RegValue> QueryRegValue(const RegistryKey& key, StringView name)
{
    std::array<BYTE, 1024> buffer{};
    DWORD size = static_cast<DWORD>(buffer.size());
    RegValue value;
    if (RegQueryValueExW(key.Get(), String(name).c_str(), nullptr, &value.type, buffer.data(), &size) != ERROR_SUCCESS)
        return std::nullopt;
    String& text = value.text;
    if (value.type == REG_SZ || value.type == REG_EXPAND_SZ) {
        text.resize(size / sizeof(WCHAR));
        std::memcpy(text.data(), buffer.data(), text.size() * sizeof(WCHAR));
        // Windows stores what a program hands it, so the terminating zero may be missing or stand in the middle.
        text = base::UpToZero(text);
    } else if (value.type == REG_DWORD && size > 0) {
        DWORD number = 0;
        std::memcpy(&number, buffer.data(), sizeof number);
        text = base::ToDecimal(number);
    }
    return value;
}

std::optional<RegValue> ReadRegValue(HKEY hive, StringView subkey, StringView name, bool use64BitView)
{
    RegistryKey key = OpenRegKey(hive, subkey, use64BitView);
    // Ordinary users may read keys of the whole machine but not write to them.
    if (!key)
        key = Open(hive, subkey, KEY_READ, use64BitView);
    if (!key)
        return std::nullopt;
    std::optional<RegValue> value = QueryRegValue(key, name);
    return CloseRegKey(std::move(key)) ? value : std::nullopt;
}

bool WriteRegValue(const RegistryKey& key, StringView name, const RegData& data, DWORD type)
{
    const String* const text = std::get_if<String>(&data);
    const auto* const bytes = std::get_if<std::vector<std::uint8_t>>(&data);
    switch (type) {
        case REG_SZ:
        case REG_EXPAND_SZ:
            return text && Set(key, name, type, text->c_str(), (text->size() + 1) * sizeof(WCHAR));
        case REG_DWORD: {
            const std::optional<DWORD> number = text ? ParseDword(*text) : std::nullopt;
            return number && Set(key, name, type, &*number, sizeof *number);
        }
        case REG_BINARY:
            return bytes && Set(key, name, type, bytes->data(), bytes->size());
        default:
            return false;
    }
}

bool WriteRegString(const RegistryKey& key, StringView name, StringView text)
{
    return WriteRegValue(key, name, String(text), REG_SZ);
}

bool DeleteRegValue(const RegistryKey& key, StringView name)
{
    return RegDeleteValueW(key.Get(), String(name).c_str()) == ERROR_SUCCESS;
}

}  // namespace app
