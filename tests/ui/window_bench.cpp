// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/window_bench.h"

#include <QTest>

namespace planner::test {

std::unique_ptr<clsplg> WindowBench::newEngine() {
    return std::make_unique<clsplg>(Ambiente{base.sessione, base.controlli, finestra, base.files, base.messaggi,
                                             base.eventi, base.orologio});
}

void WindowBench::open(std::string_view tipo, std::string_view giorno, std::string_view windowcaption) {
    base.sessione.tipoplanner = tipo;
    base.sessione.PathArchivi = PlannerBench::Cartella;
    base.sessione.ModoFinestra = windowcaption.substr(0, 1);
    base.sessione.FlagFinestra = windowcaption.substr(windowcaption.size() - 1);
    base.sessione.FinePlanner = false;
    newEngine()->Init_planner(std::string(tipo) + std::string(giorno), "20060101", "20061231", "RB");
    finestra.show();
    if (!QTest::qWaitForWindowExposed(&vista)) {
        throw std::runtime_error("the window is not shown");
    }
}

} // namespace planner::test
