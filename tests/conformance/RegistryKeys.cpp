// Facts about registry keys and values: rights of a handle.
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
    base::RegistryKey key_;
};

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
