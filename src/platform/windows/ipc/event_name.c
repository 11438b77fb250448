// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_name.h"

#include <errno.h>
#include <stdbool.h>
#include <stddef.h>

static bool isWrittenAsThree(unsigned char byte) {
    return byte == '/' || byte == '%' || byte < 0x20 || byte == 0x7F;
}

static size_t writeByte(unsigned char byte, wchar_t* out) {
    static const char digits[] = "0123456789ABCDEF";
    if (!isWrittenAsThree(byte)) {
        out[0] = byte == '\\' ? L'/' : byte;
        return 1;
    }
    out[0] = L'%';
    out[1] = (wchar_t)digits[byte >> 4];
    out[2] = (wchar_t)digits[byte & 0xF];
    return 3;
}

int eventName(const char* nome, EventName name) {
    if (nome == NULL) {
        return EINVAL;
    }
    size_t length = 0;
    for (; *nome != '\0'; ++nome) {
        const unsigned char byte = (unsigned char)*nome;
        if (length + (isWrittenAsThree(byte) ? 3 : 1) > EVENT_NAME_LONGEST) {
            return ENAMETOOLONG;
        }
        length += writeByte(byte, name + length);
    }
    name[length] = L'\0';
    return 0;
}
