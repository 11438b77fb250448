// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/plfgraf.h"

#include <algorithm>
#include <utility>

namespace planner {

namespace {

constexpr int TastoEsc = 27;

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
    for (const Grafico* grafico : {&m_MSChartm, &m_MSChartg, &m_MSCharta}) {
        if (grafico->Visible) {
            return grafico;
        }
    }
    return nullptr;
}

void plfgraf::mostra(Grafico& grafico) {
    for (Grafico* each : {&m_MSChartm, &m_MSChartg, &m_MSCharta}) {
        each->Visible = each == &grafico;
    }
    grafico.avviso = m_avviso;
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
    for (Grafico* grafico : {&m_MSChartm, &m_MSChartg, &m_MSCharta}) {
        if (grafico->Visible) {
            ImpostaTipoGrafico(*grafico, m_OptTipoGrafico == 0);
        }
    }
}

bool plfgraf::Form_KeyDown(int tasto) {
    return tasto == TastoEsc;
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
