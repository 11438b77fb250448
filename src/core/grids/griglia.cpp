// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/griglia.h"

#include "ports/runtime_errors.h"

#include <algorithm>

namespace planner {

namespace {

constexpr int DefaultRowHeight = 300; // twips
constexpr int DefaultColWidth = 350;

} // namespace

void AreaCelle::include(Casella casella) {
    const auto [riga, colonna] = casella;
    if (empty()) {
        *this = {riga, colonna, riga, colonna, intestazioni};
        return;
    }
    rigaMin = std::min(rigaMin, riga);
    rigaMax = std::max(rigaMax, riga);
    colonnaMin = std::min(colonnaMin, colonna);
    colonnaMax = std::max(colonnaMax, colonna);
}

Griglia::Griglia(int rows, int cols, int fixedRows, Colore sfondoBase)
    : m_rows(rows), m_cols(cols), m_fixedRows(fixedRows), m_sfondoBase(sfondoBase),
      m_cells(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols)),
      m_rowHeights(static_cast<std::size_t>(fixedRows) + 1, DefaultRowHeight),
      m_colWidths(static_cast<std::size_t>(cols), DefaultColWidth), m_knownRows(rows) {}

void Griglia::setRows(int rows) {
    const LockWindowUpdate lock(*this);
    m_rows = std::max(rows, m_fixedRows);
    m_cells.resize(static_cast<std::size_t>(m_rows) * static_cast<std::size_t>(m_cols));
    std::erase_if(m_fasce, [this](const auto& row) { return row.first >= m_rows; });
    m_corrente.riga = std::min(m_corrente.riga, m_rows - 1);
    if (m_scelta.riga >= m_rows) {
        m_scelta = {Nessuna, Nessuna};
    }
    m_dirty.include({m_fixedRows, 0});
    m_dirty.include({m_rows - 1, m_cols - 1});
    m_measuresChanged = true;
}

void Griglia::setCurrent(Casella casella) {
    index(casella.riga, casella.colonna);
    m_corrente = casella;
}

bool Griglia::isDataCell(Casella casella) const {
    return casella.riga >= m_fixedRows && casella.riga < m_rows && casella.colonna >= FixedCols() &&
           casella.colonna < m_cols;
}

template <typename Change>
void Griglia::change(int row, int col, Change apply) {
    Cella& cell = m_cells[index(row, col)];
    const Cella before = cell;
    apply(cell);
    if (cell == before) {
        return; // what looks as before needs no repainting
    }
    m_dirty.include({row, col});
    notify();
}

void Griglia::setCaption(int row, int col, Ruolo ruolo, std::string_view text, bool fineSettimana) {
    change(row, col, [&](Cella& cell) {
        cell.testo = intern(text);
        cell.ruolo = ruolo;
        cell.fineSettimana = fineSettimana;
        cell.festivo = false;
        cell.segnato = false;
    });
}

void Griglia::setCellHoliday(int row, int col) {
    change(row, col, [](Cella& cell) { cell.festivo = true; });
}

void Griglia::setCellToday(int row, int col, bool oggi) {
    change(row, col, [=](Cella& cell) { cell.oggi = oggi; });
}

void Griglia::setCellPicture(int row, int col, int immagine, unsigned tipi) {
    change(row, col, [=](Cella& cell) {
        cell.immagine = std::clamp(immagine, 0, 16) & 0x1F;
        cell.tipi = (cell.tipi | tipi) & 0xFu;
    });
}

void Griglia::addCellEntry(int row, int col, unsigned tipi) {
    change(row, col, [=](Cella& cell) {
        cell.impegno = true;
        cell.tipi = (cell.tipi | tipi) & 0xFu;
    });
}

void Griglia::segna(int row, int col) {
    change(row, col, [](Cella& cell) { cell.segnato = true; });
}

void Griglia::evidenzia(int riga) {
    const LockWindowUpdate lock(*this);
    scegliNessuna();
    if (riga != m_evidenziata) {
        includeRow(riga);
        includeRow(m_evidenziata);
        m_evidenziata = riga;
    }
}

void Griglia::scegli(Casella casella) {
    const LockWindowUpdate lock(*this);
    index(casella.riga, casella.colonna);
    scegliNessuna();
    m_scelta = casella;
    includeSelected();
}

void Griglia::scegliNessuna() {
    if (m_scelta.riga >= 0) {
        includeSelected();
        m_scelta = {Nessuna, Nessuna};
        notify();
    }
}

void Griglia::includeRow(int row) {
    if (row >= 0 && row < m_rows) {
        m_dirty.include({row, FixedCols()});
        m_dirty.include({row, m_cols - 1});
        m_dirty.intestazioni = true;
    }
}

