// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/field.h"
#include "archive/fixed_text.h"

#include <array>

namespace planner {

/// The request and answer record of the transit file.
struct TransitRequest {
    FixedText<8> riservato1;
    FixedText<1> tipoplanner;
    FixedText<8> startdate;
    FixedText<8> enddate;
    FixedText<60> riservato2;
    FixedText<1> tipocall;
    FixedText<2> collab;
    FixedText<11> valret;
    FixedText<21> Windowcaption;
    FixedText<1> planrichiesto;

    /// The action letter of the answer: the last character of `valret`.
    char azione() const { return valret.view().back(); }

    friend bool operator==(const TransitRequest&, const TransitRequest&) = default;
};

inline constexpr std::array TransitRequestFields{
    Field{"riservato1", 0, 8, "the host's own, comes back as it was"},
    Field{"tipoplanner", 8, 1, "kind of planner: \"M\" monthly, \"G\" daily, \"A\" yearly"},
    Field{"startdate", 9, 8, "first day of the period, yyyymmdd; \"00000000\" for none"},
    Field{"enddate", 17, 8, "last day of the period, yyyymmdd; \"00000000\" for none"},
    Field{"riservato2", 25, 60, "the host's own, comes back as it was"},
    Field{"tipocall", 85, 1, "kind of call: \"A\" disables the agenda"},
    Field{"collab", 86, 2, "staff code; in the answer the one that the user picked, blank for none"},
    Field{"valret", 88, 11,
          "in: the day to show, yyyymmdd or \"00000000\"; out: day, staff code, action letter"},
    Field{"Windowcaption", 99, 21, "character 1: mode flag \"N\"; 2 to 21: title; 21: window variant \"B\""},
    Field{"planrichiesto", 120, 1, "\"S\" disables the charts"},
};
static_assert(sizeof(TransitRequest) == 121 && fieldsCover(TransitRequestFields, sizeof(TransitRequest)));

} // namespace planner
