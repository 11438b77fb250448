// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plcal/plcal_window.h"

#include "engine/kinds/kind.h"
#include "forms/plcal/sentences.h"
#include "session/period_moves.h"
#include "ui/kit/fitted_label.h"
#include "ui/kit/screen_scale.h"
#include "ui/kit/text.h"
#include "ui/plcal/command_bar.h"
#include "ui/plcal/detail_panel.h"
#include "ui/plcal/grid_view.h"
#include "ui/plcal/info_dialog.h"
#include "ui/plcal/shown_calendar.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDateTime>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QScreen>
#include <QShortcut>

#include <algorithm>
#include <set>

namespace planner {

namespace {

constexpr double TitleFontFactor = 1.5;

} // namespace

PlcalWindow::PlcalWindow(const modpl& sessione, ControlliPlcal& controlli)
    : m_sessione(sessione), m_controlli(controlli), m_Toolbar1(new CommandBar(this)),
      m_calendario(new ShownCalendar(this)), m_lbldescr(new FittedLabel(this)),
      m_lblcollab(new FittedLabel(this)), m_stato(new FittedLabel(this)), m_panel(new DetailPanel(this)) {
    m_Flxm = makeGrid(TipoPlanner::Mensile);
    m_flxg = makeGrid(TipoPlanner::Giornaliero);
    m_flxa = makeGrid(TipoPlanner::Annuale);
    nameControls();
    connectEvents();
    qApp->installEventFilter(this);
    m_mezzanotte.setSingleShot(true);
    m_mezzanotte.setTimerType(Qt::VeryCoarseTimer);
}

GridView* PlcalWindow::makeGrid(TipoPlanner tipo) {
    const auto frase = [this, tipo](int riga, int colonna) {
        return colonna < Griglia::FixedCols() ? fraseNome(m_controlli, tipo, riga)
                                              : fraseCella(m_controlli, m_sessione, tipo, riga, colonna);
    };
    return new GridView(m_controlli.griglia(tipo), tipo, m_painter, frase, this);
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
    connect(m_calendario, &ShownCalendar::dayPicked, this, [this](Data giorno) {
        m_form->calendario_DateClick(giorno);
        if (GridView* grid = visibleGrid()) {
            grid->scrollTo(grid->currentIndex());
        }
    });
    connect(&m_mezzanotte, &QTimer::timeout, this, [this] {
        m_form->giornoCambiato();
        awaitMidnight();
    });
    addPeriodShortcuts();
    for (GridView* grid : {m_Flxm, m_flxg, m_flxa}) {
        connectGrid(*grid);
    }
}

void PlcalWindow::connectGrid(GridView& grid) {
    connect(&grid, &GridView::gesture, this, [this](const Gesto& gesto) { m_form->griglia_Gesto(gesto); });
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
            m_periodKeys.push_back(shortcut);
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
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Pulsante pulsante :
         {Pulsante::consult, Pulsante::insimp, Pulsante::agenda, Pulsante::dettno, Pulsante::dettsi}) {
        QAction* action = m_Toolbar1->command(pulsante);
        if (action->isEnabled() && action->isVisible()) {
            menu->addAction(action);
        }
    }
    menu->popup(globalPosition);
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
    updateGrid();
    m_Toolbar1->update(m_controlli.Toolbar1, visibleGrid());
    updateCalendar();
    const RegoleTipo* tipo = regoleVisibili(m_controlli);
    for (QShortcut* keys : m_periodKeys) {
        // In the yearly planner they answer the host: a held key is not to reach the next request.
        keys->setAutoRepeat(tipo == nullptr || tipo->perCollaboratore);
    }
}

void PlcalWindow::updateCalendar() {
    const Calendario& calendario = m_controlli.calendario;
    const RegoleTipo* tipo = regoleVisibili(m_controlli);
    const auto [first, last] = tipo != nullptr ? tipo->limiti(m_sessione.periodo, calendario.Value())
                                               : wholeYear(calendario.Value());
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

int PlcalWindow::primaColonnaInVista() const {
    const GridView* grid = visibleGrid();
    return grid == nullptr ? Griglia::FixedCols() : grid->firstColumnInSight();
}

void PlcalWindow::scorriAlCursore() {
    if (GridView* grid = visibleGrid()) {
        grid->scrollToCurrentRow();
    }
}

void PlcalWindow::rinvia(std::function<void()> azione) {
    QMetaObject::invokeMethod(this, std::move(azione), Qt::QueuedConnection);
}

void PlcalWindow::mostra() {
    m_pressedHere = false;
    m_untouched = true;
    showMaximized();
    if (GridView* grid = visibleGrid()) {
        grid->setFocus();
    }
    awaitMidnight();
}

void PlcalWindow::awaitMidnight() {
    // At least once an hour, since a sleeping computer's timers sleep too.
    constexpr qint64 hour = 3'600'000;
    const QDateTime now = QDateTime::currentDateTime();
    const qint64 left = now.msecsTo(now.date().addDays(1).startOfDay());
    m_mezzanotte.start(static_cast<int>(std::clamp<qint64>(left + 1, 1, hour)));
}

void PlcalWindow::nascondi() {
    m_mezzanotte.stop();
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
    // No shortcuts: those are deaf until the window system has made the window the active one.
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* button = qobject_cast<QAbstractButton*>(focusWidget());
    if (enter && button != nullptr) {
        button->click();
    } else if (!m_form->Form_KeyDown(event->key() == Qt::Key_Escape ? plcal::TastoEscape : 0)) {
        QWidget::keyPressEvent(event);
    }
}

bool PlcalWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate) {
        // A message box is no other window to come back from.
        m_leftForMessage = qobject_cast<QMessageBox*>(QApplication::activeWindow()) != nullptr;
    } else if (event->type() == QEvent::WindowActivate && isVisible() && !m_leftForMessage) {
        // After the press that may have brought the window to the front: it means what it was aimed at.
        rinvia([this] {
            if (isVisible()) {
                m_form->Form_Activate();
            }
        });
    }
    return QWidget::event(event);
}

bool PlcalWindow::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    const bool press = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
    if (!press && type != QEvent::Wheel && type != QEvent::KeyPress) {
        return false;
    }
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || widget->window() != this) {
        return false;
    }
    // The second press of a double click whose first one has answered the request before.
    const bool strayed = type == QEvent::MouseButtonDblClick && !m_pressedHere;
    m_pressedHere = m_pressedHere || press;
    m_untouched = false;
    return strayed;
}

void PlcalWindow::resizeEvent(QResizeEvent*) {
    fillRemainingSpace();
    GridView* grid = visibleGrid();
    if (m_untouched && grid != nullptr) {
        grid->scrollTo(grid->currentIndex()); // the window system's frame has taken some of the room
    }
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
