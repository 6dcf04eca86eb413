// Switching the PC on: what must be there before anybody asks for it.
#include "platform/sim/SimPc.h"

#include "platform/src/classes/SystemClasses.h"
#include "platform/src/input/OtherThreads.h"

namespace platform {

SimPc::SimPc(std::u16string program) : program_(std::move(program))
{
    SwitchOn();
    RegisterSystemClasses();
    (void)Get<OtherThreads>();
}

}  // namespace platform
