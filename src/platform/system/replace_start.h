// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/runtime_errors.h"

#include <cstdint>
#include <span>
#include <vector>

namespace planner {

/// Writes the bytes over the start of the open file, `length` bytes long so far, then syncs and closes it.
/// Throws FileError, with the file as it was, when they cannot be written.
template <typename File>
void replaceStart(File& file, std::uint64_t length, std::span<const char> bytes) {
    std::vector<char> before(bytes.size());
    before.resize(file.readAll(before));
    try {
        file.writeAllAtStart(bytes);
    } catch (const FileError&) {
        file.putBack(before, length);
        throw;
    }
    file.syncAndClose();
}

} // namespace planner
