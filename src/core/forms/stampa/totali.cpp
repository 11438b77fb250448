// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/stampa/totali.h"

#include "engine/kinds/kind.h"
#include "forms/plcal/design.h"
#include "forms/plcal/yearly_day.h"
#include "forms/stampa/documento.h"

#include <algorithm>
#include <cmath>

namespace planner {

namespace {

/// A total and what it is called.
struct VoceTotale {
    Totale totale;
    std::string_view nome;
};

/// A day's counters have names of their own.
std::vector<VoceTotale> yearlyTotals() {
    std::vector<VoceTotale> voci;
    for (const EtichettaTotale& etichetta : EtichetteTotali) {
        if (etichetta.annuale) {
            voci.push_back({etichetta.totale, etichetta.nomeInFrase});
        }
    }
    return voci;
}

std::vector<VoceTotale> staffTotals(bool varianteRidotta) {
    std::vector<VoceTotale> voci;
    for (std::size_t i = 0; i < CategorieTotali.size(); ++i) {
        const auto totale = static_cast<Totale>(i);
        if (!(varianteRidotta && diScadenze(totale))) {
            voci.push_back({totale, CategorieTotali[i].nome});
        }
    }
    return voci;
}

std::vector<std::optional<long>> staffNumbers(const ControlliPlcal& controlli, const modpl& sessione,
                                              int riga, const std::vector<VoceTotale>& voci) {
    const IndiceCollaboratore indice = indiceDiRiga(*controlli.grigliaVisibile(), riga);
    const TabellaTotali& totali = sessione.TotaliImpegni;
    std::vector<std::optional<long>> numeri;
    numeri.reserve(voci.size());
    for (const VoceTotale& voce : voci) {
        numeri.push_back(totali.contiene(indice) ? std::optional<long>(totali.at(indice, voce.totale))
                                                 : std::nullopt);
    }
    return numeri;
}

/// Of the days of a month together.
std::vector<std::optional<long>> monthNumbers(const ControlliPlcal& controlli, const modpl& sessione,
                                              int riga, const std::vector<VoceTotale>& voci) {
    std::vector<double> sums(voci.size());
    for (const int colonna : colonneStampate(controlli)) {
        if (giornoStampato(controlli, {riga, colonna}) != GiornoStampa::nessuno) {
            const ValoriContatori valori = valoriGiorno(sessione.archivi, {riga, colonna});
            for (std::size_t i = 0; i < voci.size(); ++i) {
                sums[i] += somma(valori, voci[i].totale);
            }
        }
    }
    constexpr double largest = 1e15; // that is still a whole number
    std::vector<std::optional<long>> numeri;
    numeri.reserve(sums.size());
    for (const double sum : sums) {
        numeri.emplace_back(std::lround(std::clamp(sum, -largest, largest)));
    }
    return numeri;
}

} // namespace

TotaliMostrati totaliMostrati(const ControlliPlcal& controlli, const modpl& sessione) {
    const bool staff = regole(*controlli.tipoVisibile).perCollaboratore;
    const std::vector<VoceTotale> voci = staff ? staffTotals(sessione.varianteRidotta()) : yearlyTotals();
    TotaliMostrati totali{.nomeRighe = staff ? "Collaboratore" : "Mese", .nomi = {}, .righe = {}};
    for (const VoceTotale& voce : voci) {
        totali.nomi.push_back(inizialeMaiuscola(voce.nome));
    }
    for (const int riga : righeStampate(controlli)) {
        totali.righe.push_back({testoStampato(*controlli.grigliaVisibile(), {riga, 0}),
                                (staff ? staffNumbers : monthNumbers)(controlli, sessione, riga, voci)});
    }
    return totali;
}

} // namespace planner
