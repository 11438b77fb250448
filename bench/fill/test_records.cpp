// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "test_records.h"

#include <algorithm>
#include <random>

namespace planner::bench {

namespace {

constexpr int FirstCodeByte = 0x21;
constexpr int CodeBytes = 0x100 - FirstCodeByte;
static_assert(CodeBytes * CodeBytes == StaffCodes);

std::string zeroPadded(int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

void fillCounters(RigaPlanner& riga, Padding padding, std::mt19937& random) {
    for (auto& contatore : riga.contatori) {
        const int draw = static_cast<int>(random() % 8);
        const int value = draw < 4 ? 0 : draw == 7 ? 12 : draw - 3; // half of them are 0, few have two digits
        contatore.assign(padding == Padding::Zeros ? zeroPadded(value, 5) : std::to_string(value));
    }
}

} // namespace

std::string staffCode(int index) {
    return {static_cast<char>(FirstCodeByte + index / CodeBytes % CodeBytes),
            static_cast<char>(FirstCodeByte + index % CodeBytes)};
}

std::vector<Collaboratore> makeStaff(int count) {
    std::vector<Collaboratore> staff(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        Collaboratore& person = staff[static_cast<std::size_t>(i)];
        person.codice.assign(staffCode(i));
        person.nome.assign("Collaboratore numero " + std::to_string(i));
        person.mansione.assign("Impiegato");
    }
    return staff;
}

std::vector<RigaPlanner> makeRecords(int count, int staffCount, Padding padding) {
    constexpr unsigned daysInMonth = 31;
    std::mt19937 random(1);
    std::vector<RigaPlanner> records(static_cast<std::size_t>(count));
    for (RigaPlanner& riga : records) {
        riga.codice.assign(staffCode(static_cast<int>(random() % static_cast<unsigned>(staffCount))));
        riga.anno.assign(zeroPadded(ShownYear, 4));
        riga.mese.assign(zeroPadded(ShownMonth, 2));
        riga.giorno.assign(zeroPadded(static_cast<int>(1 + random() % daysInMonth), 2));
        riga.oraInizio.assign("09");
        riga.minutoInizio.assign("30");
        riga.durata.assign("0001:30");
        fillCounters(riga, padding, random);
    }
    return records;
}

} // namespace planner::bench
