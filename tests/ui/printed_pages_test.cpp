// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "kept_picture.h"
#include "support/planner_bench.h"
#include "ui/stampa/inchiostri.h"
#include "ui/stampa/pagina_painter.h"
#include "ui/stampa/stampa_griglia.h"

#include <QApplication>
#include <QPainter>

#include <gtest/gtest.h>

namespace planner::test {

namespace {

constexpr double DotsPerInch = 75;

std::string twoDigits(int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

/// An office of nine in April 2006, which has holidays: every drawing, appointments that touch and overlap, a
/// selection, and the 20th as today.
class KeptPages : public testing::Test {
protected:
    KeptPages() {
        bench.orologio.setToday(Today);
        bench.putCollaboratori(staff());
        bench.putRighe(entries());
        bench.putAnnuale(annoPlanner("2006", {{1, 9}, {4, 20}, {4, 27}, {8, 15}, {12, 31}}));
    }

    static std::vector<Collaboratore> staff() {
        std::vector<Collaboratore> all;
        for (const std::string_view name :
             {"Bianchi Rosa", "D'Amic\xF2 Ugo", "Esposito Gennaro", "Ferrari Ada", "Neri Carla",
              "Rossi Bruno", "Verdi Anna", "Wieser von Hohenstein Maria Teresa", "Zanella Pia"}) {
            all.push_back(collaboratore(twoDigits(static_cast<int>(all.size()) + 1), name));
        }
        return all;
    }
    /// Each of the four kinds alone and with others, one combination after the other; and a working day.
    static std::vector<RigaPlanner> entries() {
        std::vector<RigaPlanner> all;
        for (int kinds = 1; kinds < 16; ++kinds) {
            RigaPlanner entry = riga(twoDigits(kinds % 9 + 1), "200604" + twoDigits(2 * kinds - 1));
            for (const auto& [bit, counter] : {std::pair{1, 1}, {2, 2}, {4, 8}, {8, 7}}) {
                if ((kinds & bit) != 0) {
                    entry.contatori.at(static_cast<std::size_t>(counter - 1)).assign("00002");
                }
            }
            all.push_back(entry);
        }
        all.push_back(conOrario(riga("01", "20060420", {{1, "00001"}}), "08", "30", "0000115"));
        all.push_back(conOrario(riga("02", "20060420", {{2, "00001"}}), "09", "00", "0000300"));
        all.push_back(conOrario(riga("02", "20060420", {{8, "00001"}}), "10", "15", "0000100"));
        all.push_back(conOrario(riga("05", "20060420", {{7, "00001"}}), "06", "00", "0000015"));
        all.push_back(riga("07", "20060420", {{1, "00003"}}));
        return all;
    }

    DocumentoStampa documento(const Carta& carta) {
        return {bench.controlli, bench.sessione, Today, carta, /*totali=*/true};
    }

    static constexpr Data Today{std::chrono::year{2006}, std::chrono::April, std::chrono::day{20}};
    PlannerBench bench;
};

/// Words over a shade, a line and a mark, as on a page; what differs is told by the test. Painted at `finer`
/// times the pixels, and brought back, all edges are smoothed otherwise.
QImage words(const std::function<void(QPainter&)>& change = {}, QPoint moved = {}, int finer = 1) {
    const QSize size(200, 60);
    QImage picture(size * finer, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.scale(finer, finer);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.fillRect(QRect(120, 0, 40, 60), QColor(inchiostri::FineSettimana));
    painter.fillRect(QRect(0, 40, 200, 1), QColor(inchiostri::Linea));
    painter.fillRect(QRect(170, 10, 6, 6), Qt::red);
    QFont font = QApplication::font();
    font.setPixelSize(9);
    font.setHintingPreference(QFont::PreferNoHinting);
    painter.setFont(font);
    painter.drawText(QPoint(5, 20) + moved, QStringLiteral("Wieser von Hohenstein"));
    if (change) {
        change(painter);
    }
    return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// How far the picture is apart once this has been painted over it.
int apartAfter(const std::function<void(QPainter&)>& change) {
    return pixelsApart(words(), words(change));
}

class KeptPage : public KeptPages, public testing::WithParamInterface<std::tuple<const char*, bool>> {};

} // namespace

TEST(KeptPictureTest, LettersMayBeSmoothedOtherwise) {
    EXPECT_EQ(pixelsApart(words(), words()), 0);
    const QImage otherwise = words({}, {}, /*finer=*/2);
    EXPECT_NE(otherwise, words());
    EXPECT_LE(pixelsApart(words(), otherwise), PixelsOfLetters);
}

TEST(KeptPictureTest, NothingMayBeLostAddedOrMoved) {
    const auto covered = [](const QRect& place, QColor colour) {
        return apartAfter([=](QPainter& painter) { painter.fillRect(place, colour); });
    };
    EXPECT_GT(covered({0, 40, 118, 1}, Qt::white), PixelsOfLetters) << "a line";
    EXPECT_GT(covered({170, 10, 6, 6}, Qt::white), PixelsOfLetters) << "a mark";
    EXPECT_GT(covered({170, 10, 6, 6}, Qt::blue), PixelsOfLetters) << "its colour";
    EXPECT_GT(covered({120, 0, 40, 39}, Qt::white), PixelsOfLetters) << "a shade";
    EXPECT_GT(covered({5, 10, 40, 12}, Qt::white), PixelsOfLetters) << "a name";
    EXPECT_GT(covered({20, 50, 1, 10}, Qt::black), PixelsOfLetters) << "a line too many";
    for (const QPoint by : {QPoint(3, 0), QPoint(-3, 0), QPoint(0, 2), QPoint(0, -2)}) {
        EXPECT_GT(pixelsApart(words(), words({}, by)), PixelsOfLetters) << by.x() << " " << by.y();
    }
    EXPECT_GT(pixelsApart(words(), QImage(200, 61, QImage::Format_RGB32)), PixelsOfLetters) << "the size";
}

TEST_P(KeptPage, IsAsItWasKept) {
    const auto [kind, large] = GetParam();
    bench.init(kind, "20060420");
    Griglia& grid = *bench.controlli.grigliaVisibile();
    grid.evidenzia(4);
    grid.scegli({4, 20});
    const DocumentoStampa document = documento(large ? CartaA3 : CartaA4);
    const std::size_t pages = impagina(document, larghezzaSuCarta).pagine.size();
    EXPECT_EQ(pages, 2U) << "the grid and its totals";
    bool compared = true;
    for (std::size_t page = 0; page < pages; ++page) {
        const QString name =
            QStringLiteral("stampa_%1_%2_%3")
                .arg(QLatin1String(kind), large ? QStringLiteral("a3") : QStringLiteral("a4"))
                .arg(page + 1);
        compared = compareWithKept(pageImage(document, page, DotsPerInch), name);
    }
    if (!compared) {
        GTEST_SKIP() << "kept anew";
    }
}

INSTANTIATE_TEST_SUITE_P(Printed, KeptPage, testing::Combine(testing::Values("M", "G", "A"), testing::Bool()),
                         [](const auto& tested) {
                             return std::string(std::get<0>(tested.param)) +
                                    (std::get<1>(tested.param) ? "A3" : "A4");
                         });

} // namespace planner::test
