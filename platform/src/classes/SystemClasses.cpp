// SystemClasses: the window classes that the system brings along.
#include "platform/src/classes/SystemClasses.h"

#include "platform/sim/Desktop.h"

#include <commctrl.h>

namespace platform {

void RegisterSystemClasses(Desktop& desktop)
{
    desktop.RegisterSystemClass(TEXT("Button"), ButtonProcedure, CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS | CS_PARENTDC, 0);
    desktop.RegisterSystemClass(TEXT("Edit"), EditProcedure, CS_DBLCLKS | CS_PARENTDC, 0, IDC_IBEAM);
    desktop.RegisterSystemClass(TEXT("ComboBox"), ComboBoxProcedure, CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS | CS_PARENTDC, 0);
    desktop.RegisterSystemClass(TEXT("ComboLBox"), ComboListProcedure, CS_DBLCLKS | CS_SAVEBITS, 0);
    desktop.RegisterSystemClass(TEXT("Static"), StaticProcedure, CS_DBLCLKS | CS_PARENTDC, 0);
    desktop.RegisterSystemClass(TOOLTIPS_CLASSW, TooltipProcedure, CS_DBLCLKS | CS_SAVEBITS | CS_GLOBALCLASS, 0);
}

}  // namespace platform
