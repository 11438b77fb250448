// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace planner {

enum class MessageIcon { Critical, Information };

inline constexpr std::string_view TitoloMessaggi = "Planner";

/// One message box. All texts are UTF-8 and plain: they are never markup.
struct Message {
    MessageIcon icon;
    std::string title;
    std::string text;

    friend bool operator==(const Message&, const Message&) = default;
};

/// Shows messages to the user.
class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    /// Shows the message and returns when the user has read it.
    virtual void show(const Message& message) = 0;
    /// Shows the message with "Riprova" and "Annulla"; true for "Riprova". Who cannot ask gives up.
    virtual bool askToRetry(const Message& message) {
        show(message);
        return false;
    }

    void information(std::string text) {
        show({MessageIcon::Information, std::string(TitoloMessaggi), std::move(text)});
    }
    void critical(std::string text) {
        show({MessageIcon::Critical, std::string(TitoloMessaggi), std::move(text)});
    }
};

} // namespace planner
