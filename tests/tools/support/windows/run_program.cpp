// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "tools/support/run_program.h"

#include "platform/windows/texts.h"
#include "support/temp_folder.h"

#include <list>
#include <optional>
#include <stdexcept>
#include <windows.h>

namespace planner::toolstest {

namespace {

constexpr DWORD Deadline = 60'000;

/// A file that a child may write its output to.
class OutputFile {
public:
    explicit OutputFile(const std::filesystem::path& path) {
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        m_handle = ::CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                                 CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    }
    ~OutputFile() { ::CloseHandle(m_handle); }
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

/// A variable of this process's, which its children inherit, for as long as the object lives.
class Variable {
public:
    Variable(const std::string& name, const std::string& value)
        : m_name(wideText(name == "TMPDIR" ? "TMP" : name)) {
        std::wstring before(32767, L'\0');
        const DWORD length = ::GetEnvironmentVariableW(m_name.c_str(), before.data(), 32767);
        if (length > 0) {
            m_before = before.substr(0, length);
        }
        ::SetEnvironmentVariableW(m_name.c_str(), wideText(value).c_str());
    }
    ~Variable() { ::SetEnvironmentVariableW(m_name.c_str(), m_before ? m_before->c_str() : nullptr); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    std::wstring m_name;
    std::optional<std::wstring> m_before;
};

/// No word holds a quote, or ends in a backslash.
std::wstring commandLine(const Run& what) {
    std::wstring line = L"\"" + wideText(what.program) + L"\"";
    for (const std::string& argument : what.arguments) {
        line += L" \"" + wideText(argument) + L"\"";
    }
    return line;
}

HANDLE start(const Run& what, const OutputFile& output, const OutputFile& errors) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = output.get();
    startup.hStdError = errors.get();
    PROCESS_INFORMATION process{};
    std::wstring line = commandLine(what);
    if (::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                         &process) == 0) {
        throw std::runtime_error("cannot start " + what.program);
    }
    ::CloseHandle(process.hThread);
    return process.hProcess;
}

} // namespace

RunResult run(const Run& what) {
    const test::TempFolder folder;
    std::list<Variable> variables;
    for (const auto& [name, value] : what.environment) {
        variables.emplace_back(name, value);
    }
    RunResult result;
    {
        const OutputFile output(folder.folder() / "out");
        const OutputFile errors(folder.folder() / "err");
        const HANDLE process = start(what, output, errors);
        result.inTime = ::WaitForSingleObject(process, Deadline) == WAIT_OBJECT_0;
        if (!result.inTime) {
            ::TerminateProcess(process, 1);
        }
        DWORD code = 0;
        ::GetExitCodeProcess(process, &code);
        result.exitCode = static_cast<int>(code);
        ::CloseHandle(process);
    }
    result.output = test::fileBytes(folder.folder() / "out");
    result.errors = test::fileBytes(folder.folder() / "err");
    return result;
}

} // namespace planner::toolstest
