// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <optional>
#include <string_view>

namespace planner {

/// Positions on the toolbar, counted from 1 with the separators.
enum class Pulsante : int {
    exit = 2,
    coll = 4,
    filtri = 6,
    agenda = 8,
    consult = 10,
    insimp = 11,
    dettno = 13,
    dettsi = 14,
    grafici = 15,
    info = 17,
};

/// One button of the toolbar.
struct DescrizionePulsante {
    Pulsante posizione;
    std::string_view chiave;      // also the name of its picture
    std::string_view didascalia;  // Italian
    std::string_view scorciatoia; // keyboard shortcut, empty for none
};

/// The buttons in their order; the positions between them are separators.
inline constexpr std::array PulsantiToolbar{
    DescrizionePulsante{Pulsante::exit, "exit", "Uscita", "Ctrl+Q"},
    DescrizionePulsante{Pulsante::coll, "coll", "Selezione Collaboratori", "Ctrl+L"},
    DescrizionePulsante{Pulsante::filtri, "filtri", "Filtri", "Ctrl+I"},
    DescrizionePulsante{Pulsante::agenda, "agenda", "Agenda", "Ctrl+E"},
    DescrizionePulsante{Pulsante::consult, "consult", "Consultazione", ""},
    DescrizionePulsante{Pulsante::insimp, "insimp", "Inserimento impegni", "Ctrl+N"},
    DescrizionePulsante{Pulsante::dettno, "dettno", "Planner non dettagliato", "Ctrl+M"},
    DescrizionePulsante{Pulsante::dettsi, "dettsi", "Planner dettagliato", "Ctrl+M"},
    DescrizionePulsante{Pulsante::grafici, "grafici", "Grafici", "Ctrl+G"},
    DescrizionePulsante{Pulsante::info, "info", "Informazioni", "Shift+F1"},
};

/// The buttons whose commands the grids' menu repeats, in its order.
inline constexpr std::array PulsantiMenu{Pulsante::consult, Pulsante::insimp, Pulsante::agenda,
                                         Pulsante::dettno, Pulsante::dettsi};

/// The grids' own commands, which no button repeats.
enum class ComandoGriglia : std::uint8_t {
    leggi,
    copia,
    stampa,
    stampaConTotali,
    ingrandisci,
    riduci,
    grandezzaNormale,
    cerca,
    cercaAncora,
    vaiAData,
    vaiAOggi,
    guida,
};

struct DescrizioneComandoGriglia {
    ComandoGriglia comando;
    std::string_view nome;
    std::string_view didascalia;  // Italian
    std::string_view scorciatoia; // keyboard shortcuts, separated by "; "
    bool primoDelGruppo = false;  // a line stands before it in the menu
};

/// By command; the grids' menu has them below the buttons', in this order, and the jumps before the last
/// group.
inline constexpr std::array ComandiGriglia{
    DescrizioneComandoGriglia{ComandoGriglia::leggi, "leggi", "Leggi", "Ctrl+Space"},
    DescrizioneComandoGriglia{ComandoGriglia::copia, "copia", "Copia la tabella", "Ctrl+C"},
    DescrizioneComandoGriglia{ComandoGriglia::stampa, "stampa", "Stampa…", "Ctrl+P"},
    DescrizioneComandoGriglia{ComandoGriglia::stampaConTotali, "stampaConTotali", "Stampa con i totali…",
                              "Ctrl+Shift+P"},
    DescrizioneComandoGriglia{ComandoGriglia::ingrandisci, "ingrandisci", "Ingrandisci",
                              "Ctrl++; Ctrl+=", true},
    DescrizioneComandoGriglia{ComandoGriglia::riduci, "riduci", "Riduci", "Ctrl+-"},
    DescrizioneComandoGriglia{ComandoGriglia::grandezzaNormale, "grandezzaNormale", "Grandezza normale",
                              "Ctrl+0"},
    DescrizioneComandoGriglia{ComandoGriglia::cerca, "cercaCollaboratore", "Cerca collaboratore…", "Ctrl+F",
                              true},
    DescrizioneComandoGriglia{ComandoGriglia::cercaAncora, "cercaAncora", "Cerca ancora", "F3"},
    DescrizioneComandoGriglia{ComandoGriglia::vaiAData, "vaiAData", "Vai alla data…", "Ctrl+D"},
    DescrizioneComandoGriglia{ComandoGriglia::vaiAOggi, "vaiAOggi", "Vai a oggi", "Ctrl+T"},
    DescrizioneComandoGriglia{ComandoGriglia::guida, "guida", "Guida", "F1", true},
};

/// The button that stands in the same place and takes turns with it; nothing for a button of its own place.
constexpr std::optional<Pulsante> gemello(Pulsante pulsante) {
    return pulsante == Pulsante::dettno   ? std::optional(Pulsante::dettsi)
           : pulsante == Pulsante::dettsi ? std::optional(Pulsante::dettno)
                                          : std::nullopt;
}

/// Which buttons can be used and seen.
class StatoToolbar {
public:
    StatoToolbar();

    bool enabled(Pulsante pulsante) const { return m_enabled.test(index(pulsante)); }
    bool visible(Pulsante pulsante) const { return m_visible.test(index(pulsante)); }
    void setEnabled(Pulsante pulsante, bool enabled) { m_enabled.set(index(pulsante), enabled); }
    void setVisible(Pulsante pulsante, bool visible) { m_visible.set(index(pulsante), visible); }

    /// Every button usable, and of the pair "dettno"/"dettsi", which stands in one place, the one that
    /// switches away from the given form.
    void reset(bool dettagliato);
    /// Swaps the pair: exactly one of the two is visible and enabled.
    void setDettagliato(bool dettagliato);
    /// The grid shows details exactly while "dettno" can be pressed.
    bool dettagliato() const { return enabled(Pulsante::dettno); }

private:
    static std::size_t index(Pulsante pulsante) { return static_cast<std::size_t>(pulsante); }

    std::bitset<18> m_enabled;
    std::bitset<18> m_visible;
};

} // namespace planner
