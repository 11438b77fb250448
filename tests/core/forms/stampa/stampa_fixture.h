// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/stampa/impaginazione.h"
#include "support/planner_bench.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace planner::test {

/// Documents of an office on archives in memory, and letters that are half as wide as high.
class StampaFixture : public testing::Test {
protected:
    static double misura(const std::string& testo, double corpo, bool) {
        return static_cast<double>(testo.size()) * corpo / 2;
    }

    DocumentoStampa documento(Carta carta = CartaA4, bool totali = false) const {
        return {bench.controlli, bench.sessione, PlannerBench::Oggi, carta, totali};
    }
    Impaginazione pagine(Carta carta = CartaA4, bool totali = false) const {
        return impagina(documento(carta, totali), misura);
    }
    const Griglia& griglia() const { return *bench.controlli.grigliaVisibile(); }

    /// So many staff members, named "Collaboratore 1" and on.
    void putStaff(int count) {
        std::vector<Collaboratore> staff;
        for (int i = 0; i < count; ++i) {
            const std::string code{static_cast<char>('A' + i / 26), static_cast<char>('A' + i % 26)};
            staff.push_back(collaboratore(code, "Collaboratore " + std::to_string(i + 1)));
        }
        bench.putCollaboratori(staff);
    }

    PlannerBench bench;
};

} // namespace planner::test
