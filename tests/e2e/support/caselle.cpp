// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/caselle.h"

#include "archive/cp1252.h"
#include "archive/numeric_value.h"
#include "session/calendar_rules.h"
#include "support/builders.h"

#include <array>
#include <chrono>
#include <stdexcept>

namespace planner::e2e {

namespace {

constexpr int Anno = 2006;
constexpr std::size_t RigheInVista = 4; // whatever the screen, without scrolling

template <typename Record>
std::vector<Record> readRecords(const Archivio& archivio, std::string_view name) {
    const std::string bytes = archivio.read(name);
    std::vector<Record> records;
    for (std::size_t at = 0; at + sizeof(Record) <= bytes.size(); at += sizeof(Record)) {
        records.push_back(test::recordOf<Record>(std::string_view(bytes).substr(at, sizeof(Record))));
    }
    return records;
}

std::chrono::year_month_day firstOf(int mese) {
    return {std::chrono::year{Anno}, std::chrono::month{static_cast<unsigned>(mese)}, std::chrono::day{1}};
}

/// The column, counted from 0, of a day: the first one is a Monday.
int columnOf(int giorno, int mese) {
    const std::chrono::weekday first{std::chrono::sys_days(firstOf(mese))};
    return static_cast<int>(first.iso_encoding()) - 1 + giorno - 1;
}

std::string inWords(int giorno, int mese) {
    constexpr std::array<std::string_view, 7> days{"lunedì",  "martedì", "mercoledì", "giovedì",
                                                   "venerdì", "sabato",  "domenica"};
    constexpr std::array<std::string_view, 12> months{"gennaio",   "febbraio", "marzo",    "aprile",
                                                      "maggio",    "giugno",   "luglio",   "agosto",
                                                      "settembre", "ottobre",  "novembre", "dicembre"};
    const auto weekday = static_cast<std::size_t>(columnOf(giorno, mese) % 7);
    const Festivita* holiday = trovaFestivo(giorno - 1, mese);
    return std::string(days.at(weekday)) + " " + std::to_string(giorno) + " " +
           std::string(months.at(static_cast<std::size_t>(mese - 1))) + " " + std::to_string(Anno) +
           (holiday == nullptr ? "" : ", " + std::string(holiday->nome));
}

std::string inDigits(int giorno, int mese) {
    return std::to_string(Anno * 10'000 + mese * 100 + giorno);
}

int number(const RigaPlanner& riga, std::size_t counter) {
    return static_cast<int>(numericValue(riga.contatore(counter).view()));
}

int deadlines(const RigaPlanner& riga) {
    return number(riga, 1) + number(riga, 5);
}

std::string counted(int count, const std::string& one, const std::string& many) {
    return count == 0 ? "" : ", " + std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string kinds(const RigaPlanner& riga) {
    const std::string all = counted(deadlines(riga), "scadenza", "scadenze") +
                            counted(number(riga, 2) + number(riga, 6), "pratica", "pratiche") +
                            counted(number(riga, 8), "impegno vario", "impegni vari") +
                            counted(number(riga, 7), "nota riservata", "note riservate");
    return all.substr(2);
}

/// The lines of a staff member in a month.
std::vector<RigaPlanner> linesOf(const std::vector<RigaPlanner>& all, std::string_view codice, int mese) {
    std::vector<RigaPlanner> lines;
    for (const RigaPlanner& riga : all) {
        if (riga.codice.view() == codice && numericValue(riga.anno.view()) == Anno &&
            numericValue(riga.mese.view()) == mese) {
            lines.push_back(riga);
        }
    }
    return lines;
}

/// The first line with deadlines that is the only one of its day; null when there is none.
const RigaPlanner* onlyOneOfItsDay(const std::vector<RigaPlanner>& lines) {
    for (const RigaPlanner& riga : lines) {
        int sameDay = 0;
        for (const RigaPlanner& other : lines) {
            sameDay += other.giorno == riga.giorno ? 1 : 0;
        }
        if (deadlines(riga) != 0 && sameDay == 1) {
            return &riga;
        }
    }
    return nullptr;
}

} // namespace

Casella casellaConScadenze(const Archivio& archivio, int mese) {
    const auto staff = readRecords<Collaboratore>(archivio, "wcollab");
    const auto all = readRecords<RigaPlanner>(archivio, "wrighipl");
    for (std::size_t i = 1; i < std::min(staff.size(), RigheInVista);
         ++i) { // the first row is current anyway
        const std::vector<RigaPlanner> lines = linesOf(all, staff[i].codice.view(), mese);
        const RigaPlanner* riga = onlyOneOfItsDay(lines);
        if (riga == nullptr) {
            continue;
        }
        int total = 0;
        for (const RigaPlanner& line : lines) {
            total += deadlines(line);
        }
        const int giorno = static_cast<int>(numericValue(riga->giorno.view()));
        const std::string nome =
            utf8FromCp1252(staff[i].nome.trimmed()) + ", " + inWords(giorno, mese) + ": " + kinds(*riga);
        return {{"Planner mensile", static_cast<int>(i), columnOf(giorno, mese), nome},
                inDigits(giorno, mese),
                staff[i].codice.text(),
                "Scadenze: " + std::to_string(total)};
    }
    throw std::runtime_error("the archive has no cell with deadlines");
}

Casella giornoVuoto(const Archivio& archivio, int mese) {
    const auto months = readRecords<MesePlanner>(archivio, "wplanner");
    const auto& marks = months.at(static_cast<std::size_t>(mese - 1)).segni;
    for (int giorno = 1; giorno <= 28; ++giorno) {
        const int column = columnOf(giorno, mese);
        if (marks.at(static_cast<std::size_t>(column)).view() == " ") {
            return {{"Planner annuale", mese - 1, column, inWords(giorno, mese)},
                    inDigits(giorno, mese),
                    "  ",
                    "Scadenze: 0"};
        }
    }
    throw std::runtime_error("the archive marks every day");
}

} // namespace planner::e2e
