// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QVariant>

#include <exception>

namespace planner {

/// What `answer` gives; nothing when it throws. The toolkit may ask a model for anything at any time, and is
/// no place for an exception to pass through.
template <typename Answer>
QVariant orNothing(Answer answer) noexcept {
    try {
        return answer();
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace planner
