// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/key_names.h"

#include "forms/tasti.h"
#include "ui/kit/text.h"

#include <algorithm>

namespace planner {

QString KeyNames::translate(const char* context, const char* source, const char*, int) const {
    if (std::string_view(context) != "QShortcut") { // the toolkit's, of all keys
        return {};
    }
    const auto found = std::find_if(NomiTasti.begin(), NomiTasti.end(),
                                    [source](const NomeTasto& each) { return each.tasto == source; });
    return found == NomiTasti.end() ? QString() : fromUtf8(found->nome);
}

} // namespace planner
