// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/system/system_file_system.h"
#include "ports/clock.h"
#include "ports/event_pump.h"
#include "ports/message_boxes.h"
#include "ports/planner_window.h"
#include "ports/runtime_errors.h"
#include "session/modpl.h"

#include <vector>

namespace planner {

/// A window that is always ready and never seen.
class HiddenWindow : public PlannerWindow {
public:
    bool isLoaded() const override { return true; }
    void load() override {}
    void show() override {}
    void bringToFront() override {}
    void unload() override {}
    void hide() override {}
};

/// A user who is done as soon as the window is open.
class ImmediateEnd : public EventPump {
public:
    explicit ImmediateEnd(modpl& sessione) : m_sessione(sessione) {}
    void waitAndProcess() override { m_sessione.FinePlanner = true; }
    void processFor(std::chrono::milliseconds) override {}
    void wakeUp() override {}
    void flush() override {}

private:
    modpl& m_sessione;
};

/// Keeps the messages that a user would have been shown, in their order.
class MessageLog : public MessageBoxes {
public:
    explicit MessageLog(std::vector<Message>& messages) : m_messages(messages) {}
    void show(const Message& message) override { m_messages.push_back(message); }

private:
    std::vector<Message>& m_messages;
};

/// The files as they are: whatever would make, change or delete one fails instead.
class ReadOnlyFileSystem : public FileSystem {
public:
    bool fileExists(const std::string& path) const override { return m_files.fileExists(path); }
    bool isMissing(const std::string& path) const override { return m_files.isMissing(path); }
    bool deleteFile(const std::string&) override { return false; }
    std::unique_ptr<InputFile> openForReading(const std::string& path) const override {
        return m_files.openForReading(path);
    }
    std::size_t readStart(const std::string&, std::span<char>) override { refuse(); }
    void writeStart(const std::string&, std::span<const char>) override { refuse(); }

private:
    [[noreturn]] static void refuse() { throw FileError("i file si possono soltanto leggere"); }

    SystemFileSystem m_files;
};

/// A day that stays the same.
class FixedClock : public Clock {
public:
    explicit FixedClock(Data today) : m_today(today) {}
    Data today() const override { return m_today; }

private:
    Data m_today;
};

} // namespace planner
