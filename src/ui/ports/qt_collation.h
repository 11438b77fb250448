// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/collation.h"

#include <QCollator>

namespace planner {

/// Italian collation, whatever the desktop's language.
class QtCollation : public Collation {
public:
    QtCollation();
    int compare(std::string_view a, std::string_view b) const override;
    std::string folded(std::string_view text) const override;

private:
    QCollator m_collator;
};

} // namespace planner
