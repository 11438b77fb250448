// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/stampa/documento.h"

#include "archive/cp1252.h"
#include "archive/fixed_text.h"
#include "forms/plcal/sentences.h"

#include <algorithm>

namespace planner {

namespace {

constexpr int PrimaOraUfficio = 7;
constexpr int UltimaOraUfficio = 19; // begins

bool holdsSomething(const Griglia& griglia, int riga) {
    if (!griglia.TextMatrix(riga, 0).empty()) {
        return true;
    }
    for (int colonna = 0; colonna < griglia.Cols(); ++colonna) {
        const Cella& cella = griglia.cella(riga, colonna);
        if (cella.tipi != 0 || cella.immagine != 0 || cella.impegno) {
            return true;
        }
    }
    return false;
}

/// Whole hours, the office's and all others that are needed.
std::vector<int> hoursInUse(const Griglia& griglia) {
    int first = PrimaOraUfficio;
    int last = UltimaOraUfficio;
    for (int riga = griglia.FixedRows(); riga < griglia.Rows(); ++riga) {
        for (const FasciaImpegno& fascia : griglia.fasce(riga)) {
            first = std::min(first, (fascia.prima - 1) / QuartiOra);
            last = std::max(last, (fascia.ultima - 1) / QuartiOra);
        }
    }
    std::vector<int> colonne;
    for (int colonna = first * QuartiOra + 1; colonna <= (last + 1) * QuartiOra; ++colonna) {
        colonne.push_back(colonna);
    }
    return colonne;
}

bool standsForADay(const ControlliPlcal& controlli, int colonna) {
    const Griglia& griglia = *controlli.grigliaVisibile();
    for (int riga = griglia.FixedRows(); riga < griglia.Rows(); ++riga) {
        if (giornoStampato(controlli, {riga, colonna}) != GiornoStampa::nessuno) {
            return true;
        }
    }
    return false;
}

} // namespace

std::string titoloStampa(const ControlliPlcal& controlli) {
    return visibleFromCp1252(trimRight(controlli.lbldescr));
}

std::string sottotitoloStampa(const ControlliPlcal& controlli) {
    return regole(*controlli.tipoVisibile).unGiorno ? dataEstesa(controlli.calendario.Value())
                                                    : visibleFromCp1252(controlli.Caption);
}

std::string nomeStampa(const ControlliPlcal& controlli) {
    std::string nome =
        regole(*controlli.tipoVisibile).unGiorno ? sottotitoloStampa(controlli) : titoloStampa(controlli);
    std::replace(nome.begin(), nome.end(), '/', '-');
    return nome;
}

std::vector<int> righeStampate(const ControlliPlcal& controlli) {
    const Griglia& griglia = *controlli.grigliaVisibile();
    std::vector<int> righe;
    for (int riga = griglia.FixedRows(); riga < griglia.Rows(); ++riga) {
        if (holdsSomething(griglia, riga)) {
            righe.push_back(riga);
        }
    }
    return righe;
}

std::vector<int> colonneStampate(const ControlliPlcal& controlli) {
    const Griglia& griglia = *controlli.grigliaVisibile();
    if (regole(*controlli.tipoVisibile).unGiorno) {
        return hoursInUse(griglia);
    }
    std::vector<int> colonne;
    for (int colonna = Griglia::FixedCols(); colonna < griglia.Cols(); ++colonna) {
        if (standsForADay(controlli, colonna)) {
            colonne.push_back(colonna);
        }
    }
    return colonne;
}

std::string testoStampato(const Griglia& griglia, Casella casella) {
    return visibleFromCp1252(griglia.TextMatrix(casella));
}

GiornoStampa giornoStampato(const ControlliPlcal& controlli, Casella casella) {
    const RegoleTipo& tipo = regole(*controlli.tipoVisibile);
    const auto giorno = tipo.unGiorno ? std::nullopt : tipo.giornoCella(controlli.calendario, casella);
    if (!giorno) {
        return GiornoStampa::nessuno;
    }
    return trovaFestivo(dayOf(*giorno) - 1, monthOf(*giorno)) != nullptr ? GiornoStampa::festivo
           : isWeekendColumn(casella.colonna)                            ? GiornoStampa::fineSettimana
                                                                         : GiornoStampa::feriale;
}

} // namespace planner
