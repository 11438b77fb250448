// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/design.h"

#include "engine/kinds/kind.h"

#include <algorithm>

namespace planner {

namespace {

// The panel's columns and rows, in twips.
constexpr std::array ColumnLefts{5450, 7700, 10100};
constexpr std::array CaptionWidths{1250, 1300, 1300};
constexpr std::array RowTops{1250, 1665, 2080};
constexpr int RowHeight = 370;
constexpr int NumberWidth = 750;

std::size_t shownRow(const EtichettaTotale& etichetta, bool varianteRidotta) {
    const bool movedUp = varianteRidotta && etichetta.pratiche();
    return static_cast<std::size_t>(etichetta.riga - (movedUp ? 1 : 0));
}

// All other controls, in twips.
constexpr Rettangolo Toolbar{0, 0, 12600, 1230};
constexpr Rettangolo Calendar{12660, 60, 2640, 2380};
constexpr Rettangolo Title{180, 1250, 5100, 480};
constexpr Rettangolo StaffName{180, 1760, 5100, 400};
constexpr Rettangolo Grid{60, 2500, 15240, 9460};
constexpr Rettangolo Status{180, 11970, 15000, 330};
constexpr int SmallestGridHeight = 2700;

} // namespace

bool totaleVisibile(const EtichettaTotale& etichetta, std::optional<TipoPlanner> tipo, bool varianteRidotta) {
    const bool rightPanel = tipo && etichetta.annuale != regole(*tipo).perCollaboratore;
    return rightPanel && !(varianteRidotta && etichetta.scadenze());
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
    std::vector<ControlloProgetto> controls{
        {"Toolbar1", Toolbar}, {"calendario", Calendar}, {"lbldescr", Title}, {"lblcollab", StaffName},
        {"stato", Status},     {"Flxm", Grid},           {"flxg", Grid},      {"flxa", Grid},
    };
    for (const PulsantePeriodo& button : PulsantiPeriodo) {
        controls.push_back({button.gruppo, {}, /*pulsanteComando=*/true});
    }
    return controls;
}

Dimensioni dimensioniMinime(const Scala& scala) {
    int panelRight = 0;
    for (const EtichettaTotale& etichetta : EtichetteTotali) {
        const Rettangolo number = posizioneNumero(etichetta, false);
        panelRight = std::max(panelRight, number.Left + number.Width);
    }
    const int width = panelRight + Calendar.Width + 2 * Grid.Left;
    const int height = Grid.Top + SmallestGridHeight + Status.Height;
    const ControlloProgetto whole{"plcal", {0, 0, width, height}};
    const Rettangolo scaled = Ctr_Refresh({whole}, scala).front().posizione;
    return {scaled.Width, scaled.Height};
}

} // namespace planner
