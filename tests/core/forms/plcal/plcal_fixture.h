// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plcal/plcal.h"
#include "support/panel_labels.h"
#include "support/planner_bench.h"

#include <gtest/gtest.h>
#include <memory>

namespace planner::test {

/// The planner window's logic over faked widgets, with the real engine on archives in memory.
class PlcalFixture : public testing::Test {
protected:
    /// An engine on this window.
    std::unique_ptr<clsplg> makeEngine() {
        return std::make_unique<clsplg>(Ambiente{bench.sessione, bench.controlli, form, bench.files,
                                                 bench.messaggi, bench.eventi, bench.orologio});
    }

    /// Sets the window up for a request, as the engine does before it shows it.
    void open(std::string_view tipo, std::string_view giorno = "20060315") {
        sessione.PathArchivi = PlannerBench::Cartella;
        makeEngine()->Init_planner(std::string(tipo) + std::string(giorno), "20060101", "20061231", "  ");
        bench.journal.clear();
    }

    /// The user acts on a place of the visible grid.
    void gesto(int riga, int colonna, Mezzo mezzo = Mezzo::clic) {
        form.griglia_Gesto({{riga, colonna}, mezzo});
    }

    PlannerBench bench;
    modpl& sessione = bench.sessione;
    ControlliPlcal& controlli = bench.controlli;
    FakeVista vista{bench.journal};
    FakeFinestraImpegno finestraImpegno;
    FakeVistaPlfcollab vistaCollab{bench.journal};
    PlainCollation alfabeto;
    plfcollab collaboratori{sessione,
                            controlli.calendario,
                            {[this]() -> VistaPlfcollab& { return vistaCollab; }, bench.messaggi, alfabeto}};
    FakeFinestraGrafici finestraGrafici;
    bool suCartaRiesce = true;
    plcal form{sessione,
               controlli,
               bench.motore,
               {vista, bench.messaggi, std::ref(finestraImpegno), collaboratori, std::ref(finestraGrafici),
                [this](ComandoGriglia comando) {
                    bench.journal.push_back(
                        std::string(ComandiGriglia.at(static_cast<std::size_t>(comando)).nome));
                    return suCartaRiesce;
                },
                alfabeto}};
};

} // namespace planner::test
