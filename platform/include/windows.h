// The umbrella header of the Windows SDK, as far as this program goes.
#pragma once

#include "windef.h"

#include "winerror.h"

#include "winbase.h"
#include "wingdi.h"
#include "winnls.h"
#include "winnt.h"
#include "winreg.h"
#include "winuser.h"
