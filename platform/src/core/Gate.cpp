#include "platform/src/core/Gate.h"

#include <cstdio>

namespace platform {

namespace {

std::string Utf8(char32_t unit)
{
    if (unit < 0x80)
        return {static_cast<char>(unit)};
    char text[16];
    std::snprintf(text, sizeof text, "\\u%04X", static_cast<unsigned>(unit));
    return text;
}

struct LastCall {
    const char* function = "the test itself";
    std::uint64_t number = 0;
};
LastCall lastCall;

/// Traces and faults are about the program under test. What other programs do in a scene is not its doing.
bool IsOthers(const SimPc& pc)
{
    return pc.CurrentActor().process != SimPc::Own().process;
}

}  // namespace

std::string Describe(const WCHAR* text)
{
    const auto value = reinterpret_cast<std::uintptr_t>(text);
    if (value <= 0xFFFF)  // NULL, an atom or a resource number.
        return Describe(static_cast<std::uint64_t>(value));
    std::string described = "\"";
    for (; *text; ++text)
        described += Utf8(*text);
    return described + "\"";
}

std::string Describe(const char* text)
{
    return text ? "\"" + std::string(text) + "\"" : "0";
}

std::string Describe(std::uint64_t number)
{
    char text[24];
    std::snprintf(text, sizeof text, number < 10 ? "%llu" : "0x%llX", static_cast<unsigned long long>(number));
    return text;
}

std::string Gate::CurrentCall()
{
    return std::string(lastCall.function) + " (call " + std::to_string(lastCall.number) + ")";
}

void Gate::Count(SimPc& pc, const char* function)
{
    if (pc.Trace().OnCall)
        pc.Trace().OnCall(function);
    lastCall.function = function;
    ++lastCall.number;
}

void Gate::Record(SimPc& pc, const char* function, std::string arguments)
{
    if (!IsOthers(pc))
        pc.Trace().Add(CallRecord{function, std::move(arguments)});
}

bool Gate::Strike(const char* function, DWORD error)
{
    SimPc& pc = SimPc::Current();
    if (IsOthers(pc) || !pc.GetFaults().Strikes(function, error))
        return false;
    pc.LastError(error);
    return true;
}

}  // namespace platform
