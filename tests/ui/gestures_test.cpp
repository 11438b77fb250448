// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/fixed_text.h"
#include "forms/plcal/gesti.h"
#include "support/panel_labels.h"
#include "ui/plcal/grid_corner.h"
#include "window_bench.h"

#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

/// A place of a grid, as it is meant.
struct Posto {
    const char* nome;
    std::optional<Luogo> luogo; // none for header and corner
    int riga, colonna;
};

/// What the user does besides what `Mezzi` lists; all this moves nothing.
enum class Altro { tastoCentrale, rotella, trascinamento, lettera, fuoco };

struct Prova {
    TipoPlanner tipo;
    Posto posto;
    std::optional<Mezzo> mezzo;
    Altro altro{};
};

/// March 2006 begins in column 3; rows 2 to 4 (1 to 3 in the daily grid) are Bianchi, Rossi and Verdi.
const std::vector<Posto> PostiMensili{{"day", Luogo::giorno, 2, 12},
                                      {"day_without_entries", Luogo::giorno, 4, 20},
                                      {"blank_column", Luogo::senzaGiorno, 2, 1},
                                      {"name", Luogo::nome, 4, 0},
                                      {"spare_row", Luogo::rigaInPiu, 9, 20},
                                      {"header", std::nullopt, 1, 20},
                                      {"corner", std::nullopt, 0, 0}};
const std::vector<Posto> PostiGiornalieri{
    {"day", Luogo::giorno, 1, 40},   {"day_without_entries", Luogo::giorno, 3, 50},
    {"name", Luogo::nome, 3, 0},     {"spare_row", Luogo::rigaInPiu, 9, 45},
    {"header", std::nullopt, 0, 45}, {"corner", std::nullopt, 0, 0}};
const std::vector<Posto> PostiAnnuali{{"day", Luogo::giorno, 5, 10},
                                      {"day_without_entries", Luogo::giorno, 6, 10},
                                      {"blank_column", Luogo::senzaGiorno, 2, 1},
                                      {"name", Luogo::nome, 5, 0},
                                      {"header", std::nullopt, 0, 10},
                                      {"corner", std::nullopt, 0, 0}};

bool isCell(const Posto& posto) {
    return posto.luogo && *posto.luogo != Luogo::nome;
}

/// Keys and screen readers reach cells only.
bool reaches(Mezzo mezzo, const Posto& posto) {
    return isCell(posto) || mezzo == Mezzo::clic || mezzo == Mezzo::clicDestro || mezzo == Mezzo::doppioClic;
}

std::vector<Prova> prove() {
    std::vector<Prova> all;
    for (const auto& [tipo, posti] : {std::pair{TipoPlanner::Mensile, PostiMensili},
                                      {TipoPlanner::Giornaliero, PostiGiornalieri},
                                      {TipoPlanner::Annuale, PostiAnnuali}}) {
        for (const Posto& posto : posti) {
            for (const DescrizioneMezzo& described : Mezzi) {
                if (reaches(described.mezzo, posto)) {
                    all.push_back({tipo, posto, described.mezzo});
                }
            }
            for (const Altro altro :
                 {Altro::tastoCentrale, Altro::rotella, Altro::trascinamento, Altro::lettera, Altro::fuoco}) {
                all.push_back({tipo, posto, std::nullopt, altro});
            }
        }
    }
    return all;
}

std::string nameOf(const Prova& prova) {
    constexpr std::array means{"click", "right_click", "double_click", "arrows", "space", "enter", "reader"};
    constexpr std::array others{"middle_button", "wheel", "drag", "letter", "focus"};
    const std::string what = prova.mezzo ? means.at(static_cast<std::size_t>(*prova.mezzo))
                                         : others.at(static_cast<std::size_t>(prova.altro));
    return std::string(1, static_cast<char>(prova.tipo)) + "_" + prova.posto.nome + "_" + what;
}

void PrintTo(const Prova& prova, std::ostream* out) {
    *out << nameOf(prova);
}

