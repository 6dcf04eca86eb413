#include "platform/src/ole/ForeignDrag.h"

#include "platform/sim/Shell.h"
#include "platform/src/memory/Blocks.h"

#include <algorithm>

namespace platform {

ForeignData::ForeignData(const Dragging::Foreign& data)
{
    if (!data.text.empty())
        Add(CF_UNICODETEXT, data.text.c_str(), (data.text.size() + 1) * sizeof(WCHAR));
    if (!data.narrowText.empty())
        Add(CF_TEXT, data.narrowText.c_str(), data.narrowText.size() + 1);
    if (!data.files.empty()) {
        const HDROP drop = SimPc::Current().Get<Shell>().MakeDrop(data.files);
        const std::span<std::byte> bytes = GlobalBytes(drop);
        Add(CF_HDROP, bytes.data(), bytes.size());
        FreeGlobal(drop);
    }
}

void ForeignData::Add(CLIPFORMAT format, const void* bytes, std::size_t size)
{
    const auto* const start = static_cast<const std::byte*>(bytes);
    blocks_[format].assign(start, start + size);
}

HRESULT ForeignData::QueryGetData(FORMATETC* format)
{
    return blocks_.count(format->cfFormat) != 0 && (format->tymed & TYMED_HGLOBAL) != 0 ? S_OK : DV_E_FORMATETC;
}

HRESULT ForeignData::GetData(FORMATETC* format, STGMEDIUM* medium)
{
    *medium = {};
    if (const HRESULT result = QueryGetData(format); result != S_OK)
        return result;
    const std::vector<std::byte>& bytes = blocks_[format->cfFormat];
    auto block = std::make_shared<MoveableBlock>();
    block->size = bytes.size();
    block->bytes = std::make_unique<std::byte[]>(block->size);
    std::copy(bytes.begin(), bytes.end(), block->bytes.get());
    medium->tymed = TYMED_HGLOBAL;
    medium->hGlobal = AsHandle<HGLOBAL>(SimPc::Current().Handles().Open(block));
    return S_OK;
}

}  // namespace platform
