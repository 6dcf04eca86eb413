// The bench on Windows.
#include "tools/bench/Bench.h"

int main(int count, char** words)
{
    return bench::Run(count > 1 ? words[1] : "");
}
