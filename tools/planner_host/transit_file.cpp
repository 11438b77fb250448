// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/transit_file.h"

#include "planner_host/errors.h"
#include "platform/system/paths.h"
#include "platform/system/system_file_system.h"
#include "ports/runtime_errors.h"

namespace planner {

namespace {

[[noreturn]] void fail(const std::filesystem::path& path, const std::string& cause) {
    throw HostError(CodiceUscita::ErroreFile, "file di transito " + textOf(path) + ": " + cause);
}

} // namespace

void scriviTransito(const std::filesystem::path& path, const TransitRequest& richiesta) {
    try {
        SystemFileSystem().writeStart(textOf(path),
                                      {reinterpret_cast<const char*>(&richiesta), sizeof richiesta});
    } catch (const FileError& error) {
        fail(path, error.what());
    }
}

TransitRequest leggiTransito(const std::filesystem::path& path) {
    TransitRequest risposta;
    std::size_t count = 0;
    try {
        const auto file = SystemFileSystem().openForReading(textOf(path));
        count = file->read({reinterpret_cast<char*>(&risposta), sizeof risposta});
    } catch (const FileError& error) {
        fail(path, error.what());
    }
    if (count != sizeof risposta) {
        fail(path, "ha " + std::to_string(count) + " byte invece di " + std::to_string(sizeof risposta));
    }
    return risposta;
}

} // namespace planner
