#include "host/Event.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace tests {

TEST(Event, Handler_ChangesArgumentsAndMayRaiseAgain)
{
    host::Event<6, std::int16_t&, int> event;
    std::int16_t code = 3;
    event.Raise(code, 1);
    EXPECT_EQ(code, 3);

    std::string order;
    event.Connect([&](std::int16_t& number, int depth) {
        order += "(";
        if (depth > 0)
            event.Raise(number, depth - 1);
        ++number;
        order += ")";
    });
    event.Raise(code, 2);
    EXPECT_EQ(code, 6);
    EXPECT_EQ(order, "((()))");
    EXPECT_EQ(event.index, 6);
}

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
