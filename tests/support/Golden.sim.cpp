#include "tests/support/Golden.h"

#include "platform/sim/Graphics.h"
#include "tests/support/Png.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <sstream>

namespace tests {

namespace {

const std::filesystem::path root = VELMORA_ROOT;

std::filesystem::path FileOf(const std::string& set)
{
    return root / "tests/golden" / (set + ".txt");
}

std::filesystem::path Save(const std::string& set, const std::string& name, const platform::Image& picture)
{
    const std::filesystem::path path = root / "build/golden" / set / (name + ".png");
    std::filesystem::create_directories(path.parent_path());
    tests::WritePng(picture, path.string());
    return path;
}

}  // namespace

Golden::Golden(std::string set) : set_(std::move(set)), isWriting_(std::getenv("VELMORA_WRITE_GOLDEN") != nullptr)
{
    std::ifstream file(FileOf(set_));
    for (std::string hash, name; file >> hash >> std::ws && std::getline(file, name);)
        kept_[name] = hash;
}

Golden::~Golden()
{
    if (isWriting_) {
        std::ofstream file(FileOf(set_));
        for (const auto& [name, hash] : shown_)
            file << hash << ' ' << name << '\n';
        ADD_FAILURE() << "tests/golden/" << set_ << ".txt is written: look at build/golden/" << set_
                      << " and run without VELMORA_WRITE_GOLDEN";
        return;
    }
    for (const auto& [name, hash] : kept_)
        if (!shown_.contains(name))
            ADD_FAILURE() << "tests/golden/" << set_ << ".txt: nobody shows \"" << name << '"';
}

void Golden::Expect(const std::string& name, HDC dc)
{
    const auto picture = platform::SimPc::Current().Get<platform::Graphics>().PixelsOf(dc);
    ASSERT_TRUE(picture) << name;
    std::ostringstream hash;
    hash << std::hex << std::setw(16) << std::setfill('0') << picture->Hash();
    EXPECT_TRUE(shown_.emplace(name, hash.str()).second) << "two pictures by the name of " << name;
    if (isWriting_ || kept_[name] != hash.str()) {
        const std::filesystem::path saved = Save(set_, name, *picture);
        EXPECT_TRUE(isWriting_) << name << " looks otherwise: " << saved;
    }
}

}  // namespace tests
