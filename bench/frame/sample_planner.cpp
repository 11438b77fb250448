// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "frame/sample_planner.h"

#include "frame/frame_times.h"
#include "sample_archive/sample_archive.h"

namespace planner {

void makeSample(const std::string& folder, int staff, int records) {
    constexpr int year = 2006;
    constexpr int seed = 1;
    scriviArchivioCampione(creaArchivioCampione({year, staff, records, seed}), folder);
}

SamplePlanner::SamplePlanner(const std::string& folder) {
    m_sessione.PathArchivi = folder;
}

std::unique_ptr<clsplg> SamplePlanner::newEngine() {
    return std::make_unique<clsplg>(
        Ambiente{m_sessione, m_controlli, m_finestre.finestra, m_files, m_messaggi, m_eventi, m_orologio});
}

void SamplePlanner::prepare() {
    newEngine()->Init_planner("M20060115", "20060101", "20061231", "  ");
}

void SamplePlanner::show() {
    prepare();
    m_finestre.finestra.show();
    paintAll();
}

} // namespace planner
