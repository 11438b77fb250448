// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plcal/plcal_window.h"

#include "engine/kinds/kind.h"
#include "forms/plcal/colpo_docchio.h"
#include "forms/plcal/legenda_in_vista.h"
#include "forms/plcal/plcal.h"
#include "forms/plcal/sentences.h"
#include "session/period_moves.h"
#include "ui/guida/guida_window.h"
#include "ui/kit/annuncio.h"
#include "ui/kit/controls.h"
#include "ui/kit/fitted_label.h"
#include "ui/kit/screen_scale.h"
#include "ui/kit/text.h"
#include "ui/plcal/command_bar.h"
#include "ui/plcal/detail_panel.h"
#include "ui/plcal/grid_model.h"
#include "ui/plcal/grid_view.h"
#include "ui/plcal/info_dialog.h"
#include "ui/plcal/legend_bar.h"
#include "ui/plcal/prompt_field.h"
#include "ui/plcal/shown_calendar.h"

#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QMenu>

#include <algorithm>

namespace planner {

namespace {

/// A command that the grid alone has, by name, caption and keys.
template <typename Described>
QAction* addKey(GridView& grid, const Described& described) {
    auto* action = new QAction(fromUtf8(described.didascalia), &grid);
    action->setObjectName(fromUtf8(described.nome));
    action->setShortcuts(qtKeys(described.scorciatoia));
    action->setShortcutContext(Qt::WidgetShortcut); // fields keep their letters
    grid.addAction(action);
    return action;
}

} // namespace

PlcalWindow::PlcalWindow(const modpl& sessione, ControlliPlcal& controlli)
    : m_sessione(sessione), m_controlli(controlli), m_painter(fontFactorFor(*screen())),
      m_Toolbar1(new CommandBar(this)), m_calendario(new ShownCalendar(this)),
      m_lbldescr(new FittedLabel(this)), m_lblcollab(new FittedLabel(this)), m_stato(new FittedLabel(this)),
      m_campo(new PromptField(this)), m_legenda(new LegendBar(this)), m_panel(new DetailPanel(this)),
      m_annuncio(new Annuncio(this)) {
    setObjectName(QStringLiteral("plcal"));
    m_lbldescr->setObjectName(QStringLiteral("lbldescr"));
    m_lblcollab->setObjectName(QStringLiteral("lblcollab"));
    m_stato->setObjectName(QStringLiteral("stato"));
    m_Toolbar1->setAccessibleName(QStringLiteral("Comandi"));
    m_calendario->setAccessibleName(QStringLiteral("Calendario"));
    addGridCommands();
    connectEvents();
    qApp->installEventFilter(this);
    m_mezzanotte.setSingleShot(true);
    m_mezzanotte.setTimerType(Qt::VeryCoarseTimer);
}

GridView* PlcalWindow::makeGrid(TipoPlanner tipo) {
    const VociGriglia voci{
        [this, tipo](Casella casella) { return nomeCasella(m_controlli, m_sessione, tipo, casella); },
        [this, tipo](Casella casella) { return fraseCella(m_controlli, m_sessione, tipo, casella); }};
    auto* grid = new GridView(m_controlli.griglia(tipo), tipo, m_painter, voci, this);
    grid->setObjectName(fromUtf8(regole(tipo).nomeGriglia));
    grid->setAccessibleName(fromUtf8(regole(tipo).nomeDetto));
    grid->setTips([this, tipo](Casella casella) {
        return casella.colonna < Griglia::FixedCols()
                   ? fraseTotali(m_controlli, m_sessione, tipo, casella.riga)
                   : fraseColonna(m_controlli, tipo, casella.colonna);
    });
    grid->setGeometry(m_postoGriglia);
    grid->setScala(m_scala);
    grid->setIngrandimento(m_ingrandimento);
    connectGrid(*grid);
    return grid;
}

PlcalWindow::~PlcalWindow() = default;

void PlcalWindow::addGridCommands() {
    for (const DescrizioneComandoGriglia& described : ComandiGriglia) {
        auto* action = new QAction(fromUtf8(described.didascalia), this);
        action->setObjectName(fromUtf8(described.nome));
        action->setShortcuts(qtKeys(described.scorciatoia));
        action->setAutoRepeat(false);
        connect(action, &QAction::triggered, this,
                [this, comando = described.comando] { m_form->griglia_Comando(comando); });
        addAction(action);
        m_comandiGriglia.push_back(action);
    }
}

void PlcalWindow::addKeys(GridView& grid) {
    for (const Salto& salto : Salti) {
        connect(addKey(grid, salto), &QAction::triggered, this,
                [this, &salto] { m_form->griglia_Salto(salto); });
    }
    for (const TastoPeriodo& tasto : TastiPeriodo) {
        if (tasto.tipo == grid.tipo()) {
            connect(addKey(grid, tasto), &QAction::triggered, this,
                    [this, &tasto] { m_form->tastoPeriodo(tasto); });
        }
    }
}

void PlcalWindow::connectEvents() {
    connect(m_Toolbar1, &CommandBar::ButtonClick, this, [this](const QByteArray& chiave) {
        m_form->Toolbar1_ButtonClick({chiave.constData(), static_cast<std::size_t>(chiave.size())});
    });
    connect(m_calendario, &ShownCalendar::dayPicked, this, [this](Data giorno) {
        m_form->calendario_DateClick(giorno);
        if (GridView* grid = visibleGrid()) {
            grid->scrollToCurrentCell();
        }
    });
    connect(m_campo, &PromptField::left, this, [this] {
        if (GridView* grid = visibleGrid()) {
            grid->setFocus();
        }
    });
    connect(&m_mezzanotte, &QTimer::timeout, this, [this] {
        m_form->giornoCambiato();
        awaitMidnight();
    });
}

void PlcalWindow::connectGrid(GridView& grid) {
    connect(&grid, &GridView::gesture, this, [this](const Gesto& gesto) { m_form->griglia_Gesto(gesto); });
    connect(&grid, &GridView::menuRequested, this, &PlcalWindow::showMenu);
    addKeys(grid);
    connect(&grid, &GridView::headerPointed, this,
            [this](const QString& tip) { showStatus(tip.isEmpty() ? fromUtf8(m_form->stato()) : tip); });
    connect(&grid, &GridView::commandGiven, this,
            [this](ComandoGriglia comando) { m_form->griglia_Comando(comando); });
    connect(&grid, &GridView::periodButtonClicked, this,
            [this](const PulsantePeriodo& pulsante) { m_form->pulsantePeriodo_Click(pulsante); });
}

void PlcalWindow::showMenu(const QPoint& globalPosition, bool byKey) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Pulsante pulsante : PulsantiMenu) {
        QAction* action = m_Toolbar1->command(pulsante);
        if (action->isEnabled() && action->isVisible()) {
            menu->addAction(action);
        }
    }
    QAction* line = menu->addSeparator();
    for (std::size_t i = 0; i < m_comandiGriglia.size(); ++i) {
        line = ComandiGriglia.at(i).primoDelGruppo ? menu->addSeparator() : line;
        menu->addAction(m_comandiGriglia[i]);
    }
    auto* jumps = new QMenu(QStringLiteral("Salta a"), menu);
    jumps->addActions(visibleGrid()->actions());
    menu->insertMenu(line, jumps);
    menu->popup(globalPosition);
    if (byKey) { // whoever hears must know where they are
        menu->setActiveAction(menu->actions().constFirst());
    }
}

