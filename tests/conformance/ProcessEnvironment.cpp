// Facts about what a process has of its own: environment variables, heaps, mutexes, its module.
#include "base/Handles.h"
#include "base/String.h"
#include "tests/support/KnownGap.h"

#include <gtest/gtest.h>

namespace {

using base::KernelHandle;
using base::String;

TEST(Environment, Variable_IsReadWithoutItsZeroAndAskedForWithIt)
{
    constexpr LPCWSTR kName = TEXT("DSCVELMORA");
    WCHAR buffer[16] = {};
    EXPECT_EQ(GetEnvironmentVariableW(kName, buffer, 16), 0u);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_ENVVAR_NOT_FOUND));
    ASSERT_TRUE(SetEnvironmentVariableW(kName, TEXT("00ABCDEF")));
    EXPECT_EQ(GetEnvironmentVariableW(TEXT("dscVelmora"), buffer, 9), 8u);
    EXPECT_EQ(String(buffer), String(TEXT("00ABCDEF")));
    EXPECT_EQ(GetEnvironmentVariableW(kName, buffer, 8), 9u) << "too small: the size needed, zero included";
    ASSERT_TRUE(SetEnvironmentVariableW(kName, nullptr));
    EXPECT_EQ(GetEnvironmentVariableW(kName, buffer, 16), 0u);
}

int BusyBlocks(HANDLE heap)
{
    int busy = 0;
    PROCESS_HEAP_ENTRY entry{};
    EXPECT_TRUE(HeapLock(heap));
    while (HeapWalk(heap, &entry))
        busy += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NO_MORE_ITEMS));
    EXPECT_TRUE(HeapUnlock(heap));
    return busy;
}

TEST(Heaps, Walk_CountsTheBlocksInUse)
{
    const HANDLE heap = HeapCreate(HEAP_CREATE_ENABLE_EXECUTE | HEAP_NO_SERIALIZE, 0, 0);
    ASSERT_NE(heap, nullptr);
    const int before = BusyBlocks(heap);
    auto* const first = static_cast<BYTE*>(HeapAlloc(heap, HEAP_ZERO_MEMORY | HEAP_NO_SERIALIZE, 33));
    void* const second = HeapAlloc(heap, HEAP_NO_SERIALIZE, 29);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first[0] | first[32], 0);
    EXPECT_EQ(BusyBlocks(heap), before + 2);
    EXPECT_TRUE(HeapFree(heap, HEAP_NO_SERIALIZE, second));
    EXPECT_EQ(BusyBlocks(heap), before + 1);
    EXPECT_TRUE(HeapDestroy(heap));
}

TEST(Mutexes, SecondOfTheSameName_OpensTheFirstAndSaysSo)
{
    constexpr LPCWSTR kName = TEXT("Velmora Conformance Mutex");
    KernelHandle first(CreateMutexW(nullptr, FALSE, kName));
    ASSERT_TRUE(first);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(NO_ERROR));
    KernelHandle second(CreateMutexW(nullptr, FALSE, kName));
    EXPECT_TRUE(second);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_ALREADY_EXISTS));
    first.Reset();
    second.Reset();
    const KernelHandle third(CreateMutexW(nullptr, FALSE, kName));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(NO_ERROR)) << "it goes with its last handle";
}

TEST(OwnProcess, ModuleFileName_IsCutToTheBuffer)
{
    WCHAR whole[MAX_PATH] = {};
    const DWORD length = GetModuleFileNameW(nullptr, whole, MAX_PATH);
    EXPECT_EQ(length, String(whole).size());
    WCHAR cut[7] = {TEXT('#'), TEXT('#'), TEXT('#'), TEXT('#'), TEXT('#'), TEXT('#'), 0};
    EXPECT_EQ(GetModuleFileNameW(nullptr, cut, 6), 6u);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER));
    KNOWN_GAP("leaves the cut text without its zero")
    {
        EXPECT_EQ(String(cut), String(whole).substr(0, 5));
    }
}

}  // namespace
