// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "program/running_program.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace planner::bench {

namespace {

void check(int error, const std::string& what) {
    if (error != 0) {
        throw std::system_error(error, std::generic_category(), what);
    }
}

} // namespace

RunningProgram::RunningProgram(const std::string& program, std::vector<std::string> arguments,
                               const std::string& folder) {
    std::vector<char*> words{const_cast<char*>(program.c_str())};
    for (std::string& argument : arguments) {
        words.push_back(argument.data());
    }
    words.push_back(nullptr);
    int ends[2];
    check(pipe2(ends, O_CLOEXEC) == 0 ? 0 : errno, "pipe");
    m_input = ends[1];
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[0], STDIN_FILENO);
    posix_spawn_file_actions_addchdir_np(&actions, folder.c_str());
    const int error = posix_spawn(&m_process, program.c_str(), &actions, nullptr, words.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[0]);
    check(error, program);
}

RunningProgram::~RunningProgram() {
    if (m_process != 0) {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
    close(m_input);
}

void RunningProgram::tell() {
    check(write(m_input, "\n", 1) == 1 ? 0 : errno, "write");
}

void RunningProgram::awaitEnd() {
    int status = 0;
    check(waitpid(m_process, &status, 0) == m_process ? 0 : errno, "waitpid");
    m_process = 0;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != EXIT_SUCCESS) {
        throw std::runtime_error("the program has not ended well");
    }
}

double RunningProgram::residentKilobytes() const {
    std::ifstream status("/proc/" + std::to_string(m_process) + "/status");
    for (std::string word; status >> word;) {
        if (word == "VmRSS:") {
            double kilobytes = 0;
            status >> kilobytes;
            return kilobytes;
        }
    }
    throw std::runtime_error("the program is gone");
}

} // namespace planner::bench
