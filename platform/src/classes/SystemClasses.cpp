// SystemClasses: the window classes that the system brings along.
#include "platform/src/classes/SystemClasses.h"

#include "platform/src/input/Cursors.h"
#include "platform/src/window/WindowClasses.h"

#include <commctrl.h>

namespace platform {

namespace {

/// `cursor` is an IDC_ name.
void RegisterSystemClass(LPCWSTR name, WNDPROC procedure, UINT style, LPCWSTR cursor = IDC_ARROW)
{
    WindowClass windowClass;
    windowClass.name = name;
    windowClass.procedure = procedure;
    windowClass.style = style;
    windowClass.cursor = StockCursor(cursor);
    SimPc::Current().Get<WindowClasses>().Register(std::move(windowClass));
}

}  // namespace

void RegisterSystemClasses()
{
    RegisterSystemClass(TEXT("Button"), ButtonProcedure, CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS | CS_PARENTDC);
    RegisterSystemClass(TEXT("Edit"), EditProcedure, CS_DBLCLKS | CS_PARENTDC, IDC_IBEAM);
    RegisterSystemClass(TEXT("ComboBox"), ComboBoxProcedure, CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS | CS_PARENTDC);
    RegisterSystemClass(TEXT("ComboLBox"), ComboListProcedure, CS_DBLCLKS | CS_SAVEBITS);
    RegisterSystemClass(TEXT("Static"), StaticProcedure, CS_DBLCLKS | CS_PARENTDC);
    RegisterSystemClass(TOOLTIPS_CLASSW, TooltipProcedure, CS_DBLCLKS | CS_SAVEBITS | CS_GLOBALCLASS);
}

}  // namespace platform
