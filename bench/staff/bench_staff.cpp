// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
// From the event to the painted list, with the real staff window over a large staff.

#include "forms/plfcollab/plfcollab.h"
#include "frame/frame_times.h"
#include "ui/plfcollab/plfcollab_window.h"
#include "ui/ports/qt_collation.h"

#include <array>

using namespace planner;

namespace {

constexpr int Staff = 5000;
constexpr int Times = 200;

constexpr std::array Surnames{"Rossi", "Bianchi",   "D'Amico", "De Rossi", "Cant\xF9", "\xC0lvaro",
                              "Verdi", "Dell'Orto", "Zanetti", "esposito", "COLOMBO",  "Ferrari"};
constexpr std::array Names{"Bruno", "Laura", "Nicol\xF2", "No\xE8", "Maria Vittoria", "Ugo", "Anna"};

/// A window whose user answers every question for a text at once.
class AnsweringWindow : public PlfcollabWindow {
public:
    using PlfcollabWindow::PlfcollabWindow;
    std::optional<std::string> chiediTesto(std::string_view, const std::string&) override {
        return "ultima della lista";
    }
};

class SilentMessages : public MessageBoxes {
public:
    void show(const Message&) override {}
};

struct StaffWindow {
    modpl sessione;
    Calendario calendario;
    SilentMessages messaggi;
    QtCollation alfabeto;
    plfcollab form{sessione, calendario, {[this]() -> VistaPlfcollab& { return vista; }, messaggi, alfabeto}};
    AnsweringWindow vista{form};

    void open() {
        fill(form.List_Prenotazione());
        form.show();
        paintAll();
    }
    static void fill(ListaCollaboratori& lista) {
        lista.svuota();
        for (std::size_t i = 0; i + 1 < Staff; ++i) {
            const std::size_t mixed = i * 7919; // far from sorted
            lista.aggiungi("XX",
                           std::string(Surnames.at(mixed % Surnames.size())) + " " +
                               Names.at(mixed / Surnames.size() % Names.size()) + " " + std::to_string(i),
                           "Impiegato");
        }
        lista.aggiungi("ZZ", "Zita ULTIMA DELLA LISTA", "Direttrice");
    }
    void press(ComandoCollab comando) { form.Toolbar_pren_ButtonClick(static_cast<int>(comando)); }
    void press(Freccia freccia) { form.ButtonFrecce_Click(static_cast<int>(freccia)); }
};

FrameReport measure() {
    StaffWindow staff;
    staff.open();
    const auto nothing = [] {};
    const auto toTheTop = [&] {
        staff.form.List_Prenotazione_ItemClick(0);
        staff.press(Freccia::inizio);
    };
    const auto line = [&] { staff.press(Freccia::rigaGiu); };
    const auto page = [&] { staff.press(Freccia::paginaGiu); };
    const auto search = [&] { staff.press(ComandoCollab::cerca); };
    const auto check = [&] { staff.press(ComandoCollab::selezionaTutti); };
    const auto sort = [&] { staff.press(ComandoCollab::ordina); };
    measureFrames("warm", false, Times, toTheTop, search);
    toTheTop();
    FrameReport report{"staff list, event to painted, " + std::to_string(Staff) + " staff, " +
                           std::to_string(Times) + " times each",
                       {}};
    report.times = {
        measureFrames("line", true, Times, nothing, line),
        measureFrames("page", true, Times, nothing, page),
        measureFrames("search", true, Times, toTheTop, search),
        measureFrames("check", false, Times, nothing, check),
        measureFrames("sort", false, Times, nothing, sort),
    };
    return report;
}

} // namespace

int main(int argc, char* argv[]) {
    return frameBenchmark(argc, argv, measure);
}
