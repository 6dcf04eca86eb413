#include "tests/support/ScratchFolder.h"

#include "base/Handles.h"

#include <gtest/gtest.h>

namespace tests {

using base::String;
using base::StringView;

ScratchFolder::ScratchFolder()
{
    WCHAR temporary[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temporary);
    static int count = 0;
    path_ = String(temporary) + TEXT("Velmora tests ") + base::ToDecimal(static_cast<long long>(GetCurrentProcessId())) + TEXT("-") +
            base::ToDecimal(++count);
    EXPECT_TRUE(CreateDirectoryW(path_.c_str(), nullptr));
    path_ += TEXT('\\');
}

ScratchFolder::~ScratchFolder()
{
    for (const String& file : files_)
        DeleteFileW(file.c_str());
    RemoveDirectoryW(path_.substr(0, path_.size() - 1).c_str());
}

String ScratchFolder::Write(StringView name, std::string_view bytes)
{
    const String path = Expect(name);
    const base::FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    EXPECT_TRUE(WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr));
    return path;
}

String ScratchFolder::Expect(StringView name)
{
    files_.push_back(path_ + String(name));
    return files_.back();
}

std::string BytesOf(const String& path)
{
    const base::FileHandle file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                            FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file)
        return {};
    std::string bytes(100000, '\0');
    DWORD read = 0;
    ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    bytes.resize(read);
    return bytes;
}

std::string WideBytes(StringView text)
{
    std::string bytes;
    for (const WCHAR character : text) {
        bytes += static_cast<char>(character & 0xFF);
        bytes += static_cast<char>(character >> 8);
    }
    return bytes;
}

}  // namespace tests
