// Facts about registry keys and values: sizes, types, rights of a handle.
#include "base/Handles.h"
#include "base/String.h"

#include <gtest/gtest.h>

namespace {

using base::String;

constexpr LPCWSTR kScratch = TEXT("Software\\VelmoraConformance");

class RegistryKeys : public testing::Test {
protected:
    RegistryKeys()
    {
        EXPECT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, kScratch, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, key_.Receive(), nullptr), 0);
    }
    ~RegistryKeys() override
    {
        key_.Reset();
        RegDeleteKeyW(HKEY_CURRENT_USER, kScratch);
    }
    LSTATUS Set(DWORD type, const void* data, DWORD size) const
    {
        return RegSetValueExW(key_.Get(), TEXT("Value"), 0, type, static_cast<const BYTE*>(data), size);
    }
    base::RegistryKey key_;
};

TEST_F(RegistryKeys, Query_TellsTheSizeAndRefusesASmallerBuffer)
{
    const WCHAR text[] = TEXT("abc");
    ASSERT_EQ(Set(REG_SZ, text, sizeof text), ERROR_SUCCESS);
    DWORD type = 0;
    DWORD size = 0;
    EXPECT_EQ(RegQueryValueExW(key_.Get(), TEXT("vALUE"), nullptr, &type, nullptr, &size), ERROR_SUCCESS);
    EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(size, sizeof text) << "bytes, with the zero that was stored";
    BYTE buffer[16] = {};
    size = sizeof text - 1;
    EXPECT_EQ(RegQueryValueExW(key_.Get(), TEXT("Value"), nullptr, nullptr, buffer, &size), ERROR_MORE_DATA);
    EXPECT_EQ(size, sizeof text);
    EXPECT_EQ(RegQueryValueExW(key_.Get(), TEXT("Value"), nullptr, nullptr, buffer, nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(RegQueryValueExW(key_.Get(), TEXT("None"), nullptr, nullptr, buffer, &size), ERROR_FILE_NOT_FOUND);
}

TEST_F(RegistryKeys, TextStoredWithoutItsZero_IsReadWithOneWhenThereIsRoom)
{
    const WCHAR text[] = {TEXT('a'), TEXT('b'), TEXT('#')};
    ASSERT_EQ(Set(REG_SZ, text, 2 * sizeof(WCHAR)), ERROR_SUCCESS);
    WCHAR buffer[] = {TEXT('?'), TEXT('?'), TEXT('?'), TEXT('?')};
    DWORD size = sizeof buffer;
    EXPECT_EQ(RegQueryValueExW(key_.Get(), TEXT("Value"), nullptr, nullptr, reinterpret_cast<LPBYTE>(buffer), &size), ERROR_SUCCESS);
    EXPECT_EQ(size, 2 * sizeof(WCHAR)) << "the added zero is not counted";
    EXPECT_EQ(String(buffer, 4), String(TEXT("ab\0?"), 4));
}

TEST_F(RegistryKeys, DataOfAnyTypeAndOfNoLength)
{
    ASSERT_EQ(Set(REG_BINARY, nullptr, 0), ERROR_SUCCESS);
    DWORD type = 0;
    DWORD size = 99;
    BYTE buffer[4] = {};
    EXPECT_EQ(RegQueryValueExW(key_.Get(), TEXT("Value"), nullptr, &type, buffer, &size), ERROR_SUCCESS);
    EXPECT_EQ(type, static_cast<DWORD>(REG_BINARY));
    EXPECT_EQ(size, 0u);
    EXPECT_EQ(RegDeleteValueW(key_.Get(), TEXT("Value")), ERROR_SUCCESS);
    EXPECT_EQ(RegDeleteValueW(key_.Get(), TEXT("Value")), ERROR_FILE_NOT_FOUND);
}

TEST_F(RegistryKeys, Handle_GrantsWhatItWasOpenedForAndNoMore)
{
    base::RegistryKey reader;
    ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, TEXT("sOFTWARE\\VELMORACONFORMANCE"), 0, KEY_QUERY_VALUE, reader.Receive()), ERROR_SUCCESS);
    const DWORD number = 1;
    EXPECT_EQ(RegSetValueExW(reader.Get(), TEXT("Value"), 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), sizeof number),
              ERROR_ACCESS_DENIED);
    EXPECT_EQ(RegDeleteValueW(reader.Get(), TEXT("Value")), ERROR_ACCESS_DENIED);
    HKEY none = nullptr;
    EXPECT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, TEXT("Software\\VelmoraConformance\\None"), 0, KEY_READ, &none), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(RegCloseKey(HKEY_LOCAL_MACHINE), ERROR_SUCCESS) << "a root is always open";
}

TEST(RunKey, OpensForAllAccessInThe64BitView)
{
    constexpr LPCWSTR kRun = TEXT("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run");
    for (const REGSAM access : {REGSAM{KEY_ALL_ACCESS}, REGSAM{KEY_ALL_ACCESS | KEY_WOW64_64KEY}}) {
        base::RegistryKey key;
        EXPECT_EQ(RegOpenKeyExW(HKEY_LOCAL_MACHINE, kRun, 0, access, key.Receive()), ERROR_SUCCESS);
    }
}

}  // namespace
