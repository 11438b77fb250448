// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/style.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace planner {

/// An appointment's bar in a row of the daily grid. Appointments that overlap stand one above the other, each
/// in a lane of its own.
struct FasciaImpegno {
    int prima, ultima; // columns, bounds included
    int immagine = 0;  // in the first column; 0 for none
    int corsia = 0;    // from the top, counted from 0
    int corsie = 1;    // that the row is divided into where the bar stands

    bool copre(int colonna) const { return prima <= colonna && colonna <= ultima; }
    friend bool operator==(const FasciaImpegno&, const FasciaImpegno&) = default;
};

/// A place of a grid; column 0 is the name, as everywhere.
struct Casella {
    int riga = 0, colonna = 0;

    friend bool operator==(const Casella&, const Casella&) = default;
};

/// A rectangle of cells, bounds included; empty at first.
struct AreaCelle {
    int rigaMin = 0, colonnaMin = 0, rigaMax = -1, colonnaMax = -1;
    bool intestazioni = false; // names or header cells beside it look different

    bool empty() const { return rigaMax < rigaMin || colonnaMax < colonnaMin; }
    void include(Casella casella);
};

/// Is told what changed in a grid.
class OsservatoreGriglia {
public:
    virtual ~OsservatoreGriglia() = default;
    /// The number of rows changed, and with it anything else.
    virtual void strutturaCambiata() = 0;
    /// Cells changed, or row heights and column widths while that number stayed.
    virtual void celleCambiate(const AreaCelle& area, bool misure) = 0;
};

/// The contents of a grid as plain data: cells, fixed rows and columns, row heights and column widths in
/// twips, and a current cell. Every access to a cell outside the grid throws SubscriptError. What fills write
/// in their loops over rows and columns takes the two apart; a place that is kept or handed on is a
/// `Casella`.
class Griglia {
public:
    /// A grid as it stands before any data; `sfondoBase` is what its uncoloured data cells look like.
    Griglia(int rows, int cols, int fixedRows, Colore sfondoBase);

    int Rows() const { return m_rows; }
    int Cols() const { return m_cols; }
    int FixedRows() const { return m_fixedRows; }
    static constexpr int FixedCols() { return 1; }

    /// Drops rows at the end, or adds new and empty ones. Never fewer than the fixed rows.
    void setRows(int rows);

    Casella corrente() const { return m_corrente; }
    int Row() const { return m_corrente.riga; }
    int Col() const { return m_corrente.colonna; }
    void setCurrent(Casella casella);
    /// True for a cell beside the fixed rows and columns; any place may be asked for.
    bool isDataCell(Casella casella) const;

    const Cella& cella(int row, int col) const { return m_cells[index(row, col)]; }
    const Cella& cella(Casella c) const { return cella(c.riga, c.colonna); }
    std::string_view TextMatrix(int row, int col) const { return m_texts[cella(row, col).testo]; }
    std::string_view TextMatrix(Casella c) const { return TextMatrix(c.riga, c.colonna); }
    /// Makes the cell one of the role with the text, of no holiday and not marked.
    void setCaption(int row, int col, Ruolo ruolo, std::string_view text, bool fineSettimana = false);
    void setCellHoliday(int row, int col);
    void setCellToday(int row, int col, bool oggi);
    /// Shows the picture, and adds kinds of entries to those that the cell has.
    void setCellPicture(int row, int col, int immagine, unsigned tipi = 0);
    /// Makes the cell part of an appointment's span, and adds the appointment's kinds.
    void addCellEntry(int row, int col, unsigned tipi);
    /// Marks the day as the yearly table does.
    void segna(int row, int col);

    static constexpr int Nessuna = -1;
    /// Highlights the row and no other, or none. No cell is the selected one afterwards.
    void evidenzia(int riga);
    /// True once a row is highlighted; it stays so when the grid's rows are made anew.
    bool EvidenziazioneAttiva() const { return m_evidenziata >= 0; }
    /// The highlighted row, negative for none.
    int RigaEvidenziata() const { return m_evidenziata; }
    /// Makes the cell the selected one, until another is or its row is dropped.
    void scegli(Casella casella);
    void scegliNessuna();
    /// True for the selected one; any place may be asked for.
    bool scelta(Casella casella) const { return m_scelta.riga >= 0 && casella == m_scelta; }
    bool sceltaAttiva() const { return m_scelta.riga >= 0; }
    /// True for the name and the header cells of the highlighted row and of the selected cell; any place may
    /// be asked for.
    bool inEvidenza(Casella casella) const;

    /// The appointments' bars of a row, from its first column on; none after a clear.
    std::span<const FasciaImpegno> fasce(int row) const;
    void setFasce(int row, std::vector<FasciaImpegno> fasce);

    /// A number for each column, shown as a bar in the header: what the whole office has there. Columns past
    /// the list's end, and those with a negative number, have none.
    void setRiepilogo(std::vector<int> perColonna, int massimo);
    /// Nothing for a column without a number; any column may be asked for.
    std::optional<int> riepilogo(int colonna) const;
    /// The number that a bar as high as the header stands for.
    int riepilogoMassimo() const { return m_riepilogoMassimo; }

    /// The colours that the cell shows, and those of them that have a name.
    Aspetto aspetto(Casella casella) const;
    Colore CellForeColor(int row, int col) const { return aspetto({row, col}).colore; }
    Colore CellBackColor(int row, int col) const { return aspetto({row, col}).sfondo; }

    /// Twips; data rows are equally high. All but `setDataRowHeight` throw SubscriptError outside the grid.
    int RowHeight(int row) const;
    int ColWidth(int col) const;
    void setRowHeight(int row, int twips);
    void setDataRowHeight(int twips);
    void setColWidth(int col, int twips);

    /// At most one observer; null for none. It is told what changes from now on.
    void setOsservatore(OsservatoreGriglia* osservatore);

    /// Suspends what the observer is told while a grid is filled; the last one to go tells it once.
    class LockWindowUpdate {
    public:
        explicit LockWindowUpdate(Griglia& griglia);
        ~LockWindowUpdate();
        LockWindowUpdate(const LockWindowUpdate&) = delete;
        LockWindowUpdate& operator=(const LockWindowUpdate&) = delete;

    private:
        Griglia& m_griglia;
    };

private:
    std::size_t index(int row, int col) const;
    std::size_t heightIndex(int row) const;
    void includeRow(int row);
    void includeSelected();
    template <typename Change>
    void change(int row, int col, Change apply);
    std::uint32_t intern(std::string_view text);
    void notify();

    int m_rows, m_cols, m_fixedRows;
    Colore m_sfondoBase;
    Casella m_corrente;
    int m_evidenziata = Nessuna; // row
    Casella m_scelta{Nessuna, Nessuna};
    std::vector<Cella> m_cells;
    std::vector<int> m_rowHeights; // of the fixed rows, and at last of every data row
    std::vector<int> m_colWidths;
    std::unordered_map<int, std::vector<FasciaImpegno>> m_fasce; // by row; few rows have any
    std::vector<int> m_riepilogo;                                // by column
    int m_riepilogoMassimo = 0;

    std::deque<std::string> m_texts{std::string()}; // a deque: the map's keys point into it
    std::unordered_map<std::string_view, std::uint32_t> m_textIndex{{std::string_view(), 0}};

    OsservatoreGriglia* m_osservatore = nullptr;
    int m_locks = 0;
    AreaCelle m_dirty;
    bool m_measuresChanged = false;
    int m_knownRows = 0; // what the observer was last told
};

} // namespace planner
