// The desk: the utility's own window on the stand-in PC, for machines without Wine. Reads a script from standard input, see Script.h.
#include "app/Form1.h"
#include "controls/RegisterControls.h"
#include "host/MessageLoop.h"
#include "tests/support/AgentProgram.h"
#include "tools/desk/Scene.h"
#include "tools/desk/Script.h"

#include <iostream>

int main()
{
    platform::SimPc pc(tests::utilityPath);
    desk::Prepare(pc);
    pc.OnPump([] { host::MessageLoop::RunPending(); });

    host::ControlFactory factory;
    controls::RegisterControls(factory);
    app::Form1 form;
    if (!form.Load(app::Form1Text(), factory)) {
        std::cerr << "the window could not be made: " << form.LoadError() << '\n';
        return 1;
    }
    form.Show();
    pc.Settle();

    bool allDone = true;
    for (std::string line; std::getline(std::cin, line);) {
        if (line.empty() || line.front() == '#')
            continue;
        if (!form.IsLoaded() && !line.starts_with("show "))
            break;
        const std::string answer = desk::Perform(pc, form, line);
        allDone = allDone && !answer.starts_with('?');
        std::cout << "> " << line << '\n' << answer;
    }
    if (form.IsLoaded())
        form.Unload();
    for (const std::string& complaint : pc.Complaints())
        std::cerr << "unknown to the stand-in PC: " << complaint << '\n';
    return allDone && pc.Complaints().empty() ? 0 : 1;
}
