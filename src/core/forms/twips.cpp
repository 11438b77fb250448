// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/twips.h"

#include <algorithm>

namespace planner {

Scala scalaPer(Dimensioni nuova, Dimensioni progetto) {
    const auto ratio = [](int now, int designed) {
        return static_cast<float>(std::max(now, 1)) / static_cast<float>(std::max(designed, 1));
    };
    return {ratio(nuova.width, progetto.width), ratio(nuova.height, progetto.height)};
}

} // namespace planner
