#include "tests/support/Environment.h"

#include "platform/sim/Desktop.h"
#include "platform/sim/SimPc.h"
#include "tests/support/AgentProgram.h"
#include "tests/support/FaultSweep.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <memory>
#include <string>

namespace tests {

namespace {

std::unique_ptr<platform::SimPc> pc;

/// Switches the PC off. Every handle that is still open and every question that it could not answer fails the running test.
void SwitchOff()
{
    for (const std::string& leak : pc->Handles().Leaks())
        ADD_FAILURE() << "leaked handle " << leak;
    for (const std::string& complaint : pc->Complaints())
        ADD_FAILURE() << "unknown to the stand-in PC: " << complaint;
    pc.reset();
}

void SwitchOn()
{
    pc = std::make_unique<platform::SimPc>(utilityPath);
}

/// Gives each test a PC of its own.
class FreshPc : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { SwitchOn(); }
    void OnTestEnd(const testing::TestInfo&) override { SwitchOff(); }
};

struct Outcome {
    std::uint64_t calls;
    std::string struck;  // the call that failed; empty when there was none
};

/// Runs the scenario on a PC of its own, whose `n`-th call fails.
Outcome Run(const Scenario& scenario, std::uint64_t n)
{
    SwitchOff();
    SwitchOn();
    scenario([n] { pc->GetFaults().FailNth(n); });
    Outcome outcome = {pc->GetFaults().Counted(), pc->GetFaults().Struck()};
    pc->GetFaults().Clear();
    SwitchOff();
    SwitchOn();
    return outcome;
}

}  // namespace

void PrepareEnvironment()
{
    testing::UnitTest::GetInstance()->listeners().Append(new FreshPc);
}

bool AtDotsPerInch(int dots)
{
    pc->Get<platform::Desktop>().Dpi(dots);
    return true;
}

void FaultSweep(const Scenario& scenario)
{
    constexpr std::uint64_t quickRuns = 40;
    const std::uint64_t calls = Run(scenario, std::numeric_limits<std::uint64_t>::max()).calls;
    const std::uint64_t step = std::getenv("VELMORA_FULL_SWEEP") ? 1 : std::max<std::uint64_t>(calls / quickRuns, 1);
    std::uint64_t struck = 0;
    for (std::uint64_t n = 1;; n += step, ++struck) {
        const Outcome outcome = Run(scenario, n);
        if (outcome.struck.empty()) {
            std::printf("             %llu of %llu calls struck\n", static_cast<unsigned long long>(struck),
                        static_cast<unsigned long long>(calls));
            EXPECT_GT(struck, 0u) << "the scenario makes no call that can fail";
            return;
        }
        if (testing::Test::HasFailure()) {
            ADD_FAILURE() << "while call " << n << " of " << calls << " failed: " << outcome.struck;
            return;
        }
    }
}

}  // namespace tests
