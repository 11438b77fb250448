// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QIODevice;

namespace planner {

/// Has `write` write a file, which replaces one that is there only when all is written. Returns what went
/// wrong, in Italian; empty when nothing did.
QString saveWhole(const QString& path, const std::function<bool(QIODevice&)>& write);

} // namespace planner
