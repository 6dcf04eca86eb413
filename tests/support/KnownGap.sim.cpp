// KnownGap: the stand-in PC has no gaps to mark, it does as Windows does.
#include "tests/support/KnownGap.h"

namespace tests {

struct KnownGap::Hold {};

KnownGap::KnownGap(const char*) {}
KnownGap::~KnownGap() = default;

}  // namespace tests
