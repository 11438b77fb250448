// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "fuzz/byte_changes.h"
#include "fuzz/fuzz_input.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

extern "C" {
int fuzz_request(const std::uint8_t* data, std::size_t size);
int fuzz_command_line(const std::uint8_t* data, std::size_t size);
int fuzz_charts(const std::uint8_t* data, std::size_t size);
int fuzz_texts(const std::uint8_t* data, std::size_t size);
}

namespace planner::test {
namespace {

struct Target {
    const char* name; // also its folder of seeds
    int (*run)(const std::uint8_t* data, std::size_t size);
};

void PrintTo(const Target& target, std::ostream* out) {
    *out << target.name;
}

struct Seed {
    std::string name;
    std::string bytes;
};

std::vector<Seed> seedsOf(const Target& target) {
    std::vector<Seed> seeds;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::filesystem::path(PLANNER_FUZZ_SEEDS) / target.name)) {
        std::ifstream file(entry.path(), std::ios::binary);
        seeds.push_back({entry.path().filename().string(), {std::istreambuf_iterator<char>(file), {}}});
    }
    std::sort(seeds.begin(), seeds.end(), [](const Seed& a, const Seed& b) { return a.name < b.name; });
    return seeds;
}

/// What went wrong with the input; empty when nothing did.
std::string failureOf(const Target& target, const std::string& bytes) {
    try {
        const std::vector<std::uint8_t> copy(bytes.begin(), bytes.end()); // reading past its end is seen
        target.run(copy.data(), copy.size());
        return {};
    } catch (const PropertyBroken& broken) {
        return "broken: " + broken.what;
    } catch (const std::exception& error) {
        return "came out: " + std::string(error.what());
    }
}

class FuzzSeeds : public testing::TestWithParam<Target> {
protected:
    const Target& target = GetParam();
    const std::vector<Seed> seeds = seedsOf(target);
};

TEST_P(FuzzSeeds, AllAreTaken) {
    EXPECT_GE(seeds.size(), 5U);
    for (const Seed& seed : seeds) {
        EXPECT_EQ(failureOf(target, seed.bytes), "") << seed.name;
    }
}

TEST_P(FuzzSeeds, NoBytesAtAllAreTaken) {
    EXPECT_EQ(failureOf(target, ""), "");
}

TEST_P(FuzzSeeds, RandomChangesOfThemAreTaken) {
    std::vector<std::string> bytes;
    for (const Seed& seed : seeds) {
        bytes.push_back(seed.bytes);
    }
    ByteChanges changes(bytes, 20060315);
    for (int i = 0; i < 2000; ++i) {
        const std::string input = changes.next();
        ASSERT_EQ(failureOf(target, input), "") << "input " << i << ": " << testing::PrintToString(input);
    }
}

INSTANTIATE_TEST_SUITE_P(Targets, FuzzSeeds,
                         testing::Values(Target{"request", fuzz_request},
                                         Target{"command_line", fuzz_command_line},
                                         Target{"charts", fuzz_charts}, Target{"texts", fuzz_texts}),
                         [](const auto& tested) { return std::string(tested.param.name); });

} // namespace
} // namespace planner::test
