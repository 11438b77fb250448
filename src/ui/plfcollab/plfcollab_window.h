// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfcollab/vista_plfcollab.h"

#include <QPointer>
#include <QWidget>

class QInputDialog;
class QLabel;
class QToolBar;

namespace planner {

class Annuncio;
class StaffListView;
class plfcollab;
struct DescrizioneComandoCollab;

/// The staff window's widgets: a window of its own beside the planner's. It decides nothing: events go to
/// `plfcollab`, contents come from its list.
class PlfcollabWindow : public QWidget, public VistaPlfcollab {
    Q_OBJECT
public:
    /// `form` is whom the window's events go to.
    explicit PlfcollabWindow(plfcollab& form);
    ~PlfcollabWindow() override;

    void mostra() override;
    void nascondi() override;
    void aggiornaRighe() override;
    void aggiorna() override;
    void portaInVista(int riga) override;
    int primaRigaVisibile() const override;
    int righePerPagina() const override;
    void scorriA(int riga) override;
    void annuncia(const std::string& testo) override;
    std::optional<std::string> chiediTesto(std::string_view titolo, const std::string& iniziale) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QToolBar* makeToolbar();
    void addCommand(QToolBar& bar, const DescrizioneComandoCollab& described);
    QWidget* makeArrows();
    void layOut();
    void connectEvents();
    void fitToScreen();

    plfcollab& m_form;
    QToolBar* m_toolbar;
    StaffListView* m_list;
    QWidget* m_arrows = nullptr;
    QLabel* m_count;
    Annuncio* m_annuncio;
    QPointer<QInputDialog> m_question;
    bool m_placed = false;
};

} // namespace planner
