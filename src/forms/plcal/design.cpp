// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/design.h"

namespace planner {

namespace {

// The panel's columns and rows, in twips.
constexpr std::array ColumnLefts{4700, 7150, 9750};
constexpr std::array CaptionWidths{1450, 1650, 1650};
constexpr std::array RowTops{1210, 1630, 2050};
constexpr int RowHeight = 370;
constexpr int NumberWidth = 750;

std::size_t shownRow(const EtichettaTotale& etichetta, bool varianteRidotta) {
    const bool movedUp = varianteRidotta && etichetta.pratiche;
    return static_cast<std::size_t>(etichetta.riga - (movedUp ? 1 : 0));
}

} // namespace

bool totaleVisibile(const EtichettaTotale& etichetta, std::optional<TipoPlanner> tipo, bool varianteRidotta) {
    const bool rightPanel = tipo && etichetta.annuale == (*tipo == TipoPlanner::Annuale);
    return rightPanel && !(varianteRidotta && etichetta.scadenze);
}

Rettangolo posizioneDidascalia(const EtichettaTotale& etichetta, bool varianteRidotta) {
    const auto column = static_cast<std::size_t>(etichetta.colonna);
    return {ColumnLefts.at(column), RowTops.at(shownRow(etichetta, varianteRidotta)),
            CaptionWidths.at(column), RowHeight};
}

Rettangolo posizioneNumero(const EtichettaTotale& etichetta, bool varianteRidotta) {
    const Rettangolo caption = posizioneDidascalia(etichetta, varianteRidotta);
    return {caption.Left + caption.Width, caption.Top, NumberWidth, caption.Height};
}

std::vector<ControlloProgetto> controlliPlcal() {
    constexpr Rettangolo grid{60, 2500, 15240, 9460};
    std::vector<ControlloProgetto> controls{
        {"Toolbar1", {0, 0, 12600, 1170}},
        {"calendario", {12660, 60, 2640, 2380}},
        {"lbldescr", {180, 1210, 4500, 480}},
        {"lblcollab", {180, 1720, 4500, 400}},
        {"stato", {180, 11970, 15000, 330}},
        {"Flxm", grid},
        {"flxg", grid},
        {"flxa", grid},
    };
    for (const PulsantePeriodo& button : PulsantiPeriodo) {
        controls.push_back({button.gruppo, {}, /*pulsanteComando=*/true});
    }
    return controls;
}

} // namespace planner
