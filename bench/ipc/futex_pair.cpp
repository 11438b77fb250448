// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "futex_pair.h"

#include <linux/futex.h>
#include <new>
#include <stdexcept>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace planner::bench {
namespace {

void signalWord(std::atomic<std::uint32_t>& word) {
    word.store(1);
    syscall(SYS_futex, &word, FUTEX_WAKE, 1, nullptr, nullptr, 0);
}

void waitWord(std::atomic<std::uint32_t>& word) {
    while (word.exchange(0) == 0) {
        syscall(SYS_futex, &word, FUTEX_WAIT, 0, nullptr, nullptr, 0);
    }
}

} // namespace

FutexPair::FutexPair() {
    void* memory = mmap(nullptr, sizeof(Words), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        throw std::runtime_error("no shared memory");
    }
    m_words = new (memory) Words{};
}

FutexPair::~FutexPair() {
    munmap(m_words, sizeof(Words));
}

void FutexPair::signalFar() {
    signalWord(m_words->toFar);
}

void FutexPair::waitNear() {
    waitWord(m_words->toNear);
}

void FutexPair::signalNear() {
    signalWord(m_words->toNear);
}

void FutexPair::waitFar() {
    waitWord(m_words->toFar);
}

} // namespace planner::bench
