// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

namespace planner {

/// Has menus, tool tips and descriptions name the keys of `NomiTasti` as the guide does.
class KeyNames : public QTranslator {
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int count) const override;
};

} // namespace planner
