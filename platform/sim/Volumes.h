// Volumes: the drives of the stand-in PC, their folders and files, and who may touch them.
#pragma once

#include "platform/sim/SimPc.h"

#include <winbase.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

class FileTree;

/// File rights of the two kinds of users, as masks.
struct FileRights {
    DWORD administrators = FILE_ALL_ACCESS;
    DWORD users = FILE_ALL_ACCESS;
};
inline constexpr DWORD kReadOnlyRights = FILE_GENERIC_READ | FILE_GENERIC_EXECUTE;

class Volumes : public Area {
public:
    /// Drive C: with the usual folders; users may write to their own folders and to C:\Tools.
    explicit Volumes(SimPc& pc);
    ~Volumes() override;

    // Paths are absolute, names are compared without regard to case, rights do not hold the test back.

    /// A further volume: "D:\" or "\\server\share\".
    void AddVolume(std::u16string_view root, bool persistentAcls = true);
    /// Whether a volume keeps access-control lists; without them everybody may do everything.
    void PersistentAcls(std::u16string_view root, bool keeps);
    /// Name of the volume's device: "\Device\HarddiskVolume1".
    void Device(std::u16string_view root, std::u16string_view name);

    /// Writes a whole file, with the folders that it needs.
    void WriteFile(std::u16string_view path, std::string_view bytes);
    /// Bytes of a file, empty when there is none.
    [[nodiscard]] std::optional<std::string> ReadFile(std::u16string_view path) const;
    void MakeFolder(std::u16string_view path);
    /// Removes a file or a folder with all that is in it.
    void Remove(std::u16string_view path);
    /// Rights on a file or folder and on everything below it that has none of its own.
    void SetRights(std::u16string_view path, FileRights rights);
    /// Nobody may change it or create anything in it.
    void MakeReadOnly(std::u16string_view path) { SetRights(path, {kReadOnlyRights, kReadOnlyRights}); }

    [[nodiscard]] bool IsFile(std::u16string_view path) const;
    [[nodiscard]] bool IsFolder(std::u16string_view path) const;
    /// Whether the program's user has these rights on an existing file or folder.
    [[nodiscard]] bool Allows(std::u16string_view path, DWORD access) const;
    /// "C:\x" as "\Device\HarddiskVolume1\x".
    [[nodiscard]] std::u16string DevicePath(std::u16string_view path) const;

    /// What the file functions work on.
    [[nodiscard]] FileTree& Tree() const { return *tree_; }

private:
    std::unique_ptr<FileTree> tree_;
};

}  // namespace platform
