// MessageLog: the messages that windows get, in order, to be held against a table of expected ones.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace tests {

/// Records what its windows are sent. They are made by `Create`, of a class with a plain procedure that ends in DefWindowProcW.
///
/// Left out is what Windows versions send differently or at their own pleasure: painting unless it is asked for, texts that captions ask
/// for, input methods, hit tests, cursors, sizes asked for.
class MessageLog {
public:
    MessageLog();
    ~MessageLog();
    MessageLog(const MessageLog&) = delete;
    MessageLog& operator=(const MessageLog&) = delete;

    /// Creates a window that is recorded from its first message on; `name` is its text too. NULL when Windows refuses.
    HWND Create(const char* name, DWORD style, HWND parent = nullptr, RECT place = {40, 30, 240, 180});

    /// From now on painting and erasing are recorded too.
    void WithPainting() { paints_ = true; }

    void Clear() { messages_.clear(); }

    /// Holds the record against `expected`, one "window MESSAGE" each, in order; forgets the record. Both columns are printed on a
    /// mismatch.
    testing::AssertionResult Is(std::initializer_list<const char*> expected);
    /// The same, looking only at these messages.
    testing::AssertionResult Is(std::initializer_list<UINT> only, std::initializer_list<const char*> expected);

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    std::map<HWND, std::string> windows_;
    std::string creating_;
    /// Each as "window MESSAGE" and, where the order of things depends on it, its wParam.
    std::vector<std::pair<UINT, std::string>> messages_;
    bool paints_ = false;
};

/// Handles everything that waits for the thread, then for so many milliseconds what else comes. On the stand-in PC the clock is turned.
void PumpMessages(DWORD milliseconds = 0);
/// Who handles each message of the pump: TranslateMessage and DispatchMessageW until another is set.
void PumpWith(void (*dispatch)(MSG&));

}  // namespace tests
