// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plfcollab/plfcollab_window.h"

#include "forms/plfcollab/plfcollab.h"
#include "forms/tasti.h"
#include "ui/kit/annuncio.h"
#include "ui/kit/appearance.h"
#include "ui/kit/controls.h"
#include "ui/kit/drawn_icon.h"
#include "ui/kit/fitted_label.h"
#include "ui/kit/screen_scale.h"
#include "ui/kit/tool_commands.h"
#include "ui/plfcollab/staff_list_view.h"

#include <QAction>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>

namespace planner {

namespace {

constexpr QSize DesignSize(840, 560);
constexpr int ArrowSide = 20; // beside letters of the designed size

} // namespace

PlfcollabWindow::PlfcollabWindow(plfcollab& form)
    : m_form(form), m_toolbar(makeToolbar()), m_list(new StaffListView(this)), m_count(new FittedLabel(this)),
      m_annuncio(new Annuncio(this)) {
    setObjectName(QStringLiteral("plfcollab"));
    setWindowTitle(QStringLiteral("Selezione Collaboratori"));
    m_list->setObjectName(QStringLiteral("List_Prenotazione"));
    m_list->setAccessibleName(QStringLiteral("Collaboratori"));
    m_count->setObjectName(QStringLiteral("conteggio"));
    m_list->setLista(form.List_Prenotazione());
    layOut();
    connectEvents();
}

PlfcollabWindow::~PlfcollabWindow() = default;

void PlfcollabWindow::layOut() {
    auto* list = new QHBoxLayout;
    list->addWidget(m_list, 1);
    m_arrows = makeArrows();
    list->addWidget(m_arrows);
    auto* inner = new QVBoxLayout;
    inner->setContentsMargins(8, 4, 8, 6);
    inner->addLayout(list, 1);
    inner->addWidget(m_count);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(m_toolbar);
    outer->addLayout(inner, 1);
}

/// The toolbar `Toolbar_pren`: one action per command, with separators between.
QToolBar* PlfcollabWindow::makeToolbar() {
    auto* bar = new QToolBar(this);
    bar->setObjectName(QStringLiteral("Toolbar_pren"));
    bar->setAccessibleName(QStringLiteral("Comandi"));
    setUpToolBar(*bar);
    for (const DescrizioneComandoCollab& described : ComandiCollab) {
        addCommand(*bar, described);
    }
    return bar;
}

void PlfcollabWindow::addCommand(QToolBar& bar, const DescrizioneComandoCollab& described) {
    const int indice = static_cast<int>(described.posizione);
    QAction* action = addToolCommand(bar, {indice, QStringLiteral("Toolbar_pren_") + QString::number(indice),
                                           described.didascalia, described.immagine, described.scorciatoia});
    if (described.posizione != ComandoCollab::conferma) { // Enter is for the button that has the focus, first
        action->setShortcuts(qtKeys(described.scorciatoia));
    }
    connect(action, &QAction::triggered, this, [this, indice] { m_form.Toolbar_pren_ButtonClick(indice); });
}

QWidget* PlfcollabWindow::makeArrows() {
    auto* frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("Frame1"));
    frame->setFrameShape(QFrame::StyledPanel);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(4, 4, 4, 4);
    for (const DescrizioneFreccia& described : FrecceCollab) {
        const int indice = static_cast<int>(described.indice);
        auto* button = new QToolButton(frame);
        button->setObjectName(QStringLiteral("ButtonFrecce_") + QString::number(indice));
        button->setIcon(qtIcon(described.immagine));
        button->setIconSize(QSize(ArrowSide, ArrowSide));
        button->setToolTip(fromUtf8(described.nome));
        button->setAccessibleName(fromUtf8(described.nome));
        button->setFocusPolicy(Qt::TabFocus);
        button->setAutoRepeat(true);
        connect(button, &QToolButton::clicked, this, [this, indice] { m_form.ButtonFrecce_Click(indice); });
        layout->addWidget(button);
        if (described.indice == Freccia::rigaSu) {
            layout->addStretch();
        }
    }
    return frame;
}

