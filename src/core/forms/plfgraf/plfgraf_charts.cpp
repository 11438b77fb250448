// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/numeric_value.h"
#include "forms/plfgraf/chart_rules.h"
#include "forms/plfgraf/plfgraf.h"
#include "forms/plfgraf/plfgraf_values.h"
#include "ports/runtime_errors.h"
#include "session/calendar_rules.h"

namespace planner {

namespace {

constexpr std::size_t CaratteriLegenda = 30;
constexpr std::string_view TitoloOre = "Ore";
constexpr Penna PennaNera{{0, 0, 0}, 4};

constexpr std::array<std::string_view, 12> MesiBrevi{"Gen", "Feb", "Mar", "Apr", "Mag", "Giu",
                                                     "Lug", "Ago", "Set", "Ott", "Nov", "Dic"};

std::string voceGiorno(int giorno, const Calendario& calendario) {
    const std::string number = std::to_string(giorno);
    const bool exists = giorno <= lunghezzaMese(giorniMese(calendario.Year()), calendario.Month());
    return exists ? number + " " + meseInFrase(calendario.Month()) : "giorno " + number;
}

/// The month that the calendar shows, inside a sentence: "marzo 2006".
std::string meseMostrato(const Calendario& calendario) {
    return meseInFrase(calendario.Month()) + " " + std::to_string(calendario.Year());
}

std::string intestazioneMensile(const Collaboratore& collaboratore, const Calendario& calendario) {
    const std::string name(collaboratore.nome.trimmed());
    const std::string code(collaboratore.codice.trimmed());
    const std::string chi = !name.empty() ? "di " + name : !code.empty() ? "di " + code : "senza nome";
    return "Ore " + chi + " - " + meseMostrato(calendario);
}

std::string intestazioneGiornaliera(const Calendario& calendario) {
    return "Ore dei collaboratori - " + std::to_string(calendario.Day()) + " " + meseMostrato(calendario);
}

std::string intestazioneAnnuale(const Calendario& calendario) {
    return "Ore dell'anno " + std::to_string(calendario.Year());
}

std::string voceCollaboratore(const Collaboratore& collaboratore) {
    const std::string name(collaboratore.nome.trimmed());
    const std::string code(collaboratore.codice.trimmed());
    if (name.empty()) {
        return code.empty() ? "senza nome" : code;
    }
    return code.empty() ? name : name + " (" + code + ")";
}

void setUnaSerie(Grafico& grafico, std::vector<double> valori) {
    grafico.serie.resize(1);
    grafico.serie.front().valori = std::move(valori);
}

void setDodiciSerie(Grafico& grafico, const std::vector<double>& valori) {
    grafico.serie.resize(ColoriMesi.size());
    for (std::size_t month = 0; month < ColoriMesi.size(); ++month) {
        grafico.serie.at(month).valori = {valori.at(month)};
        grafico.serie.at(month).colore = ColoriMesi.at(month);
    }
}

void setEtichetteGiorni(Grafico& grafico, const Calendario& calendario) {
    grafico.etichette.clear();
    grafico.voci.clear();
    for (int giorno = 1; giorno <= static_cast<int>(GiorniMassimi); ++giorno) {
        grafico.etichette.push_back(std::to_string(giorno));
        grafico.voci.push_back(voceGiorno(giorno, calendario));
    }
}

void setEtichetteCollaboratori(Grafico& grafico, std::span<const Collaboratore> staff) {
    grafico.etichette.clear();
    grafico.voci.clear();
    for (const Collaboratore& collaboratore : staff) {
        grafico.etichette.push_back(collaboratore.codice.text());
        grafico.voci.push_back(voceCollaboratore(collaboratore));
    }
}

void setEtichetteMesi(Grafico& grafico, const Calendario& calendario) {
    grafico.etichette = {""};
    grafico.voci.clear();
    for (std::size_t month = 0; month < MesiBrevi.size(); ++month) {
        grafico.serie.at(month).etichetta = MesiBrevi.at(month);
        grafico.voci.push_back(meseInFrase(static_cast<int>(month) + 1) + " " +
                               std::to_string(calendario.Year()));
    }
}

/// Headings, colour and scale as the monthly and the daily chart have them.
void setAssi(Grafico& grafico, std::string_view titoloX, double massimo) {
    AsseOre& asse = grafico.asseY;
    asse.titolo = TitoloOre;
    grafico.serie.front().colore = ColoreSerie;
    grafico.asseX = titoloX;
    asse.Maximum = massimoConMargine(massimo);
    asse.MajorDivision = roundTo16Bit(asse.Maximum);
}

void setAssiAnnuali(Grafico& grafico, const Calendario& calendario, double massimo) {
    constexpr std::int16_t divisions = 10;
    AsseOre& asse = grafico.asseY;
    asse.titolo = TitoloOre;
    grafico.asseX = "Anno " + std::to_string(calendario.Year());
    grafico.fontTitoliAssi = {"MS Sans Serif", 12, true};
    asse.Maximum = ArrotondaMassimo(massimo);
    asse.MajorDivision = divisions;
    asse.PennaMajor = PennaNera;
}

} // namespace

// The order of the steps shows: a step that fails leaves on the chart what those before it have set.

void plfgraf::VisualizzaGraficoMensile(IndiceCollaboratore collab) {
    Grafico& grafico = mostra(0);
    grafico.areaIncorniciata = true;
    ValoriGrafico valori = valoriMensili(m_archivi, m_calendario, collab);
    setUnaSerie(grafico, std::move(valori.valori));
    grafico.TitleText = "Planner Mensile";
    grafico.voceUna = "giorno";
    grafico.voceMolte = "giorni";
    grafico.titoloIncorniciato = true;
    setEtichetteGiorni(grafico, m_calendario);
    const Collaboratore& collaboratore = collaboratoreGrafico(m_archivi, collab);
    grafico.intestazione = intestazioneMensile(collaboratore, m_calendario);
    grafico.serie.front().etichetta = trimRight(slice(collaboratore.nome.view(), 0, CaratteriLegenda));
    setAssi(grafico, "Giorni", valori.massimo);
}

void plfgraf::VisualizzaGraficoGiornaliero(IndiceCollaboratore collab) {
    Grafico& grafico = mostra(1);
    ValoriGrafico valori = valoriGiornalieri(m_archivi, m_calendario);
    setUnaSerie(grafico, std::move(valori.valori));
    grafico.TitleText = "Planner Giornaliero";
    grafico.voceUna = "collaboratore";
    grafico.voceMolte = "collaboratori";
    grafico.intestazione = intestazioneGiornaliera(m_calendario);
    setEtichetteCollaboratori(grafico, collaboratoriGrafico(m_archivi));
    grafico.serie.front().etichetta = collaboratoreGrafico(m_archivi, collab).nome.trimmedRight();
    setAssi(grafico, "Collaboratori", valori.massimo);
}

void plfgraf::VisualizzaGraficoAnnuale() {
    Grafico& grafico = mostra(2);
    grafico.areaIncorniciata = true;
    const ValoriGrafico valori = valoriAnnuali(m_archivi, m_calendario);
    setDodiciSerie(grafico, valori.valori);
    // Without any record there is nothing that the title could be about.
    grafico.TitleText = righeGrafico(m_archivi).empty() ? "" : "Planner Annuale";
    grafico.titoloIncorniciato = true;
    grafico.intestazione = intestazioneAnnuale(m_calendario);
    grafico.voceUna = "mese";
    grafico.voceMolte = "mesi";
    setEtichetteMesi(grafico, m_calendario);
    setAssiAnnuali(grafico, m_calendario, valori.massimo);
}

} // namespace planner
