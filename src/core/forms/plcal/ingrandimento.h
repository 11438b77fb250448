// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "session/toolbar.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace planner {

/// How much larger than designed the grids' rows, pictures and texts are shown; it lasts as long as the
/// program, whatever it is asked to show. The grids keep their lengths in twips.
class Ingrandimento {
public:
    /// The steps, in ascending order.
    static constexpr std::array Gradi{0.4F, 0.45F, 0.5F,  0.6F, 0.7F,  0.8F, 0.9F,
                                      1.0F, 1.1F,  1.25F, 1.5F, 1.75F, 2.0F};

    /// Of the rows, and of what stands in them.
    float righe() const { return Gradi.at(m_grado); }
    /// Of the header's height and of the columns' width: those never shrink, so that a month fills the window
    /// and the header's texts and buttons stay whole.
    float cornice() const { return std::max(righe(), Gradi.at(Normale)); }
    /// The rows' factor in hundredths.
    int percento() const;

    /// Does what the command says, one step at a time; false for one that has nothing to do with it.
    bool esegui(ComandoGriglia comando);

    friend bool operator==(const Ingrandimento&, const Ingrandimento&) = default;

private:
    static constexpr std::size_t Normale = 7;
    static_assert(Gradi[Normale] == 1.0F);

    std::size_t m_grado = Normale;
};

} // namespace planner
