// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/plcal.h"
#include "ui/kit/appearance.h"
#include "ui/kit/controls.h"
#include "ui/kit/fitted_label.h"
#include "ui/kit/screen_scale.h"
#include "ui/plcal/command_bar.h"
#include "ui/plcal/grid_view.h"
#include "ui/plcal/legend_bar.h"
#include "ui/plcal/plcal_window.h"
#include "ui/plcal/prompt_field.h"
#include "ui/plcal/shown_calendar.h"

#include <QScreen>

#include <algorithm>

// Where the controls stand.

namespace planner {

namespace {

constexpr double TitleFontFactor = 1.5;

} // namespace

Dimensioni PlcalWindow::schermo() const {
    return roomOn(*screen());
}

void PlcalWindow::disponi(const std::vector<ControlloProgetto>& controlli, const Scala& scala) {
    m_scala = scala;
    const double factor = fontFactorFor(scala);
    setGridFonts();
    setFont(qtFont(Carattere::normale, factor));
    m_lbldescr->setFont(qtFont(Carattere::grassetto, factor * TitleFontFactor));
    m_lblcollab->setFont(qtFont(Carattere::grassetto, factor));
    for (const ControlloProgetto& controllo : controlli) {
        const QRect place = qtRect(pixels(controllo.posizione, {})); // scaled already
        if (auto* widget = findChild<QWidget*>(fromUtf8(controllo.nome), Qt::FindDirectChildrenOnly)) {
            widget->setGeometry(place);
        }
        if (controllo.nome == regole(TipoPlanner::Mensile).nomeGriglia) {
            m_postoGriglia = place;
        }
    }
    setSmallestSize();
    const QRect available = screen()->availableGeometry();
    resize(available.size());
    move(available.topLeft()); // of the frame: the title stays on the screen
    fillRemainingSpace();
    for (const auto& [tipo, grid] : m_grids) {
        grid->setScala(scala);
    }
}

void PlcalWindow::setGridFonts() {
    m_painter.setFactors(fontFactorFor(m_scala), m_ingrandimento.cornice(), m_ingrandimento.righe());
}

void PlcalWindow::showZoom() {
    if (m_ingrandimento == m_form->ingrandimento()) {
        return;
    }
    m_ingrandimento = m_form->ingrandimento();
    setGridFonts();
    for (const auto& [tipo, grid] : m_grids) {
        grid->setIngrandimento(m_ingrandimento);
    }
}

void PlcalWindow::resizeEvent(QResizeEvent*) {
    fillRemainingSpace();
    placeField();
    GridView* grid = visibleGrid();
    if (m_untouched && grid != nullptr) {
        grid->scrollToCurrentCell(); // the window system's frame has taken some of the room
    }
}

void PlcalWindow::placeField() {
    // Above the status line, which says what becomes of the text; nothing else moves.
    const QSize size(std::min(m_stato->width(), m_campo->sizeHint().width()), m_campo->sizeHint().height());
    m_campo->setGeometry(QRect(m_stato->geometry().topLeft() - QPoint(0, size.height()), size));
}

void PlcalWindow::setSmallestSize() {
    const Dimensioni twips = dimensioniMinime(m_scala);
    const int besideCommands = m_calendario->width() + 2 * m_postoGriglia.x();
    const QSize whole(std::max(twips.width / TwipsPerPixel, m_Toolbar1->sizeHint().width() + besideCommands),
                      twips.height / TwipsPerPixel);
    setMinimumSize(whole.boundedTo(screen()->availableSize()));
}

/// The legend stands at the right end of the status line, with its words as long as they leave the sentence
/// whole.
void PlcalWindow::placeStatus() {
    constexpr int gap = 12;
    const int room = std::max(width(), minimumWidth()) - 2 * m_stato->x();
    m_legenda->resize(m_legenda->width(), m_stato->height());
    const int sentence = m_stato->fontMetrics().horizontalAdvance(m_stato->text()) + gap;
    const bool whole = sentence + m_legenda->wholeWidth() <= room;
    const int legend = whole ? m_legenda->wholeWidth() : m_legenda->shortWidth();
    m_legenda->setGeometry(m_stato->x() + room - legend, m_stato->y(), legend, m_stato->height());
    m_stato->resize(std::max(room - legend - (legend > 0 ? gap : 0), 0), m_stato->height());
}

void PlcalWindow::showStatus(const QString& text) {
    m_stato->setText(text);
    placeStatus();
}

void PlcalWindow::fillRemainingSpace() {
    // Positions were scaled once, at load; what is left of the window belongs to the grid. A window that is
    // made smaller than it can show is cut at its edges, with nothing over anything else.
    const QSize room = size().expandedTo(minimumSize());
    const int margin = m_postoGriglia.x();
    m_stato->move(m_stato->x(), room.height() - m_stato->height());
    placeStatus();
    m_postoGriglia.setSize({room.width() - 2 * margin, m_stato->y() - m_postoGriglia.y()});
    for (const auto& [tipo, grid] : m_grids) {
        grid->setGeometry(m_postoGriglia);
    }
    m_calendario->move(room.width() - m_calendario->width() - margin, m_calendario->y());
    m_Toolbar1->resize(m_calendario->x() - margin, m_Toolbar1->height());
}

} // namespace planner
