// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/json.h"

#include <fstream>
#include <iomanip>
#include <sstream>

namespace planner::bench {

namespace {

template <typename Value>
std::string written(const Value& value) {
    std::ostringstream out;
    out << std::boolalpha << value;
    return out.str();
}

} // namespace

Json::Json(double number) : m_text(written(number)) {}

Json::Json(int number) : m_text(written(number)) {}

Json::Json(bool truth) : m_text(written(truth)) {}

Json::Json(const char* text) : m_text(written(std::quoted(text))) {}

Json::Json(const std::string& text) : Json(text.c_str()) {}

Json::Json(const Members& members) {
    for (const auto& [name, value] : members) {
        m_text += (m_text.empty() ? "{" : ", ") + Json(name).text() + ": " + value.text();
    }
    m_text += m_text.empty() ? "{}" : "}";
}

Json::Json(const std::vector<Json>& values) {
    for (const Json& each : values) {
        m_text += (m_text.empty() ? "[" : ", ") + each.text();
    }
    m_text += m_text.empty() ? "[]" : "]";
}

bool writeFile(const Json& json, const std::string& path) {
    std::ofstream out(path);
    out << json.text() << '\n';
    return static_cast<bool>(out.flush());
}

} // namespace planner::bench
