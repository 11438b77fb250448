// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/stampa/documento.h"

#include <QString>
#include <QStringList>

class QImage;
class QPagedPaintDevice;
class QWidget;

namespace planner {

class MessageBoxes;

/// Asks for printer, paper and pages over `parent`, and prints the document on the paper chosen. What goes
/// wrong is said. True when it has been printed.
bool stampaGriglia(DocumentoStampa documento, QWidget& parent, MessageBoxes& messaggi);

/// Prints on a device whose sheets are as large as the document's and painted to their edges; those pages
/// alone that the device is set to, if any. False when it does not take them.
bool printOn(QPagedPaintDevice& device, const DocumentoStampa& documento);

/// Writes all pages into one PDF file. Returns what went wrong, in Italian; empty when nothing did.
QString savePdf(const DocumentoStampa& documento, const QString& path);

/// Writes a PNG picture for each page: one page into the file itself, several into files numbered from 1 that
/// stand beside it, "FILE-1.png". Returns the same.
QString savePng(const DocumentoStampa& documento, const QString& path);

/// The names of the files that `savePng` writes for so many pages.
QStringList pngNames(const QString& path, std::size_t pages);

/// The page as a picture, counted from 0; null when there is no memory for it.
QImage pageImage(const DocumentoStampa& documento, std::size_t page, double dotsPerInch);

/// Puts the visible grid and its totals on the clipboard, as text and as a table.
void copiaGriglia(const DocumentoStampa& documento);

} // namespace planner
