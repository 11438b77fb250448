// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

namespace planner {

/// A failure of a command on bad data. `what()` is a short Italian sentence in UTF-8, meant for the user.
class RuntimeError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A number does not fit the 16 bits that hold it.
class OverflowError : public RuntimeError {
public:
    OverflowError();
    using RuntimeError::RuntimeError;
};

/// An index lies outside its table or grid.
class SubscriptError : public RuntimeError {
public:
    SubscriptError();
    using RuntimeError::RuntimeError;
};

/// A text that must be a number is not one.
class TypeMismatchError : public RuntimeError {
public:
    TypeMismatchError();
    using RuntimeError::RuntimeError;
};

/// Day, month and year name no day of the calendar.
class DateError : public RuntimeError {
public:
    explicit DateError(const std::string& dateText);
};

/// A file cannot be opened, read or written. `what()` names the cause, not the file, in the system's words
/// where the cause is the system's.
class FileError : public RuntimeError {
public:
    using RuntimeError::RuntimeError;
};

} // namespace planner