void PlcalWindow::aggiorna() {
    setWindowTitle(fromCp1252(m_controlli.Caption));
    m_lbldescr->setText(fromCp1252(m_controlli.lbldescr));
    const PannelloDettagli& panel = m_form->pannello();
    m_lblcollab->setText(fromCp1252(panel.lblcollab));
    m_lblcollab->setVisible(panel.lblcollabVisibile);
    m_panel->show(panel);
    m_legenda->setEntries(legendaInVista(m_controlli));
    showStatus(fromUtf8(m_form->stato()));
    showZoom();
    updateGrid();
    m_Toolbar1->update(m_controlli.Toolbar1, visibleGrid());
    updateCalendar();
    Q_EMIT refreshed();
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
    for (const auto& [tipo, grid] : m_grids) {
        grid->setVisible(grid == visible);
    }
    if (visible != nullptr) {
        visible->showCurrentCell();
        visible->updateButtons(
            [this](const PulsantePeriodo& pulsante) { return m_form->pulsantePeriodoAttivo(pulsante); });
    }
}

GridView* PlcalWindow::visibleGrid() {
    if (!m_controlli.tipoVisibile) {
        return nullptr;
    }
    GridView*& grid = m_grids[*m_controlli.tipoVisibile];
    if (grid == nullptr) {
        grid = makeGrid(*m_controlli.tipoVisibile);
    }
    return grid;
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
    const auto shown = m_controlli.tipoVisibile ? m_grids.find(*m_controlli.tipoVisibile) : m_grids.end();
    return shown == m_grids.end() ? Griglia::FixedCols() : shown->second->firstColumnInSight();
}

void PlcalWindow::scorriAlCursore() {
    if (GridView* grid = visibleGrid()) {
        grid->scrollToCurrentRow();
    }
}

void PlcalWindow::portaCursoreInVista() {
    if (GridView* grid = visibleGrid()) {
        grid->scrollToCurrentCell();
    }
}

void PlcalWindow::apriCampo(const DescrizioneCampo& campo, const std::string& testo) {
    m_campo->open(campo, fromUtf8(testo), [this, which = campo.campo](const QString& text) {
        return m_form->campo_Conferma(which, text.trimmed().toStdString());
    });
    placeField();
}

void PlcalWindow::rinvia(std::function<void()> azione) {
    QMetaObject::invokeMethod(this, std::move(azione), Qt::QueuedConnection);
}

void PlcalWindow::mostra() {
    m_pressedHere = false;
    m_untouched = true;
    m_panel->arrange(m_controlli.tipoVisibile, m_sessione.varianteRidotta(), m_scala);
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
    m_campo->hide();
    if (m_guida) {
        m_guida->hide();
    }
    m_mezzanotte.stop();
    hide();
}

void PlcalWindow::portaDavanti() {
    raise();
    activateWindow();
}

void PlcalWindow::LockWindowUpdate(bool) {
    // Nothing to do: the toolkit paints once the form has returned, and then only what has changed.
}

void PlcalWindow::mostraInformazioni() {
    showInfoDialog(this);
}

void PlcalWindow::annuncia(const std::string& testo) {
    m_annuncio->di(fromUtf8(testo));
}

void PlcalWindow::annunciaConCasella(const std::string& testo) {
    GridView* grid = visibleGrid();
    if (grid != nullptr && (grid->hasFocus() || m_campo->isVisible())) { // the field gives it back
        grid->sayBeforeCurrentCell(fromUtf8(testo));
    } else {
        annuncia(testo);
    }
}

void PlcalWindow::mostraGuida() {
    if (!m_guida) {
        m_guida = std::make_unique<GuidaWindow>();
    }
    m_guida->mostra();
}

} // namespace planner
