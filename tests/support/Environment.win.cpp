#include "tests/support/Environment.h"

namespace tests {

void PrepareEnvironment() {}

}  // namespace tests
