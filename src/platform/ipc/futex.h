// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <errno.h>
#include <limits.h>
#include <linux/futex.h>
#include <stdatomic.h>
#include <stddef.h>
#include <stdint.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

// Sleeps while `*word` is `value`, at most for `timeout` (null: without a limit). Returns 0 when it was
// woken, interrupted or did not sleep, so the caller looks again, or the error number: ETIMEDOUT, EFAULT
// when the word is not there, or that the system cannot do it at all.
static inline int futexWait(_Atomic uint32_t* word, uint32_t value, const struct timespec* timeout) {
    const long result = syscall(SYS_futex, word, FUTEX_WAIT, value, timeout, NULL, 0);
    return result == 0 || errno == EAGAIN || errno == EINTR ? 0 : errno;
}

// Wakes everyone who sleeps on `*word`, in every process.
static inline void futexWakeAll(_Atomic uint32_t* word) {
    syscall(SYS_futex, word, FUTEX_WAKE, INT_MAX, NULL, NULL, 0);
}
