// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/kit/fitting_font.h"
#include "ui/kit/plain_label.h"

#include <optional>

namespace planner {

/// A label of one line that fits its text into its place. Its text and its accessible name stay whole; where
/// the text is cut, the whole text is the tool tip.
class FittedLabel : public PlainLabel {
    Q_OBJECT
public:
    explicit FittedLabel(QWidget* parent);

    /// What is shown of the text at present.
    FittedText fitted() const;
    /// As high as a line; as narrow as there is room for.
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    const FittingFont& fittingFont() const;

    mutable std::optional<FittingFont> m_font; // made when it is asked for: most labels are out of sight
};

} // namespace planner
