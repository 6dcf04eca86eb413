// FileNode: one file or folder; Volume: a tree of them.
#pragma once

#include "platform/sim/Volumes.h"
#include "platform/src/core/KernelObject.h"
#include "platform/src/text/Case.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace platform {

class OpenFile;

struct FileNode {
    std::u16string name;
    bool folder = false;
    DWORD attributes = 0;  // FILE_ATTRIBUTE_READONLY and the like; the folder bit is told by `folder`
    std::string bytes;
    std::optional<FileRights> rights;  // inherited when empty
    FileNode* parent = nullptr;
    std::map<std::u16string, std::shared_ptr<FileNode>, NameLess> children;
    std::vector<std::weak_ptr<OpenFile>> opens;
};

struct Volume {
    std::u16string root;  // "C:\"
    std::u16string device;
    bool persistentAcls = true;
    std::shared_ptr<FileNode> top;
};

/// One open handle of a file.
class OpenFile : public KernelObject {
public:
    OpenFile(DWORD access, DWORD shared, std::shared_ptr<FileNode> opened) : KernelObject(access), share(shared), node(std::move(opened)) {}

    const DWORD share;
    const std::shared_ptr<FileNode> node;
    std::uint64_t position = 0;
};

}  // namespace platform
