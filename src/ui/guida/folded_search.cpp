// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/guida/folded_search.h"

#include <QTextBlock>
#include <QTextDocument>

namespace planner {

namespace {

/// As long as the text: letter by letter, without case and accents.
QString folded(const QString& text) {
    QString letters;
    letters.reserve(text.size());
    for (const QChar letter : text) {
        letters += QString(letter).normalized(QString::NormalizationForm_D).at(0).toCaseFolded();
    }
    return letters;
}

/// Where the text stands in the block; -1 for nowhere. `from` is a place in the block, -1 for its end.
qsizetype placeIn(const QTextBlock& block, const QString& text, qsizetype from, bool backward) {
    const QString letters = folded(block.text());
    if (!backward) {
        return letters.indexOf(text, from < 0 ? 0 : from);
    }
    return from == 0 ? -1 : letters.lastIndexOf(text, from < 0 ? -1 : from - 1);
}

QTextCursor selected(const QTextBlock& block, qsizetype place, qsizetype length) {
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + static_cast<int>(place));
    cursor.setPosition(cursor.position() + static_cast<int>(length), QTextCursor::KeepAnchor);
    return cursor;
}

} // namespace

QTextCursor findFolded(const QTextDocument& document, const QString& text, const QTextCursor& from,
                       bool backward) {
    const QString wanted = folded(text);
    const int start = backward ? from.selectionStart() : from.selectionEnd();
    QTextBlock block = document.findBlock(start);
    qsizetype place = start - block.position();
    for (int passed = 0; !wanted.isEmpty() && passed <= document.blockCount(); ++passed) {
        const qsizetype found = placeIn(block, wanted, place, backward);
        if (found >= 0) {
            return selected(block, found, wanted.size());
        }
        block = backward ? block.previous() : block.next();
        if (!block.isValid()) {
            block = backward ? document.lastBlock() : document.firstBlock();
        }
        place = -1;
    }
    return {};
}

} // namespace planner
