// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/planner_bench.h"

namespace planner::test {

PlannerBench::PlannerBench() {
    putCollaboratori({collaboratore("BI", "Bianchi Rosa", "Avvocato"), collaboratore("RB", "Rossi Bruno"),
                      collaboratore("7 ", "Verdi Ugo")});
    putRighe({RigaPlanner{}});
    putAnnuale(annoPlanner("2006"));
}

void PlannerBench::init(std::string_view tipo, std::string_view giorno, std::string_view startdate,
                        std::string_view enddate, std::string_view collab) {
    sessione.PathArchivi = Cartella;
    motore.Init_planner(std::string(tipo) + std::string(giorno), std::string(startdate), std::string(enddate),
                        std::string(collab));
}

void PlannerBench::serve(WPlannerCall& call) {
    motore.WPlanner(call.tipoplanner, call.startdate, call.enddate, call.PathArchivi, call.tipocall,
                    call.collab, call.valret, call.Windowcaption, call.planrichiesto);
}

void PlannerBench::serveAndClose(std::string_view tipo, std::string_view modo, std::string_view tipocall,
                                 std::string_view planrichiesto) {
    WPlannerCall call = richiestaMensile();
    call.tipoplanner = tipo;
    call.Windowcaption = std::string(modo) + std::string(20, ' ');
    call.tipocall = tipocall;
    call.planrichiesto = planrichiesto;
    eventi.actions.push_back(answers("20060315  E"));
    serve(call);
}

WPlannerCall PlannerBench::richiestaMensile() {
    return {"M",           "20060101",           "20061231", std::string(Cartella) + "\\", " ", "  ",
            "00000000   ", std::string(21, ' '), " "};
}

Action PlannerBench::answers(std::string valret, std::string collab) {
    return [this, valret = std::move(valret), collab = std::move(collab)] {
        sessione.valret = valret;
        sessione.collab = collab;
        sessione.FinePlanner = true;
    };
}

} // namespace planner::test
