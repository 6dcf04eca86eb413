// FaultSweep: runs a scenario once for each Windows call in it, and each time another one of them fails.
#pragma once

#include <functional>

namespace tests {

/// One run on a fresh PC. It sets the scene, calls `arm`, and does what is swept: calls before `arm` never fail.
using Scenario = std::function<void(const std::function<void()>& arm)>;

/// Fails one call after another until a run meets no failure: a sample of about forty, spread over the scenario, and every one of them with
/// VELMORA_FULL_SWEEP in the environment (`./dev sweep`). Each run gets a PC of its own in place of the test's, and nothing
/// may be open at its end. The sweep stops at the first run that fails the test.
void FaultSweep(const Scenario& scenario);

}  // namespace tests
