// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/stampa/impaginazione.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace planner {

namespace {

constexpr double Margine = 28; // a centimetre, which every printer reaches
constexpr double AltezzaTitolo = 22;
constexpr double AltezzaPiede = 14;
constexpr double Distanza = 4; // between the parts of a page
constexpr double AltezzaTesta = 14;
constexpr double AltezzaTestaTotali = 26; // two lines of words
constexpr double RigaBassa = 15;
constexpr double RigaMinima = 17; // with drawings that can be told apart
constexpr double RigaMassima = 24;
constexpr double MeseMassimo = 0.07; // a row of the yearly grid, of the sheet's height
constexpr double ColonnaMassima = 30;
constexpr double TotaleMassimo = 90; // a column of totals
constexpr double SpazioNome = 8;     // beside a name
constexpr double NomeMinimo = 70;
constexpr double ParteNomi = 3; // at most this part of the sheet's width

/// What title and foot leave.
AreaStampa areaUtile(const Carta& carta) {
    const double top = Margine + AltezzaTitolo + Distanza;
    return {Margine, top, std::max(carta.larghezza - 2 * Margine, 1.0),
            std::max(carta.altezza - top - Margine - AltezzaPiede - Distanza, 1.0)};
}

double nameWidth(const DocumentoStampa& documento, const std::vector<std::string>& nomi,
                 const MisuraTesto& misura) {
    double widest = NomeMinimo;
    for (const std::string& nome : nomi) {
        widest = std::max(widest, misura(nome, CorpoTesto, true) + SpazioNome);
    }
    return std::min(widest, documento.carta.larghezza / ParteNomi);
}

/// The names and what stands in the corner; appointments without an hour stand beside them.
std::vector<std::string> gridNames(const DocumentoStampa& documento, const std::vector<int>& righe) {
    std::vector<std::string> nomi;
    nomi.reserve(righe.size() + static_cast<std::size_t>(documento.griglia().FixedRows()));
    for (int riga = 0; riga < documento.griglia().FixedRows(); ++riga) {
        nomi.push_back(testoStampato(documento.griglia(), {riga, 0}));
    }
    for (const int riga : righe) {
        nomi.push_back(testoStampato(documento.griglia(), {riga, 0}));
    }
    return nomi;
}

std::vector<Banda> bands(const std::vector<int>& indici, double inizio, double ampiezza) {
    std::vector<Banda> bande;
    for (const int indice : indici) {
        bande.push_back({indice, inizio, ampiezza});
        inizio += ampiezza;
    }
    return bande;
}

std::vector<int> upTo(std::size_t count) {
    std::vector<int> numbers(count);
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

double columnWidth(const AreaStampa& area, double nomi, std::size_t colonne, double massima) {
    return colonne == 0 ? 0 : std::min((area.larghezza - nomi) / static_cast<double>(colonne), massima);
}

double rowHeight(const DocumentoStampa& documento, double colonna, double room) {
    const RegoleTipo& tipo = documento.tipo();
    if (!tipo.perCollaboratore) {
        constexpr double months = 12;
        return std::min(room / months, MeseMassimo * documento.carta.altezza);
    }
    if (!documento.controlli.Toolbar1.dettagliato()) {
        return RigaBassa;
    }
    return tipo.unGiorno ? RigaMassima : std::clamp(colonna, RigaMinima, RigaMassima);
}

TabellaPosta placeGrid(const DocumentoStampa& documento, const AreaStampa& area,
                       const std::vector<int>& righe, const MisuraTesto& misura) {
    const Griglia& griglia = documento.griglia();
    const std::vector<int> colonne = colonneStampate(documento.controlli);
    const bool picturesBesideNames = documento.tipo().unGiorno;
    const double nomi = std::min(nameWidth(documento, gridNames(documento, righe), misura) +
                                     (picturesBesideNames ? RigaMassima : 0),
                                 documento.carta.larghezza / ParteNomi);
    const double width = columnWidth(area, nomi, colonne.size(), ColonnaMassima);
    const double heads = AltezzaTesta * griglia.FixedRows();
    return {{area.x, area.y, nomi, heads},
            rowHeight(documento, width, area.altezza - heads),
            bands(upTo(static_cast<std::size_t>(griglia.FixedRows())), area.y, AltezzaTesta),
            bands(colonne, area.x + nomi, width)};
}

TabellaPosta placeTotals(const DocumentoStampa& documento, const AreaStampa& area,
                         const TotaliMostrati& numeri, const MisuraTesto& misura) {
    std::vector<std::string> nomi;
    for (const TotaliMostrati::Riga& riga : numeri.righe) {
        nomi.push_back(riga.nome);
    }
    const double names = nameWidth(documento, nomi, misura);
    const double width = columnWidth(area, names, numeri.nomi.size(), TotaleMassimo);
    return {{area.x, area.y, names, AltezzaTestaTotali},
            RigaBassa,
            {{0, area.y, AltezzaTestaTotali}},
            bands(upTo(numeri.nomi.size()), area.x + names, width)};
}

/// Numbers of days grow with their cells.
double cellLetters(const TabellaPosta& griglia) {
    constexpr double share = 0.42;
    constexpr double largest = 12;
    return griglia.colonne.empty()
               ? CorpoTesto
               : std::clamp(griglia.colonne.front().ampiezza * share, CorpoTesto, largest);
}

/// Shares the rows out; one page where there are none.
void addPages(std::vector<PaginaStampa>& pagine, const TabellaPosta& tabella, const std::vector<int>& righe,
              double fondo, bool totali) {
    constexpr double rounding = 0.001;
    const double room = fondo - tabella.angolo.fondo() + rounding;
    const auto perPage = static_cast<std::ptrdiff_t>(std::max(std::floor(room / tabella.altezzaRiga), 1.0));
    auto first = righe.begin();
    do {
        const auto last = first + std::min(perPage, righe.end() - first);
        pagine.push_back({totali, bands({first, last}, tabella.angolo.fondo(), tabella.altezzaRiga)});
        first = last;
    } while (first != righe.end());
}

} // namespace

Impaginazione impagina(const DocumentoStampa& documento, const MisuraTesto& misura) {
    const Carta& carta = documento.carta;
    AreaStampa area = areaUtile(carta);
    Impaginazione piano{
        .carta = carta,
        .titolo = {Margine, Margine, area.larghezza, AltezzaTitolo},
        .piede = {Margine, carta.altezza - Margine - AltezzaPiede, area.larghezza, AltezzaPiede},
        .legenda = disponiLegenda(vociLegenda(documento.controlli), area, misura),
        .griglia = {},
        .corpoCaselle = CorpoTesto,
        .totali = {},
        .numeri = {},
        .pagine = {}};
    const double fondoTotali = area.fondo();
    if (!piano.legenda.empty()) {
        area.altezza = piano.legenda.front().testo.y - Distanza - area.y;
    }
    const std::vector<int> righe = righeStampate(documento.controlli);
    piano.griglia = placeGrid(documento, area, righe, misura);
    piano.corpoCaselle = cellLetters(piano.griglia);
    addPages(piano.pagine, piano.griglia, righe, area.fondo(), /*totali=*/false);
    if (documento.totali) {
        piano.numeri = totaliMostrati(documento.controlli, documento.sessione);
        piano.totali = placeTotals(documento, area, piano.numeri, misura);
        addPages(piano.pagine, piano.totali, upTo(piano.numeri.righe.size()), fondoTotali, /*totali=*/true);
    }
    return piano;
}

std::string testoPagina(std::size_t pagina, std::size_t pagine) {
    return "pagina " + std::to_string(pagina + 1) + " di " + std::to_string(pagine);
}

std::string testoStampatoIl(Data oggi) {
    return "Stampato il " + dataBreve(oggi);
}

AreaStampa areaFascia(const TabellaPosta& griglia, const Banda& riga, const FasciaImpegno& fascia) {
    constexpr double margin = 1.5;
    double left = griglia.destra();
    double right = griglia.angolo.destra();
    for (const Banda& colonna : griglia.colonne) {
        if (fascia.copre(colonna.indice)) {
            left = std::min(left, colonna.inizio);
            right = std::max(right, colonna.fine());
        }
    }
    const double lane = (riga.ampiezza - 2 * margin) / fascia.corsie;
    return {left, riga.inizio + margin + lane * fascia.corsia, std::max(right - left, 0.0), lane};
}

} // namespace planner