void PlfcollabWindow::connectEvents() {
    connect(m_list, &StaffListView::rowSelected, this,
            [this](std::optional<int> riga) { m_form.List_Prenotazione_ItemClick(riga); });
    connect(m_list, &StaffListView::checkRequested, this,
            [this](int riga, bool spuntata) { m_form.List_Prenotazione_ItemCheck(riga, spuntata); });
}

void PlfcollabWindow::fitToScreen() {
    // The same factor as the planner window's, so that both have one size of letters.
    const QRect available = screen()->availableGeometry();
    const double factor = fontFactorFor(*screen());
    setFont(qtFont(Carattere::normale, factor));
    fitPictures(*m_toolbar, QWIDGETSIZE_MAX);
    for (QToolButton* arrow : m_arrows->findChildren<QToolButton*>()) {
        const int side = qRound(ArrowSide * factor);
        arrow->setIconSize(QSize(side, side));
    }
    m_toolbar->setMinimumWidth(m_toolbar->sizeHint().width()); // every command stays in sight
    const QSize wanted = (QSizeF(DesignSize) * factor).toSize().expandedTo(sizeHint());
    resize(wanted.boundedTo(available.size() * 9 / 10));
    move(available.center() - rect().center());
}

void PlfcollabWindow::mostra() {
    if (!m_placed) {
        m_placed = true; // later the window stands where the user left it
        fitToScreen();
        m_list->showRows();
    }
    showInFront(*this);
    m_list->setFocus();
}

void PlfcollabWindow::nascondi() {
    if (m_question) {
        m_question->reject();
    }
    hide();
}

void PlfcollabWindow::aggiornaRighe() {
    m_list->showRows();
    aggiorna();
}

void PlfcollabWindow::aggiorna() {
    m_list->showMarks();
    m_count->setText(fromUtf8(m_form.conteggio()));
    m_list->setAccessibleDescription(m_count->text());
}

void PlfcollabWindow::portaInVista(int riga) {
    m_list->bringIntoView(riga);
}

int PlfcollabWindow::primaRigaVisibile() const {
    return m_list->firstVisibleRow();
}

int PlfcollabWindow::righePerPagina() const {
    return m_list->rowsPerPage();
}

void PlfcollabWindow::scorriA(int riga) {
    m_list->scrollToRow(riga);
}

void PlfcollabWindow::annuncia(const std::string& testo) {
    m_annuncio->di(fromUtf8(testo));
}

std::optional<std::string> PlfcollabWindow::chiediTesto(std::string_view titolo,
                                                        const std::string& iniziale) {
    QInputDialog dialog(this);
    dialog.setObjectName(QStringLiteral("domanda"));
    dialog.setFont(font()); // a window of its own inherits none
    dialog.setWindowTitle(fromUtf8(titolo));
    dialog.setLabelText(QStringLiteral("Testo da cercare nel nome o nel codice (F3 ripete la ricerca):"));
    dialog.setTextValue(fromUtf8(iniziale));
    m_question = &dialog;
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return dialog.textValue().toStdString();
}

void PlfcollabWindow::closeEvent(QCloseEvent* event) {
    event->ignore(); // the form takes the window off the screen
    m_form.unload();
}

void PlfcollabWindow::keyPressEvent(QKeyEvent* event) {
    // No shortcuts: those are deaf until the window system has made the window the active one.
    if (clickFocusedButton(*this, *event)) {
        return;
    }
    if (virtualKey(*event) == TastoEscape) {
        m_form.unload();
    } else if (isEnter(*event)) {
        m_form.Toolbar_pren_ButtonClick(static_cast<int>(ComandoCollab::conferma));
    } else if (event->key() == Qt::Key_F3) {
        m_form.cercaAncora();
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace planner
