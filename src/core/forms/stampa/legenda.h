// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/stampa/documento.h"

#include <functional>

namespace planner {

/// A place on a page, in points from its top left corner.
struct AreaStampa {
    double x = 0, y = 0, larghezza = 0, altezza = 0;

    double destra() const { return x + larghezza; }
    double fondo() const { return y + altezza; }
};

/// The width of a text, UTF-8, in points, in letters of the given size.
using MisuraTesto = std::function<double(const std::string& testo, double corpo, bool grassetto)>;

/// How things are told apart on paper, without colours.
enum class SegnoStampa : std::uint8_t {
    disegno,
    fineSettimana,
    festivo,
    oggi,
    segnato,
    fascia,
    evidenziata,
    scelta
};

/// A sign and its meaning.
struct VoceStampa {
    SegnoStampa segno;
    int immagine; // for a drawing
    std::string significato;
};

/// The signs that the grid's pages have, in their order.
std::vector<VoceStampa> vociLegenda(const ControlliPlcal& controlli);

/// The same in its place: the sign, and at its right the text.
struct VocePosta {
    VoceStampa voce;
    AreaStampa campione, testo;
};

/// Puts the signs beside each other, in as many lines as they take, from the area's bottom up; the area's
/// height plays no part.
std::vector<VocePosta> disponiLegenda(const std::vector<VoceStampa>& voci, const AreaStampa& area,
                                      const MisuraTesto& misura);

} // namespace planner
