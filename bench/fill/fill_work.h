// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/clsplg.h"
#include "platform/system/system_file_system.h"
#include "served_request/quiet_ports.h"
#include "test_records.h"

#include <filesystem>

namespace planner::bench {

/// An archive folder of its own, gone with the object.
class ArchiveFolder {
public:
    ArchiveFolder(int records, int staff, Padding padding);
    ~ArchiveFolder();
    ArchiveFolder(const ArchiveFolder&) = delete;
    ArchiveFolder& operator=(const ArchiveFolder&) = delete;

    std::string path() const { return m_path.string(); }
    /// What stands in the file of appointments.
    const std::string& recordBytes() const { return m_recordBytes; }

private:
    std::filesystem::path m_path;
    std::string m_recordBytes;
};

/// The engine on the real file system, without a window, with the month laid out: what a fill needs.
class FillWork {
public:
    /// Throws std::runtime_error when the archives cannot be read.
    explicit FillWork(const ArchiveFolder& folder);
    FillWork(const FillWork&) = delete;
    FillWork& operator=(const FillWork&) = delete;

    /// The measured work: reads the appointments, clears the monthly grid and fills it.
    void readAndFill();

    /// The steps one by one.
    void read() { m_engine.LeggiDati(); }
    void clear() { m_engine.PulisciGrid1(); }
    void fill() { m_engine.PopolaGrid1(); }

    int lookUp(std::string_view codice) const { return m_engine.IndCollaboratore(codice).valore; }

    /// Sum of all totals: what the fill has counted.
    std::int64_t sumOfTotals() const;
    /// Throws std::runtime_error when a message has been shown, as the work was not what it should be then.
    void check() const;

private:
    modpl m_session;
    ControlliPlcal m_controls;
    std::vector<Message> m_messages;
    HiddenWindow m_window;
    SystemFileSystem m_files;
    MessageLog m_boxes{m_messages};
    ImmediateEnd m_events{m_session};
    FixedClock m_clock{*makeDate(ShownYear, ShownMonth, 1)};
    clsplg m_engine{{m_session, m_controls, m_window, m_files, m_boxes, m_events, m_clock}};
};

} // namespace planner::bench
