// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_refusal.h"

#include "event_name.h"

#include <stddef.h>
#include <stdlib.h>
#include <string.h>

typedef struct Refusal {
    struct Refusal* next;
    int error;
    char file[EVENT_FILE_SIZE];
} Refusal;

static Refusal* firstRefusal = NULL;

// The place of the pointer to the refusal of `file`; it holds null when there is none.
static Refusal** placeOf(const char* file) {
    Refusal** at = &firstRefusal;
    while (*at != NULL && strcmp((*at)->file, file) != 0) {
        at = &(*at)->next;
    }
    return at;
}

static void removeAt(Refusal** at) {
    Refusal* gone = *at;
    *at = gone->next;
    free(gone);
}

void rememberRefusal(const char* file, int error) {
    Refusal** at = placeOf(file);
    if (*at == NULL) {
        *at = calloc(1, sizeof **at);
    }
    if (*at != NULL) {
        (*at)->error = error;
        memcpy((*at)->file, file, strlen(file) + 1);
    }
}

int refusalOf(const char* file) {
    const Refusal* refusal = *placeOf(file);
    return refusal == NULL ? 0 : refusal->error;
}

void forgetRefusal(const char* file) {
    Refusal** at = placeOf(file);
    if (*at != NULL) {
        removeAt(at);
    }
}

void forgetAllRefusals(void) {
    while (firstRefusal != NULL) {
        removeAt(&firstRefusal);
    }
}
