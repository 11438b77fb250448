// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "e2e/support/accessibilita.h"
#include "e2e/support/utente.h"

#include <memory>
#include <string>

namespace planner::e2e {

/// The screen reader itself, as it comes, without sound: what it says can be read. It ends with the object.
class Lettore {
public:
    Lettore(const Accessibilita& bus, const Utente& utente);
    ~Lettore();
    Lettore(const Lettore&) = delete;
    Lettore& operator=(const Lettore&) = delete;

    /// The next utterance, UTF-8; waits for it, and throws at the deadline.
    std::string next() { return m_reader->readLine(); }
    /// Waits until it has said this, whatever it says before.
    void hear(const std::string& utterance);

private:
    std::unique_ptr<Processo> m_reader;
};

} // namespace planner::e2e
