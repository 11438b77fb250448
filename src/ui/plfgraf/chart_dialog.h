// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <cstdint>
#include <vector>

class QPushButton;

namespace planner {

class Annuncio;
class ChartKindFrame;
class ChartView;
class FittedLabel;
class MessageBoxes;
class plfgraf;
enum class ComandoGrafico : std::uint8_t;
struct Drawing;
struct Grafico;

/// The chart window's widgets: the chart, the frame with its kinds that floats over it, and below it a line
/// that reads the value pointed at, beside buttons that copy, save and print.
class ChartDialog : public QDialog {
    Q_OBJECT
public:
    /// `form` must have a visible chart.
    ChartDialog(plfgraf& form, MessageBoxes& messaggi, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    const Grafico& grafico() const;
    ChartKindFrame* makeFrame();
    QPushButton* makeButton(QAction* command);
    QAction* makeCommand(ComandoGrafico command);
    void run(ComandoGrafico command);
    void addCommands();
    QSize smallestSize() const;
    void placeControls();
    void placeStrip(const QRect& strip);
    void placeTexts();
    /// Writes the line below the chart; a screen reader reads `spoken` where it differs.
    void say(const QString& text, const QString& spoken = {});
    /// Writes it too, and has a screen reader say it.
    void announce(const QString& text);
    void showValue(const QModelIndex& index);
    Drawing drawing() const;
    QString fileName() const;
    void copyValues();
    void saveChart();
    void printChart();

    plfgraf& m_form;
    MessageBoxes& m_messaggi;
    double m_fontFactor;
    ChartView* m_chart;
    ChartKindFrame* m_frame;
    FittedLabel* m_piede; // whose hours, of when, in all and on the average
    FittedLabel* m_stato;
    Annuncio* m_annuncio;
    QRect m_texts;                       // what the buttons leave of the strip
    bool m_resting = true;               // the line invites, and says nothing else
    std::vector<QPushButton*> m_buttons; // from left to right
};

/// Shows the visible chart of `form` over the active window; returns when the window is closed.
void mostraGrafico(plfgraf& form, MessageBoxes& messaggi);

} // namespace planner
