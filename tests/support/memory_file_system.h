// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/file_system.h"
#include "support/fakes.h"

#include <map>
#include <set>
#include <string>

namespace planner::test {

/// A file system in memory, in which both "\" and "/" separate folders. Writing and deleting are noted in
/// the journal, by the file's name without its folder.
class MemoryFileSystem : public FileSystem {
public:
    explicit MemoryFileSystem(Journal& journal) : m_journal(journal) {}

    void put(const std::string& path, std::string bytes) { m_files[key(path)] = std::move(bytes); }
    /// The file's bytes; a failed expectation when there is none.
    std::string get(const std::string& path) const;
    void remove(const std::string& path) { m_files.erase(key(path)); }
    /// From now on the file can be seen, but neither opened nor written.
    void refuse(const std::string& path) { m_refused.insert(key(path)); }
    /// From now on the file can be read, but not written.
    void refuseWriting(const std::string& path) { m_readOnly.insert(key(path)); }
    /// From now on the file cannot be deleted.
    void refuseDeleting(const std::string& path) { m_undeletable.insert(key(path)); }
    /// From now on nobody can tell whether there is a file at the path.
    void hide(const std::string& path) { m_hidden.insert(key(path)); }
    /// Lifts what was refused.
    void allow(const std::string& path);

    bool fileExists(const std::string& path) const override;
    bool isMissing(const std::string& path) const override;
    bool deleteFile(const std::string& path) override;
    std::unique_ptr<InputFile> openForReading(const std::string& path) const override;
    std::size_t readStart(const std::string& path, std::span<char> out) override;
    void writeStart(const std::string& path, std::span<const char> bytes) override;

    /// Runs before each opening of a file; may throw.
    std::function<void()> beforeOpening;

private:
    static std::string key(const std::string& path);

    Journal& m_journal;
    std::map<std::string, std::string> m_files;
    std::set<std::string> m_refused;
    std::set<std::string> m_readOnly;
    std::set<std::string> m_undeletable;
    std::set<std::string> m_hidden;
};

} // namespace planner::test
