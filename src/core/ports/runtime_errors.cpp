// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ports/runtime_errors.h"

namespace planner {

OverflowError::OverflowError() : RuntimeError("un numero è troppo grande") {}

SubscriptError::SubscriptError() : RuntimeError("un indice è fuori dai limiti della tabella") {}

TypeMismatchError::TypeMismatchError() : RuntimeError("un testo non è un numero") {}

DateError::DateError(const std::string& dateText) : RuntimeError("la data " + dateText + " non esiste") {}

} // namespace planner
