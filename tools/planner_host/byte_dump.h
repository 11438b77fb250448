// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/transit_request.h"

#include <string>

namespace planner {

/// The record's 121 bytes in hexadecimal, then its fields by name, offset and length; UTF-8, several lines.
std::string mostraByte(const TransitRequest& record);

} // namespace planner
