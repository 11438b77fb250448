// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "faults/support/requests.h"

#include "e2e/support/richiesta.h"
#include "support/temp_folder.h"

#include <fcntl.h>
#include <filesystem>
#include <stdexcept>
#include <unistd.h>

namespace planner::faults {

namespace {

void writeAtStart(const std::string& path, const std::string& bytes) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    const bool written = ::pwrite(file, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size());
    if (::close(file) != 0 || !written) {
        throw std::runtime_error("the host cannot write " + path);
    }
}

} // namespace

std::string requestFor(char letter) {
    std::string bytes = e2e::requestBytes('M');
    bytes.back() = letter; // planrichiesto
    return bytes;
}

std::string answerTo(char letter) {
    return e2e::answeredWith(std::string("20060315  ") + letter, requestFor(letter));
}

std::string endTo(char letter) {
    return e2e::closedOn(e2e::NoDay, requestFor(letter));
}

void writeRequest(const std::string& transit, char letter) {
    writeAtStart(transit, requestFor(letter));
}

std::string markerOf(const std::string& transit) {
    return std::filesystem::path(transit).replace_filename("LockPl.lck").string();
}

void putMarker(const std::string& transit) {
    writeAtStart(markerOf(transit), "");
}

} // namespace planner::faults
