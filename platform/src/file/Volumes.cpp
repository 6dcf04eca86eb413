#include "platform/sim/Volumes.h"

#include "platform/sim/Users.h"
#include "platform/src/file/FileNode.h"
#include "platform/src/file/PathParts.h"

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

Volumes::Volumes(SimPc& pc) : Area(pc)
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
    auto volume = std::make_unique<Volume>();
    volume->root = root;
    const std::u16string number(1, static_cast<char16_t>(u'1' + volumes_.size()));
    volume->device = u"\\Device\\HarddiskVolume" + number;
    volume->persistentAcls = persistentAcls;
    volume->top = std::make_shared<FileNode>();
    volume->top->folder = true;
    volumes_[Key(root)] = std::move(volume);
}

void Volumes::RemoveVolume(std::u16string_view root)
{
    volumes_.erase(Key(root));
}

Volume& Volumes::Require(std::u16string_view root)
{
    const auto found = volumes_.find(Key(root));
    assert(found != volumes_.end() && "no such volume");
    return *found->second;
}

void Volumes::PersistentAcls(std::u16string_view root, bool keeps)
{
    Require(root).persistentAcls = keeps;
}

void Volumes::Device(std::u16string_view root, std::u16string_view name)
{
    Require(root).device = name;
}

Volumes::Place Volumes::Find(std::u16string_view path) const
{
    Place place;
    const auto parts = TakeApart(path, currentFolder_);
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

std::shared_ptr<FileNode> Volumes::Add(const Place& place, bool folder)
{
    auto node = std::make_shared<FileNode>();
    node->name = place.name;
    node->folder = folder;
    node->parent = place.parent.get();
    place.parent->children[place.name] = node;
    return node;
}

void Volumes::MakeFolder(std::u16string_view path)
{
    const auto parts = TakeApart(path, currentFolder_);
    assert(parts && "not a path");
    PathParts sofar{parts->root, {}, false};
    for (const std::u16string& name : parts->names) {
        sofar.names.push_back(name);
        const Place place = Find(sofar.Whole());
        assert(place.volume && "no such volume");
        if (!place.node)
            Add(place, true);
    }
}

void Volumes::WriteFile(std::u16string_view path, std::string_view bytes)
{
    MakeFolder(path.substr(0, path.rfind(u'\\') + 1));
    const Place place = Find(path);
    (place.node ? place.node : Add(place, false))->bytes = bytes;
}

std::optional<std::string> Volumes::ReadFile(std::u16string_view path) const
{
    const Place place = Find(path);
    return place.node && !place.node->folder ? std::optional(place.node->bytes) : std::nullopt;
}

void Volumes::Remove(std::u16string_view path)
{
    const Place place = Find(path);
    if (place.parent)
        place.parent->children.erase(place.name);
}

void Volumes::SetRights(std::u16string_view path, FileRights rights)
{
    const Place place = Find(path);
    assert(place.node && "no such file or folder");
    place.node->rights = rights;
}

void Volumes::SetAttributes(std::u16string_view path, DWORD attributes)
{
    const Place place = Find(path);
    assert(place.node && "no such file or folder");
    place.node->attributes = attributes;
}

bool Volumes::IsFile(std::u16string_view path) const
{
    const Place place = Find(path);
    return place.node && !place.node->folder;
}

bool Volumes::IsFolder(std::u16string_view path) const
{
    const Place place = Find(path);
    return place.node && place.node->folder;
}

FileRights Volumes::RightsOf(const Place& place) const
{
    if (!place.volume || !place.volume->persistentAcls)
        return {};
    const FileNode* node = place.node ? place.node.get() : place.parent.get();
    while (node && !node->rights)
        node = node->parent;
    return node ? *node->rights : FileRights{};
}

bool Volumes::Allows(const Place& place, DWORD access) const
{
    const FileRights rights = RightsOf(place);
    const DWORD granted = rights.users | (pc_.Get<Users>().Administrator() ? rights.administrators : 0);
    return (granted & access) == access;
}

bool Volumes::Allows(std::u16string_view path, DWORD access) const
{
    const Place place = Find(path);
    return place.node && Allows(place, access);
}

std::u16string Volumes::DevicePath(std::u16string_view path) const
{
    const Place place = Find(path);
    if (!place.volume)
        return {};
    std::u16string_view rest = path.substr(place.volume->root.size() - 1);
    return place.volume->device + std::u16string(rest);
}

}  // namespace platform
