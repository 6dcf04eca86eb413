#include "platform/src/file/FileTree.h"

#include "platform/sim/Users.h"

#include <cassert>

namespace platform {

namespace {

std::u16string Key(std::u16string_view root)
{
    if (root.ends_with(u'\\'))
        root.remove_suffix(1);
    return UpperCase(root);
}

}  // namespace

FileTree& Files()
{
    return SimPc::Current().Get<Volumes>().Tree();
}

std::optional<PathParts> FileTree::PartsOf(std::u16string_view path)
{
    return TakeApart(path, u"C:\\Tools");
}

void FileTree::AddVolume(std::u16string_view root, bool persistentAcls)
{
    auto volume = std::make_unique<Volume>();
    volume->root = root;
    const std::u16string number(1, static_cast<char16_t>(u'1' + volumes_.size()));
    volume->device = u"\\Device\\HarddiskVolume" + number;
    volume->persistentAcls = persistentAcls;
    volume->top = std::make_shared<FileNode>();
    volume->top->folder = true;
    volumes_[Key(root)] = std::move(volume);
}

Volume& FileTree::Require(std::u16string_view root)
{
    const auto found = volumes_.find(Key(root));
    assert(found != volumes_.end() && "no such volume");
    return *found->second;
}

FileTree::Place FileTree::Find(std::u16string_view path) const
{
    Place place;
    const auto parts = PartsOf(path);
    if (!parts) {
        place.error = path.empty() ? ERROR_PATH_NOT_FOUND : ERROR_INVALID_NAME;
        return place;
    }
    const auto volume = volumes_.find(Key(parts->root));
    if (volume == volumes_.end()) {
        place.error = ERROR_PATH_NOT_FOUND;
        return place;
    }
    place.volume = volume->second.get();
    place.node = place.volume->top;
    for (const std::u16string& name : parts->names) {
        if (!place.node || !place.node->folder) {
            place.parent = nullptr;
            place.node = nullptr;
            place.error = ERROR_PATH_NOT_FOUND;
            return place;
        }
        place.parent = place.node;
        place.name = name;
        const auto child = place.parent->children.find(name);
        place.node = child == place.parent->children.end() ? nullptr : child->second;
    }
    if (place.node && !place.node->folder && parts->trailingBackslash) {
        place.node = nullptr;
        place.error = ERROR_INVALID_NAME;
    }
    if (!place.node && place.error == NO_ERROR)
        place.error = ERROR_FILE_NOT_FOUND;
    return place;
}

std::shared_ptr<FileNode> FileTree::Add(const Place& place, bool folder)
{
    auto node = std::make_shared<FileNode>();
    node->name = place.name;
    node->folder = folder;
    node->parent = place.parent.get();
    place.parent->children[place.name] = node;
    return node;
}

FileRights FileTree::RightsOf(const Place& place)
{
    if (!place.volume || !place.volume->persistentAcls)
        return {};
    const FileNode* node = place.node ? place.node.get() : place.parent.get();
    while (node && !node->rights)
        node = node->parent;
    return node ? *node->rights : FileRights{};
}

bool FileTree::Allows(const Place& place, DWORD access) const
{
    const FileRights rights = RightsOf(place);
    const DWORD granted = rights.users | (pc_.Get<Users>().Administrator() ? rights.administrators : 0);
    return (granted & access) == access;
}

}  // namespace platform
