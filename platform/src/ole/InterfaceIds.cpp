// The identifiers of COM's interfaces.
#include <ole2.h>

namespace {

constexpr IID Standard(ULONG number)
{
    return {number, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
}

}  // namespace

const IID IID_IUnknown = Standard(0x00000000);
const IID IID_IEnumFORMATETC = Standard(0x00000103);
const IID IID_IDataObject = Standard(0x0000010E);
const IID IID_IDropSource = Standard(0x00000121);
const IID IID_IDropTarget = Standard(0x00000122);
