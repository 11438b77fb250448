// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace planner::bench {

/// One value of JSON, as its text. Numbers have six digits.
class Json {
public:
    using Members = std::vector<std::pair<std::string, Json>>;

    Json(double number);
    Json(int number);
    Json(bool truth);
    Json(const char* text);
    Json(const std::string& text);
    /// The members in the order given.
    Json(const Members& members);

    /// What `convert` makes of each element, in their order.
    template <typename List, typename Convert>
    static Json list(const List& elements, Convert convert) {
        std::vector<Json> values;
        for (const auto& each : elements) {
            values.emplace_back(convert(each));
        }
        return Json(values);
    }

    const std::string& text() const { return m_text; }

private:
    explicit Json(const std::vector<Json>& values);

    std::string m_text;
};

/// False when the file cannot be written.
bool writeFile(const Json& json, const std::string& path);

} // namespace planner::bench
