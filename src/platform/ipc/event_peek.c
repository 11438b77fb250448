// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_peek.h"

#include "event_folder.h"
#include "event_lock.h"
#include "event_name.h"
#include "event_object.h"

#include <fcntl.h>
#include <stddef.h>
#include <unistd.h>

int openToPeek(const char* nome) {
    char file[EVENT_FILE_SIZE];
    if (eventFileName(nome, file) != 0) {
        return -1;
    }
    const int folder = lockEventFolder();
    const int descriptor =
        folder < 0 ? -1 : openat(folder, file, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    unlockEventFolder(folder);
    return descriptor;
}

// Read, not mapped: that a file was cut short shows as a short read.
bool isSignalToHostTaken(int descriptor) {
    uint32_t toHost = SIGNAL_NONE;
    const bool known =
        pread(descriptor, &toHost, sizeof toHost, offsetof(EventState, toHost)) == (ssize_t)sizeof toHost;
    return !known || (toHost != SIGNAL_PENDING && toHost != SIGNAL_LAST);
}

bool isHostAlive(int descriptor) {
    return hasOtherHost(descriptor);
}
