// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plfcollab/staff_list_view.h"

#include "ui/kit/controls.h"
#include "ui/kit/view_accessible.h"
#include "ui/plfcollab/staff_list_delegate.h"
#include "ui/plfcollab/staff_list_model.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace planner {

namespace {

/// How wide texts are, added up from single characters: the staff of a whole archive is measured at once.
class TextWidths {
public:
    explicit TextWidths(const QFontMetricsF& metrics) {
        for (std::size_t byte = 0; byte < m_widths.size(); ++byte) {
            const char character = static_cast<char>(byte);
            m_widths[byte] = metrics.horizontalAdvance(fromCp1252({&character, 1}));
        }
    }

    int operator()(std::string_view cp1252) const {
        return static_cast<int>(
            std::ceil(std::accumulate(cp1252.begin(), cp1252.end(), 0.0, [this](double sum, char character) {
                return sum + m_widths[static_cast<unsigned char>(character)];
            })));
    }

private:
    std::array<double, 256> m_widths{};
};

} // namespace

StaffListView::StaffListView(QWidget* parent) : QTreeView(parent), m_model(new StaffListModel(this)) {
    installViewAccessible<StaffListView>();
    setModel(m_model);
    setItemDelegate(new StaffListDelegate(this));
    setUpBehaviour();
    connect(m_model, &StaffListModel::checkRequested, this, &StaffListView::checkRequested);
}

void StaffListView::setUpBehaviour() {
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(true);
}

void StaffListView::setLista(const ListaCollaboratori& lista) {
    m_lista = &lista;
    m_model->setLista(lista);
}

void StaffListView::showRows() {
    m_model->rowsChanged();
    showOrder();
    fitColumns();
    scrollToRow(0);
    showMarks();
}

void StaffListView::showMarks() {
    m_model->checksChanged();
    const auto wanted = m_lista->selezionata();
    if (wanted == selectedRow()) {
        return;
    }
    const QScopedValueRollback byCode(m_byCode, true);
    setAutoScroll(false);
    if (wanted) {
        setCurrentIndex(m_model->index(*wanted, StaffListModel::Codice));
    } else {
        clearSelection();
    }
    setAutoScroll(true);
}

void StaffListView::showOrder() {
    const Ordinamento ordinamento = m_lista->ordinamento();
    header()->setSortIndicatorShown(ordinamento != Ordinamento::nessuno);
    header()->setSortIndicator(ordinamento == Ordinamento::nessuno ? -1 : StaffListModel::Nome,
                               ordinamento == Ordinamento::decrescente ? Qt::DescendingOrder
                                                                       : Qt::AscendingOrder);
}

void StaffListView::fitColumns() {
    const TextWidths width{QFontMetricsF(font())};
    std::array<int, StaffListModel::Colonne> widest{};
    for (int i = 0; i < m_lista->righe(); ++i) {
        const RigaCollaboratore& riga = m_lista->riga(i);
        widest[StaffListModel::Codice] = std::max(widest[StaffListModel::Codice], width(riga.codice));
        widest[StaffListModel::Nome] = std::max(widest[StaffListModel::Nome], width(riga.nome));
        widest[StaffListModel::Mansione] = std::max(widest[StaffListModel::Mansione], width(riga.mansione));
    }
    const int margin = 4 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
    widest[StaffListModel::Codice] += style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) + margin;
    for (int column = 0; column < StaffListModel::Colonne; ++column) {
        const int contents = widest.at(static_cast<std::size_t>(column)) + margin;
        header()->resizeSection(column, std::max(contents, header()->sectionSizeHint(column)));
    }
}

std::optional<int> StaffListView::selectedRow() const {
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? std::nullopt : std::optional(rows.first().row());
}

void StaffListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    if (!m_byCode) {
        Q_EMIT rowSelected(selectedRow());
    }
}

void StaffListView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier) {
        toggleCheck();
    } else {
        QTreeView::keyPressEvent(event);
    }
}

void StaffListView::toggleCheck() {
    const int riga = currentIndex().row();
    if (riga >= 0 && riga < m_lista->righe()) {
        Q_EMIT checkRequested(riga, !m_lista->riga(riga).spuntata);
    }
    keyboardSearch({}); // the next letters begin another name, however soon they come
}

void StaffListView::focusInEvent(QFocusEvent* event) {
    QTreeView::focusInEvent(event);
    if (!selectedRow()) {
        selectionModel()
            ->clearCurrentIndex(); // a frame around a row that is not selected looks as if it were
    }
}

bool StaffListView::viewportEvent(QEvent* event) {
    const auto cutText = [this](QPoint position) {
        const QModelIndex index = indexAt(position);
        const bool cut = index.isValid() && sizeHintForIndex(index).width() > visualRect(index).width();
        return cut ? index.data().toString() : QString();
    };
    return showToolTip(*event, *viewport(), cutText) || QTreeView::viewportEvent(event);
}

void StaffListView::bringIntoView(int riga) {
    scrollTo(m_model->index(riga, std::max(currentIndex().column(), 0)));
}

void StaffListView::scrollToRow(int riga) {
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(riga); // the list scrolls by whole rows
}

int StaffListView::firstVisibleRow() const {
    return verticalScrollBar()->value();
}

int StaffListView::rowsPerPage() const {
    return std::max(verticalScrollBar()->pageStep(), 1);
}

} // namespace planner
