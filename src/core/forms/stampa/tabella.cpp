// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/stampa/tabella.h"

#include "forms/plcal/sentences.h"
#include "forms/stampa/documento.h"
#include "forms/stampa/totali.h"
#include "session/calendar_rules.h"

namespace planner {

namespace {

using Riga = std::vector<std::string>;

/// One after the other: headings, and a row for each of `righeStampate`.
using Tabella = std::vector<Riga>;

/// What stands beside the names: appointments without an hour.
void addHourless(Tabella& tabella, const ControlliPlcal& controlli, const std::vector<int>& righe) {
    tabella.front().emplace_back("Senza ora");
    for (std::size_t i = 0; i < righe.size(); ++i) {
        tabella[i + 1].push_back(nomiTipi(controlli.grigliaVisibile()->cella(righe[i], 0).tipi));
    }
}

void addHourColumns(Tabella& tabella, const ControlliPlcal& controlli, const modpl& sessione,
                    const std::vector<int>& righe) {
    addHourless(tabella, controlli, righe);
    for (const int colonna : colonneStampate(controlli)) {
        tabella.front().push_back(oraColonna(colonna));
        for (std::size_t i = 0; i < righe.size(); ++i) {
            tabella[i + 1].push_back(
                contenutoCella(controlli, sessione, *controlli.tipoVisibile, {righe[i], colonna}));
        }
    }
}

/// A column for each day of the month, whatever the column in which the grid shows it.
void addDayColumns(Tabella& tabella, const ControlliPlcal& controlli, const modpl& sessione,
                   const std::vector<int>& righe) {
    const RegoleTipo& tipo = regole(*controlli.tipoVisibile);
    const std::vector<int> colonne = colonneStampate(controlli);
    const std::size_t days = tipo.perCollaboratore ? colonne.size() : GiorniMassimi;
    for (std::size_t day = 1; day <= days; ++day) {
        tabella.front().push_back(std::to_string(day));
    }
    for (std::size_t i = 0; i < righe.size(); ++i) {
        Riga cells(days);
        for (const int colonna : colonne) {
            const Casella casella{righe[i], colonna};
            if (const auto day = tipo.giornoCella(controlli.calendario, casella)) {
                cells.at(static_cast<std::size_t>(dayOf(*day) - 1)) =
                    contenutoCella(controlli, sessione, tipo.tipo, casella);
            }
        }
        tabella[i + 1].insert(tabella[i + 1].end(), cells.begin(), cells.end());
    }
}

void addTotals(Tabella& tabella, const TotaliMostrati& totali) {
    tabella.front().insert(tabella.front().end(), totali.nomi.begin(), totali.nomi.end());
    for (std::size_t i = 0; i < totali.righe.size(); ++i) {
        for (const std::optional<long>& numero : totali.righe[i].numeri) {
            tabella[i + 1].push_back(numero ? std::to_string(*numero) : std::string());
        }
    }
}

Tabella makeTable(const ControlliPlcal& controlli, const modpl& sessione) {
    const RegoleTipo& tipo = regole(*controlli.tipoVisibile);
    const TotaliMostrati totali = totaliMostrati(controlli, sessione);
    Tabella tabella{{totali.nomeRighe}};
    for (const TotaliMostrati::Riga& riga : totali.righe) {
        tabella.push_back({riga.nome});
    }
    (tipo.unGiorno ? addHourColumns : addDayColumns)(tabella, controlli, sessione, righeStampate(controlli));
    addTotals(tabella, totali);
    return tabella;
}

std::string escaped(std::string_view text) {
    std::string html;
    for (const char c : text) {
        switch (c) {
        case '&':
            html += "&amp;";
            break;
        case '<':
            html += "&lt;";
            break;
        case '>':
            html += "&gt;";
            break;
        case '"':
            html += "&quot;";
            break;
        default:
            html += c;
        }
    }
    return html;
}

std::string htmlRow(const Riga& riga, std::string_view tag) {
    std::string html = "<tr>";
    for (const std::string& cell : riga) {
        html.append("<").append(tag).append(">");
        html += escaped(cell);
        html.append("</").append(tag).append(">");
    }
    return html + "</tr>\n";
}

std::string textRow(const Riga& riga) {
    std::string text;
    for (const std::string& cell : riga) {
        text += (&cell == riga.data() ? "" : "\t") + cell;
    }
    return text + "\n";
}

} // namespace

TabellaCopiata tabellaCopiata(const ControlliPlcal& controlli, const modpl& sessione) {
    const Tabella tabella = makeTable(controlli, sessione);
    const std::string title = titoloStampa(controlli) + " - " + sottotitoloStampa(controlli);
    TabellaCopiata copy{title + "\n", "<table><caption>" + escaped(title) + "</caption>\n"};
    for (const Riga& riga : tabella) {
        copy.testo += textRow(riga);
        copy.html += htmlRow(riga, &riga == tabella.data() ? "th" : "td");
    }
    copy.html += "</table>\n";
    return copy;
}

} // namespace planner
