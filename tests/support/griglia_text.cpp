// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/griglia_text.h"

#include "archive/cp1252.h"
#include "archive/fixed_text.h"

#include <iomanip>
#include <sstream>

namespace planner::test {

namespace {

constexpr int NameWidth = 24;

char coloursOf(const Griglia& griglia, int riga, int colonna) {
    const Colore colore = griglia.CellForeColor(riga, colonna);
    const bool black = colore == Colore::nero || colore == Colore::predefinito;
    switch (griglia.CellBackColor(riga, colonna)) {
    case Colore::intestazione:
    case Colore::gialloChiaro:
    case Colore::bianco:
        return black ? ' ' : colore == Colore::rosso ? 'r' : colore == Colore::navy ? 'n' : '?';
    case Colore::grigioChiaro:
        return black ? '.' : colore == Colore::rosso ? ':' : '?';
    case Colore::navy:
        return colore == Colore::bianco ? '*' : '?';
    case Colore::azzurro:
        return black ? '=' : '?';
    default:
        return '?';
    }
}

char fontOf(const Cella& cella) {
    constexpr std::string_view letters = " boma";
    return letters.at(static_cast<std::size_t>(stile(cella).carattere));
}

std::string contentOf(const Griglia& griglia, int riga, int colonna) {
    const Cella& cella = griglia.cella(riga, colonna);
    const std::string text = utf8FromCp1252(griglia.TextMatrix(riga, colonna));
    const std::string picture = cella.immagine == 0 ? "" : "#" + std::to_string(cella.immagine);
    return text.empty() || picture.empty() ? text + picture : text + " " + picture;
}

std::string withoutTrailingBlanks(const std::string& line) {
    return std::string(trimRight(line));
}

std::string cellEntry(const Griglia& griglia, int riga, int colonna) {
    const Cella& cella = griglia.cella(riga, colonna);
    std::string entry;
    if (cella.testo != 0) {
        entry += '"' + utf8FromCp1252(griglia.TextMatrix(riga, colonna)) + '"';
    }
    if (cella.immagine != 0) {
        entry += "#" + std::to_string(cella.immagine);
    }
    const char colours = coloursOf(griglia, riga, colonna);
    entry += colours == ' ' ? std::string() : std::string(1, colours);
    return fontOf(cella) == ' ' ? entry : entry + "(" + fontOf(cella) + ")";
}

} // namespace

std::string tabella(const Griglia& griglia) {
    std::ostringstream ruler;
    ruler << "  twips |" << std::setw(NameWidth + 2) << " "
          << "|";
    for (int colonna = 1; colonna < griglia.Cols(); ++colonna) {
        ruler << std::setw(3) << colonna << " ";
    }
    std::string out = withoutTrailingBlanks(ruler.str()) + "\n";
    for (int riga = 0; riga < griglia.Rows(); ++riga) {
        std::ostringstream line;
        line << std::setw(7) << griglia.RowHeight(riga) << " |" << std::left << std::setw(NameWidth)
             << contentOf(griglia, riga, 0) << coloursOf(griglia, riga, 0) << fontOf(griglia.cella(riga, 0))
             << "|" << std::right;
        for (int colonna = 1; colonna < griglia.Cols(); ++colonna) {
            line << std::setw(3) << contentOf(griglia, riga, colonna) << coloursOf(griglia, riga, colonna);
        }
        out += withoutTrailingBlanks(line.str()) + "\n";
    }
    return out;
}

std::string elencoRiga(const Griglia& griglia, int riga) {
    std::string out;
    for (int colonna = 0; colonna < griglia.Cols();) {
        const std::string entry = cellEntry(griglia, riga, colonna);
        int last = colonna;
        while (last + 1 < griglia.Cols() && cellEntry(griglia, riga, last + 1) == entry) {
            ++last;
        }
        if (!entry.empty()) {
            out += (out.empty() ? "" : " | ") + std::to_string(colonna) +
                   (last > colonna ? "-" + std::to_string(last) : "") + " " + entry;
        }
        colonna = last + 1;
    }
    return out;
}

} // namespace planner::test
