// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plfcollab/staff_list_model.h"

#include "forms/plfcollab/plfcollab.h"
#include "ui/kit/model_answers.h"
#include "ui/kit/text.h"

namespace planner {

namespace {

const std::string& textOf(const RigaCollaboratore& riga, int column) {
    return column == StaffListModel::Codice ? riga.codice
           : column == StaffListModel::Nome ? riga.nome
                                            : riga.mansione;
}

QString title(int column) {
    return column == StaffListModel::Codice ? QStringLiteral("Codice")
           : column == StaffListModel::Nome ? QStringLiteral("Collaboratore")
                                            : QStringLiteral("Mansione");
}

/// A line break in a field must not make its row higher than the others.
QString onOneLine(QString text) {
    for (QChar& character : text) {
        if (character < QLatin1Char(' ')) {
            character = QLatin1Char(' ');
        }
    }
    return text;
}

} // namespace

void StaffListModel::rowsChanged() {
    beginResetModel();
    m_rows = m_lista == nullptr ? 0 : m_lista->righe();
    endResetModel();
    Q_EMIT headerDataChanged(Qt::Horizontal, Nome, Nome); // the new order of the rows
}

void StaffListModel::checksChanged() {
    if (m_rows > 0) {
        Q_EMIT dataChanged(index(0, Codice), index(m_rows - 1, Codice),
                           {Qt::CheckStateRole, Qt::AccessibleTextRole});
    }
}

int StaffListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

int StaffListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Colonne;
}

const RigaCollaboratore* StaffListModel::row(const QModelIndex& index) const {
    const bool known = checkIndex(index, CheckIndexOption::IndexIsValid) && m_lista != nullptr &&
                       index.row() < m_lista->righe();
    return known ? &m_lista->riga(index.row()) : nullptr;
}

QVariant StaffListModel::data(const QModelIndex& index, int role) const {
    const RigaCollaboratore* riga = row(index);
    return riga == nullptr ? QVariant() : orNothing([&] { return cellData(*riga, index.column(), role); });
}

QVariant StaffListModel::cellData(const RigaCollaboratore& riga, int column, int role) {
    if (role == Qt::DisplayRole) {
        return onOneLine(fromCp1252(textOf(riga, column)));
    }
    // A screen reader reads a row cell by cell: the sentence stands in the first one, the others say their
    // text.
    if (role == Qt::AccessibleTextRole && column == Codice) {
        return onOneLine(fromUtf8(fraseCollaboratore(riga)));
    }
    if (role == Qt::CheckStateRole && column == Codice) {
        return riga.spuntata ? Qt::Checked : Qt::Unchecked;
    }
    return {};
}

bool StaffListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || index.column() != Codice || row(index) == nullptr) {
        return false;
    }
    Q_EMIT checkRequested(index.row(), value.toInt() == Qt::Checked);
    return true;
}

QVariant StaffListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool known = orientation == Qt::Horizontal && section >= 0 && section < Colonne;
    if (known && role == Qt::DisplayRole) {
        return title(section);
    }
    if (known && role == Qt::AccessibleTextRole) {
        return section == Nome ? title(section) + spokenOrder() : title(section);
    }
    return {};
}

QString StaffListModel::spokenOrder() const {
    switch (m_lista == nullptr ? Ordinamento::nessuno : m_lista->ordinamento()) {
    case Ordinamento::crescente:
        return QStringLiteral(", in ordine dalla A alla Z");
    case Ordinamento::decrescente:
        return QStringLiteral(", in ordine dalla Z alla A");
    case Ordinamento::nessuno:
        break;
    }
    return {};
}

Qt::ItemFlags StaffListModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    const Qt::ItemFlags plain = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return index.column() == Codice ? plain | Qt::ItemIsUserCheckable : plain;
}

QModelIndexList StaffListModel::match(const QModelIndex& start, int role, const QVariant& value, int /*hits*/,
                                      Qt::MatchFlags /*flags*/) const {
    const auto begins = [&](int row, int column) {
        return index(row, column).data(role).toString().startsWith(value.toString(), Qt::CaseInsensitive);
    };
    const bool asked = start.isValid() && !value.toString().isEmpty();
    for (int step = 0; asked && step < m_rows; ++step) {
        const int row = (start.row() + step) % m_rows;
        if (begins(row, Nome) || begins(row, Codice)) {
            return {index(row, start.column())};
        }
    }
    return {};
}

} // namespace planner
