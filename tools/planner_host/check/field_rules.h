// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/field.h"
#include "planner_host/check/findings.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

namespace planner {

/// What is wrong with a field's text, Italian; empty for nothing.
using Guaio = std::string (*)(std::string_view testo);

// The field, blanks aside, is nothing or …
std::string guaioConteggio(std::string_view testo); // a number of 16 bits
std::string guaioOre(std::string_view testo);       // hours in five characters and minutes in two
std::string guaioSegno(std::string_view testo);     // "*"

/// What must hold of each field whose name begins so.
struct RegolaCampo {
    std::string_view prefisso;
    Guaio guaio;
};

/// Says what the rules find in the records of a file; `bytes` are the file's, whole records only.
void checkFields(Rilievi& rilievi, const std::string& file, std::string_view bytes,
                 std::span<const Field> campi, std::span<const RegolaCampo> regole);

/// A field's text for a message, in quotes.
std::string fraVirgolette(std::string_view bytes);

} // namespace planner
