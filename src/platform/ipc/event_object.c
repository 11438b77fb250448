// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_object.h"

#include <errno.h>
#include <fcntl.h>
#include <string.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

// Of a new event: no signal pending, no author.
static const EventState NEW_STATE = {.magic = "TavTermIPC 1\n"};

_Static_assert(sizeof(EventState) == 32, "the state is a fixed file format");
_Static_assert(ATOMIC_INT_LOCK_FREE == 2 && ATOMIC_LLONG_LOCK_FREE == 2, "shared between processes");

static bool isEventFile(const struct stat* status) {
    return S_ISREG(status->st_mode) && status->st_uid == geteuid() && (status->st_mode & 07777) == 0600 &&
           status->st_nlink == 1 && status->st_size == (off_t)sizeof(EventState);
}

// Takes over `descriptor`; closes it when the mapping fails.
static int mapEvent(int descriptor, EventObject* event) {
    void* state = mmap(NULL, sizeof(EventState), PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    if (state == MAP_FAILED) {
        const int error = errno;
        close(descriptor);
        return error;
    }
    event->descriptor = descriptor;
    event->state = state;
    return 0;
}

// Read, not looked at through a mapping: who knows what stands there.
static bool holdsEvent(int descriptor) {
    struct stat status;
    EventState state;
    return fstat(descriptor, &status) == 0 && isEventFile(&status) &&
           pread(descriptor, &state, sizeof state, 0) == (ssize_t)sizeof state &&
           memcmp(state.magic, NEW_STATE.magic, sizeof state.magic) == 0;
}

static int mapIfEvent(int descriptor, EventObject* event) {
    if (!holdsEvent(descriptor)) {
        close(descriptor);
        return EVENT_FOREIGN;
    }
    return mapEvent(descriptor, event);
}

int openEvent(int folder, const char* file, EventObject* event) {
    // Looked at before it is opened: opening a pipe or a device could already do something.
    struct stat status;
    if (fstatat(folder, file, &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return errno;
    }
    if (!isEventFile(&status)) {
        return EVENT_FOREIGN;
    }
    const int descriptor = openat(folder, file, O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    return descriptor < 0 ? errno : mapIfEvent(descriptor, event);
}

// Written, not only sized: a full disk must show here and not at the first use of the mapping.
static int writeNewState(int descriptor) {
    const ssize_t written = write(descriptor, &NEW_STATE, sizeof NEW_STATE);
    if (written != (ssize_t)sizeof NEW_STATE) {
        return written < 0 ? errno : ENOSPC;
    }
    return fchmod(descriptor, 0600) == 0 ? 0 : errno;
}

int makeEvent(int folder, const char* file, EventObject* event) {
    const int descriptor = openat(folder, file, O_CREAT | O_EXCL | O_RDWR | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (descriptor < 0) {
        return errno;
    }
    const int error = writeNewState(descriptor);
    if (error != 0) {
        close(descriptor);
        unlinkat(folder, file, 0);
        return error;
    }
    return mapEvent(descriptor, event);
}

void closeEvent(EventObject* event) {
    munmap(event->state, sizeof(EventState));
    close(event->descriptor);
    event->state = NULL;
    event->descriptor = -1;
}

EventState* wholeState(const EventObject* event) {
    // The cheapest call that tells the length; nothing reads on from there.
    return lseek(event->descriptor, 0, SEEK_END) >= (off_t)sizeof(EventState) ? event->state : NULL;
}

bool standsIn(int folder, const char* file, const EventObject* event) {
    struct stat named;
    struct stat held;
    return fstatat(folder, file, &named, AT_SYMLINK_NOFOLLOW) == 0 && fstat(event->descriptor, &held) == 0 &&
           named.st_dev == held.st_dev && named.st_ino == held.st_ino;
}
