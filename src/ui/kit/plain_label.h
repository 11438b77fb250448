// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace planner {

/// A label that shows its text as it is, never as markup.
class PlainLabel : public QLabel {
public:
    explicit PlainLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }
};

} // namespace planner
