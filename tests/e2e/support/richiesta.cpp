// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/richiesta.h"

#include "e2e/support/processo.h"

#include <array>
#include <ctime>

namespace planner::e2e {

namespace {

/// Bytes from 0x00 to 0xFF in even steps.
std::string assortedBytes(std::size_t count) {
    std::string bytes;
    for (std::size_t i = 0; i < count; ++i) {
        bytes += static_cast<char>(i * 0xFF / (count - 1));
    }
    return bytes;
}

} // namespace

std::string requestBytes(char tipoplanner, std::string_view day) {
    std::string bytes = assortedBytes(8); // riservato1
    bytes += tipoplanner;
    bytes += "20060315";        // startdate
    bytes += "20061231";        // enddate
    bytes += assortedBytes(60); // riservato2
    bytes += ' ';               // tipocall
    bytes += "07";              // collab
    bytes += day;               // valret
    bytes += "xyQ";
    bytes += assortedBytes(21); // Windowcaption
    bytes += ' ';               // planrichiesto
    return bytes;
}

std::string inYear(std::string_view year, std::string request) {
    constexpr std::size_t startdate = 9;
    constexpr std::size_t enddate = 17;
    request.replace(startdate, year.size(), year);
    request.replace(enddate, year.size(), year);
    return request;
}

std::string answeredWith(std::string_view answer, std::string request) {
    constexpr std::size_t collab = 86;
    constexpr std::size_t valret = 88;
    request.replace(collab, 2, answer.substr(8, 2));
    request.replace(valret, 11, answer);
    return request;
}

std::string closedOn(std::string_view day, std::string request) {
    return answeredWith(std::string(day) + "  E", std::move(request));
}

char actionIn(std::string_view answer) {
    constexpr std::size_t action = 98;
    return answer.size() < RequestLength ? '\0' : answer.at(action);
}

std::string everyByte() {
    return assortedBytes(256);
}

std::string today() {
    const std::time_t there = std::time(nullptr) + std::chrono::seconds(HoursEast).count();
    std::tm parts{};
    ::gmtime_r(&there, &parts);
    std::array<char, 16> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y%m%d", &parts)};
}

} // namespace planner::e2e
