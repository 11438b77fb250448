// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_replace.h"

#include "event_retire.h"

#include <errno.h>
#include <unistd.h>

// Clears the name `file` of what is no event: the folder is ours alone. A folder in there stays.
static int clearName(int folder, const char* file) {
    return unlinkat(folder, file, 0) == 0 || errno == ENOENT ? 0 : errno;
}

int replaceEvent(int folder, const char* file, int result, EventObject* event) {
    if (result == 0) {
        retireEvent(folder, file, event);
        closeEvent(event);
    } else {
        const int error = clearName(folder, file);
        if (error != 0) {
            return error;
        }
    }
    return makeEvent(folder, file, event);
}

bool isTrouble(int result) {
    return result != 0 && result != ENOENT && result != EVENT_FOREIGN;
}
