#include "tests/e2e/EndToEnd.h"

#include <algorithm>

namespace e2e {

void EndToEnd::SetUp()
{
    RemoveAutoStartValue();
    ASSERT_TRUE(RemoveService());
}

void EndToEnd::TearDown()
{
    RemoveAutoStartValue();
    EXPECT_TRUE(RemoveService());
    EndAgent();
    // An exe stays in use for a moment after its process has ended.
    for (const base::String& copy : copies_)
        EXPECT_TRUE(Eventually([&] { return DeleteFileW(copy.c_str()) || GetLastError() == ERROR_FILE_NOT_FOUND; }));
}

base::String EndToEnd::Put(const WCHAR* variable, base::StringView name)
{
    WCHAR path[MAX_PATH]{};
    GetEnvironmentVariableW(variable, path, MAX_PATH);
    // A path in the host's form is turned into the form that Windows programs use.
    std::ranges::replace(path, TEXT('/'), TEXT('\\'));
    const base::String source = (path[0] == TEXT('\\') ? TEXT("Z:") : TEXT("")) + base::String(path);
    copies_.push_back(folder_.Path() + base::String(name));
    EXPECT_TRUE(CopyFileW(source.c_str(), copies_.back().c_str(), FALSE)) << "VELMORA_UTILITY and VELMORA_AGENT name the exes to test";
    return copies_.back();
}

}  // namespace e2e
