// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "served_request/in_quotes.h"

#include <nlohmann/json.hpp>

namespace planner {

std::string inQuotes(std::string_view text) {
    using Json = nlohmann::json;
    return Json(text).dump(/*indent=*/-1, ' ', /*ensure_ascii=*/false, Json::error_handler_t::replace);
}

} // namespace planner
