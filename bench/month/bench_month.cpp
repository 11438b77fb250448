// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
// From the event that moves the month to the painted grid, with the real window over a sample archive; and
// against a window that fills as many cells and draws as many pictures, no more.

#include "frame/frame_times.h"
#include "frame/sample_planner.h"
#include "ui/kit/pictures.h"
#include "ui/plcal/grid_view.h"

#include <QApplication>
#include <QPainter>
#include <QTemporaryDir>
#include <QToolButton>
#include <QWindow>

using namespace planner;

namespace {

constexpr int Staff = 60;
constexpr int Records = 5000;
constexpr int MonthsOneWay = 11;
constexpr int Moves = 20 * MonthsOneWay; // through the year and back, ten times

/// As many rows in sight as can be: without details, at half the designed size.
void showAll(plcal& finestra) {
    finestra.Toolbar1_ButtonClick("dettno");
    while (finestra.ingrandimento().percento() > 50) {
        finestra.griglia_Comando(ComandoGriglia::riduci);
    }
}

/// The cells in sight of a grid, each a plain fill, and one picture on those that are marked.
class PlainCells : public QWidget {
public:
    explicit PlainCells(const GridView& view) {
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            for (int column = 0; column < view.model()->columnCount(); ++column) {
                const QModelIndex index = view.model()->index(row, column);
                const QRect place = view.visualRect(index) & view.viewport()->rect();
                if (!place.isEmpty()) {
                    const Casella casella{row + view.griglia().FixedRows(), column + Griglia::FixedCols()};
                    m_cells.push_back({place, view.griglia().cella(casella).immagine != 0});
                }
            }
        }
        resize(view.window()->size());
        show();
        while (!windowHandle()->isExposed()) {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

private:
    struct Cell {
        QRect place;
        bool marked;
    };

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        for (const Cell& cell : m_cells) {
            painter.fillRect(cell.place, Qt::yellow);
            if (cell.marked) {
                const int side = std::min(cell.place.width(), cell.place.height());
                painter.drawPixmap(cell.place.topLeft(), m_pictures.picture(1, side, devicePixelRatioF()));
            }
        }
    }

    std::vector<Cell> m_cells;
    Pictures m_pictures;
};

FrameTimes plainFill(const char* name, const GridView& view) {
    PlainCells plain(view);
    return measureFrames(
        name, false, Moves, [] {}, [&] { plain.update(); });
}

FrameReport measure() {
    const QTemporaryDir folder;
    makeSample(folder.path().toStdString(), Staff, Records);
    SamplePlanner planner(folder.path().toStdString());
    planner.show();
    auto& next = *planner.finestre().vista.findChild<QToolButton*>(QStringLiteral("bselm1"));
    auto& previous = *planner.finestre().vista.findChild<QToolButton*>(QStringLiteral("bselm0"));
    int move = 0;
    const auto moveMonth = [&] { (move++ / MonthsOneWay % 2 == 0 ? next : previous).click(); };
    const auto nothing = [] {};
    measureFrames("warm", false, Moves, nothing, moveMonth);
    FrameReport report{"previous/next month, event to painted, " + std::to_string(Staff) + " staff, " +
                           std::to_string(Records) + " records, " + std::to_string(Moves) + " moves",
                       {measureFrames("month", true, Moves, nothing, moveMonth)}};
    const auto& view = *planner.finestre().vista.findChild<GridView*>();
    report.times.push_back(plainFill("plain", view));
    showAll(planner.finestre().finestra);
    measureFrames("warm", false, Moves, nothing, moveMonth);
    report.times.push_back(measureFrames("all in sight", true, Moves, nothing, moveMonth));
    report.times.push_back(plainFill("all, plain", view));
    report.ratios = {{"month", "plain", 2}, {"all in sight", "all, plain", 2}};
    return report;
}

} // namespace

int main(int argc, char* argv[]) {
    return frameBenchmark(argc, argv, measure);
}
