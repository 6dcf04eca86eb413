// SimPc: the stand-in PC, one object that lives in memory. Making one switches it on; a test makes a fresh one.
//
// Behind the Windows functions of platform/include stand areas: windows, services, registry, files and so on. Each is a class
// of its own (platform/sim/Desktop.h, platform/sim/Services.h, ...) that comes to life when it is first asked for.
#pragma once

#include "platform/sim/CallTrace.h"
#include "platform/sim/Faults.h"
#include "platform/sim/HandleTable.h"
#include "platform/sim/SimClock.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace platform {

class SimPc;

/// Who runs now: the program under test, or another process while its code or its window procedures run.
struct Actor {
    DWORD process = 4200;
    DWORD thread = 4204;
    bool operator==(const Actor&) const = default;
};

/// One area of the PC: its state and what tests may do to it.
class Area {
public:
    explicit Area(SimPc& pc) : pc_(pc) {}
    virtual ~Area() = default;
    Area(const Area&) = delete;
    Area& operator=(const Area&) = delete;

protected:
    SimPc& pc_;
};

class SimPc {
public:
    /// `program` is the path of the program under test.
    explicit SimPc(std::u16string program = u"C:\\Tools\\Program.exe");
    ~SimPc();
    SimPc(const SimPc&) = delete;
    SimPc& operator=(const SimPc&) = delete;

    /// The PC that is switched on. The Windows functions may be called only while there is one.
    [[nodiscard]] static SimPc& Current();
    [[nodiscard]] static bool IsOn();

    [[nodiscard]] SimClock& Clock() { return clock_; }
    [[nodiscard]] Faults& GetFaults() { return faults_; }
    [[nodiscard]] CallTrace& Trace() { return trace_; }
    [[nodiscard]] HandleTable& Handles() { return handles_; }

    /// The area of class `T` (made at the first request; `T` is constructed from a `SimPc&`).
    template <class T>
    [[nodiscard]] T& Get()
    {
        const std::size_t index = AreaIndex<T>();
        if (index >= areas_.size())
            areas_.resize(index + 1);
        if (!areas_[index]) {
            auto area = std::make_unique<T>(*this);
            if (index >= areas_.size())
                areas_.resize(index + 1);
            areas_[index] = std::move(area);
            born_.push_back(index);
        }
        return static_cast<T&>(*areas_[index]);
    }

    [[nodiscard]] Actor CurrentActor() const { return actor_; }
    /// The process that is under test.
    [[nodiscard]] static Actor Own() { return Actor{}; }
    /// Runs `action` as another process; windows that it creates belong to that process.
    template <class Action>
    void ActAs(Actor actor, Action action)
    {
        struct Restore {
            SimPc& pc;
            Actor before;
            ~Restore() { pc.actor_ = before; }
        } const restore{*this, std::exchange(actor_, actor)};
        action();
    }

    [[nodiscard]] const std::u16string& Program() const { return program_; }

    /// The calling thread's last error.
    [[nodiscard]] DWORD LastError() const { return lastError_; }
    void LastError(DWORD error) { lastError_ = error; }
    /// Sets the last error and returns `result`: `return pc.Fail(ERROR_INVALID_HANDLE, FALSE);`
    template <class T>
    T Fail(DWORD error, T result)
    {
        lastError_ = error;
        return result;
    }

    /// Turns the clock by `milliseconds`, step by step: everything that falls due happens at its own time, and after each the
    /// program handles the messages that wait for it (see `OnPump`) and other processes handle theirs.
    void Advance(std::uint64_t milliseconds);
    /// Lets the program and the other processes handle what waits for them, without turning the clock.
    void Settle();
    /// The program's thread stands still until `done` or for `milliseconds`, and handles no messages meanwhile; everybody else goes on.
    /// False when the time ran out. Without `done` it sleeps.
    bool Block(std::uint64_t milliseconds, const std::function<bool()>& done = nullptr);
    /// How the program under test handles the messages that wait for it: the whole of its own message loop, once.
    void OnPump(std::function<void()> pump) { pump_ = std::move(pump); }
    /// How other processes handle theirs; set by the areas that run them. Returns whether something happened.
    void AddBackground(std::function<bool()> work) { background_.push_back(std::move(work)); }

    /// Something was asked that the PC does not know. Sets ERROR_CALL_NOT_IMPLEMENTED; the running test fails at its end.
    void Unsupported(std::string what);
    [[nodiscard]] const std::vector<std::string>& Complaints() const { return complaints_; }
    void ForgetComplaints() { complaints_.clear(); }

private:
    /// `Current` is this PC from now on.
    void SwitchOn();
    static std::size_t NextAreaIndex();
    template <class T>
    static std::size_t AreaIndex()
    {
        static const std::size_t index = NextAreaIndex();
        return index;
    }

    std::u16string program_;
    SimClock clock_;
    Faults faults_;
    CallTrace trace_;
    std::vector<std::unique_ptr<Area>> areas_;
    std::vector<std::size_t> born_;
    HandleTable handles_;
    DWORD lastError_ = 0;
    Actor actor_;
    std::function<void()> pump_;
    std::vector<std::function<bool()>> background_;
    std::vector<std::string> complaints_;
};

}  // namespace platform
