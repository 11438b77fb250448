// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfimp/plfimp.h"

namespace planner {

/// The appointment-type question as a modal dialog over the active window. Enter confirms, Escape cancels.
class PlfimpDialog : public FinestraImpegno {
public:
    void chiedi(plfimp& form) override;
};

} // namespace planner
