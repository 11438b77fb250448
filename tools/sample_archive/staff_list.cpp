// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "sample_archive/staff_list.h"

#include "sample_archive/cp1252_from_utf8.h"

#include <array>
#include <set>
#include <stdexcept>
#include <string>

namespace planner {

namespace {

struct Persona {
    std::string cognome; // UTF-8
    std::string nome;
    std::string mansione;
};

struct PersonaNota {
    std::string_view cognome;
    std::string_view nome;
    std::string_view mansione;
};

// The office as long as it is small. Accents, a curly apostrophe, an over-long name and repeated initials are
// there on purpose: they are what the planner's windows must cope with.
constexpr std::array Ufficio12{
    PersonaNota{"Rossi", "Bruno", "Titolare dello studio"},
    PersonaNota{"Bianchi", "Laura", "Dottore commercialista"},
    PersonaNota{"Rossi", "Mario", "Contabilità ordinaria"},
    PersonaNota{"D'Amico", "Nicolò", "Consulente del lavoro"},
    PersonaNota{"Ferrari", "Giulia", "Dichiarazioni dei redditi"},
    PersonaNota{"Dell’Orto", "Anna", "Paghe e contributi"},
    PersonaNota{"Cantù", "Elena", "Contabilità semplificata"},
    PersonaNota{"Esposito", "Gennaro", "Dichiarazioni IVA"},
    PersonaNota{"Degli Alessandri Montecuccoli", "Maria Vittoria", "Revisione legale e qualità"},
    PersonaNota{"Russo", "Beatrice", "Bilanci e società"},
    PersonaNota{"Colombo", "Noè", "Praticante"},
    PersonaNota{"Zanetti", "Paola", "Segreteria"},
};

constexpr std::array<std::string_view, 40> Cognomi{
    "Amato",    "Barbieri",   "Basile",  "Bellini",   "Benedetti", "Bruno",  "Caruso",  "Cattaneo",
    "Conti",    "Costa",      "De Luca", "De Santis", "Fabbri",    "Farina", "Fiore",   "Fontana",
    "Gallo",    "Gatti",      "Gentile", "Giordano",  "Grassi",    "Greco",  "Leone",   "Lombardi",
    "Longo",    "Mancini",    "Mariani", "Marino",    "Martini",   "Mazza",  "Messina", "Moretti",
    "Palmieri", "Pellegrini", "Ricci",   "Rinaldi",   "Sala",      "Serra",  "Villa",   "Viganò"};

constexpr std::array<std::string_view, 25> Nomi{
    "Alberto", "Alice", "Andrea", "Carla",  "Chiara", "Davide", "Emma",   "Fabio",   "Franco",
    "Giada",   "Irene", "Luca",   "Marco",  "Marta",  "Matteo", "Mosè",   "Niccolò", "Paolo",
    "Pietro",  "Rita",  "Sara",   "Silvia", "Sofia",  "Teresa", "Valeria"};

constexpr std::array<std::string_view, 8> Mansioni{"Contabilità ordinaria",
                                                   "Contabilità semplificata",
                                                   "Dichiarazioni dei redditi",
                                                   "Dichiarazioni IVA",
                                                   "Paghe e contributi",
                                                   "Bilanci e società",
                                                   "Praticante",
                                                   "Segreteria"};

/// Different for every `index` below CollaboratoriMassimi: surnames turn fastest, and each meets every
/// first name once.
Persona persona(std::size_t index) {
    if (index < Ufficio12.size()) {
        const PersonaNota& nota = Ufficio12[index];
        return {std::string(nota.cognome), std::string(nota.nome), std::string(nota.mansione)};
    }
    const std::size_t further = index - Ufficio12.size();
    const std::size_t cognome = further % Cognomi.size();
    const std::size_t nome = (further / Cognomi.size() + cognome * 7) % Nomi.size();
    return {std::string(Cognomi[cognome]), std::string(Nomi[nome]),
            std::string(Mansioni[index % Mansioni.size()])};
}

/// Hands out two-character codes, each once.
class Codici {
public:
    /// The initials, else the surname's initial with a further character, else any free code.
    std::string assign(char initial, char second) {
        constexpr std::string_view characters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
        if (isFree(initial, second)) {
            return take(initial, second);
        }
        for (const char character : characters) {
            if (isFree(initial, character)) {
                return take(initial, character);
            }
        }
        for (const char first : characters) {
            for (const char character : characters) {
                if (isFree(first, character)) {
                    return take(first, character);
                }
            }
        }
        throw std::invalid_argument("more staff than codes");
    }

private:
    bool isFree(char first, char second) const { return !m_taken.contains({first, second}); }
    std::string take(char first, char second) {
        m_taken.insert({first, second});
        return {first, second};
    }

    std::set<std::string> m_taken{std::string(CodiceSconosciuto)};
};

std::string windowsText(const std::string& utf8) {
    return cp1252FromUtf8(utf8).value();
}

} // namespace

std::vector<Collaboratore> creaCollaboratori(int count) {
    Codici codici;
    std::vector<Collaboratore> collaboratori(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < collaboratori.size(); ++i) {
        const Persona chi = persona(i);
        collaboratori[i].codice.assign(codici.assign(chi.cognome.front(), chi.nome.front()));
        collaboratori[i].nome.assign(windowsText(chi.cognome + " " + chi.nome));
        collaboratori[i].mansione.assign(windowsText(chi.mansione));
    }
    return collaboratori;
}

} // namespace planner
