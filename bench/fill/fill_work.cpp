// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "fill_work.h"

#include <cstdlib>
#include <fstream>
#include <numeric>
#include <stdexcept>

namespace planner::bench {

namespace {

void writeFile(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

} // namespace

ArchiveFolder::ArchiveFolder(int records, int staff, Padding padding)
    : m_recordBytes(bytesOf(makeRecords(records, staff, padding))) {
    std::string name = (std::filesystem::temp_directory_path() / "bench-fill-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("no temporary folder");
    }
    m_path = name;
    writeFile(m_path / "wrighipl", m_recordBytes);
    writeFile(m_path / "wcollab", bytesOf(makeStaff(staff)));
}

ArchiveFolder::~ArchiveFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

FillWork::FillWork(const ArchiveFolder& folder) {
    m_session.PathArchivi = folder.path();
    m_controls.calendario.setValue(m_clock.today());
    if (!m_engine.LeggiCollab()) {
        throw std::runtime_error("cannot read the staff in " + folder.path());
    }
    m_engine.LeggiDati();
    m_engine.PulisciGrid1();
    m_engine.showgrid();
    check();
}

void FillWork::readAndFill() {
    read();
    clear();
    fill();
}

std::int64_t FillWork::sumOfTotals() const {
    std::int64_t sum = 0;
    for (const TabellaTotali::Riga& totals : m_session.TotaliImpegni.righe()) {
        sum = std::accumulate(totals.begin(), totals.end(), sum);
    }
    return sum;
}

void FillWork::check() const {
    if (!m_messages.empty()) {
        throw std::runtime_error(m_messages.front().text);
    }
}

} // namespace planner::bench
