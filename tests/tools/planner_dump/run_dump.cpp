// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "run_dump.h"

#include "support/temp_folder.h"

#include <array>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace planner::test {

namespace {

/// Where the standard streams of the child process go.
class Redirections {
public:
    Redirections(const std::filesystem::path& out, const std::filesystem::path& err) {
        posix_spawn_file_actions_init(&m_actions);
        redirect(STDIN_FILENO, "/dev/null", O_RDONLY);
        redirect(STDOUT_FILENO, out, O_WRONLY | O_CREAT);
        redirect(STDERR_FILENO, err, O_WRONLY | O_CREAT);
    }
    ~Redirections() { posix_spawn_file_actions_destroy(&m_actions); }
    Redirections(const Redirections&) = delete;
    Redirections& operator=(const Redirections&) = delete;

    const posix_spawn_file_actions_t* get() const { return &m_actions; }

private:
    void redirect(int descriptor, const std::filesystem::path& path, int flags) {
        constexpr mode_t ownerOnly = 0600;
        posix_spawn_file_actions_addopen(&m_actions, descriptor, path.c_str(), flags, ownerOnly);
    }

    posix_spawn_file_actions_t m_actions;
};

int runToEnd(std::vector<std::string> words, const Redirections& redirections) {
    std::vector<char*> argv;
    argv.reserve(words.size() + 1);
    for (std::string& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    pid_t child = 0;
    if (posix_spawn(&child, argv.front(), redirections.get(), nullptr, argv.data(), environ) != 0) {
        throw std::runtime_error("planner-dump does not start");
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

DumpRun runDump(const std::vector<std::string>& arguments) {
    const TempFolder folder;
    const auto out = folder.folder() / "out";
    const auto err = folder.folder() / "err";
    std::vector<std::string> words{PLANNER_DUMP};
    words.insert(words.end(), arguments.begin(), arguments.end());
    const int exitCode = runToEnd(std::move(words), Redirections(out, err));
    return {exitCode, fileBytes(out), fileBytes(err)};
}

Json information(const std::string& text) {
    return {{"icona", "informazione"}, {"titolo", "Planner"}, {"testo", text}};
}

Json critical(const std::string& text) {
    return {{"icona", "critica"}, {"titolo", "Planner"}, {"testo", text}};
}

} // namespace planner::test
