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

static bool isOwn(int folder) {
    struct stat status;
    return fstat(folder, &status) == 0 && status.st_uid == geteuid();
}

static bool isPrivate(int folder) {
    struct stat status;
    return isOwn(folder) && fstat(folder, &status) == 0 && (status.st_mode & 0777) == 0700;
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

static int openIn(const char* parentPath, const char* name, bool ownParent) {
    const int parent = open(parentPath, O_DIRECTORY | O_RDONLY | O_CLOEXEC);
    if (parent < 0) {
        return -errno;
    }
    // A run-time folder of another user comes from a change of user: an object made there would lock its
    // real owner out.
    const int folder = ownParent && !isOwn(parent) ? -EACCES : openPrivate(parent, name);
    close(parent);
    return folder;
}

static int openUnderTmp(void) {
    char name[sizeof FOLDER + 24];
    snprintf(name, sizeof name, "%s-%lu", FOLDER, (unsigned long)geteuid());
    return openIn("/tmp", name, false);
}

// Where a run-time folder is named, both sides look there or nowhere: a second choice on one side alone
// would leave them in two rooms.
static int openEventFolder(void) {
    const char* path = secure_getenv("XDG_RUNTIME_DIR");
    if (path == NULL || path[0] == '\0') {
        return openUnderTmp();
    }
    return path[0] == '/' ? openIn(path, FOLDER, true) : -EINVAL;
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
