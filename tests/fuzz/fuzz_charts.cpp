// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/readers.h"
#include "forms/plfgraf/plfgraf.h"
#include "fuzz/chart_properties.h"
#include "fuzz/fuzz_input.h"
#include "ports/runtime_errors.h"
#include "support/memory_file_system.h"

#include <array>

namespace planner::test {
namespace {

/// True when it was done; any other error than a run-time error comes out.
template <typename Command>
bool done(Command command) {
    try {
        command();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

/// The chart window over the tables that the files give.
class FuzzedCharts {
public:
    FuzzedCharts(const std::string& staff, const std::string& hours) {
        m_files.put("staff", staff);
        m_files.put("hours", hours);
        done([&] { readCollaboratori(m_files, "staff", m_archivi); });
        done([&] { readRigheGrafici(m_files, "hours", m_archivi); });
    }

    void show(int anno, int mese, int giorno) {
        if (const auto day = makeDate(anno, mese, giorno)) {
            m_calendario.setValue(*day);
        }
    }

    void build(std::int16_t collab, ChartSize size, const ChartArea& reserved) {
        const std::array built{done([&] { m_form.VisualizzaGraficoMensile({collab}); }),
                               done([&] { m_form.VisualizzaGraficoGiornaliero({collab}); }),
                               done([&] { m_form.VisualizzaGraficoAnnuale(); })};
        const std::array charts{&m_form.MSChartm(), &m_form.MSChartg(), &m_form.MSCharta()};
        for (std::size_t i = 0; i < charts.size(); ++i) {
            requireSound(*charts.at(i));
            if (built.at(i)) {
                requireSoundLayout(*charts.at(i), size, reserved);
            }
        }
    }

private:
    Journal m_journal;
    MemoryFileSystem m_files{m_journal};
    Archivi m_archivi;
    Calendario m_calendario;
    plfgraf m_form{m_archivi, m_calendario};
};

/// What floats over the corner of a chart of the given width, as on the screen.
ChartArea floating(double width) {
    return {width - 33 - 230, 7, 230, 60};
}

void fuzzCharts(FuzzInput input) {
    constexpr double pixelsPerUnit = 0.125;
    const ChartSize size{input.number() * pixelsPerUnit, input.number() * pixelsPerUnit};
    const ChartArea reserved = input.byte() % 2 == 0 ? floating(size.width) : ChartArea{};
    const auto collab = static_cast<std::int16_t>(input.number());
    const int anno = input.number();
    const int mese = input.byte();
    const int giorno = input.byte();
    const std::string staff = input.part();
    FuzzedCharts charts(staff, input.rest());
    charts.show(anno, mese, giorno);
    charts.build(collab, size, reserved);
}

} // namespace
} // namespace planner::test

/// Width and height in eighths of a pixel, whether something floats over the chart, the staff member, the
/// shown day, the staff file as a part, then the file of hours.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    planner::test::fuzzCharts({data, size});
    return 0;
}
