// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/utente.h"

#include <cstdlib>
#include <filesystem>

namespace planner::e2e {

namespace {

void makePrivateFolder(const std::string& path) {
    std::filesystem::create_directory(path);
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
}

} // namespace

Utente::Utente() {
    makePrivateFolder(home());
    makePrivateFolder(runtimeFolder());
    makePrivateFolder(eventFolder());
    ::setenv("XDG_RUNTIME_DIR", runtimeFolder().c_str(), 1);
}

Environment Utente::environment() const {
    Environment environment = plainEnvironment();
    environment["HOME"] = home();
    environment["XDG_RUNTIME_DIR"] = runtimeFolder();
    return environment;
}

} // namespace planner::e2e
