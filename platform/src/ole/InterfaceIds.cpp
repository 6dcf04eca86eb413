// The identifiers of COM's interfaces.
#include <oleacc.h>

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
const IID IID_IDispatch = Standard(0x00020400);
const IID IID_IEnumVARIANT = Standard(0x00020404);
const IID IID_IAccessible = {0x618736E0, 0x3C3D, 0x11CF, {0x81, 0x0C, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71}};
