#include "platform/sim/Shell.h"

#include "platform/src/core/Gate.h"
#include "platform/src/memory/Blocks.h"
#include "platform/src/text/Buffers.h"
#include "platform/src/text/CodePages.h"
#include "platform/src/window/Window.h"

#include <shlobj.h>

#include <algorithm>
#include <cstring>

using namespace platform;

namespace {

constexpr UINT kAllFiles = 0xFFFFFFFF;

/// The names behind a DROPFILES record, which may be in either width.
std::vector<std::u16string> NamesOf(std::span<const std::byte> block)
{
    DROPFILES head;
    std::memcpy(&head, block.data(), sizeof head);
    const std::span<const std::byte> list = block.subspan(head.pFiles);
    std::u16string text;
    if (head.fWide) {
        text.resize(list.size() / sizeof(WCHAR));
        std::memcpy(text.data(), list.data(), text.size() * sizeof(WCHAR));
    } else {
        text = FromCp1252(std::string_view(reinterpret_cast<const char*>(list.data()), list.size()));
    }
    std::vector<std::u16string> names;
    for (std::size_t place = 0; place < text.size() && text[place] != 0;) {
        const std::size_t end = std::min(text.find(u'\0', place), text.size());
        names.push_back(text.substr(place, end - place));
        place = end + 1;
    }
    return names;
}

std::string OrEmptyBytes(LPCSTR text)
{
    return text ? text : "";
}

}  // namespace

HDROP Shell::MakeDrop(const std::vector<std::u16string>& files)
{
    std::u16string names;
    for (const std::u16string& file : files)
        names.append(file).push_back(u'\0');
    names.push_back(u'\0');
    auto block = std::make_shared<MoveableBlock>();
    block->size = sizeof(DROPFILES) + names.size() * sizeof(WCHAR);
    block->bytes = std::make_unique<std::byte[]>(block->size);
    const DROPFILES head{sizeof(DROPFILES), {0, 0}, FALSE, TRUE};
    std::memcpy(block->bytes.get(), &head, sizeof head);
    std::memcpy(block->bytes.get() + sizeof head, names.data(), names.size() * sizeof(WCHAR));
    return AsHandle<HDROP>(pc_.Handles().Open(block));
}

UINT WINAPI DragQueryFileW(HDROP drop, UINT file, LPWSTR buffer, UINT size)
{
    SIM_CALL(0, ERROR_INVALID_HANDLE, drop, file, size);
    SimPc& pc = SimPc::Current();
    const std::span<const std::byte> block = GlobalBytes(drop);
    if (block.size() < sizeof(DROPFILES))
        return pc.Fail(ERROR_INVALID_HANDLE, 0u);
    const std::vector<std::u16string> names = NamesOf(block);
    if (file == kAllFiles)
        return static_cast<UINT>(names.size());
    if (file >= names.size())
        return 0;
    return buffer ? CopyCut(names[file], buffer, size) : static_cast<UINT>(names[file].size());
}

VOID WINAPI DragFinish(HDROP drop)
{
    SIM_NOTE(drop);
    FreeGlobal(drop);
}

HINSTANCE WINAPI ShellExecuteA(HWND window, LPCSTR verb, LPCSTR file, LPCSTR parameters, LPCSTR folder, INT show)
{
    SIM_CALL(AsHandle<HINSTANCE>(SimPc::Current().LastError() & 31), ERROR_FILE_NOT_FOUND, window, verb, file, parameters, folder, show);
    Shell& shell = SimPc::Current().Get<Shell>();
    shell.Add({window, OrEmptyBytes(verb), OrEmptyBytes(file), OrEmptyBytes(parameters), OrEmptyBytes(folder), show});
    return AsHandle<HINSTANCE>(static_cast<std::uintptr_t>(shell.Answer()));
}
