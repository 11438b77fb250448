// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace planner {

/// The planner engine as the host link knows it.
class Motore {
public:
    virtual ~Motore() = default;

    /// Serves one request from start to answer: returns when the user is done. `collab` and `valret` come
    /// back as the answer, the other in/out texts unchanged. All texts are Windows-1252.
    virtual void WPlanner(std::string& tipoplanner, const std::string& startdate, const std::string& enddate,
                          const std::string& PathArchivi, const std::string& tipocall, std::string& collab,
                          std::string& valret, std::string& Windowcaption, std::string& planrichiesto) = 0;

    /// The answer of the request under way if its window were closed at this moment.
    virtual void chiusura(std::string& collab, std::string& valret) const = 0;
};

} // namespace planner
