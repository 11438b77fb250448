// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sample_archive/sample_archive.h"
#include "support/builders.h"
#include "support/temp_folder.h"
#include "tools/support/run_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace planner::test {

/// An office of the year 2006 in a folder of its own, and planner-print on it.
class PrintFixture : public testing::Test {
protected:
    PrintFixture() {
        writeOffice(3);
        writeRequest("M");
    }

    void writeOffice(int staff) {
        office = creaArchivioCampione({.anno = 2006, .collaboratori = staff});
        scriviArchivioCampione(office, folder.folder());
    }
    /// A request of 15 March 2006.
    void writeRequest(std::string_view kind) {
        TransitRequest request = richiesta(kind);
        request.startdate.assign("20060101");
        request.enddate.assign("20061231");
        request.valret.assign("20060315");
        folder.write("transito", bytesOf(request));
    }

    std::string path(std::string_view name = {}) const { return folder.path(name); }
    static toolstest::RunResult print(const std::vector<std::string>& arguments) {
        return toolstest::run({PLANNER_PRINT, arguments, {}, {}});
    }
    /// Prints the request with these options; the test fails when the run does.
    void printInto(const std::string& option, std::string_view name, std::vector<std::string> options = {}) {
        options.insert(options.begin(), {path("transito"), option, path(name), "--oggi", "20060324"});
        const toolstest::RunResult result = print(options);
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        EXPECT_EQ(result.errors, "");
        EXPECT_EQ(result.output, "");
    }
    /// The texts of a PDF file, page by page.
    std::vector<std::string> pages(std::string_view name) const {
        const auto result = toolstest::run(
            {"/usr/bin/env", {"pdftotext", "-layout", "-enc", "UTF-8", path(name), "-"}, {}, {}});
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        std::vector<std::string> found(1);
        for (const char c : result.output) {
            c == '\f' ? void(found.emplace_back()) : found.back().push_back(c);
        }
        found.pop_back(); // each page ends with a form feed
        return found;
    }

    TempFolder folder;
    ArchivioCampione office;
};

} // namespace planner::test
