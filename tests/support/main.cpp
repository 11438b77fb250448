// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include <clocale>
#include <gmock/gmock.h>

/// The tests run under the user's locale, as the program does once its toolkit is up.
int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
