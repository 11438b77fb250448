// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/plcal_window.h"

#include "forms/plcal/command_bar.h"
#include "forms/plcal/detail_panel.h"
#include "forms/plcal/grid_view.h"
#include "forms/plcal/info_dialog.h"
#include "forms/plcal/period_moves.h"
#include "forms/plcal/sentences.h"
#include "forms/plcal/shown_calendar.h"
#include "forms/screen_scale.h"
#include "platform/qt/fitted_label.h"
#include "platform/qt/text.h"

#include <QAction>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QScreen>
#include <QShortcut>

#include <set>

namespace planner {

namespace {

constexpr double TitleFontFactor = 1.5;

} // namespace

PlcalWindow::PlcalWindow(const modpl& sessione, ControlliPlcal& controlli)
    : m_sessione(sessione), m_controlli(controlli), m_Toolbar1(new CommandBar(this)),
      m_calendario(new ShownCalendar(this)), m_lbldescr(new FittedLabel(this)),
      m_lblcollab(new FittedLabel(this)), m_stato(new FittedLabel(this)), m_panel(new DetailPanel(this)) {
    const auto frase = [this](int riga, int colonna) {
        return fraseCella(m_controlli, m_sessione, riga, colonna);
    };
    m_Flxm = new GridView(controlli.Flxm, TipoPlanner::Mensile, m_painter, frase, this);
    m_flxg = new GridView(controlli.flxg, TipoPlanner::Giornaliero, m_painter, frase, this);
    m_flxa = new GridView(controlli.flxa, TipoPlanner::Annuale, m_painter, frase, this);
    nameControls();
    connectEvents();
}

PlcalWindow::~PlcalWindow() = default;

void PlcalWindow::nameControls() {
    setObjectName(QStringLiteral("plcal"));
    m_lbldescr->setObjectName(QStringLiteral("lbldescr"));
    m_lblcollab->setObjectName(QStringLiteral("lblcollab"));
    m_stato->setObjectName(QStringLiteral("stato"));
    m_Toolbar1->setAccessibleName(QStringLiteral("Comandi"));
    m_calendario->setAccessibleName(QStringLiteral("Calendario"));
    m_Flxm->setObjectName(QStringLiteral("Flxm"));
    m_Flxm->setAccessibleName(QStringLiteral("Planner mensile"));
    m_flxg->setObjectName(QStringLiteral("flxg"));
    m_flxg->setAccessibleName(QStringLiteral("Planner giornaliero"));
    m_flxa->setObjectName(QStringLiteral("flxa"));
    m_flxa->setAccessibleName(QStringLiteral("Planner annuale"));
}

void PlcalWindow::connectEvents() {
    connect(m_Toolbar1, &CommandBar::ButtonClick, this, [this](const QByteArray& chiave) {
        m_form->Toolbar1_ButtonClick({chiave.constData(), static_cast<std::size_t>(chiave.size())});
    });
    connect(m_calendario, &ShownCalendar::dayPicked, this,
            [this](Data giorno) { m_form->calendario_DateClick(giorno); });
    addPeriodShortcuts();
    for (GridView* grid : {m_Flxm, m_flxg, m_flxa}) {
        connectGrid(*grid);
    }
}

void PlcalWindow::connectGrid(GridView& grid) {
    connect(&grid, &GridView::cellSelected, this, [this](int riga, int colonna, bool conMouse) {
        m_form->SelChange(riga, colonna);
        m_form->RowColChange(riga, colonna, /*tastoTenuto=*/!conMouse);
    });
    connect(&grid, &GridView::cellClicked, this,
            [this](int riga, int colonna) { m_form->Click(riga, colonna); });
    connect(&grid, &GridView::cellActivated, m_Toolbar1->command(Pulsante::consult), &QAction::trigger);
    connect(&grid, &GridView::menuRequested, this, &PlcalWindow::showMenu);
    connect(&grid, &GridView::periodButtonClicked, this,
            [this](const PulsantePeriodo& pulsante) { m_form->pulsantePeriodo_Click(pulsante); });
}

void PlcalWindow::addPeriodShortcuts() {
    std::set<QKeySequence> known;
    for (const PulsantePeriodo& pulsante : PulsantiPeriodo) {
        for (const QKeySequence& keys : QKeySequence::listFromString(fromUtf8(pulsante.scorciatoia))) {
            if (!known.insert(keys).second) {
                continue; // the same keys move every kind of planner
            }
            auto* shortcut = new QShortcut(keys, this);
            connect(shortcut, &QShortcut::activated, this, [this, keys] { pressPeriodKeys(keys); });
        }
    }
}

void PlcalWindow::pressPeriodKeys(const QKeySequence& keys) {
    for (const PulsantePeriodo& pulsante : PulsantiPeriodo) {
        const bool meant = pulsante.tipo == m_controlli.tipoVisibile &&
                           QKeySequence::listFromString(fromUtf8(pulsante.scorciatoia)).contains(keys);
        if (meant && m_form->pulsantePeriodoAttivo(pulsante)) {
            m_form->pulsantePeriodo_Click(pulsante);
            return;
        }
    }
}

void PlcalWindow::showMenu(const QPoint& globalPosition) {
    QMenu menu(this);
    for (const Pulsante pulsante :
         {Pulsante::consult, Pulsante::insimp, Pulsante::agenda, Pulsante::dettno, Pulsante::dettsi}) {
        QAction* action = m_Toolbar1->command(pulsante);
        if (action->isEnabled() && action->isVisible()) {
            menu.addAction(action);
        }
    }
    menu.exec(globalPosition);
}

Dimensioni PlcalWindow::schermo() const {
    return roomOn(*screen());
}

void PlcalWindow::disponi(const std::vector<ControlloProgetto>& controlli, const Scala& scala) {
    m_scala = scala;
    const double factor = fontFactorFor(scala);
    m_painter.setFontFactor(factor);
    setFont(qtFont(Carattere::normale, factor));
    m_lbldescr->setFont(qtFont(Carattere::grassetto, factor * TitleFontFactor));
    m_lblcollab->setFont(qtFont(Carattere::grassetto, factor));
    for (const ControlloProgetto& controllo : controlli) {
        if (auto* widget = findChild<QWidget*>(fromUtf8(controllo.nome), Qt::FindDirectChildrenOnly)) {
            place(*widget, controllo.posizione);
        }
    }
    setSmallestSize();
    const QRect available = screen()->availableGeometry();
    resize(available.size());
    move(available.topLeft()); // of the frame: the title stays on the screen
    fillRemainingSpace();
    for (GridView* grid : {m_Flxm, m_flxg, m_flxa}) {
        grid->setScala(scala);
    }
}

void PlcalWindow::place(QWidget& widget, const Rettangolo& twips) const {
    const Rettangolo place = pixels(twips, {}); // scaled already
    widget.setGeometry(place.Left, place.Top, place.Width, place.Height);
}

void PlcalWindow::aggiorna() {
    setWindowTitle(fromCp1252(m_controlli.Caption));
    m_lbldescr->setText(fromCp1252(m_controlli.lbldescr));
    const PannelloDettagli& panel = m_form->pannello();
    m_lblcollab->setText(fromCp1252(panel.lblcollab));
    m_lblcollab->setVisible(panel.lblcollabVisibile);
    m_panel->arrange(m_controlli.tipoVisibile, m_sessione.varianteRidotta(), m_scala);
    m_panel->show(panel);
    m_stato->setText(fromUtf8(m_form->stato()));
    m_Toolbar1->update(m_controlli.Toolbar1);
    updateCalendar();
    updateGrid();
}

void PlcalWindow::updateCalendar() {
    const Calendario& calendario = m_controlli.calendario;
    const auto year = std::chrono::year{calendario.Year()};
    Data first{year, std::chrono::January, std::chrono::day{1}};
    Data last{year, std::chrono::December, std::chrono::day{31}};
    if (m_controlli.tipoVisibile == TipoPlanner::Mensile) {
        first = firstOfMonth(m_sessione.periodo.inizio());
        last = lastOfMonth(m_sessione.periodo.fine());
    } else if (m_controlli.tipoVisibile == TipoPlanner::Giornaliero) {
        first = m_sessione.periodo.inizio();
        last = m_sessione.periodo.fine();
    }
    m_calendario->update(calendario, first, last);
}

void PlcalWindow::updateGrid() {
    GridView* visible = visibleGrid();
    for (GridView* grid : {m_Flxm, m_flxg, m_flxa}) {
        grid->setVisible(grid == visible);
    }
    if (visible != nullptr) {
        visible->showCurrentCell();
        visible->updateButtons(
            [this](const PulsantePeriodo& pulsante) { return m_form->pulsantePeriodoAttivo(pulsante); });
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
    if (GridView* grid = visibleGrid()) {
        grid->setFocus();
    }
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

void PlcalWindow::mostraInformazioni() {
    showInfoDialog(this);
}

void PlcalWindow::closeEvent(QCloseEvent* event) {
    event->ignore(); // the form takes the window off the screen
    m_form->unload();
}

void PlcalWindow::keyPressEvent(QKeyEvent* event) {
    // No shortcut: those are deaf until the window system has made the window the active one.
    const int key = event->key() == Qt::Key_Escape ? plcal::TastoEscape : 0;
    if (!m_form->Form_KeyDown(key)) {
        QWidget::keyPressEvent(event);
    }
}

void PlcalWindow::resizeEvent(QResizeEvent*) {
    fillRemainingSpace();
}

void PlcalWindow::setSmallestSize() {
    const Dimensioni twips = dimensioniMinime(m_scala);
    const int besideCommands = m_calendario->width() + 2 * m_Flxm->x();
    const QSize whole(std::max(twips.width / TwipsPerPixel, m_Toolbar1->sizeHint().width() + besideCommands),
                      twips.height / TwipsPerPixel);
    setMinimumSize(whole.boundedTo(screen()->availableSize()));
}

void PlcalWindow::fillRemainingSpace() {
    // Positions were scaled once, at load; what is left of the window belongs to the grid. A window that is
    // made smaller than it can show is cut at its edges, with nothing over anything else.
    const QSize room = size().expandedTo(minimumSize());
    const int margin = m_Flxm->x();
    m_stato->move(m_stato->x(), room.height() - m_stato->height());
    m_stato->resize(room.width() - 2 * m_stato->x(), m_stato->height());
    for (GridView* grid : {m_Flxm, m_flxg, m_flxa}) {
        grid->resize(room.width() - 2 * margin, m_stato->y() - grid->y());
    }
    m_calendario->move(room.width() - m_calendario->width() - margin, m_calendario->y());
    m_Toolbar1->resize(m_calendario->x() - margin, m_Toolbar1->height());
}

} // namespace planner
