// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace planner {

/// One field of a record on disk, as documents, tests and tools list it.
struct Field {
    std::string_view name;
    std::size_t offset; // bytes from the start of the record
    std::size_t length; // bytes
    std::string_view meaning;
};

/// True when the fields follow each other without gaps from 0 to `recordLength`.
constexpr bool fieldsCover(std::span<const Field> fields, std::size_t recordLength) {
    std::size_t next = 0;
    for (const Field& field : fields) {
        if (field.offset != next) {
            return false;
        }
        next += field.length;
    }
    return next == recordLength;
}

} // namespace planner
