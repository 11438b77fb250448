// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "fuzz/byte_changes.h"

#include <string_view>

namespace planner::test {

namespace {

constexpr std::size_t MostChanges = 6;
constexpr std::size_t LongestInsertion = 8;
constexpr std::size_t ByteValues = 256;

} // namespace

/// Half of them characters that mean something in a number or a path.
char ByteChanges::anyByte() {
    constexpr std::string_view telling = "0123456789 +-.eE*/\\MGA\xFF";
    return below(2) == 0 ? telling[below(telling.size())] : static_cast<char>(below(ByteValues));
}

void ByteChanges::insertSome(std::string& bytes) {
    const std::size_t place = below(bytes.size() + 1);
    for (std::size_t count = below(LongestInsertion) + 1; count > 0; --count) {
        bytes.insert(place, 1, anyByte());
    }
}

void ByteChanges::change(std::string& bytes) {
    if (bytes.empty()) {
        return insertSome(bytes);
    }
    const std::size_t place = below(bytes.size());
    switch (below(8)) {
    case 0:
        return insertSome(bytes);
    case 1:
        bytes.erase(place, below(LongestInsertion) + 1);
        return;
    case 2:
        bytes[place] = static_cast<char>(bytes[place] ^ (1 << below(8)));
        return;
    case 3:
        bytes.replace(place, LongestInsertion, bytes.substr(below(bytes.size()), LongestInsertion));
        return;
    default:
        bytes[place] = anyByte();
    }
}

std::string ByteChanges::next() {
    std::string bytes = m_seeds.at(below(m_seeds.size()));
    for (std::size_t changes = below(MostChanges) + 1; changes > 0; --changes) {
        change(bytes);
    }
    if (below(16) == 0) {
        bytes.resize(below(bytes.size() + 1));
    }
    return bytes;
}

} // namespace planner::test
