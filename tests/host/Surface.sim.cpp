#include "host/MessageLoop.h"
#include "platform/sim/SimPc.h"
#include "tests/host/Probe.h"

namespace tests {

class Surface : public HostTest {
protected:
    static std::size_t Marks(const std::function<void()>& draw)
    {
        platform::CallTrace& trace = platform::SimPc::Current().Trace();
        trace.Start();
        draw();
        trace.Stop();
        return trace.Count("InvalidateRect");
    }
};

TEST_F(Surface, Drawing_AsksForOnePaintOfItsWindow)
{
    Open("Form F { Probe A { Width = 900 Height = 300 } }");
    host::Surface& surface = ProbeNamed(TEXT("A")).GetSurface();
    const auto draw = [&] { surface.Clear(), surface.Clear(); };
    EXPECT_EQ(Marks(draw), 1U);
    host::MessageLoop::RunPending();
    EXPECT_EQ(Marks(draw), 1U) << "the first one was painted";
    host::Surface loose;
    loose.Resize({9, 9});
    EXPECT_EQ(Marks([&] { loose.Clear(); }), 0U) << "no window would mean the whole screen";
}

}  // namespace tests
