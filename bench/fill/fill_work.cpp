// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "fill_work.h"

#include <cstdlib>
#include <fstream>
#include <numeric>
#include <stdexcept>

namespace planner::bench {

namespace {

Data shownDay() {
    return *makeDate(ShownYear, ShownMonth, 1);
}

void writeFile(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

} // namespace

/// Nobody looks, nobody clicks; messages are counted.
struct FillWork::Quiet : PlannerWindow, EventPump, MessageBoxes, Clock {
    bool isLoaded() const override { return true; }
    void load() override {}
    void show() override {}
    void bringToFront() override {}
    void unload() override {}
    void hide() override {}
    void waitAndProcess() override {}
    void flush() override {}
    void show(const Message& message) override {
        firstMessage = firstMessage.empty() ? message.text : firstMessage;
    }
    Data today() const override { return shownDay(); }

    std::string firstMessage;
};

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

FillWork::FillWork(const ArchiveFolder& folder)
    : m_quiet(std::make_unique<Quiet>()),
      m_engine({m_session, m_controls, *m_quiet, m_files, *m_quiet, *m_quiet, *m_quiet}) {
    m_session.PathArchivi = folder.path();
    m_controls.calendario.setValue(shownDay());
    if (!m_engine.LeggiCollab()) {
        throw std::runtime_error("cannot read the staff in " + folder.path());
    }
    m_engine.LeggiDati();
    m_engine.PulisciGrid1();
    m_engine.showgrid();
    check();
}

FillWork::~FillWork() = default;

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
    if (!m_quiet->firstMessage.empty()) {
        throw std::runtime_error(m_quiet->firstMessage);
    }
}

} // namespace planner::bench
