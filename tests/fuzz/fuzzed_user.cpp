// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "fuzz/fuzzed_user.h"

#include "forms/plcal/design.h"
#include "fuzz/chart_properties.h"
#include "sample_archive/cp1252_from_utf8.h"

namespace planner::test {

namespace {

constexpr std::size_t LunghezzaValret = 11;

int coordinate(FuzzInput& input) {
    return input.byte() + PrimaCoordinata;
}

template <typename Table>
const auto& oneOf(const Table& table, int number) {
    return table.at(static_cast<std::size_t>(number) % table.size());
}

std::string_view toolbarKey(int number) {
    const auto place = static_cast<std::size_t>(number) % (PulsantiToolbar.size() + 1);
    return place < PulsantiToolbar.size() ? PulsantiToolbar.at(place).chiave : "nessuno";
}

/// A day some months before or after.
Data dayFrom(Data shown, int distance) {
    constexpr int daysPerStep = 5;
    constexpr int middle = 128;
    return std::chrono::sys_days(shown) + std::chrono::days((distance - middle) * daysPerStep);
}

} // namespace

void FuzzedUser::act(FuzzInput& input) {
    try {
        perform(static_cast<Azione>(input.byte() % NumeroGesti), input);
    } catch (const std::exception& error) {
        require(false, "a command of the window let an error out: " + std::string(error.what()));
    }
    requireSoundState();
}

void FuzzedUser::leave() {
    form.Form_KeyDown(TastoEscape);
    require(sessione.FinePlanner, "Escape ends the session");
    requireSoundState();
}

void FuzzedUser::requireSoundState() {
    require(!sessione.FinePlanner || sessione.valret.size() == LunghezzaValret,
            "an answer has eleven characters");
    require(cp1252FromUtf8(form.stato()).has_value(), "the status line is UTF-8");
    for (const Grafico& grafico : finestraGrafici.shown) {
        requireSound(grafico);
        requireSoundLayout(grafico, {1200, 650}, {});
    }
    finestraGrafici.shown.clear();
}

void FuzzedUser::perform(Azione azione, FuzzInput& input) {
    switch (azione) {
    case Azione::scegliGiorno:
        return form.calendario_DateClick(dayFrom(controlli.calendario.Value(), input.byte()));
    case Azione::pulsantePeriodo: {
        const PulsantePeriodo& pulsante = oneOf(PulsantiPeriodo, input.byte());
        form.pulsantePeriodoAttivo(pulsante);
        return form.pulsantePeriodo_Click(pulsante);
    }
    case Azione::indicePeriodo:
        return choosePeriod(coordinate(input));
    case Azione::toolbar:
        return form.Toolbar1_ButtonClick(toolbarKey(input.byte()));
    case Azione::sceltaImpegno:
        finestraImpegno.user = [option = coordinate(input)](plfimp& dialogo) {
            dialogo.Option1_Click(option);
            dialogo.conferma_Click();
        };
        return;
    default:
        return azione <= Azione::muoveConTasto ? performInGrid(azione, input)
                                               : performInStaffList(azione, input);
    }
}

void FuzzedUser::performInGrid(Azione azione, FuzzInput& input) {
    const int riga = coordinate(input);
    const int colonna = coordinate(input);
    const Mezzo mezzo = azione == Azione::selezionaCella ? Mezzo::assistenza
                        : azione == Azione::cliccaCella  ? Mezzo::clic
                                                         : Mezzo::frecce;
    form.griglia_Gesto({{riga, colonna}, mezzo});
}

void FuzzedUser::choosePeriod(int indice) {
    form.bselm_Click(indice);
    form.bselg_Click(indice);
    if (controlli.tipoVisibile == TipoPlanner::Annuale) {
        form.bselA_Click(indice);
    }
}

void FuzzedUser::performInStaffList(Azione azione, FuzzInput& input) {
    if (!collaboratori.isShown()) {
        return; // a window out of sight takes no commands
    }
    if (azione == Azione::elencoToolbar) {
        collaboratori.Toolbar_pren_ButtonClick(coordinate(input));
    } else if (azione == Azione::elencoFreccia) {
        collaboratori.ButtonFrecce_Click(coordinate(input));
    } else if (azione == Azione::elencoSeleziona) {
        collaboratori.List_Prenotazione_ItemClick(coordinate(input));
    } else if (azione == Azione::elencoSpunta) {
        collaboratori.List_Prenotazione_ItemCheck(coordinate(input), /*spuntata=*/true);
    } else {
        vistaCollab.risposta = input.part();
        collaboratori.Toolbar_pren_ButtonClick(static_cast<int>(ComandoCollab::cerca));
        collaboratori.cercaAncora();
    }
}

} // namespace planner::test
