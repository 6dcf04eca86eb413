// The bench on the stand-in PC.
#include "platform/sim/SimPc.h"
#include "tools/bench/Bench.h"

int main()
{
    const platform::SimPc pc;
    return bench::Run();
}
