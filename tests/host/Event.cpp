#include "host/Event.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace tests {

TEST(Event, Handler_OutlivesTheEventThatItDestroys)
{
    auto event = std::make_unique<host::Event<1>>();
    std::string seen;
    event->Connect([&, text = std::string("captured text, too long to be kept inside of the function object")] {
        event.reset();
        seen = text;
    });
    event->Raise();
    EXPECT_EQ(seen.substr(0, 8), "captured");
}

TEST(Event, Handler_ThatReplacesItself_RunsToItsEnd)
{
    host::Event<1> event;
    std::string order;
    event.Connect([&, name = std::string("first")] {
        event.Connect([&] { order += " second"; });
        order += name;
    });
    event.Raise();
    event.Raise();
    EXPECT_EQ(order, "first second");
}

}  // namespace tests
