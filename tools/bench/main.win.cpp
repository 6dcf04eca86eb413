// The bench on Windows.
#include "tools/bench/Bench.h"

int main()
{
    return bench::Run();
}
