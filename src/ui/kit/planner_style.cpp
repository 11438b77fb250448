// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/planner_style.h"

#include "ui/kit/drawn_icon.h"
#include "ui/kit/legible.h"

#include <QAbstractButton>
#include <QPainter>
#include <QStyleOption>

namespace planner {

namespace {

/// What has the focus, and the button that Enter presses, have an edge in the colour of what is chosen.
bool isChosen(const QStyleOption& option) {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    return option.state.testFlag(QStyle::State_HasFocus) ||
           (button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton));
}

/// The focus of a button or mark; a row of a list shows it otherwise.
bool isFocusOfAButton(QStyle::PrimitiveElement element, const QStyleOption& option, const QWidget* widget) {
    return element == QStyle::PE_FrameFocusRect && option.state.testFlag(QStyle::State_KeyboardFocusChange) &&
           qobject_cast<const QAbstractButton*>(widget) != nullptr;
}

void drawEdge(QPainter& painter, const QColor& colour, const QRect& rect, bool round) {
    const QRectF edge = QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
    const double radius = round ? edge.width() / 2 : 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colour);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(edge, radius, radius);
    painter.restore();
}

} // namespace

PlannerStyle::PlannerStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void PlannerStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    makeLegible(palette);
}

void PlannerStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool round = element == PE_IndicatorRadioButton;
    if (round || element == PE_IndicatorCheckBox) {
        drawEdge(*painter, edgeColor(option->palette), option->rect, round);
    } else if (element == PE_PanelButtonCommand || element == PE_FrameLineEdit) {
        drawEdge(*painter, isChosen(*option) ? focusColor(option->palette) : edgeColor(option->palette),
                 option->rect, false);
    } else if (element == PE_PanelMenu) {
        drawEdge(*painter, edgeColor(option->palette), option->rect, false);
    } else if (isFocusOfAButton(element, *option, widget)) {
        drawEdge(*painter, focusColor(option->palette), option->rect, false);
    }
}

void PlannerStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ScrollBar) {
        drawEdge(*painter, edgeColor(option->palette),
                 subControlRect(control, option, SC_ScrollBarSlider, widget), false);
    }
}

QIcon PlannerStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                 const QWidget* widget) const {
    switch (which) {
    case SP_ArrowLeft:
        return arrowIcon(PE_IndicatorArrowLeft);
    case SP_ArrowRight:
    case SP_ToolBarHorizontalExtensionButton:
        return arrowIcon(PE_IndicatorArrowRight);
    default:
        return QProxyStyle::standardIcon(which, option, widget);
    }
}

int PlannerStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* data) const {
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0
                                                       : QProxyStyle::styleHint(hint, option, widget, data);
}

} // namespace planner
