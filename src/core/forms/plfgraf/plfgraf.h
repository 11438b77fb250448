// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/tables.h"
#include "forms/plfgraf/grafico.h"
#include "forms/tasti.h"
#include "forms/twips.h"
#include "session/calendario.h"
#include "session/staff.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace planner {

/// The captions of the option buttons `OptTipoGrafico`, by index.
inline constexpr std::array<std::string_view, 3> OpzioniTipoGrafico{"Istogramma", "Linee", "Torta"};

struct DescrizioneComandoGrafico {
    std::string_view nome;
    std::string_view didascalia;
    std::string_view scorciatoia;
};

/// What can be done with a chart, from left to right.
enum class ComandoGrafico : std::uint8_t { copia, salva, stampa };

/// By command.
inline constexpr std::array<DescrizioneComandoGrafico, 3> ComandiGrafico{{
    {"copia", "Copia i valori", "Ctrl+C"},
    {"salva", "Salva il grafico…", "Ctrl+S"},
    {"stampa", "Stampa…", "Ctrl+P"},
}};

/// The chart window's logic: the contents of the three charts, what kind they are, and where they stand.
class plfgraf {
public:
    /// The window's inner size before its first resize.
    static constexpr Dimensioni Progetto{9000, 6000};

    /// Reads both whenever a chart is built; they must outlive the window. `avviso` is what the user must
    /// know of the data, UTF-8; each chart carries it.
    plfgraf(const Archivi& archivi, const Calendario& calendario, std::string avviso = {});

    const Grafico& MSChartm() const { return m_grafici[0]; }
    const Grafico& MSChartg() const { return m_grafici[1]; }
    const Grafico& MSCharta() const { return m_grafici[2]; }
    /// The chart built last; null before any was.
    const Grafico* visibile() const;

    /// The builders show their chart, hide the other two, and fill it for the day that the calendar shows.
    /// What fails leaves the chart as far as it was filled; an error in a record names file, record and
    /// field. The kind of chart stays as it is.

    /// The hours of one staff member on each day of the month. Throws SubscriptError for an index outside the
    /// staff table and for a day that is none, TypeMismatchError for a day that is no number, OverflowError
    /// for hours beyond 16 bits.
    void VisualizzaGraficoMensile(IndiceCollaboratore collab);
    /// The hours of every staff member on the day; `collab` names the series. Throws SubscriptError,
    /// OverflowError.
    void VisualizzaGraficoGiornaliero(IndiceCollaboratore collab);
    /// For each month of the year the hours of its last record, of whatever staff member. Throws
    /// SubscriptError, TypeMismatchError, OverflowError.
    void VisualizzaGraficoAnnuale();

    /// Selects an option and gives the visible chart its kind: "Istogramma" bars, both others a pie. Indexes
    /// without an option do nothing.
    void OptTipoGrafico_Click(int index);
    /// The selected option, 0 at first.
    int OptTipoGrafico() const { return m_OptTipoGrafico; }

    /// True when the key, as a virtual-key code, closes the window.
    static bool Form_KeyDown(int tasto) { return tasto == TastoEscape; }

    /// Places charts and frame in a window of the given inner size, in twips; a height that leaves the charts
    /// none changes nothing.
    void Form_Resize(Dimensioni interno);
    /// The size of `FrameTipo_Grafico` in twips, which hangs on the fonts; the next resize places it.
    void setDimensioniFrame(Dimensioni frame);

    /// In twips. The three charts lie on each other.
    const Rettangolo& posizioneGrafici() const { return m_posizioneGrafici; }
    /// Over the upper right corner of the charts.
    const Rettangolo& posizioneFrameTipo_Grafico() const { return m_posizioneFrame; }

private:
    static void ImpostaTipoGrafico(Grafico& grafico, bool istogramma);
    Grafico& mostra(std::size_t quale);

    const Archivi& m_archivi;
    const Calendario& m_calendario;
    std::string m_avviso;
    std::array<Grafico, 3> m_grafici;
    int m_OptTipoGrafico = 0;
    Rettangolo m_posizioneGrafici{250, 150, 0, 0};
    Rettangolo m_posizioneFrame{0, 0, 0, 0};
};

} // namespace planner
