// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfcollab/plfcollab.h"

#include "archive/cp1252.h"
#include "archive/fixed_text.h"
#include "forms/ricerca.h"
#include "ports/guard.h"

#include <algorithm>
#include <numeric>

namespace planner {

plfcollab::plfcollab(modpl& sessione, const Calendario& calendario, const Porte& porte)
    : m_sessione(sessione), m_calendario(calendario), m_porte(porte) {}

template <typename Command>
void plfcollab::esegui(Command command) {
    runCommand(m_porte.messaggi, command);
    m_porte.vista().aggiorna();
}

void plfcollab::show() {
    m_shown = true;
    m_porte.vista().aggiornaRighe();
    m_porte.vista().mostra();
}

void plfcollab::unload() {
    if (!m_shown) {
        return;
    }
    m_shown = false;
    m_ricordate.clear();
    m_porte.vista().nascondi();
}

void plfcollab::Toolbar_pren_ButtonClick(int indice) {
    switch (static_cast<ComandoCollab>(indice)) {
    case ComandoCollab::selezionaTutti:
        return esegui([&] { m_lista.spuntaTutte(true); });
    case ComandoCollab::deselezionaTutti:
        return esegui([&] { m_lista.spuntaTutte(false); });
    case ComandoCollab::soloSelezionati:
        return esegui([&] { mostraSoloSpuntate(); });
    case ComandoCollab::visualizzaTutti:
        return esegui([&] { spuntaRicordate(); });
    case ComandoCollab::cerca:
        return esegui([&] { cerca(); });
    case ComandoCollab::ordina:
        return esegui([&] { ordina(); });
    case ComandoCollab::conferma:
        return esegui([&] { conferma(); });
    }
}

void plfcollab::mostraSoloSpuntate() {
    if (m_lista.spuntate() > MassimoRicordate) {
        throw SubscriptError();
    }
    m_ricordate.clear();
    for (int riga = 0; riga < m_lista.righe(); ++riga) {
        if (m_lista.riga(riga).spuntata) {
            m_ricordate.push_back(riga + 1);
        }
    }
    m_lista.tieniSpuntate();
    righeCambiate();
}

void plfcollab::righeCambiate() {
    m_porte.vista().aggiornaRighe();
    if (const auto selezionata = m_lista.selezionata()) {
        m_porte.vista().portaInVista(*selezionata);
    }
}

void plfcollab::spuntaRicordate() {
    // The positions are those of the list as it was; rows that are gone stay gone.
    for (const int posizione : m_ricordate) {
        if (posizione <= m_lista.righe()) {
            m_lista.spunta(posizione - 1, true);
        }
    }
}

void plfcollab::cerca() {
    const auto testo = m_porte.vista().chiediTesto("Cerca collaboratore", m_testoCercato);
    if (testo && !testo->empty()) {
        m_testoCercato = *testo;
        cercaTesto();
    }
}

void plfcollab::cercaAncora() {
    esegui([&] { m_testoCercato.empty() ? cerca() : cercaTesto(); });
}

void plfcollab::cercaTesto() {
    const auto riga = trova(m_testoCercato);
    if (!riga) {
        m_porte.messaggi.information("Collaboratore non trovato");
        return;
    }
    m_lista.seleziona(riga);
    m_porte.vista().portaInVista(*riga);
}

std::optional<int> plfcollab::trova(const std::string& testo) const {
    const int corrente = m_lista.selezionata().value_or(-1);
    return cercaRiga(m_porte.alfabeto, testo, m_lista.righe(), corrente, [this](int riga) {
        return TestiCercati{m_lista.riga(riga).nome, m_lista.riga(riga).codice};
    });
}

void plfcollab::ordina() {
    const bool crescente = m_lista.ordinamento() != Ordinamento::crescente;
    std::vector<std::string> nomi;
    nomi.reserve(static_cast<std::size_t>(m_lista.righe()));
    for (int riga = 0; riga < m_lista.righe(); ++riga) {
        nomi.push_back(utf8FromCp1252(m_lista.riga(riga).nome));
    }
    std::vector<int> indici(nomi.size());
    std::iota(indici.begin(), indici.end(), 0);
    std::stable_sort(indici.begin(), indici.end(), [&](int a, int b) {
        const int rank = m_porte.alfabeto.compare(nomi[static_cast<std::size_t>(a)], //
                                                  nomi[static_cast<std::size_t>(b)]);
        return crescente ? rank < 0 : rank > 0;
    });
    m_lista.riordina(indici, crescente ? Ordinamento::crescente : Ordinamento::decrescente);
    righeCambiate();
}

void plfcollab::conferma() {
    const auto selezionata = m_lista.selezionata();
    if (!selezionata) {
        m_porte.messaggi.information(std::string(TestoScegliere));
        return;
    }
    m_sessione.collab = m_lista.riga(*selezionata).codice;
    m_sessione.valret = m_calendario.risposta(m_sessione.collab, "C");
    m_sessione.FinePlanner = true;
    unload();
}

void plfcollab::ButtonFrecce_Click(int indice) {
    const VistaPlfcollab& vista = m_porte.vista();
    const int prima = vista.primaRigaVisibile();
    const int pagina = vista.righePerPagina();
    const int ultima = std::max(m_lista.righe() - pagina, 0);
    const auto scroll = [&](int riga) { m_porte.vista().scorriA(std::clamp(riga, 0, ultima)); };
    switch (static_cast<Freccia>(indice)) {
    case Freccia::rigaSu:
        return scroll(prima - 1);
    case Freccia::rigaGiu:
        return scroll(prima + 1);
    case Freccia::paginaSu:
        return scroll(prima - pagina);
    case Freccia::paginaGiu:
        return scroll(prima + pagina);
    case Freccia::inizio:
        return scroll(0);
    case Freccia::fine:
        return scroll(ultima);
    }
}

void plfcollab::List_Prenotazione_ItemClick(std::optional<int> riga) {
    const bool known = riga && *riga >= 0 && *riga < m_lista.righe();
    m_lista.seleziona(known ? riga : std::nullopt);
}

void plfcollab::List_Prenotazione_ItemCheck(int riga, bool spuntata) {
    if (riga >= 0 && riga < m_lista.righe()) {
        m_lista.spunta(riga, spuntata);
        m_porte.vista().aggiorna();
        m_porte.vista().annuncia((spuntata ? "spuntato, " : "non spuntato, ") + conteggio());
    }
}

std::string plfcollab::conteggio() const {
    const auto count = [](int number, std::string_view one, std::string_view several) {
        return std::to_string(number) + std::string(number == 1 ? one : several);
    };
    const std::string ticks = count(m_lista.spuntate(), " spuntato su ", " spuntati su ") + //
                              std::to_string(m_lista.righe());
    return m_lista.tolte() == 0
               ? ticks
               : ticks + ", " + count(m_lista.tolte(), " tolto dall'elenco", " tolti dall'elenco");
}

std::string fraseCollaboratore(const RigaCollaboratore& riga) {
    std::string frase;
    for (const std::string_view part :
         {std::string_view(riga.nome), trim(riga.codice), std::string_view(riga.mansione)}) {
        if (!part.empty()) {
            frase += utf8FromCp1252(part) + ", ";
        }
    }
    return frase + (riga.spuntata ? "spuntato" : "non spuntato");
}

} // namespace planner
