// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/memory_file_system.h"

#include "ports/runtime_errors.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace planner::test {

namespace {

class MemoryInputFile : public InputFile {
public:
    explicit MemoryInputFile(const std::string& bytes) : m_bytes(bytes) {}
    std::uint64_t length() const override { return m_bytes.size(); }
    std::size_t read(std::span<char> out) override {
        const std::size_t count = std::min(out.size(), m_bytes.size());
        std::copy_n(m_bytes.begin(), count, out.begin());
        return count;
    }

private:
    std::string m_bytes;
};

std::string nameOf(const std::string& key) {
    return key.substr(key.rfind('/') + 1);
}

} // namespace

std::string MemoryFileSystem::key(const std::string& path) {
    std::string key = path;
    std::replace(key.begin(), key.end(), '\\', '/');
    const auto same = [](char a, char b) { return a == '/' && b == '/'; };
    key.erase(std::unique(key.begin(), key.end(), same), key.end());
    return key;
}

std::string MemoryFileSystem::get(const std::string& path) const {
    const auto found = m_files.find(key(path));
    EXPECT_NE(found, m_files.end()) << "no file " << path;
    return found == m_files.end() ? std::string() : found->second;
}

void MemoryFileSystem::allow(const std::string& path) {
    m_refused.erase(key(path));
    m_readOnly.erase(key(path));
    m_undeletable.erase(key(path));
    m_hidden.erase(key(path));
}

bool MemoryFileSystem::fileExists(const std::string& path) const {
    return m_files.contains(key(path)) && !m_hidden.contains(key(path));
}

bool MemoryFileSystem::isMissing(const std::string& path) const {
    return !m_files.contains(key(path)) && !m_hidden.contains(key(path));
}

bool MemoryFileSystem::deleteFile(const std::string& path) {
    if (fileExists(path) && m_undeletable.contains(key(path))) {
        m_journal.push_back("delete refused " + nameOf(key(path)));
        return false;
    }
    const bool deleted = m_files.erase(key(path)) == 1;
    m_journal.push_back((deleted ? "delete " : "delete missing ") + nameOf(key(path)));
    return deleted;
}

std::unique_ptr<InputFile> MemoryFileSystem::openForReading(const std::string& path) const {
    if (beforeOpening) {
        beforeOpening();
    }
    const auto found = m_files.find(key(path));
    if (found == m_files.end() || m_refused.contains(key(path))) {
        throw FileError("rifiutato");
    }
    return std::make_unique<MemoryInputFile>(found->second);
}

std::size_t MemoryFileSystem::readStart(const std::string& path, std::span<char> out) {
    if (m_refused.contains(key(path))) {
        throw FileError("rifiutato");
    }
    return MemoryInputFile(m_files[key(path)]).read(out);
}

void MemoryFileSystem::writeStart(const std::string& path, std::span<const char> bytes) {
    if (m_refused.contains(key(path)) || m_readOnly.contains(key(path))) {
        throw FileError("rifiutato");
    }
    m_journal.push_back("write " + nameOf(key(path)));
    std::string& file = m_files[key(path)];
    file.resize(std::max(file.size(), bytes.size()));
    std::copy(bytes.begin(), bytes.end(), file.begin());
}

} // namespace planner::test
