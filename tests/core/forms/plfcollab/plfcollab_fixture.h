// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfcollab/plfcollab.h"
#include "support/fakes.h"

#include <gmock/gmock.h>

namespace planner::test {

/// The staff window's logic over faked widgets, shown with four staff members while the planner's calendar
/// shows 15 March 2006.
class PlfcollabFixture : public testing::Test {
protected:
    PlfcollabFixture() {
        calendario.setValue({std::chrono::year{2006}, std::chrono::March, std::chrono::day{15}});
        fill({{"RB", "Rossi Bruno"}, {"BI", "Bianchi Rosa"}, {"7 ", "Verdi Ugo"}, {"NC", "Nicol\xF2 Conti"}});
        form.show();
        journal.clear();
    }

    void fill(const std::vector<std::pair<std::string, std::string>>& staff) {
        lista.svuota();
        for (const auto& [codice, nome] : staff) {
            lista.aggiungi(codice, nome, "Avvocato");
        }
    }
    /// `count` rows "n0", "n1", ...
    void fillNumbered(int count) {
        lista.svuota();
        for (int i = 0; i < count; ++i) {
            lista.aggiungi("XX", "n" + std::to_string(i), "");
        }
    }
    void press(ComandoCollab comando) { form.Toolbar_pren_ButtonClick(static_cast<int>(comando)); }
    void check(std::initializer_list<int> righe) {
        for (const int riga : righe) {
            form.List_Prenotazione_ItemCheck(riga, true);
        }
    }
    /// The codes in their order, a checked one with a star.
    std::string rows() const {
        std::string all;
        for (int riga = 0; riga < lista.righe(); ++riga) {
            all += lista.riga(riga).codice + (lista.riga(riga).spuntata ? "* " : " ");
        }
        return all;
    }
    const std::vector<Message>& messages() const { return messaggi.shown; }

    Journal journal;
    modpl sessione;
    Calendario calendario;
    FakeVistaPlfcollab vista{journal};
    RecordingMessages messaggi{journal};
    PlainCollation alfabeto;
    plfcollab form{sessione, calendario, {[this]() -> VistaPlfcollab& { return vista; }, messaggi, alfabeto}};
    ListaCollaboratori& lista = form.List_Prenotazione();
};

} // namespace planner::test
