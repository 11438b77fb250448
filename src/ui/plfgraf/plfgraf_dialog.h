// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfgraf/finestra_grafici.h"
#include "ports/message_boxes.h"

namespace planner {

/// The chart window, modal over the active window.
class PlfgrafDialog : public FinestraGrafici {
public:
    explicit PlfgrafDialog(MessageBoxes& messaggi) : m_messaggi(messaggi) {}
    void mostra(plfgraf& form) override;

private:
    MessageBoxes& m_messaggi;
};

} // namespace planner
