// CallTrace: the Windows calls that the program made on the stand-in PC, in order.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

struct CallRecord {
    std::string name;
    std::string arguments;  // "0x1A4, \"Velmora\", 4"; texts in quotes, handles and flags in hexadecimal

    [[nodiscard]] std::string Text() const { return name + "(" + arguments + ")"; }
};

class CallTrace {
public:
    void Start()
    {
        recording_ = true;
        records_.clear();
    }
    void Stop() { recording_ = false; }
    [[nodiscard]] bool Recording() const { return recording_; }
    void Add(CallRecord record) { records_.push_back(std::move(record)); }

    /// Called at the head of every call, recorded or not: what happens in the middle of something else. Its own calls come here too.
    std::function<void(std::string_view function)> OnCall;

    [[nodiscard]] const std::vector<CallRecord>& Records() const { return records_; }
    /// Calls of one function, in order.
    [[nodiscard]] std::vector<CallRecord> Of(std::string_view name) const;
    [[nodiscard]] std::size_t Count(std::string_view name) const { return Of(name).size(); }

private:
    bool recording_ = false;
    std::vector<CallRecord> records_;
};

}  // namespace platform
