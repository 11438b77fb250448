// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/stampa/documento.h"
#include "forms/stampa/legenda.h"
#include "forms/stampa/totali.h"

#include <functional>

namespace planner {

/// Letters on paper, in points.
inline constexpr double CorpoTitolo = 13;
inline constexpr double CorpoTesto = 9;
inline constexpr double CorpoLegenda = 7.5;

/// A row or a column on a page: which one it is, where it begins and how far it reaches, in points.
struct Banda {
    int indice;
    double inizio, ampiezza;

    double fine() const { return inizio + ampiezza; }
};

/// A table as it stands on each of its pages: names at the left, headings on top.
struct TabellaPosta {
    AreaStampa angolo;          // beside the headings, above the names
    double altezzaRiga = 0;     // of each row
    std::vector<Banda> testa;   // rows of headings, from the angolo's top on
    std::vector<Banda> colonne; // beside the names

    double destra() const { return colonne.empty() ? angolo.destra() : colonne.back().fine(); }
};

/// One page. Every page bears title, headings, names and foot; the grid's bear the legend too.
struct PaginaStampa {
    bool totali;              // a page of totals, else of the grid
    std::vector<Banda> righe; // rows of the grid, or of `TotaliMostrati`
};

/// Where everything stands on the pages, in points.
struct Impaginazione {
    Carta carta;
    AreaStampa titolo, piede;
    std::vector<VocePosta> legenda;
    TabellaPosta griglia;
    double corpoCaselle = CorpoTesto; // letters of the numbers in the grid's cells
    TabellaPosta totali;
    TotaliMostrati numeri; // that the pages of totals show
    std::vector<PaginaStampa> pagine;
};

/// Lays the document out: at least one page, none with half a row. Throws what `totaliMostrati` does.
Impaginazione impagina(const DocumentoStampa& documento, const MisuraTesto& misura);

/// "pagina 2 di 3", the page being counted from 0, and "Stampato il 15/03/2006".
std::string testoPagina(std::size_t pagina, std::size_t pagine);
std::string testoStampatoIl(Data oggi);

/// Where an appointment's bar stands in its row: in its lane, from its first to its last column.
AreaStampa areaFascia(const TabellaPosta& griglia, const Banda& riga, const FasciaImpegno& fascia);

} // namespace planner
