// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/lettura.h"

#include "engine/kinds/kind.h"
#include "forms/plcal/impegni_casella.h"
#include "forms/plcal/panel.h"
#include "forms/plcal/salti.h"
#include "forms/plcal/sentences.h"
#include "forms/plcal/yearly_day.h"
#include "session/calendar_rules.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace planner {

namespace {

/// The part of a total that is done, where it is counted.
constexpr std::optional<Totale> concluse(Totale totale) {
    return totale == Totale::scadenze   ? std::optional(Totale::scadenzeConcluse)
           : totale == Totale::pratiche ? std::optional(Totale::praticheConcluse)
                                        : std::nullopt;
}

/// Totals are listed after a comma each, and left out where there is none.
class Elenco {
public:
    void aggiungi(double numero, std::string_view singolare, std::string_view plurale) {
        if (!formatoTotale(numero).empty()) {
            m_testo += (m_testo.empty() ? "" : ", ") + quanti(numero, singolare, plurale);
        }
    }
    /// To what was added last.
    void aggiungiConcluse(double numero) {
        if (!formatoTotale(numero).empty()) {
            m_testo += " (" + quanti(numero, "conclusa", "concluse") + ")";
        }
    }
    std::string testo() const { return m_testo.empty() ? "nessun impegno" : m_testo; }

private:
    std::string m_testo;
};

/// The totals as `of` gives them, in words.
template <typename Of>
std::string inWords(Of of) {
    Elenco elenco;
    for (const TipoImpegno tipo : OrdineTipi) {
        const DescrizioneImpegno& described = descrizione(tipo);
        elenco.aggiungi(of(described.totale), described.singolare, described.nome);
        if (const auto done = concluse(described.totale); done && of(described.totale) > 0) {
            elenco.aggiungiConcluse(of(*done));
        }
    }
    elenco.aggiungi(of(Totale::altro), "altro", "altri");
    return elenco.testo();
}

/// The totals of every day that the yearly table marks.
std::string yearInWords(const ControlliPlcal& controlli, const modpl& sessione) {
    const Griglia& griglia = controlli.flxa;
    std::array<double, EtichetteTotali.size()> sums{};
    for (int riga = griglia.FixedRows(); riga < griglia.Rows(); ++riga) {
        for (int colonna = Griglia::FixedCols(); colonna < griglia.Cols(); ++colonna) {
            if (!annuale().giornoCella(controlli.calendario, {riga, colonna})) {
                continue;
            }
            const ValoriContatori valori = valoriGiorno(sessione.archivi, {riga, colonna});
            for (std::size_t i = 0; i < sums.size(); ++i) {
                sums[i] += EtichetteTotali[i].annuale ? somma(valori, EtichetteTotali[i].totale) : 0;
            }
        }
    }
    Elenco elenco;
    for (std::size_t i = 0; i < sums.size(); ++i) {
        elenco.aggiungi(sums[i], EtichetteTotali[i].singolare, EtichetteTotali[i].nomeInFrase);
    }
    return elenco.testo();
}

/// The day or the hour that a cell of the visible grid stands for.
std::string when(const ControlliPlcal& controlli, const RegoleTipo& tipo, Casella casella) {
    if (tipo.unGiorno) {
        return "ore " + oraColonna(casella.colonna);
    }
    const auto giorno = tipo.giornoCella(controlli.calendario, casella);
    return giorno ? giornoInParole(*giorno) : std::string();
}

std::string nextInWords(const ControlliPlcal& controlli, const modpl& sessione, const RegoleTipo& tipo) {
    const auto next = destinazione(controlli, sessione.archivi, SaltoSuccessivo);
    if (!next) {
        return "Poi nessun altro impegno.";
    }
    const std::string details = dettagliCella(controlli, sessione, tipo.tipo, *next);
    return "Poi " + when(controlli, tipo, *next) + (details.empty() ? "" : ": " + details) + ".";
}

} // namespace

std::string totaliRiga(const ControlliPlcal& controlli, const modpl& sessione, int riga) {
    const RegoleTipo* tipo = regoleVisibili(controlli);
    if (tipo == nullptr) {
        return {};
    }
    if (!tipo->perCollaboratore) {
        return yearInWords(controlli, sessione);
    }
    const IndiceCollaboratore indice = indiceDiRiga(controlli.griglia(tipo->tipo), riga);
    const bool deadlines = !sessione.varianteRidotta();
    return inWords([&](Totale totale) -> double {
        return (!deadlines && diScadenze(totale)) || !indice.presente()
                   ? 0
                   : sessione.TotaliImpegni.at(indice, totale);
    });
}

std::string fraseLettura(const ControlliPlcal& controlli, const modpl& sessione) {
    const RegoleTipo* tipo = regoleVisibili(controlli);
    if (tipo == nullptr) {
        return {};
    }
    const Casella cursore = controlli.griglia(tipo->tipo).corrente();
    const std::string cell = fraseCella(controlli, sessione, tipo->tipo, cursore);
    const std::string name = nomeCasella(controlli, sessione, tipo->tipo, cursore);
    return (cell.empty() ? name : cell) + ". Totali di " + nomePeriodo(controlli) + ": " +
           totaliRiga(controlli, sessione, cursore.riga) + ". " + nextInWords(controlli, sessione, *tipo);
}

} // namespace planner
