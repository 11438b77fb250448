// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT

// A host in C that loads the library named on its command line, uses it and unloads it, many times.
// Ends with 0 when every call did what it should and no descriptor is left open.
#include "TavTermIPC.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <stdbool.h>
#include <stddef.h>

enum { LOADS = 500, HIGHEST_DESCRIPTOR = 256 };

// Each takes its type from the header, so that header and library are checked against each other.
typedef struct {
    __typeof__(&TvIpcCreazioneEvento) create;
    __typeof__(&TvIpcSetEvento) set;
    __typeof__(&TvIpcWaitEvento) wait;
    __typeof__(&TvIpcRimozioneEvento) remove;
} Calls;

typedef int (*EventCall)(const char* nome);

static EventCall load(void* library, const char* name) {
    union {
        void* object;
        EventCall call;
    } found = {dlsym(library, name)};
    return found.call;
}

static bool loadAll(void* library, Calls* calls) {
    calls->create = load(library, "TvIpcCreazioneEvento");
    calls->set = load(library, "TvIpcSetEvento");
    calls->wait = load(library, "TvIpcWaitEvento");
    calls->remove = load(library, "TvIpcRimozioneEvento");
    return calls->create != NULL && calls->set != NULL && calls->wait != NULL && calls->remove != NULL;
}

static bool useOnce(const char* path, bool removes) {
    void* library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    Calls calls;
    bool done = library != NULL && loadAll(library, &calls);
    done = done && calls.create("EV") == 1 && calls.set("EV") == 1;
    if (removes) {
        done = done && calls.remove("EV") == 1;
    }
    return done && dlclose(library) == 0;
}

static int openDescriptors(void) {
    int count = 0;
    for (int descriptor = 0; descriptor < HIGHEST_DESCRIPTOR; ++descriptor) {
        count += fcntl(descriptor, F_GETFD) >= 0 ? 1 : 0;
    }
    return count;
}

int main(int argc, char** argv) {
    if (argc != 2) {
        return 2;
    }
    const int before = openDescriptors();
    for (int i = 0; i < LOADS; ++i) {
        // Every other time the event is left to the unloading.
        if (!useOnce(argv[1], i % 2 == 0)) {
            return 1;
        }
    }
    return openDescriptors() == before ? 0 : 3;
}