/// What can move.
struct Stato {
    std::string giorno;
    int riga, colonna;
    std::string collab;
    bool totali;
    bool menu;
    std::string risposta;

    friend bool operator==(const Stato&, const Stato&) = default;
    friend void PrintTo(const Stato& stato, std::ostream* out) {
        *out << stato.giorno << " (" << stato.riga << ", " << stato.colonna << ") \"" << stato.collab << "\""
             << (stato.totali ? " totals" : "") << (stato.menu ? " menu" : "") << " " << stato.risposta;
    }
};

class GesturesTest : public testing::TestWithParam<Prova> {
protected:
    GesturesTest() {
        bench.base.putRighe({riga("RB", "20060315", {{1, "00002"}}), riga("BI", "20060310", {{6, "00007"}}),
                             conOrario(riga("BI", "20060315", {{1, "00001"}}), "09", "30", "0000200"),
                             RigaPlanner{}});
        bench.base.putAnnuale(annoPlanner("2006", {{5, 10}}));
        bench.open(std::string(1, static_cast<char>(GetParam().tipo)));
    }
    ~GesturesTest() override {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            popup->close();
        }
    }

    Stato stato() {
        const bool totals = GetParam().tipo == TipoPlanner::Annuale
                                ? !etichetta(bench.finestra.pannello(), "prat").testo.empty()
                                : bench.finestra.pannello().lblcollabVisibile;
        return {bench.shownDay(),
                bench.griglia().Row(),
                bench.griglia().Col(),
                bench.base.sessione.collab,
                totals,
                QApplication::activePopupWidget() != nullptr,
                bench.base.sessione.valret};
    }

    /// Where the place is pressed.
    std::pair<QWidget*, QPoint> target(const Posto& posto) {
        GridView& view = bench.view();
        if (isCell(posto)) {
            const QPoint centre = bench.centreOf(posto.riga, posto.colonna);
            return {view.viewport(), centre};
        }
        if (posto.luogo) {
            auto* names = view.verticalHeader();
            return {names->viewport(),
                    QPoint(10, names->sectionViewportPosition(posto.riga - bench.griglia().FixedRows()) + 5)};
        }
        if (posto.colonna > 0) {
            auto* days = view.horizontalHeader();
            return {days->viewport(), QPoint(days->sectionViewportPosition(posto.colonna - 1) + 5, 5)};
        }
        for (auto* corner : bench.vista.findChildren<GridCorner*>()) {
            if (corner->isVisible()) {
                return {corner, QPoint(corner->width() / 2, 3)};
            }
        }
        throw std::runtime_error("no corner");
    }

    /// Puts the cursor somewhere, as it would stand after other gestures.
    void putCursor(int riga, int colonna) {
        bench.base.controlli.grigliaVisibile()->setCurrent({riga, colonna});
        bench.vista.aggiorna();
    }

    void perform(const Posto& posto, Mezzo mezzo) {
        const auto [widget, point] = target(posto);
        switch (mezzo) {
        case Mezzo::clic:
            return QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, point);
        case Mezzo::clicDestro: {
            QTest::mousePress(widget, Qt::RightButton, Qt::NoModifier, point);
            QContextMenuEvent menu(QContextMenuEvent::Mouse, point, widget->mapToGlobal(point));
            QCoreApplication::sendEvent(widget, &menu);
            return;
        }
        case Mezzo::doppioClic:
            QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, point);
            return QTest::mouseDClick(widget, Qt::LeftButton, Qt::NoModifier, point);
        case Mezzo::frecce:
            putCursor(posto.riga, posto.colonna + 1);
            return bench.key(Qt::Key_Left);
        case Mezzo::spazio:
        case Mezzo::invio:
            putCursor(posto.riga, posto.colonna);
            return bench.key(mezzo == Mezzo::spazio ? Qt::Key_Space : Qt::Key_Return);
        case Mezzo::assistenza:
            auto* table = QAccessible::queryAccessibleInterface(&bench.view())->tableInterface();
            auto* cell = table->cellAt(posto.riga - bench.griglia().FixedRows(), posto.colonna - 1);
            return cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        }
    }

    void perform(const Posto& posto, Altro altro) {
        const auto [widget, point] = target(posto);
        switch (altro) {
        case Altro::tastoCentrale:
            return QTest::mouseClick(widget, Qt::MiddleButton, Qt::NoModifier, point);
        case Altro::rotella: {
            QWheelEvent wheel(QPointF(point), widget->mapToGlobal(QPointF(point)), QPoint(), QPoint(0, -120),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(widget, &wheel);
            return;
        }
        case Altro::trascinamento: // the middle button presses nothing, the left one is held all the way
            QTest::mousePress(widget, Qt::MiddleButton, Qt::NoModifier, point);
            for (int step = 1; step < 6; ++step) {
                QMouseEvent move(QEvent::MouseMove, QPointF(point + QPoint(step * 30, step * 10)),
                                 widget->mapToGlobal(QPointF(point)), Qt::NoButton, Qt::LeftButton,
                                 Qt::NoModifier);
                QCoreApplication::sendEvent(widget, &move);
            }
            return QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, point + QPoint(150, 50));
        case Altro::lettera:
            for (const auto key : {Qt::Key_B, Qt::Key_1, Qt::Key_9, Qt::Key_V}) {
                QTest::keyClick(&bench.view(), key);
            }
            return;
        case Altro::fuoco:
            bench.view().clearFocus();
            bench.view().setFocus(Qt::TabFocusReason);
        }
    }

    /// What the table says that the gesture moves.
    Stato expected(const Prova& prova, const Stato& before) {
        const EffettoGesto* effect =
            prova.mezzo && prova.posto.luogo ? effettoGesto(prova.tipo, *prova.posto.luogo) : nullptr;
        if (effect == nullptr) {
            return before;
        }
        Stato after = before;
        const auto day =
            giornoCella(bench.base.controlli, prova.tipo, {prova.posto.riga, prova.posto.colonna});
        after.giorno = effect->giorno && day ? formatDate(*day) : before.giorno;
        after.riga = prova.posto.riga;
        after.colonna = effect->cursore == MossaCursore::rigaDelNome ? before.colonna : prova.posto.colonna;
        if (effect->scelta == Scelta::collaboratore) {
            const auto& staff = bench.base.sessione.archivi.Collaboratori;
            after.collab = staff.at(static_cast<std::size_t>(prova.posto.riga - bench.griglia().FixedRows()))
                               .codice.text();
        }
        const bool marked = std::string_view(prova.posto.nome) == "day";
        after.totali = effect->scelta == Scelta::collaboratore ||
                       (effect->scelta == Scelta::totaliGiorno && marked && !before.totali && hasNumbers());
        after.menu = descrizione(*prova.mezzo).menu;
        if (descrizione(*prova.mezzo).consulta && marked) {
            after.risposta = after.giorno + after.collab + "D";
        }
        return after;
    }
    bool hasNumbers() {
        return trim(bench.base.sessione.archivi.PlannerAnnuale[4].testi[9].view()) != std::string_view();
    }

    WindowBench bench;
};

} // namespace

TEST_P(GesturesTest, MovesWhatTheTableSays) {
    const Prova& prova = GetParam();
    const Stato before = stato();
    const Stato after = expected(prova, before);
    prova.mezzo ? perform(prova.posto, *prova.mezzo) : perform(prova.posto, prova.altro);
    EXPECT_EQ(stato(), after);
    EXPECT_TRUE(bench.base.messaggi.shown.empty());
    EXPECT_EQ(bench.view().currentIndex(), bench.index(bench.griglia().Row(), bench.griglia().Col()));
}

INSTANTIATE_TEST_SUITE_P(Table, GesturesTest, testing::ValuesIn(prove()),
                         [](const auto& tested) { return nameOf(tested.param); });

} // namespace planner::test
