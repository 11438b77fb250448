// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "program/screen.h"

#include <cstdlib>
#include <poll.h>
#include <stdexcept>
#include <thread>
#include <xcb/xtest.h>

namespace planner::bench {

namespace {

constexpr std::chrono::seconds Deadline{10};

/// As xcb allocates it.
struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply>
using Owned = std::unique_ptr<Reply, Free>;

template <typename Reply>
Owned<Reply> required(Reply* reply) {
    if (reply == nullptr) {
        throw std::runtime_error("the display does not answer");
    }
    return Owned<Reply>(reply);
}

} // namespace

Screen::Screen() : m_connection(xcb_connect(nullptr, nullptr)) {
    xcb_connection_t* connection = m_connection.get();
    const auto* extension = xcb_get_extension_data(connection, &xcb_damage_id);
    if (xcb_connection_has_error(connection) != 0 || extension == nullptr || extension->present == 0) {
        throw std::runtime_error("no display that tells of paintings");
    }
    m_screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    m_damageEvent = extension->first_event;
    required(xcb_damage_query_version_reply(
        connection, xcb_damage_query_version(connection, XCB_DAMAGE_MAJOR_VERSION, XCB_DAMAGE_MINOR_VERSION),
        nullptr));
    // Of the root window: windows that do not exist yet are inside it.
    xcb_damage_create(connection, xcb_generate_id(connection), m_screen->root,
                      XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    forget();
}

Screen::~Screen() = default;

bool Screen::awaitEvent(std::chrono::milliseconds longest) {
    pollfd readable{xcb_get_file_descriptor(m_connection.get()), POLLIN, 0};
    return poll(&readable, 1, static_cast<int>(longest.count())) > 0;
}

long Screen::much() const {
    return static_cast<long>(m_screen->width_in_pixels) * m_screen->height_in_pixels / 2;
}

Clock::time_point Screen::painted() {
    constexpr std::chrono::milliseconds quiet{150};
    const Clock::time_point started = Clock::now();
    Clock::time_point last = started;
    long area = 0;
    while (awaitEvent(area < much() ? Deadline : quiet)) {
        while (const auto event = Owned<xcb_generic_event_t>(xcb_poll_for_event(m_connection.get()))) {
            if ((event->response_type & 0x7F) == m_damageEvent + XCB_DAMAGE_NOTIFY) {
                const auto& damage = *reinterpret_cast<const xcb_damage_notify_event_t*>(event.get());
                area += static_cast<long>(damage.area.width) * damage.area.height;
                last = Clock::now();
            }
        }
        if (Clock::now() - started > Deadline) {
            break;
        }
    }
    if (area < much()) {
        throw std::runtime_error("nothing is painted");
    }
    return last;
}

void Screen::forget() {
    required(xcb_get_input_focus_reply(m_connection.get(), xcb_get_input_focus(m_connection.get()), nullptr));
    while (Owned<xcb_generic_event_t>(xcb_poll_for_event(m_connection.get()))) {
    }
}

bool Screen::hasFocus() {
    xcb_connection_t* connection = m_connection.get();
    const Owned<xcb_get_input_focus_reply_t> focus =
        required(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    const Owned<xcb_get_geometry_reply_t> place(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, focus->focus), nullptr));
    return place && focus->focus != m_screen->root && long{place->width} * place->height >= much();
}

void Screen::awaitFocus() {
    const Clock::time_point started = Clock::now();
    while (!hasFocus()) {
        if (Clock::now() - started > Deadline) {
            throw std::runtime_error("no window takes the keyboard");
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

unsigned char Screen::codeOf(unsigned symbol) {
    const xcb_setup_t* setup = xcb_get_setup(m_connection.get());
    const unsigned first = setup->min_keycode;
    const unsigned count = setup->max_keycode - first + 1;
    const Owned<xcb_get_keyboard_mapping_reply_t> keys = required(xcb_get_keyboard_mapping_reply(
        m_connection.get(),
        xcb_get_keyboard_mapping(m_connection.get(), setup->min_keycode, static_cast<std::uint8_t>(count)),
        nullptr));
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(keys.get());
    for (unsigned key = 0; key < count; ++key) {
        if (symbols[std::size_t{key} * keys->keysyms_per_keycode] == symbol) {
            return static_cast<unsigned char>(first + key);
        }
    }
    throw std::runtime_error("the keyboard has no such key");
}

void Screen::press(unsigned symbol) {
    const unsigned char code = codeOf(symbol);
    for (const std::uint8_t type : {std::uint8_t{XCB_KEY_PRESS}, std::uint8_t{XCB_KEY_RELEASE}}) {
        xcb_test_fake_input(m_connection.get(), type, code, XCB_CURRENT_TIME, m_screen->root, 0, 0, 0);
    }
    xcb_flush(m_connection.get());
}

} // namespace planner::bench
