// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/system/child_process.h"

#include "platform/windows/errors.h"
#include "platform/windows/handles.h"
#include "platform/windows/texts.h"

#include <windows.h>

namespace planner {

namespace {

/// In quotes, as the child's C library takes a command line apart: a backslash is doubled before a quote
/// alone.
std::wstring quoted(const std::wstring& word) {
    std::wstring text = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t letter : word) {
        text.append(letter == L'"' ? backslashes + 1 : 0, L'\\');
        backslashes = letter == L'\\' ? backslashes + 1 : 0;
        text += letter;
    }
    text.append(backslashes, L'\\');
    return text + L"\"";
}

} // namespace

ChildProcess::ChildProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments) {
    std::wstring line = quoted(program.wstring());
    for (const std::string& argument : arguments) {
        line += L" " + quoted(wideText(argument));
    }
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (::CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                         &process) == 0) {
        throwLastError();
    }
    ::CloseHandle(process.hThread);
    m_handle = reinterpret_cast<Waitable>(process.hProcess);
}

ChildProcess::~ChildProcess() {
    ::CloseHandle(handleOf(m_handle));
}

const std::optional<ProcessEnd>& ChildProcess::end() {
    DWORD code = 0;
    if (!m_end && ::WaitForSingleObject(handleOf(m_handle), 0) == WAIT_OBJECT_0 &&
        ::GetExitCodeProcess(handleOf(m_handle), &code) != 0) {
        m_end = {static_cast<int>(code), false};
    }
    return m_end;
}

bool ChildProcess::askToEnd() const {
    return false;
}

void ChildProcess::kill() const {
    ::TerminateProcess(handleOf(m_handle), 1);
}

} // namespace planner
