#include "app/Utility.h"

#include "app/Form1.h"
#include "app/helpers/MsgBox.h"
#include "controls/RegisterControls.h"
#include "host/MessageLoop.h"

#include <exception>

namespace app {

namespace {

int Refuse(const char* reason)
{
    const std::string_view text(reason);
    helpers::MsgBoxEx(TEXT("The window could not be opened:\r\n") + base::String(text.begin(), text.end()), MB_ICONHAND | MB_OK,
                      TEXT("Velmora Setup Utility"));
    return 1;
}

}  // namespace

int RunUtility()
try {
    host::ControlFactory factory;
    controls::RegisterControls(factory);
    Form1 form;
    if (!form.Load(Form1Text(), factory))
        return Refuse(form.LoadError().c_str());
    form.Show();
    return host::MessageLoop::Run();
} catch (const std::exception& error) {
    return Refuse(error.what());
}

}  // namespace app