void Griglia::includeSelected() {
    m_dirty.include(m_scelta);
    m_dirty.intestazioni = true;
}

bool Griglia::inEvidenza(Casella casella) const {
    const auto [riga, colonna] = casella;
    if (colonna < FixedCols()) {
        return riga >= m_fixedRows && (riga == m_evidenziata || riga == m_scelta.riga);
    }
    return riga < m_fixedRows && colonna == m_scelta.colonna;
}

std::span<const FasciaImpegno> Griglia::fasce(int row) const {
    index(row, 0);
    const auto found = m_fasce.find(row);
    return found == m_fasce.end() ? std::span<const FasciaImpegno>() : found->second;
}

void Griglia::setFasce(int row, std::vector<FasciaImpegno> fasce) {
    index(row, 0);
    m_fasce[row] = std::move(fasce);
    m_dirty.include({row, 0});
    m_dirty.include({row, m_cols - 1});
    notify();
}

void Griglia::setRiepilogo(std::vector<int> perColonna, int massimo) {
    if (perColonna == m_riepilogo && massimo == m_riepilogoMassimo) {
        return;
    }
    m_riepilogo = std::move(perColonna);
    m_riepilogoMassimo = massimo;
    m_dirty.include({0, FixedCols()});
    m_dirty.include({0, m_cols - 1});
    notify();
}

std::optional<int> Griglia::riepilogo(int colonna) const {
    const auto place = static_cast<std::size_t>(colonna);
    const bool known = colonna >= 0 && place < m_riepilogo.size() && m_riepilogo[place] >= 0;
    return known ? std::optional(m_riepilogo[place]) : std::nullopt;
}

int Griglia::RowHeight(int row) const {
    return m_rowHeights[heightIndex(row)];
}

int Griglia::ColWidth(int col) const {
    index(0, col);
    return m_colWidths[static_cast<std::size_t>(col)];
}

Aspetto Griglia::aspetto(Casella casella) const {
    const auto [row, col] = casella;
    const bool fixed = row < m_fixedRows || col < FixedCols();
    return planner::aspetto(cella(casella), {fixed ? Colore::intestazione : m_sfondoBase,
                                             row == m_evidenziata && col >= FixedCols(), casella == m_scelta,
                                             inEvidenza(casella)});
}

void Griglia::setRowHeight(int row, int twips) {
    m_rowHeights[heightIndex(row)] = twips;
    m_measuresChanged = true;
    notify();
}

void Griglia::setDataRowHeight(int twips) {
    m_rowHeights.back() = twips;
    m_measuresChanged = true;
    notify();
}

void Griglia::setColWidth(int col, int twips) {
    index(0, col);
    m_colWidths[static_cast<std::size_t>(col)] = twips;
    m_measuresChanged = true;
    notify();
}

void Griglia::setOsservatore(OsservatoreGriglia* osservatore) {
    m_osservatore = osservatore;
    m_knownRows = m_rows;
    m_dirty = {};
    m_measuresChanged = false;
}

std::size_t Griglia::index(int row, int col) const {
    if (row < 0 || row >= m_rows || col < 0 || col >= m_cols) {
        throw SubscriptError();
    }
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_cols) + static_cast<std::size_t>(col);
}

std::size_t Griglia::heightIndex(int row) const {
    index(row, 0);
    return static_cast<std::size_t>(std::min(row, m_fixedRows));
}

std::uint32_t Griglia::intern(std::string_view text) {
    const auto known = m_textIndex.find(text);
    if (known != m_textIndex.end()) {
        return known->second;
    }
    const auto place = static_cast<std::uint32_t>(m_texts.size());
    m_texts.emplace_back(text);
    m_textIndex.emplace(m_texts.back(), place);
    return place;
}

void Griglia::notify() {
    if (m_locks > 0 || m_osservatore == nullptr) {
        return;
    }
    const bool structure = m_rows != m_knownRows;
    const AreaCelle area = m_dirty;
    const bool measures = m_measuresChanged;
    m_knownRows = m_rows;
    m_dirty = {};
    m_measuresChanged = false;
    if (structure) {
        m_osservatore->strutturaCambiata();
    } else if (measures || !area.empty()) {
        m_osservatore->celleCambiate(area, measures);
    }
}

Griglia::LockWindowUpdate::LockWindowUpdate(Griglia& griglia) : m_griglia(griglia) {
    ++m_griglia.m_locks;
}

Griglia::LockWindowUpdate::~LockWindowUpdate() {
    --m_griglia.m_locks;
    m_griglia.notify();
}

} // namespace planner
