// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "TavTermIPC.h"
#include "actor_messages.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <string>

// Makes the calls on the event that it is told to, until nobody tells it any more.

namespace {

using namespace planner::ipctest;

int make(Call call, const char* name) {
    switch (call) {
    case Call::Create:
        return TvIpcCreazioneEvento(name);
    case Call::Set:
        return TvIpcSetEvento(name);
    case Call::Wait:
        return TvIpcWaitEvento(name);
    case Call::Remove:
        return TvIpcRimozioneEvento(name);
    }
    return -1;
}

void reply(const Reply& said) {
    std::fwrite(&said, sizeof said, 1, stdout);
    std::fflush(stdout);
}

} // namespace

int main() {
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    Order order{};
    while (std::fread(&order, sizeof order, 1, stdin) == 1) {
        std::string name(order.length, '\0');
        if (std::fread(name.data(), 1, name.size(), stdin) != name.size()) {
            return 1;
        }
        reply({BEGUN, 0});
        errno = 0;
        const int result = make(order.call, name.c_str());
        reply({result, errno});
    }
    return 0;
}
