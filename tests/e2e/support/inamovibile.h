// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace planner::e2e {

/// Keeps a file from being deleted, by its superuser too, until the object goes. Needs a file system that
/// knows the mark, and the right to set it.
class Inamovibile {
public:
    explicit Inamovibile(std::string path);
    ~Inamovibile();
    Inamovibile(const Inamovibile&) = delete;
    Inamovibile& operator=(const Inamovibile&) = delete;

    /// False where files cannot be marked so: the file can be deleted then.
    bool holds() const { return m_holds; }
    /// Lets the file go.
    void release();

private:
    std::string m_path;
    bool m_holds;
};

} // namespace planner::e2e
