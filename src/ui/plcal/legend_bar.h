// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "session/tipi_impegno.h"
#include "ui/kit/pictures.h"

#include <QWidget>

#include <vector>

namespace planner {

/// The signs of the grid's cells with their meaning, always in sight. Where there is no room for the words
/// the signs stand alone, and each one's meaning is its tool tip.
class LegendBar : public QWidget {
    Q_OBJECT
public:
    explicit LegendBar(QWidget* parent);

    /// Entries and their sentence.
    void setEntries(const std::vector<VoceLegenda>& voci);

    /// How wide it is with its words, and with the signs alone, in pixels.
    int wholeWidth() const { return widthOf(/*words=*/true); }
    int shortWidth() const { return widthOf(/*words=*/false); }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int side() const;
    QFont letters() const;
    int entryWidth(const VoceLegenda& voce, bool words, const QFontMetrics& letters) const;
    int widthOf(bool words) const;
    bool showsWords() const { return width() >= wholeWidth(); }
    QString toolTipAt(const QPoint& position) const;
    void paintSign(QPainter& painter, const QRect& square, const VoceLegenda& voce);

    std::vector<VoceLegenda> m_voci;
    Pictures m_pictures;
};

} // namespace planner
