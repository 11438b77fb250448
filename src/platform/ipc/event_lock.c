// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_lock.h"

#include <errno.h>
#include <fcntl.h>
#include <unistd.h>

enum { CREATOR_BYTE = 0, HOST_BYTE = 1 };

static struct flock lockOn(off_t byte, short type) {
    return (struct flock){.l_type = type, .l_whence = SEEK_SET, .l_start = byte, .l_len = 1};
}

static int setLock(int descriptor, off_t byte, short type) {
    struct flock lock = lockOn(byte, type);
    return fcntl(descriptor, F_SETLK, &lock) == 0 ? 0 : errno;
}

static bool isLockedElsewhere(int descriptor, off_t byte) {
    struct flock lock = lockOn(byte, F_WRLCK);
    return fcntl(descriptor, F_GETLK, &lock) != 0 || lock.l_type != F_UNLCK;
}

int lockAsCreator(int descriptor) {
    const int error = setLock(descriptor, CREATOR_BYTE, F_WRLCK);
    return error == EAGAIN || error == EACCES ? EADDRINUSE : error;
}

void unlockAsCreator(int descriptor) {
    setLock(descriptor, CREATOR_BYTE, F_UNLCK);
}

bool hasOtherCreator(int descriptor) {
    return isLockedElsewhere(descriptor, CREATOR_BYTE);
}

int lockAsHost(int descriptor) {
    return setLock(descriptor, HOST_BYTE, F_RDLCK);
}

bool hasOtherHost(int descriptor) {
    return isLockedElsewhere(descriptor, HOST_BYTE);
}
