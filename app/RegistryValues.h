// RegistryValues: single values of the registry as text.
#pragma once

#include "base/Handles.h"
#include "base/String.h"

#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

namespace app {

/// What `WriteRegValue` stores: text for the types REG_SZ, REG_EXPAND_SZ and REG_DWORD, bytes for REG_BINARY.
using RegData = std::variant<base::String, std::vector<std::uint8_t>>;

/// A value as it was read. REG_SZ and REG_EXPAND_SZ give their text up to the first zero (environment variables stay as they are),
/// REG_DWORD its decimal form, every other type an empty text.
struct RegValue {
    base::String text;
    DWORD type = REG_NONE;
};

/// Opens an existing key for reading and writing; without a handle when that fails. `use64BitView` reaches the 64-bit registry from a
/// 32-bit process. https://learn.microsoft.com/windows/win32/api/winreg/nf-winreg-regopenkeyexw
base::RegistryKey OpenRegKey(HKEY hive, base::StringView subkey, bool use64BitView);

/// For who wants to know whether Windows has closed the key; its owner closes it anyway.
bool CloseRegKey(base::RegistryKey key);

/// Reads at most 1024 bytes; nothing when the value is missing or longer.
std::optional<RegValue> QueryRegValue(const base::RegistryKey& key, base::StringView name);

/// Opens the key, reads the value and closes the key; nothing unless all three succeeded.
std::optional<RegValue> ReadRegValue(HKEY hive, base::StringView subkey, base::StringView name, bool use64BitView);

/// Text is stored with its terminating zero. False when Windows refuses, for data that does not fit the type, and for any other type.
bool WriteRegValue(const base::RegistryKey& key, base::StringView name, const RegData& data, DWORD type);
bool WriteRegString(const base::RegistryKey& key, base::StringView name, base::StringView text);
bool DeleteRegValue(const base::RegistryKey& key, base::StringView name);

}  // namespace app
