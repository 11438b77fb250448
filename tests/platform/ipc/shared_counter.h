// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <new>
#include <stdexcept>
#include <sys/mman.h>

namespace planner::ipctest {

// A number that this process shares with the children it forks.
class SharedCounter {
public:
    SharedCounter() {
        void* memory = mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE,
                            MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED) {
            throw std::runtime_error("no shared memory");
        }
        m_value = new (memory) std::atomic<int>(0);
    }
    SharedCounter(const SharedCounter&) = delete;
    SharedCounter& operator=(const SharedCounter&) = delete;
    ~SharedCounter() { munmap(m_value, sizeof(std::atomic<int>)); }

    // Adds one and returns the value before.
    int add() { return m_value->fetch_add(1); }
    void set(int value) { m_value->store(value); }
    int value() const { return m_value->load(); }

private:
    std::atomic<int>* m_value;
};

} // namespace planner::ipctest
