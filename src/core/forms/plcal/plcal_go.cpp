// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/lettura.h"
#include "forms/plcal/plcal.h"
#include "forms/ricerca.h"
#include "session/data_scritta.h"
#include "session/period_moves.h"

// The grids' own commands, and where the user goes by key.

namespace planner {

namespace {

/// Every day there is.
constexpr PeriodoSessione TuttiGliAnni{
    Data{std::chrono::year{AnnoMinimo}, std::chrono::January, std::chrono::day{1}},
    Data{std::chrono::year{AnnoMassimo}, std::chrono::December, std::chrono::day{31}}};

std::string fuoriPeriodo(Data giorno, const PeriodoSessione& limiti) {
    return dataBreve(giorno) + " è fuori del periodo (dal " + dataBreve(limiti.inizio) + " al " +
           dataBreve(limiti.fine) + ").";
}

} // namespace

void plcal::annunciaStato(const std::string& testo) {
    m_stato = testo;
    m_porte.vista.annuncia(testo);
}

void plcal::griglia_Comando(ComandoGriglia comando) {
    if (comando == ComandoGriglia::guida) {
        return m_porte.vista.mostraGuida();
    }
    if (!m_controlli.tipoVisibile) {
        return;
    }
    switch (comando) {
    case ComandoGriglia::leggi:
        return esegui([this] { annunciaStato(fraseLettura(m_controlli, m_sessione)); });
    case ComandoGriglia::cerca:
        return apriCampo(CampoGriglia::persona);
    case ComandoGriglia::cercaAncora:
        return m_testoCercato.empty() || !tipo().perCollaboratore ? apriCampo(CampoGriglia::persona)
                                                                  : void(cercaPersona());
    case ComandoGriglia::vaiAData:
        return apriCampo(CampoGriglia::data);
    case ComandoGriglia::vaiAOggi:
        return void(vaiA(m_contenuti.oggi()));
    default:
        return m_ingrandimento.esegui(comando) ? ingrandita() : suCarta(comando);
    }
}

void plcal::ingrandita() {
    esegui(
        [this] { annunciaStato("Ingrandimento al " + std::to_string(m_ingrandimento.percento()) + " %."); });
}

void plcal::suCarta(ComandoGriglia comando) {
    esegui([&] {
        if (m_porte.suCarta(comando)) {
            annunciaStato(comando == ComandoGriglia::copia ? "La tabella è stata copiata."
                                                           : "Il planner è stato stampato.");
        }
    });
}

void plcal::griglia_Salto(const Salto& salto) {
    std::optional<Casella> casella;
    esegui([&] {
        casella = destinazione(m_controlli, m_sessione.archivi, salto);
        if (!casella && m_controlli.tipoVisibile) {
            annunciaStato(saltoVuoto(salto));
        }
    });
    if (casella) {
        griglia_Gesto({*casella, Mezzo::frecce});
        m_porte.vista.portaCursoreInVista();
    }
}

void plcal::tastoPeriodo(const TastoPeriodo& tasto) {
    if (m_controlli.tipoVisibile == tasto.tipo) {
        if (const auto giorno = moveMonth(m_controlli.calendario.Value(), tasto.mesi, TuttiGliAnni)) {
            vaiA(*giorno);
        }
    }
}

void plcal::apriCampo(CampoGriglia campo) {
    if (campo == CampoGriglia::persona && !tipo().perCollaboratore) {
        esegui([this] { annunciaStato("Nel planner annuale non ci sono collaboratori da cercare."); });
        return;
    }
    m_porte.vista.apriCampo(descrizione(campo),
                            campo == CampoGriglia::persona ? m_testoCercato : std::string());
}

bool plcal::campo_Conferma(CampoGriglia campo, const std::string& testo) {
    if (!m_controlli.tipoVisibile || testo.empty()) {
        return true;
    }
    if (campo == CampoGriglia::data) {
        return vaiAllaData(testo);
    }
    m_testoCercato = testo;
    return cercaPersona();
}

bool plcal::cercaPersona() {
    std::optional<int> riga;
    esegui([&] {
        riga = rigaCercata();
        if (!riga) {
            annunciaStato("Nessun nome o codice contiene «" + m_testoCercato + "».");
        }
    });
    if (riga) {
        griglia_Gesto({{*riga, 0}, Mezzo::clic});
        m_porte.vista.portaCursoreInVista();
    }
    return riga.has_value();
}

std::optional<int> plcal::rigaCercata() const {
    const Griglia& grid = griglia();
    const int first = grid.FixedRows();
    const int rows = tipo().perCollaboratore ? grid.Rows() - first : 0;
    const auto found = cercaRiga(m_porte.alfabeto, m_testoCercato, rows, grid.Row() - first, [&](int riga) {
        const Collaboratore* staff =
            trovaCollaboratore(m_sessione.archivi.Collaboratori, indiceDiRiga(grid, riga + first));
        return TestiCercati{grid.TextMatrix(riga + first, 0),
                            staff == nullptr ? std::string_view() : staff->codice.view()};
    });
    return found ? std::optional(*found + first) : std::nullopt;
}

bool plcal::vaiAllaData(const std::string& testo) {
    if (const auto giorno = dataScritta(testo, m_controlli.calendario.Value())) {
        return vaiA(*giorno);
    }
    esegui([&] { annunciaStato("«" + testo + "» non è una data: scrivere per esempio 15/8."); });
    return false;
}

bool plcal::vaiA(Data giorno) {
    bool moved = false;
    esegui([&] {
        moved = mostraGiorno(giorno);
        if (!moved) {
            const Data shown = m_controlli.calendario.Value();
            annunciaStato(fuoriPeriodo(giorno, tipo().limiti(m_sessione.periodo, shown)));
        }
    });
    if (moved) {
        m_porte.vista.portaCursoreInVista();
    }
    return moved;
}

} // namespace planner
