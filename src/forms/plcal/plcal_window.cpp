// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/plcal_window.h"

#include "forms/plcal/command_bar.h"
#include "forms/plcal/detail_panel.h"
#include "forms/plcal/grid_view.h"
#include "forms/plcal/shown_calendar.h"
#include "platform/qt/plain_label.h"
#include "platform/qt/text.h"

#include <QCloseEvent>
#include <QScreen>
#include <QShortcut>

namespace planner {

namespace {

constexpr double TitleFontFactor = 1.5;

} // namespace

PlcalWindow::PlcalWindow(const modpl& sessione, ControlliPlcal& controlli)
    : m_sessione(sessione), m_controlli(controlli),
      m_Toolbar1(new CommandBar(&plcal::comandoDisponibile, this)), m_calendario(new ShownCalendar(this)),
      m_lbldescr(new PlainLabel(this)), m_lblcollab(new PlainLabel(this)), m_panel(new DetailPanel(this)),
      m_Flxm(new GridView(controlli.Flxm, TipoPlanner::Mensile, m_painter, this)),
      m_flxg(new GridView(controlli.flxg, TipoPlanner::Giornaliero, m_painter, this)),
      m_flxa(new GridView(controlli.flxa, TipoPlanner::Annuale, m_painter, this)) {
    setObjectName(QStringLiteral("plcal"));
    makeLabels();
    makeGrids();
    connect(m_Toolbar1, &CommandBar::ButtonClick, this,
            [this](Pulsante pulsante) { m_form->Toolbar1_ButtonClick(pulsante); });
    auto* escape = new QShortcut(Qt::Key_Escape, this);
    connect(escape, &QShortcut::activated, this, [this] { m_form->Form_KeyDown(plcal::TastoEscape); });
}

PlcalWindow::~PlcalWindow() = default;

void PlcalWindow::makeLabels() {
    m_lbldescr->setObjectName(QStringLiteral("lbldescr"));
    m_lblcollab->setObjectName(QStringLiteral("lblcollab"));
}

void PlcalWindow::makeGrids() {
    m_Flxm->setObjectName(QStringLiteral("Flxm"));
    m_Flxm->setAccessibleName(QStringLiteral("Planner mensile"));
    m_flxg->setObjectName(QStringLiteral("flxg"));
    m_flxg->setAccessibleName(QStringLiteral("Planner giornaliero"));
    m_flxa->setObjectName(QStringLiteral("flxa"));
    m_flxa->setAccessibleName(QStringLiteral("Planner annuale"));
}

Dimensioni PlcalWindow::schermo() const {
    const QSize size = screen()->availableSize() * TwipsPerPixel;
    return {size.width(), size.height()};
}

void PlcalWindow::disponi(const std::vector<ControlloProgetto>& controlli, const Scala& scala) {
    m_scala = scala;
    const double factor = static_cast<double>(scala.ScalaMin());
    m_painter.setFontFactor(factor);
    setFont(qtFont(Carattere::normale, factor));
    m_lbldescr->setFont(qtFont(Carattere::grassetto, std::max(factor, 1.0) * TitleFontFactor));
    m_lblcollab->setFont(qtFont(Carattere::grassetto, factor));
    for (const ControlloProgetto& controllo : controlli) {
        if (auto* widget = findChild<QWidget*>(fromUtf8(controllo.nome), Qt::FindDirectChildrenOnly)) {
            place(*widget, controllo.posizione);
        }
    }
    setGeometry(screen()->availableGeometry());
    fillRemainingSpace();
    for (GridView* grid : {m_Flxm, m_flxg, m_flxa}) {
        grid->setScala(scala);
    }
}

void PlcalWindow::place(QWidget& widget, const Rettangolo& twips) const {
    widget.setGeometry(twips.Left / TwipsPerPixel, twips.Top / TwipsPerPixel, twips.Width / TwipsPerPixel,
                       twips.Height / TwipsPerPixel);
}

void PlcalWindow::aggiorna() {
    setWindowTitle(fromCp1252(m_controlli.Caption));
    m_lbldescr->setText(fromCp1252(m_controlli.lbldescr));
    m_calendario->update(m_controlli.calendario);
    m_Toolbar1->update(m_controlli.Toolbar1);
    m_panel->arrange(m_controlli.tipoVisibile, m_sessione.varianteRidotta(), m_scala);
    GridView* visible = visibleGrid();
    for (GridView* grid : {m_Flxm, m_flxg, m_flxa}) {
        grid->setVisible(grid == visible);
    }
    if (visible != nullptr) {
        visible->setFocus();
    }
}

GridView* PlcalWindow::visibleGrid() const {
    const Griglia* griglia = m_controlli.grigliaVisibile();
    return griglia == &m_controlli.Flxm   ? m_Flxm
           : griglia == &m_controlli.flxg ? m_flxg
           : griglia == &m_controlli.flxa ? m_flxa
                                          : nullptr;
}

void PlcalWindow::disponiPulsantiPeriodo() {
    if (GridView* grid = visibleGrid()) {
        grid->placeButtons();
    }
}

void PlcalWindow::scorriA(int colonna) {
    if (GridView* grid = visibleGrid()) {
        grid->scrollToColumn(colonna);
    }
}

void PlcalWindow::mostra() {
    showMaximized();
}

void PlcalWindow::nascondi() {
    hide();
}

void PlcalWindow::portaDavanti() {
    raise();
    activateWindow();
}

void PlcalWindow::LockWindowUpdate(bool locked) {
    setUpdatesEnabled(!locked);
}

void PlcalWindow::closeEvent(QCloseEvent* event) {
    event->ignore(); // the form takes the window off the screen
    m_form->unload();
}

void PlcalWindow::resizeEvent(QResizeEvent*) {
    fillRemainingSpace();
}

void PlcalWindow::fillRemainingSpace() {
    // Positions were scaled once, at load; what is left of the window belongs to the grid.
    const int margin = m_Flxm->x();
    for (GridView* grid : {m_Flxm, m_flxg, m_flxa}) {
        grid->resize(width() - 2 * margin, height() - grid->y() - margin);
    }
    m_calendario->move(width() - m_calendario->width() - margin, m_calendario->y());
    m_Toolbar1->resize(m_calendario->x() - margin, m_Toolbar1->height());
}

} // namespace planner
