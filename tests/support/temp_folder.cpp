// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/temp_folder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

namespace planner::test {

TempFolder::TempFolder() {
    std::random_device random;
    const std::filesystem::path all = std::filesystem::temp_directory_path();
    do { // until a name is free
        m_folder = all / ("planner-test-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(m_folder));
    std::filesystem::permissions(m_folder, std::filesystem::perms::owner_all);
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_folder, ignored);
}

std::string TempFolder::path(std::string_view name) const {
    return (name.empty() ? m_folder : m_folder / name).generic_string();
}

void TempFolder::write(std::string_view name, std::string_view bytes) const {
    std::ofstream file(path(name), std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    ASSERT_TRUE(file.flush()) << name;
}

std::string TempFolder::read(std::string_view name) const {
    EXPECT_TRUE(exists(name)) << name;
    return fileBytes(path(name));
}

bool TempFolder::exists(std::string_view name) const {
    return std::filesystem::exists(path(name));
}

void TempFolder::writeSparse(std::string_view name, std::uint64_t length) const {
    write(name, {});
    std::filesystem::resize_file(path(name), length);
}

void TempFolder::makeFolder(std::string_view name) const {
    ASSERT_TRUE(std::filesystem::create_directory(path(name)));
}

std::string fileBytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace planner::test
