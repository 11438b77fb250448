// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "served_request/arguments.h"

#include "host/command_line.h"
#include "served_request/in_quotes.h"

namespace planner {

namespace {

Data readToday(ArgumentReader& reader) {
    const std::string_view text = reader.valueOf("dopo --oggi manca la data");
    const auto data = parseDate(text);
    if (!data) {
        throw UsageError(inQuotes(text) + " non è una data aaaammgg");
    }
    return *data;
}

void setTransitPath(std::string& transitPath, std::string_view argument) {
    if (!transitPath.empty()) {
        throw UsageError("un solo file di transito alla volta; di troppo: " + inQuotes(argument));
    }
    transitPath = parseCommandLine(std::string(argument) + " 1 NOEVENT").PathTransito;
}

} // namespace

std::string_view ArgumentReader::next() {
    const std::string_view first = m_rest.front();
    m_rest = m_rest.subspan(1);
    return first;
}

std::string_view ArgumentReader::valueOf(const char* missing) {
    if (done()) {
        throw UsageError(missing);
    }
    return next();
}

void readCommonArgument(CommonOptions& options, std::string_view argument, ArgumentReader& reader) {
    if (argument == "--help") {
        options.help = true;
    } else if (argument == "--oggi") {
        options.oggi = readToday(reader);
    } else if (argument.starts_with("--")) {
        throw UsageError("opzione sconosciuta: " + inQuotes(argument));
    } else {
        setTransitPath(options.transitPath, argument);
    }
}

void requireTransitFile(const CommonOptions& options) {
    if (!options.help && options.transitPath.empty()) {
        throw UsageError("manca il file di transito");
    }
}

bool print(std::FILE* stream, const std::string& text) {
    return std::fwrite(text.data(), 1, text.size(), stream) == text.size() && std::fflush(stream) == 0;
}

} // namespace planner
