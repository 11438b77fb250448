// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_folder.h"

#include <errno.h>
#include <fcntl.h>
#include <stdbool.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

static const char FOLDER[] = "tavterm-ipc";

// A run-time folder that is not the user's own comes from a change of user: it is passed over,
// for an object made there would lock its real owner out.
static int openRuntimeFolder(void) {
    const char* path = secure_getenv("XDG_RUNTIME_DIR");
    if (path == NULL || path[0] != '/') {
        return -1;
    }
    const int folder = open(path, O_DIRECTORY | O_RDONLY | O_CLOEXEC);
    struct stat status;
    if (folder >= 0 && (fstat(folder, &status) != 0 || status.st_uid != geteuid())) {
        close(folder);
        return -1;
    }
    return folder;
}

static bool isPrivate(int folder) {
    struct stat status;
    return fstat(folder, &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid() &&
           (status.st_mode & 0777) == 0700;
}

static int openPrivate(int parent, const char* name) {
    // A folder that is there already is as good: isPrivate() judges either.
    if (mkdirat(parent, name, 0700) != 0 && errno != EEXIST) {
        return -errno;
    }
    const int folder = openat(parent, name, O_DIRECTORY | O_NOFOLLOW | O_RDONLY | O_CLOEXEC);
    if (folder < 0) {
        return -errno;
    }
    if (!isPrivate(folder)) {
        close(folder);
        return -EACCES;
    }
    return folder;
}

static int openUnderTmp(void) {
    char name[sizeof FOLDER + 24];
    snprintf(name, sizeof name, "%s-%lu", FOLDER, (unsigned long)geteuid());
    const int parent = open("/tmp", O_DIRECTORY | O_RDONLY | O_CLOEXEC);
    if (parent < 0) {
        return -errno;
    }
    const int folder = openPrivate(parent, name);
    close(parent);
    return folder;
}

static int openEventFolder(void) {
    const int parent = openRuntimeFolder();
    if (parent < 0) {
        return openUnderTmp();
    }
    const int folder = openPrivate(parent, FOLDER);
    close(parent);
    return folder;
}

int lockEventFolder(void) {
    const int folder = openEventFolder();
    if (folder < 0) {
        return folder;
    }
    while (flock(folder, LOCK_EX) != 0) {
        const int error = errno;
        if (error != EINTR) {
            close(folder);
            return -error;
        }
    }
    return folder;
}

void unlockEventFolder(int folder) {
    if (folder >= 0) {
        // Said aloud: a process being started at this moment may still hold a copy of the descriptor.
        flock(folder, LOCK_UN);
        close(folder);
    }
}
