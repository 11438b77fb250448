// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "TavTermIPC.h"
#include "ipc_fixture.h"

#include <utility>
#include <vector>

namespace planner::ipctest {
namespace {

class NameTest : public IpcTest {
protected:
    // One signal each way under the name.
    void expectDialogue(const std::string& name) {
        ASSERT_EQ(planner.create(name), 1) << name;
        ASSERT_EQ(planner.set(name), 1) << name;
        ASSERT_EQ(host.wait(name), 1) << name;
        ASSERT_EQ(host.set(name), 1) << name;
        ASSERT_EQ(planner.wait(name), 1) << name;
        ASSERT_EQ(planner.remove(name), 1) << name;
        ASSERT_EQ(eventFiles(), 0) << name;
    }

    void expectRefused(const std::string& name) {
        EXPECT_EQ(planner.create(name), 0) << name.size();
        EXPECT_EQ(planner.set(name), 0) << name.size();
        EXPECT_EQ(host.set(name), 0) << name.size();
        EXPECT_EQ(host.wait(name), 0) << name.size();
        EXPECT_EQ(planner.remove(name), 0) << name.size();
        EXPECT_EQ(eventFiles(), 0) << name.size();
    }

    Actor planner;
    Actor host;
};

TEST_F(NameTest, OddNamesAreNames) {
    const std::vector<std::string> names{
        "",         " ",         "  EV  ",    ".",   "..",     "/",        "//",
        "../EV",    "/etc/x",    "a/../../b", "%",   "%s%n%x", "\n\r\t\v", "\x01\x1F\x7F",
        "C:\\x\\y", "Local\\EV", "ev-",       "-rf", "*?[a]",  "'\"`$;",   "NOEVENT",
        "\x80\xFF", "\xE0",      "\xC3\xA0"};
    for (const std::string& name : names) {
        expectDialogue(name);
    }
}

TEST_F(NameTest, EveryByteCanStandInAName) {
    for (int byte = 1; byte < 256; ++byte) {
        expectDialogue(std::string(1, static_cast<char>(byte)));
    }
}

TEST_F(NameTest, NamesThatLookAlikeAreDifferentEvents) {
    const std::vector<std::pair<std::string, std::string>> pairs{
        {"EV", "ev"},    {"EV", "EV "},    {"EV", " EV"},   {"", " "},      {"/", "%2F"},
        {"%", "%25"},    {"%2F", "%252F"}, {"\n", "%0A"},   {"a/b", "a_b"}, {"\xE0", "\xC3\xA0"},
        {"\xE0", "%E0"}, {"..", "."},      {"\x7F", "%7F"}, {"EV", "EV\\"}, {"x/", "x"}};
    for (const auto& [created, other] : pairs) {
        ASSERT_EQ(planner.create(created), 1);
        EXPECT_EQ(host.set(other), 0) << created << " met " << other;
        EXPECT_EQ(host.set(created), 1);
        EXPECT_EQ(planner.remove(created), 1);
    }
}

TEST_F(NameTest, EveryLengthUpToTheLongestIsTold) {
    for (std::size_t length = 0; length <= 252; ++length) {
        expectDialogue(std::string(length, 'n'));
    }
}

TEST_F(NameTest, NamesOfOneLengthDifferInTheirLastByte) {
    const std::string common(251, 'n');
    ASSERT_EQ(planner.create(common + 'a'), 1);
    EXPECT_EQ(host.set(common + 'b'), 0);
    EXPECT_EQ(host.set(common + 'a'), 1);
}

TEST_F(NameTest, LongerNamesAreRefused) {
    for (const std::size_t length : {253U, 254U, 255U, 256U, 257U, 1000U, 65000U}) {
        expectRefused(std::string(length, 'n'));
    }
}

TEST_F(NameTest, BytesThatAreWrittenAsThreeCountAsThree) {
    expectDialogue(std::string(84, '/'));
    expectRefused(std::string(85, '/'));
    expectDialogue(std::string(249, 'n') + '%');
    expectRefused(std::string(250, 'n') + '%');
    expectDialogue(std::string(252, '\xE0'));
}

TEST_F(NameTest, NullIsRefused) {
    EXPECT_EQ(TvIpcCreazioneEvento(nullptr), 0);
    EXPECT_EQ(TvIpcSetEvento(nullptr), 0);
    EXPECT_EQ(TvIpcWaitEvento(nullptr), 0);
    EXPECT_EQ(TvIpcRimozioneEvento(nullptr), 0);
}

} // namespace
} // namespace planner::ipctest
