// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QTextCursor>

class QTextDocument;

namespace planner {

/// The next place of the text behind the cursor's selection, or the one before it, case and accents aside and
/// round the end. Found within a paragraph only; a null cursor where there is none, and for an empty text.
QTextCursor findFolded(const QTextDocument& document, const QString& text, const QTextCursor& from,
                       bool backward);

} // namespace planner
