// The utility: one window and the message loop.
#include "app/Form1.h"
#include "controls/RegisterControls.h"
#include "host/MessageLoop.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int)
{
    host::ControlFactory factory;
    controls::RegisterControls(factory);
    app::Form1 form;
    if (!form.Load(app::Form1Text(), factory))
        return 1;
    form.Show();
    return host::MessageLoop::Run();
}
