// Libraries that somebody has put beside the exe, which is its current folder too: none of them gets into the process.
#include "tests/e2e/EndToEnd.h"

namespace e2e {

namespace {

const WCHAR* const overrides = TEXT("Software\\Wine\\AppDefaults\\Velmora Setup Utility.exe\\DllOverrides");

/// All that the exe does not bind at its start, where Windows looks for known libraries in the system folder only.
const WCHAR* const lateOnes[] = {TEXT("advpack"), TEXT("comctl32"), TEXT("netapi32"), TEXT("oleacc"), TEXT("uxtheme")};

bool Exists(const base::String& path)
{
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

class Libraries : public EndToEnd {
protected:
    void SetUp() override
    {
        EndToEnd::SetUp();
        // Windows takes what it finds first; Wine takes its own libraries unless it is told otherwise.
        HKEY key = nullptr;
        ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, overrides, 0, nullptr, 0, KEY_SET_VALUE, nullptr, &key, nullptr), ERROR_SUCCESS);
        const WCHAR order[] = TEXT("native,builtin");
        for (const WCHAR* name : lateOnes) {
            RegSetValueExW(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(order), sizeof order);
            taken_.push_back(Plant(name));
        }
        RegCloseKey(key);
    }
    void TearDown() override
    {
        RegDeleteTreeW(HKEY_CURRENT_USER, overrides);
        EndToEnd::TearDown();
    }

    /// The path of the file that the library writes once a process has it.
    base::String Plant(const base::String& name)
    {
        return folder_.Expect(Put(TEXT("VELMORA_PLANTED"), name + TEXT(".dll")).substr(folder_.Path().size()) + TEXT(".taken"));
    }

    std::vector<base::String> taken_;
};

TEST_F(Libraries, PlantedBesideTheExe_AreIgnored)
{
    {
        Utility utility(exe_);
        ASSERT_TRUE(utility.Opened());
        utility.Click("CheckAutoStart");
        EXPECT_TRUE(Eventually([&] { return utility.Checked("CheckAutoStart"); }));
        for (const base::String& file : taken_)
            EXPECT_FALSE(Exists(file)) << std::string(file.begin(), file.end());
    }
    const base::String stranger = Plant(TEXT("stranger"));
    const base::ModuleHandle loaded(LoadLibraryW((folder_.Path() + TEXT("stranger.dll")).c_str()));
    EXPECT_TRUE(Exists(stranger)) << "what was planted does not tell";
}

}  // namespace

}  // namespace e2e
