#include "app/RegistryValues.h"

#include "base/Handles.h"

#include <gtest/gtest.h>

using namespace app;
using base::String;

namespace {

constexpr const WCHAR* scratchKey = TEXT("Software\\VelmoraTests");

class RegistryValues : public testing::Test {
protected:
    RegistryValues()
    {
        EXPECT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, scratchKey, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, key.Receive(), nullptr), 0);
    }
    ~RegistryValues() override
    {
        key.Reset();
        RegDeleteKeyW(HKEY_CURRENT_USER, scratchKey);
    }
    void Store(DWORD storedType, const void* data, std::size_t size)
    {
        ASSERT_EQ(RegSetValueExW(key.Get(), TEXT("v"), 0, storedType, static_cast<const BYTE*>(data), static_cast<DWORD>(size)), 0);
    }
    void StoreText(DWORD storedType, const String& stored) { Store(storedType, stored.data(), stored.size() * sizeof(WCHAR)); }
    static std::optional<String> Read(DWORD type)
    {
        const auto value = ReadRegValue(HKEY_CURRENT_USER, scratchKey, TEXT("v"), false);
        EXPECT_TRUE(!value || value->type == type) << value->type;
        return value ? std::optional(value->text) : std::nullopt;
    }

    base::RegistryKey key;
};

TEST_F(RegistryValues, Text_EndsAtItsFirstZero)
{
    const String inside = {TEXT('a'), TEXT('\0'), TEXT('b'), TEXT('\0')};
    for (const String& stored : {String(TEXT("a")), String(TEXT("a\0"), 2), inside}) {
        StoreText(REG_SZ, stored);
        EXPECT_EQ(Read(REG_SZ), TEXT("a")) << stored.size() << " characters stored";
    }
    StoreText(REG_EXPAND_SZ, TEXT("%TEMP%"));
    EXPECT_EQ(Read(REG_EXPAND_SZ), TEXT("%TEMP%")) << "variables stay as they are";
    Store(REG_SZ, nullptr, 0);
    EXPECT_EQ(Read(REG_SZ), TEXT(""));
}

TEST_F(RegistryValues, OtherTypes_AreDecimalOrEmpty)
{
    const DWORD number = 3000000000u;
    Store(REG_DWORD, &number, sizeof number);
    EXPECT_EQ(Read(REG_DWORD), TEXT("3000000000"));
    Store(REG_BINARY, "/Hidden", 7);
    EXPECT_EQ(Read(REG_BINARY), TEXT(""));
}

TEST_F(RegistryValues, MissingOrTooLong_IsNothing)
{
    EXPECT_FALSE(Read(REG_SZ));
    StoreText(REG_SZ, String(512, TEXT('x')) + TEXT('\0'));
    EXPECT_FALSE(Read(REG_SZ));
    EXPECT_FALSE(ReadRegValue(HKEY_CURRENT_USER, TEXT("Software\\VelmoraTests\\Missing"), TEXT("v"), false));
    StoreText(REG_SZ, String(511, TEXT('x')) + TEXT('\0'));
    EXPECT_EQ(Read(REG_SZ), String(511, TEXT('x')));
}

TEST_F(RegistryValues, Writing_StoresEachTypeInItsForm)
{
    const struct {
        RegData data;
        DWORD type;
        bool written;
        DWORD size;
    } cases[] = {{String(TEXT("ab")), REG_SZ, true, 3 * sizeof(WCHAR)},     {String(), REG_EXPAND_SZ, true, sizeof(WCHAR)},
                 {String(TEXT("4294967295")), REG_DWORD, true, 4},          {String(TEXT("-1")), REG_DWORD, true, 4},
                 {String(TEXT("4294967296")), REG_DWORD, false, 0},         {String(), REG_DWORD, false, 0},
                 {std::vector<std::uint8_t>{1, 0, 2}, REG_BINARY, true, 3}, {String(TEXT("ab")), REG_BINARY, false, 0},
                 {std::vector<std::uint8_t>{1}, REG_SZ, false, 0},          {String(TEXT("ab")), REG_MULTI_SZ, false, 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "row " << &c - cases << ", type " << c.type);
        EXPECT_EQ(WriteRegValue(key, TEXT("v"), c.data, c.type), c.written);
        DWORD stored = 0;
        DWORD size = 0;
        EXPECT_EQ(RegQueryValueExW(key.Get(), TEXT("v"), nullptr, &stored, nullptr, &size) == ERROR_SUCCESS, c.written);
        EXPECT_EQ(size, c.size);
        EXPECT_EQ(stored, c.written ? c.type : 0u);
        EXPECT_EQ(DeleteRegValue(key, TEXT("v")), c.written);
    }
}

}  // namespace
