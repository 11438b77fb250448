// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/guida/guida_view.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QListWidget;

namespace planner {

/// The office's guide in a window of its own: its chapters at the left, a field to find a word by.
class GuidaWindow : public QWidget {
    Q_OBJECT
public:
    GuidaWindow();

    /// Shows the window, in front of the others.
    void mostra();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void layOut();
    void addKeys();
    void listHeadings();
    void find(bool backward);

    GuidaView* m_text;
    QListWidget* m_chapters;
    QLineEdit* m_word;
    QLabel* m_outcome;
    std::vector<GuidaView::Heading> m_headings;
    bool m_placed = false;
};

} // namespace planner
