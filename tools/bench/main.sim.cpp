// The bench on the stand-in PC.
#include "platform/sim/SimPc.h"
#include "tools/bench/Bench.h"

int main(int count, char** words)
{
    const platform::SimPc pc;
    return bench::Run(count > 1 ? words[1] : "");
}
