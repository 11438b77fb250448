// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace planner {

/// The toolkit's own style, the same on every desktop, in the desktop's colours as far as they are legible.
/// Buttons, fields and marks have edges that show on light and on dark. Buttons of message boxes and dialogs
/// bear words alone, as those of the program's own windows: the toolkit's pictures for them are dark on dark
/// desktops.
class PlannerStyle : public QProxyStyle {
    Q_OBJECT
public:
    PlannerStyle();

    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    /// The arrows as the style draws them: the toolkit's own pictures of them are files in many sizes, read
    /// when a calendar or a tool bar is made.
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
};

} // namespace planner
