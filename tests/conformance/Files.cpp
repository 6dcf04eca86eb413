// Facts about files: why they do not open, and the access check on a folder of the user's own.
#include "base/Handles.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using base::FileHandle;
using base::String;

FileHandle Open(const String& path, DWORD access, DWORD disposition, DWORD share = FILE_SHARE_READ)
{
    return FileHandle(CreateFileW(path.c_str(), access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
}

TEST(Files, Opening_TellsWhyItFails)
{
    tests::ScratchFolder folder;
    const String file = folder.Write(TEXT("a.txt"), "abc");
    const struct {
        String path;
        DWORD disposition, error;
    } cases[] = {{folder.Path() + TEXT("none.txt"), OPEN_EXISTING, ERROR_FILE_NOT_FOUND},
                 {folder.Path() + TEXT("none\\none.txt"), OPEN_EXISTING, ERROR_PATH_NOT_FOUND},
                 {file, CREATE_NEW, ERROR_FILE_EXISTS},
                 {folder.Path() + TEXT("a?b"), CREATE_NEW, ERROR_INVALID_NAME},
                 {folder.Path().substr(0, folder.Path().size() - 1), OPEN_EXISTING, ERROR_ACCESS_DENIED}};
    for (const auto& test : cases) {
        EXPECT_FALSE(Open(test.path, GENERIC_READ, test.disposition));
        EXPECT_EQ(GetLastError(), test.error);
    }
    const FileHandle writer = Open(file, GENERIC_WRITE, OPEN_EXISTING, 0);
    ASSERT_TRUE(writer);
    EXPECT_FALSE(Open(file, GENERIC_READ, OPEN_EXISTING, FILE_SHARE_READ | FILE_SHARE_WRITE));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_SHARING_VIOLATION));
}

TEST(Files, AccessCheck_GrantsTheUsersOwnFolder)
{
    tests::ScratchFolder folder;
    DWORD flags = 0;
    ASSERT_TRUE(GetVolumeInformationW(folder.Path().substr(0, 3).c_str(), nullptr, 0, nullptr, nullptr, &flags, nullptr, 0));
    EXPECT_NE(flags & FILE_PERSISTENT_ACLS, 0u);
    constexpr SECURITY_INFORMATION kAsked = OWNER_SECURITY_INFORMATION | GROUP_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;
    DWORD size = 0;
    EXPECT_FALSE(GetFileSecurityW(folder.Path().c_str(), kAsked, nullptr, 0, &size));
    ASSERT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER));
    std::vector<BYTE> descriptor(size);
    ASSERT_TRUE(GetFileSecurityW(folder.Path().c_str(), kAsked, descriptor.data(), size, &size));

    base::KernelHandle token;
    EXPECT_FALSE(OpenThreadToken(GetCurrentThread(), TOKEN_QUERY, FALSE, token.Receive()));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NO_TOKEN));
    ASSERT_TRUE(ImpersonateSelf(SecurityDelegation));
    ASSERT_TRUE(OpenThreadToken(GetCurrentThread(), TOKEN_QUERY, FALSE, token.Receive()));
    GENERIC_MAPPING mapping{FILE_GENERIC_READ, FILE_GENERIC_WRITE, FILE_GENERIC_EXECUTE, FILE_ALL_ACCESS};
    DWORD wanted = FILE_LIST_DIRECTORY | FILE_ADD_FILE | FILE_ADD_SUBDIRECTORY | FILE_READ_EA;
    MapGenericMask(&wanted, &mapping);
    BYTE privileges[32] = {};
    DWORD privilegesSize = sizeof privileges;
    DWORD granted = 0;
    BOOL status = FALSE;
    EXPECT_TRUE(AccessCheck(descriptor.data(), token.Get(), wanted, &mapping, reinterpret_cast<PPRIVILEGE_SET>(privileges), &privilegesSize,
                            &granted, &status));
    EXPECT_TRUE(status);
    EXPECT_EQ(granted, wanted);
    EXPECT_TRUE(RevertToSelf());
}

}  // namespace
