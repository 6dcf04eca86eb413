// The gallery on the stand-in PC: pictures only.
#include "platform/sim/SimPc.h"
#include "tools/gallery/Gallery.h"

#include <cstdio>
#include <vector>

int main(int count, char** words)
{
    const platform::SimPc pc;
    if (const std::optional<int> result = gallery::Draw(std::vector<std::string_view>(words + 1, words + count)))
        return *result;
    std::fputs("gallery: only --draw and --sheet work on the stand-in PC\n", stderr);
    return 2;
}
