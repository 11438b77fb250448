// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_table.h"

#include "event_lock.h"
#include "event_refusal.h"

#include <pthread.h>
#include <stdlib.h>
#include <string.h>
#include <sys/random.h>
#include <time.h>
#include <unistd.h>

// Guarded by `mutex`.
static struct {
    pthread_mutex_t mutex;
    EventHandle* first;
    uint64_t token; // 0: not chosen yet by this process
} table = {PTHREAD_MUTEX_INITIALIZER, NULL, 0};

void beginUse(EventHandle* handle) {
    ++handle->users;
}

void endUse(EventHandle* handle) {
    if (--handle->users == 0) {
        closeEvent(&handle->object);
        free(handle);
    }
}

static void dropAll(void) {
    while (table.first != NULL) {
        dropHandle(table.first);
    }
}

static uint64_t newToken(void) {
    uint64_t token = 0;
    if (getrandom(&token, sizeof token, GRND_NONBLOCK) != (ssize_t)sizeof token || token == 0) {
        struct timespec now;
        clock_gettime(CLOCK_MONOTONIC, &now);
        token = (uint64_t)getpid() << 40 ^ (uint64_t)now.tv_sec << 30 ^ (uint64_t)now.tv_nsec;
    }
    return token;
}

void lockTable(void) {
    pthread_mutex_lock(&table.mutex);
}

void unlockTable(void) {
    pthread_mutex_unlock(&table.mutex);
}

EventHandle* findHandle(const char* file) {
    EventHandle* handle = table.first;
    while (handle != NULL && strcmp(handle->file, file) != 0) {
        handle = handle->next;
    }
    return handle;
}

static bool isQuiet(uint32_t toHost) {
    return toHost == SIGNAL_NONE || toHost == SIGNAL_VACANT;
}

// A host that meets many events, one after the other, must not keep a descriptor of each. A signal
// that a dead creator left for it stays, and so does a death that it has not been told of, or a signal of
// its own that the creator did not take.
static bool isOfNoMoreUse(const EventHandle* handle) {
    if (handle->creator || handle->users > 1) {
        return false;
    }
    const EventState* state = wholeState(&handle->object);
    if (state == NULL) {
        return true;
    }
    if (atomic_load(&state->toHost) == SIGNAL_RETIRED) {
        return !handle->met || atomic_load(&state->toCreator) != SIGNAL_LAST;
    }
    return !handle->met && isQuiet(atomic_load(&state->toHost)) &&
           !hasOtherCreator(handle->object.descriptor);
}

static void dropUseless(void) {
    for (EventHandle* handle = table.first; handle != NULL;) {
        EventHandle* next = handle->next;
        if (isOfNoMoreUse(handle)) {
            dropHandle(handle);
        }
        handle = next;
    }
}

EventHandle* addHandle(const char* file, EventObject object, bool creator) {
    dropUseless();
    EventHandle* handle = calloc(1, sizeof *handle);
    if (handle == NULL) {
        closeEvent(&object);
        return NULL;
    }
    handle->next = table.first;
    handle->users = 1;
    handle->creator = creator;
    handle->object = object;
    memcpy(handle->file, file, strlen(file) + 1);
    table.first = handle;
    return handle;
}

void dropHandle(EventHandle* handle) {
    EventHandle** at = &table.first;
    while (*at != NULL && *at != handle) {
        at = &(*at)->next;
    }
    if (*at != NULL) {
        *at = handle->next;
        endUse(handle);
    }
}

uint64_t processToken(void) {
    while (table.token == 0) {
        table.token = newToken();
    }
    return table.token;
}

// The child is another process: it has no part in what its parent created or waits for, and none of the
// threads that were in a call.
static void startAnew(void) {
    for (EventHandle* handle = table.first; handle != NULL; handle = handle->next) {
        handle->users = 1;
    }
    dropAll();
    forgetAllRefusals();
    table.token = 0;
    unlockTable();
}

// Locked around the fork, for a child made while another thread is in a call would otherwise find
// the mutex locked for ever.
__attribute__((constructor)) static void guardForks(void) {
    pthread_atfork(lockTable, unlockTable, startAnew);
}

// A program that unloads the library keeps no descriptors of it.
__attribute__((destructor)) static void closeAll(void) {
    lockTable();
    dropAll();
    forgetAllRefusals();
    unlockTable();
}
