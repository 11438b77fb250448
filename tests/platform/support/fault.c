// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "fault.h"

#include <dlfcn.h>
#include <errno.h>
#include <pthread.h>
#include <stdarg.h>
#include <stddef.h>
#include <string.h>
#include <sys/pidfd.h>
#include <sys/signalfd.h>
#include <sys/stat.h>
#include <sys/types.h>

// The functions below have the C library's signatures: nothing can be passed to them.
static struct {
    const char* name;
    int left;
    int error;
} plan;

void failCall(const char* name, int nth, int error) {
    plan.name = name;
    plan.left = nth;
    plan.error = error;
}

bool hasFailed(void) {
    return plan.left == 0;
}

static bool strikes(const char* name) {
    if (plan.left == 0 || strcmp(plan.name, name) != 0 || --plan.left != 0) {
        return false;
    }
    errno = plan.error;
    return true;
}

// The C library's own function of this name, as one with this signature.
#define NEXT(name, result, ...) ((result(*)(__VA_ARGS__))dlsym(RTLD_NEXT, name))

// Each fails when it is asked to, and is the C library's otherwise.

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return strikes("open") ? -1 : NEXT("open", int, const char*, int, ...)(path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return strikes("openat") ? -1
                             : NEXT("openat", int, int, const char*, int, ...)(folder, path, flags, mode);
}

int fcntl(int descriptor, int command, ...) {
    va_list rest;
    va_start(rest, command);
    void* argument = va_arg(rest, void*);
    va_end(rest);
    return strikes("fcntl") ? -1 : NEXT("fcntl", int, int, int, ...)(descriptor, command, argument);
}

int mkdirat(int folder, const char* path, mode_t mode) {
    return strikes("mkdirat") ? -1 : NEXT("mkdirat", int, int, const char*, mode_t)(folder, path, mode);
}

int flock(int descriptor, int operation) {
    return strikes("flock") ? -1 : NEXT("flock", int, int, int)(descriptor, operation);
}

void* mmap(void* address, size_t length, int protection, int flags, int descriptor, off_t offset) {
    return strikes("mmap") ? (void*)-1
                           : NEXT("mmap", void*, void*, size_t, int, int, int,
                                  off_t)(address, length, protection, flags, descriptor, offset);
}

ssize_t write(int descriptor, const void* bytes, size_t length) {
    return strikes("write") ? -1
                            : NEXT("write", ssize_t, int, const void*, size_t)(descriptor, bytes, length);
}

ssize_t pread(int descriptor, void* bytes, size_t length, off_t offset) {
    return strikes("pread")
               ? -1
               : NEXT("pread", ssize_t, int, void*, size_t, off_t)(descriptor, bytes, length, offset);
}

int fchmod(int descriptor, mode_t mode) {
    return strikes("fchmod") ? -1 : NEXT("fchmod", int, int, mode_t)(descriptor, mode);
}

int unlinkat(int folder, const char* path, int flags) {
    return strikes("unlinkat") ? -1 : NEXT("unlinkat", int, int, const char*, int)(folder, path, flags);
}

ssize_t getrandom(void* bytes, size_t length, unsigned flags) {
    return strikes("getrandom") ? -1
                                : NEXT("getrandom", ssize_t, void*, size_t, unsigned)(bytes, length, flags);
}

ssize_t read(int descriptor, void* bytes, size_t length) {
    return strikes("read") ? -1 : NEXT("read", ssize_t, int, void*, size_t)(descriptor, bytes, length);
}

ssize_t pwrite(int descriptor, const void* bytes, size_t length, off_t offset) {
    return strikes("pwrite")
               ? -1
               : NEXT("pwrite", ssize_t, int, const void*, size_t, off_t)(descriptor, bytes, length, offset);
}

int fsync(int descriptor) {
    return strikes("fsync") ? -1 : NEXT("fsync", int, int)(descriptor);
}

// The descriptor is closed all the same, as the system does it.
int close(int descriptor) {
    const int result = NEXT("close", int, int)(descriptor);
    return strikes("close") ? -1 : result;
}

int signalfd(int descriptor, const sigset_t* signals, int flags) {
    return strikes("signalfd") ? -1
                               : NEXT("signalfd", int, int, const sigset_t*, int)(descriptor, signals, flags);
}

int pidfd_open(pid_t process, unsigned flags) {
    return strikes("pidfd_open") ? -1 : NEXT("pidfd_open", int, pid_t, unsigned)(process, flags);
}

// Tells its error by its result.
int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*start)(void*),
                   void* argument) {
    return strikes("pthread_create") ? plan.error
                                     : NEXT("pthread_create", int, pthread_t*, const pthread_attr_t*,
                                            void* (*)(void*), void*)(thread, attributes, start, argument);
}

int fstat(int descriptor, struct stat* status) {
    return strikes("fstat") ? -1 : NEXT("fstat", int, int, struct stat*)(descriptor, status);
}

// The sanitizers keep the heap to themselves.
#if !PLANNER_SANITIZED
void* __libc_calloc(size_t count, size_t size);

void* calloc(size_t count, size_t size) {
    return strikes("calloc") ? NULL : __libc_calloc(count, size);
}
#endif
