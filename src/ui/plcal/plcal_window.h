// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "forms/plcal/ingrandimento.h"
#include "forms/plcal/vista_plcal.h"
#include "ui/plcal/cell_painter.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <memory>
#include <vector>

class QAction;

namespace planner {

class Annuncio;
class CommandBar;
class DetailPanel;
class FittedLabel;
class GridView;
class GuidaWindow;
class PromptField;
class LegendBar;
class ShownCalendar;
struct modpl;
class plcal;

/// The planner window's widgets. It decides nothing: events go to `plcal`, contents come from its data and
/// from the controls'.
class PlcalWindow : public QWidget, public VistaPlcal {
    Q_OBJECT
public:
    PlcalWindow(const modpl& sessione, ControlliPlcal& controlli);
    ~PlcalWindow() override;

    /// Whom the window's events go to; must be set before the window is shown.
    void setForm(plcal& form) { m_form = &form; }

    Dimensioni schermo() const override;
    void disponi(const std::vector<ControlloProgetto>& controlli, const Scala& scala) override;
    void aggiorna() override;
    void disponiPulsantiPeriodo() override;
    void scorriA(int colonna) override;
    int primaColonnaInVista() const override;
    void scorriAlCursore() override;
    void portaCursoreInVista() override;
    void apriCampo(const DescrizioneCampo& campo, const std::string& testo) override;
    void rinvia(std::function<void()> azione) override;
    void mostra() override;
    void nascondi() override;
    void portaDavanti() override;
    void LockWindowUpdate(bool locked) override;
    void mostraInformazioni() override;
    void mostraGuida() override;
    void annuncia(const std::string& testo) override;
    void annunciaConCasella(const std::string& testo) override;

Q_SIGNALS:
    /// Everything is shown anew: once for each event.
    void refreshed();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    GridView* makeGrid(TipoPlanner tipo);
    void addGridCommands();
    void addKeys(GridView& grid);
    void awaitMidnight();
    void connectEvents();
    void connectGrid(GridView& grid);
    void showMenu(const QPoint& globalPosition, bool byKey);
    void placeField();
    void updateCalendar();
    void updateGrid();
    void showZoom();
    void setGridFonts();
    void setSmallestSize();
    void fillRemainingSpace();
    void placeStatus();
    void showStatus(const QString& text);
    /// Null when the window shows none.
    GridView* visibleGrid();

    const modpl& m_sessione;
    ControlliPlcal& m_controlli;
    plcal* m_form = nullptr;
    Scala m_scala;
    Ingrandimento m_ingrandimento; // as shown
    CellPainter m_painter;

    CommandBar* m_Toolbar1;
    ShownCalendar* m_calendario;
    FittedLabel* m_lbldescr;
    FittedLabel* m_lblcollab;
    FittedLabel* m_stato;
    PromptField* m_campo;
    LegendBar* m_legenda;
    DetailPanel* m_panel;
    Annuncio* m_annuncio;
    std::unique_ptr<GuidaWindow> m_guida;     // once it is asked for
    std::map<TipoPlanner, GridView*> m_grids; // each once it is shown
    QRect m_postoGriglia;                     // the same for all
    std::vector<QAction*> m_comandiGriglia;   // in the order of their table
    QTimer m_mezzanotte;
    bool m_pressedHere = false;    // the mouse, since the window was shown for this request
    bool m_untouched = true;       // the user has done nothing since then
    bool m_leftForMessage = false; // the window is inactive because of a message box of its own
};

} // namespace planner
