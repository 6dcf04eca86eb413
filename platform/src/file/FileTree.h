// FileTree: the files and folders of all volumes, as the file functions work on them.
#pragma once

#include "platform/sim/Volumes.h"
#include "platform/src/core/KernelObject.h"
#include "platform/src/file/PathParts.h"
#include "platform/src/text/Case.h"

#include <winerror.h>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
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

class FileTree {
public:
    explicit FileTree(SimPc& pc) : pc_(pc) {}

    void AddVolume(std::u16string_view root, bool persistentAcls);
    /// The volume of a root that is there.
    [[nodiscard]] Volume& Require(std::u16string_view root);
    [[nodiscard]] const std::map<std::u16string, std::unique_ptr<Volume>>& All() const { return volumes_; }

    /// A path's volume and names; a relative one starts in C:\Tools. Empty when it is none.
    [[nodiscard]] static std::optional<PathParts> PartsOf(std::u16string_view path);
    /// What a path leads to.
    struct Place {
        Volume* volume = nullptr;
        std::shared_ptr<FileNode> parent;  // the folder that holds or would hold it; empty for a root
        std::shared_ptr<FileNode> node;    // empty when there is none
        std::u16string name;               // last component, empty for a root
        DWORD error = NO_ERROR;            // why there is no node: 2, 3 or 123
    };
    [[nodiscard]] Place Find(std::u16string_view path) const;
    [[nodiscard]] static FileRights RightsOf(const Place& place);
    /// Whether the program's user has these rights there: on the node, or on the parent when there is none.
    [[nodiscard]] bool Allows(const Place& place, DWORD access) const;
    /// Puts a new file or folder into an existing parent.
    static std::shared_ptr<FileNode> Add(const Place& place, bool folder);

private:
    SimPc& pc_;
    std::map<std::u16string, std::unique_ptr<Volume>> volumes_;  // by upper-cased root without its last backslash
};

/// The PC's files.
[[nodiscard]] FileTree& Files();

}  // namespace platform
