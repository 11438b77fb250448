// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/readers.h"

#include "archive/numeric_value.h"
#include "ports/runtime_errors.h"

#include <span>

namespace planner {

namespace {

template <typename Record>
std::span<char> bytesOf(std::span<Record> records) {
    return {reinterpret_cast<char*>(records.data()), records.size_bytes()};
}

void readBytes(InputFile& file, std::span<char> bytes) {
    if (file.length() == 0) {
        throw FileError("il file è vuoto");
    }
    file.read(bytes);
}

template <typename Record>
void readOpenTable(const FileSystem& files, const std::string& path, std::vector<Record>& table,
                   std::int16_t& upperBound) {
    const auto file = files.openForReading(path);
    const std::int16_t bound =
        roundTo16Bit(static_cast<double>(file->length()) / static_cast<double>(sizeof(Record)));
    table.assign(static_cast<std::size_t>(bound) + 1, Record{});
    upperBound = bound;
    readBytes(*file, bytesOf(std::span<Record>(table)));
}

} // namespace

void readRighePlanner(const FileSystem& files, const std::string& path, Archivi& archivi) {
    readOpenTable(files, path, archivi.RighePlanner, archivi.NumRighe);
}

void readCollaboratori(const FileSystem& files, const std::string& path, Archivi& archivi) {
    readOpenTable(files, path, archivi.Collaboratori, archivi.NumCollab);
}

void readRigheGrafici(const FileSystem& files, const std::string& path, Archivi& archivi) {
    readOpenTable(files, path, archivi.RigheGrafici, archivi.NumGrafici);
}

void readPlannerAnnuale(const FileSystem& files, const std::string& path, Archivi& archivi) {
    archivi.PlannerAnnuale.fill(MesePlanner{});
    const auto file = files.openForReading(path);
    readBytes(*file, bytesOf(std::span<MesePlanner>(archivi.PlannerAnnuale)));
}

} // namespace planner
