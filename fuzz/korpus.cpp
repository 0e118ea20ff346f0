// Replays the corpus in the ordinary test run: every file of korpus/<target> must keep the target's property.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "ziel.h"

namespace jorv::fuzz {

void PrintTo(const Ziel& ziel, std::ostream* strom)
{
    *strom << ziel.name;
}

namespace {

class Korpus : public testing::TestWithParam<Ziel> {};

std::string lesen(const std::filesystem::path& datei)
{
    std::ifstream strom(datei, std::ios::binary);
    return {std::istreambuf_iterator<char>(strom), {}};
}

}  // namespace

TEST_P(Korpus, HaeltDieEigenschaft)
{
    const std::filesystem::path ordner = std::filesystem::path(JORV_QUELLEN "/fuzz/korpus") / GetParam().name;
    int dateien = 0;
    for (const auto& eintrag : std::filesystem::directory_iterator(ordner)) {
        std::cout << eintrag.path().filename() << std::endl;  // a broken property ends the program
        const std::string bytes = lesen(eintrag.path());
        // What a file of the corpus grew from must hold too: its beginnings, cut in the middle of everything.
        for (std::size_t n = 0; n <= bytes.size(); n += 1 + bytes.size() / 40)
            GetParam().pruefen(std::string_view(bytes).substr(0, n));
        GetParam().pruefen(bytes);
        ++dateien;
    }
    EXPECT_GT(dateien, 1);
}

INSTANTIATE_TEST_SUITE_P(Ziele, Korpus, testing::ValuesIn(ziele()),
                         [](const auto& ziel) { return std::string(ziel.param.name); });

}  // namespace jorv::fuzz
