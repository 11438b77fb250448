// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_name.h"

#include <errno.h>
#include <stdbool.h>
#include <stddef.h>
#include <string.h>

// The prefix keeps the empty name, "." and ".." from meaning a folder.
static const char PREFIX[] = "ev-";

// '%' starts an escape, so it must be one itself, or two names could meet in one file.
static bool needsEscape(unsigned char byte) {
    return byte == '/' || byte == '%' || byte < 0x20 || byte == 0x7F;
}

static size_t putByte(unsigned char byte, char* to) {
    static const char digits[] = "0123456789ABCDEF";
    if (!needsEscape(byte)) {
        to[0] = (char)byte;
        return 1;
    }
    to[0] = '%';
    to[1] = digits[byte >> 4];
    to[2] = digits[byte & 0x0F];
    return 3;
}

int eventFileName(const char* name, char file[EVENT_FILE_SIZE]) {
    if (name == NULL) {
        return EINVAL;
    }
    size_t length = sizeof PREFIX - 1;
    memcpy(file, PREFIX, length);
    for (const char* at = name; *at != '\0'; ++at) {
        const unsigned char byte = (unsigned char)*at;
        const size_t needed = needsEscape(byte) ? 3 : 1;
        if (length + needed >= EVENT_FILE_SIZE) {
            return ENAMETOOLONG;
        }
        length += putByte(byte, file + length);
    }
    file[length] = '\0';
    return 0;
}
