// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_object.h"

#include "futex.h"

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

static int mapIfEvent(int descriptor, EventObject* event) {
    struct stat status;
    if (fstat(descriptor, &status) != 0 || !isEventFile(&status)) {
        close(descriptor);
        return EVENT_FOREIGN;
    }
    const int error = mapEvent(descriptor, event);
    if (error == 0 && memcmp(event->state->magic, NEW_STATE.magic, sizeof NEW_STATE.magic) != 0) {
        closeEvent(event);
        return EVENT_FOREIGN;
    }
    return error;
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

// The creator is known by a record lock: the kernel drops it with the process, however that ends,
// and a child does not inherit it. The price is that closing any descriptor of the file drops it
// too, so a creator never opens its own event a second time.
static struct flock creatorLock(short type) {
    return (struct flock){.l_type = type, .l_whence = SEEK_SET, .l_start = 0, .l_len = 1};
}

bool hasOtherCreator(const EventObject* event) {
    struct flock lock = creatorLock(F_WRLCK);
    return fcntl(event->descriptor, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

int claimEvent(const EventObject* event) {
    struct flock lock = creatorLock(F_WRLCK);
    if (fcntl(event->descriptor, F_SETLK, &lock) == 0) {
        return 0;
    }
    return errno == EAGAIN || errno == EACCES ? EADDRINUSE : errno;
}

void unclaimEvent(const EventObject* event) {
    struct flock lock = creatorLock(F_UNLCK);
    fcntl(event->descriptor, F_SETLK, &lock);
}

static bool standsIn(int folder, const char* file, const EventObject* event) {
    struct stat named;
    struct stat held;
    return fstatat(folder, file, &named, AT_SYMLINK_NOFOLLOW) == 0 && fstat(event->descriptor, &held) == 0 &&
           named.st_dev == held.st_dev && named.st_ino == held.st_ino;
}

void retireEvent(int folder, const char* file, const EventObject* event) {
    atomic_store(&event->state->toHost, SIGNAL_RETIRED);
    atomic_store(&event->state->toCreator, SIGNAL_RETIRED);
    futexWakeAll(&event->state->toHost);
    futexWakeAll(&event->state->toCreator);
    if (standsIn(folder, file, event)) {
        unlinkat(folder, file, 0);
    }
}
