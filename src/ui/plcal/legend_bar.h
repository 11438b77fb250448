// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "session/tipi_impegno.h"
#include "ui/kit/pictures.h"

#include <QWidget>

#include <optional>
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
    int wholeWidth() const { return widths().whole; }
    int shortWidth() const { return widths().brief; }

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Widths {
        int height, whole, brief; // pixels: for a bar of that height
    };

    int side() const;
    QFont letters() const;
    int entryWidth(const VoceLegenda& voce, bool words, const QFontMetrics& letters) const;
    const Widths& widths() const;
    bool showsWords() const { return width() >= wholeWidth(); }
    QString toolTipAt(const QPoint& position) const;
    void paintSign(QPainter& painter, const QRect& square, const VoceLegenda& voce);

    std::vector<VoceLegenda> m_voci;
    mutable std::optional<Widths> m_widths; // since the entries and the letters are as they are
    Pictures m_pictures;
};

} // namespace planner
