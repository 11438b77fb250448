// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT

// A whole host in C, event mode: asks for a year, prints what the user answered, and asks again until the
// user closes the planner.
//
//   cc host.c -o host $(pkg-config --cflags --libs TavTermIPC)
//   ./host PLANNER FOLDER        (the folder with the four archive files)
#define _POSIX_C_SOURCE 200809L
#include <TavTermIPC.h>
#include <errno.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

enum { RECORD = 121, VALRET = 88, VALRET_LENGTH = 11 };

static void fail(const char* what) {
    fprintf(stderr, "host: %s: %s\n", what, strerror(errno));
    exit(1);
}

// The kind at 8, the period at 9 and 17, the staff code at 86, the day to show at 88; see the record's table.
static void writeRequest(const char* transit) {
    char record[RECORD];
    memset(record, ' ', sizeof record);
    memcpy(record + 8, "A2006010120061231", 17);
    memcpy(record + VALRET, "20060315", 8);
    FILE* file = fopen(transit, "wb");
    if (file == NULL || fwrite(record, sizeof record, 1, file) != 1 || fclose(file) != 0) {
        fail(transit);
    }
}

static char printAnswer(const char* transit) {
    char record[RECORD];
    FILE* file = fopen(transit, "rb");
    if (file == NULL || fread(record, sizeof record, 1, file) != 1) {
        fail(transit);
    }
    fclose(file);
    printf("%.*s\n", VALRET_LENGTH, record + VALRET);
    fflush(stdout);
    return record[VALRET + VALRET_LENGTH - 1];
}

// A planner that ends before it has made the event cannot be noticed by waiting for the event. Its last
// answer comes before its end: who still waits a second later has none.
static void plannerHasEnded(int signal) {
    (void)signal;
    alarm(1);
}

static void noAnswerHasCome(int signal) {
    (void)signal;
    static const char words[] = "host: the planner has ended without an answer\n";
    (void)!write(STDERR_FILENO, words, sizeof words - 1);
    _exit(2);
}

static void startPlanner(const char* planner, const char* transit, const char* event) {
    signal(SIGCHLD, plannerHasEnded);
    signal(SIGALRM, noAnswerHasCome);
    const pid_t child = fork();
    if (child < 0) {
        fail("fork");
    }
    if (child == 0) {
        execl(planner, planner, transit, "1", event, (char*)NULL);
        _exit(127);
    }
}

int main(int argc, char** argv) {
    if (argc != 3) {
        fprintf(stderr, "host PLANNER FOLDER\n");
        return 2;
    }
    char transit[4096];
    char event[32];
    snprintf(transit, sizeof transit, "%s/transito.dat", argv[2]);
    snprintf(event, sizeof event, "host-%ld", (long)getpid()); // a name that nobody else uses
    writeRequest(transit);
    startPlanner(argv[1], transit, event);
    for (;;) {
        if (!TvIpcWaitEvento(event)) {
            fail("the planner has died");
        }
        const char action = printAnswer(transit);
        if (action == 'E') {
            return 0; // the planner ends, and has removed the event
        }
        writeRequest(transit);
        if (!TvIpcSetEvento(event)) {
            fail("the planner is gone");
        }
    }
}
