// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace planner {

/// The rules of the Italian language for sorting and searching. All texts are UTF-8.
class Collation {
public:
    virtual ~Collation() = default;
    /// Alphabetical order: below 0 when `a` stands before `b`, 0 when they rank the same, above 0 otherwise.
    /// Case alone does not tell two texts apart.
    virtual int compare(std::string_view a, std::string_view b) const = 0;
    /// The text without case and accents: two texts that differ in nothing else fold to the same one.
    virtual std::string folded(std::string_view text) const = 0;
};

} // namespace planner
