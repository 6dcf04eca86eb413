#include "platform/sim/Volumes.h"

#include "platform/src/file/FileTree.h"
#include "platform/src/file/PathParts.h"

#include <cassert>

namespace platform {

Volumes::Volumes(SimPc& pc) : Area(pc), tree_(std::make_unique<FileTree>(pc))
{
    AddVolume(u"C:\\");
    SetRights(u"C:\\", {FILE_ALL_ACCESS, kReadOnlyRights});
    for (const char16_t* folder : {u"C:\\Windows\\System32", u"C:\\Windows\\SysWOW64", u"C:\\Program Files", u"C:\\ProgramData"})
        MakeFolder(folder);
    for (const char16_t* folder :
         {u"Desktop", u"Documents", u"AppData\\Roaming\\Microsoft\\Windows\\Start Menu\\Programs\\Startup", u"AppData\\Local\\Temp"})
        MakeFolder(u"C:\\Users\\Anna\\" + std::u16string(folder));
    WriteFile(pc.Program(), "MZ");
    SetRights(u"C:\\Users\\Anna", {});
    SetRights(u"C:\\Tools", {});
}

Volumes::~Volumes() = default;

void Volumes::AddVolume(std::u16string_view root, bool persistentAcls)
{
    tree_->AddVolume(root, persistentAcls);
}

void Volumes::PersistentAcls(std::u16string_view root, bool keeps)
{
    tree_->Require(root).persistentAcls = keeps;
}

void Volumes::Device(std::u16string_view root, std::u16string_view name)
{
    tree_->Require(root).device = name;
}

void Volumes::MakeFolder(std::u16string_view path)
{
    const auto parts = FileTree::PartsOf(path);
    assert(parts && "not a path");
    PathParts sofar{parts->root, {}, false};
    for (const std::u16string& name : parts->names) {
        sofar.names.push_back(name);
        const FileTree::Place place = tree_->Find(sofar.Whole());
        assert(place.volume && "no such volume");
        if (!place.node)
            tree_->Add(place, true);
    }
}

void Volumes::WriteFile(std::u16string_view path, std::string_view bytes)
{
    MakeFolder(path.substr(0, path.rfind(u'\\') + 1));
    const FileTree::Place place = tree_->Find(path);
    (place.node ? place.node : tree_->Add(place, false))->bytes = bytes;
}

std::optional<std::string> Volumes::ReadFile(std::u16string_view path) const
{
    const FileTree::Place place = tree_->Find(path);
    return place.node && !place.node->folder ? std::optional(place.node->bytes) : std::nullopt;
}

void Volumes::Remove(std::u16string_view path)
{
    const FileTree::Place place = tree_->Find(path);
    if (place.parent)
        place.parent->children.erase(place.name);
}

void Volumes::SetRights(std::u16string_view path, FileRights rights)
{
    const FileTree::Place place = tree_->Find(path);
    assert(place.node && "no such file or folder");
    place.node->rights = rights;
}

bool Volumes::IsFile(std::u16string_view path) const
{
    const FileTree::Place place = tree_->Find(path);
    return place.node && !place.node->folder;
}

bool Volumes::IsFolder(std::u16string_view path) const
{
    const FileTree::Place place = tree_->Find(path);
    return place.node && place.node->folder;
}

bool Volumes::Allows(std::u16string_view path, DWORD access) const
{
    const FileTree::Place place = tree_->Find(path);
    return place.node && tree_->Allows(place, access);
}

std::u16string Volumes::DevicePath(std::u16string_view path) const
{
    const FileTree::Place place = tree_->Find(path);
    if (!place.volume)
        return {};
    std::u16string_view rest = path.substr(place.volume->root.size() - 1);
    return place.volume->device + std::u16string(rest);
}

}  // namespace platform
