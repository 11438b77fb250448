// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <optional>
#include <vector>

class QFrame;
class QLabel;
class QWidget;

namespace planner {

class FittedLabel;
enum class TipoPlanner : char;
struct PannelloDettagli;
struct Scala;

/// The labels of the totals: a static caption and a number for each.
class DetailPanel : public QObject {
    Q_OBJECT
public:
    /// Makes the labels as children of `parent`.
    explicit DetailPanel(QWidget* parent);

    /// Puts the captions and boxes of the kind and window variant in their places.
    void arrange(std::optional<TipoPlanner> tipo, bool varianteRidotta, const Scala& scala);
    /// Shows the totals.
    void show(const PannelloDettagli& contents);

private:
    void giveOneSize();

    struct Coppia {
        FittedLabel* didascalia;
        QFrame* riquadro; // stays in sight when there is no number to show
        QLabel* numero;
    };
    std::vector<Coppia> m_coppie; // by place in `EtichetteTotali`
};

} // namespace planner
