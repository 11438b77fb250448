// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/plfgraf.h"

#include <algorithm>
#include <utility>

namespace planner {

namespace {

// The room that the charts leave in the window, and where the frame stands on them; twips.
constexpr int MargineVerticale = 700;
constexpr int MargineOrizzontale = 500;
constexpr int FrameDaDestra = 500;
constexpr int FrameDallAlto = 100;

} // namespace

plfgraf::plfgraf(const Archivi& archivi, const Calendario& calendario, std::string avviso)
    : m_archivi(archivi), m_calendario(calendario), m_avviso(std::move(avviso)) {
    Form_Resize(Progetto);
}

const Grafico* plfgraf::visibile() const {
    const auto found =
        std::find_if(m_grafici.begin(), m_grafici.end(), [](const Grafico& each) { return each.Visible; });
    return found == m_grafici.end() ? nullptr : &*found;
}

Grafico& plfgraf::mostra(std::size_t quale) {
    for (Grafico& each : m_grafici) {
        each.Visible = &each == &m_grafici.at(quale);
    }
    constexpr std::array<std::string_view, 3> names{"MSChartm", "MSChartg", "MSCharta"};
    Grafico& grafico = m_grafici.at(quale);
    grafico.nome = names.at(quale);
    grafico.avviso = m_avviso;
    return grafico;
}

void plfgraf::ImpostaTipoGrafico(Grafico& grafico, bool istogramma) {
    if (!grafico.serie.empty()) { // the kind is one of the series: a chart without any has none to set
        grafico.tipo = istogramma ? TipoGrafico::Istogramma : TipoGrafico::Torta;
    }
}

void plfgraf::OptTipoGrafico_Click(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= OpzioniTipoGrafico.size()) {
        return;
    }
    m_OptTipoGrafico = index;
    for (Grafico& grafico : m_grafici) {
        if (grafico.Visible) {
            ImpostaTipoGrafico(grafico, m_OptTipoGrafico == 0);
        }
    }
}

void plfgraf::Form_Resize(Dimensioni interno) {
    if (interno.height <= MargineVerticale) {
        return;
    }
    m_posizioneGrafici.Height = interno.height - MargineVerticale;
    m_posizioneGrafici.Width = std::max(interno.width, MargineOrizzontale) - MargineOrizzontale;
    m_posizioneFrame.Left = m_posizioneGrafici.Width - m_posizioneFrame.Width - FrameDaDestra;
    m_posizioneFrame.Top = m_posizioneGrafici.Top + FrameDallAlto;
}

void plfgraf::setDimensioniFrame(Dimensioni frame) {
    m_posizioneFrame.Width = frame.width;
    m_posizioneFrame.Height = frame.height;
}

} // namespace planner
