// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "window_bench.h"

#include <QTest>

namespace planner::test {

std::unique_ptr<clsplg> WindowBench::newEngine() {
    return std::make_unique<clsplg>(Ambiente{base.sessione, base.controlli, finestra, base.files,
                                             base.messaggi, base.eventi, base.orologio});
}

void WindowBench::open(std::string_view tipo, std::string_view giorno, std::string_view windowcaption) {
    openPeriod(tipo, giorno, "20060101", "20061231", windowcaption);
}

void WindowBench::openPeriod(std::string_view tipo, std::string_view giorno, std::string_view inizio,
                             std::string_view fine, std::string_view windowcaption) {
    base.sessione.PathArchivi = PlannerBench::Cartella;
    base.sessione.ModoFinestra = windowcaption.substr(0, 1);
    base.sessione.FlagFinestra = windowcaption.substr(windowcaption.size() - 1);
    base.sessione.FinePlanner = false;
    newEngine()->Init_planner(std::string(tipo) + std::string(giorno), std::string(inizio), std::string(fine),
                              "RB");
    finestra.show();
    // A window asks for activation by itself and by request: the later answer must not fall into what
    // follows.
    if (!QTest::qWaitForWindowExposed(&vista)) {
        throw std::runtime_error("the window is not shown");
    }
    QCoreApplication::processEvents();
}

GridView& WindowBench::view() {
    const std::string name(base.controlli.nomeGrigliaVisibile());
    return widget<GridView>(name.c_str());
}

QModelIndex WindowBench::index(int riga, int colonna) {
    return view().model()->index(riga - griglia().FixedRows(), colonna - Griglia::FixedCols());
}

QPoint WindowBench::centreOf(int riga, int colonna) {
    view().scrollTo(index(riga, colonna));
    return view().visualRect(index(riga, colonna)).center();
}

void WindowBench::click(int riga, int colonna) {
    QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(riga, colonna));
}

void WindowBench::doubleClick(int riga, int colonna) {
    const QPoint centre = centreOf(riga, colonna);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, centre);
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, centre);
}

void WindowBench::key(int key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&view(), static_cast<Qt::Key>(key), modifiers);
}

} // namespace planner::test
