// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/system/waiting.h"

#include "platform/windows/errors.h"
#include "platform/windows/handles.h"
#include "platform/windows/texts.h"

#include <csignal>
#include <vector>
#include <windows.h>

namespace planner {

namespace {

Waitable checkedWaitable(HANDLE handle) {
    if (handle == nullptr || handle == INVALID_HANDLE_VALUE) {
        throwLastError();
    }
    return reinterpret_cast<Waitable>(handle);
}

// The system's hook takes no context.
HANDLE wished = nullptr;
volatile LONG wish = 0;

BOOL WINAPI onWish(DWORD event) {
    ::InterlockedExchange(&wish, event == CTRL_C_EVENT ? SIGINT : SIGTERM);
    return ::SetEvent(wished);
}

} // namespace

std::optional<std::size_t> waitForFirst(std::span<const Waitable> waited,
                                        std::optional<std::chrono::milliseconds> limit) {
    std::vector<HANDLE> handles;
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < waited.size(); ++place) {
        if (waited[place] != NoWaitable) {
            handles.push_back(handleOf(waited[place]));
            places.push_back(place);
        }
    }
    const DWORD result = ::WaitForMultipleObjects(static_cast<DWORD>(handles.size()), handles.data(), FALSE,
                                                  limit ? static_cast<DWORD>(limit->count()) : INFINITE);
    if (result == WAIT_FAILED) {
        throwLastError();
    }
    return result < places.size() ? std::optional(places[result]) : std::nullopt;
}

WakeUp::WakeUp() : m_handle(checkedWaitable(::CreateEventW(nullptr, TRUE, FALSE, nullptr))) {}

WakeUp::~WakeUp() {
    ::CloseHandle(handleOf(m_handle));
}

void WakeUp::wake() const {
    ::SetEvent(handleOf(m_handle));
}

EndWishes::EndWishes() : m_handle(checkedWaitable(::CreateEventW(nullptr, FALSE, FALSE, nullptr))) {
    wished = handleOf(m_handle);
    ::SetConsoleCtrlHandler(onWish, TRUE);
}

EndWishes::~EndWishes() {
    ::SetConsoleCtrlHandler(onWish, FALSE);
    ::CloseHandle(handleOf(m_handle));
}

int EndWishes::take() const {
    return static_cast<int>(::InterlockedExchange(&wish, 0));
}

FolderWatch::FolderWatch(const std::string& folder)
    : m_handle(checkedWaitable(
          ::FindFirstChangeNotificationW(wideText(folder).c_str(), FALSE, FILE_NOTIFY_CHANGE_FILE_NAME))) {}

FolderWatch::~FolderWatch() {
    ::FindCloseChangeNotification(handleOf(m_handle));
}

void FolderWatch::forget() const {
    while (::WaitForSingleObject(handleOf(m_handle), 0) == WAIT_OBJECT_0 &&
           ::FindNextChangeNotification(handleOf(m_handle)) != 0) {
    }
}

} // namespace planner
