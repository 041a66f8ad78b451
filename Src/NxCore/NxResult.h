// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <optional>
#include <utility>
#include <variant>

/// Why something could not be done, in a sentence that a user can read and act on.
struct NxError
{
    QString message;
};

/// A value, or the reason there is none. Must be looked at.
///
/// Asking for the value of a failed result, or for the error of a good one, is a programming
/// error: it throws, and so ends the program.
template<typename T>
class [[nodiscard]] NxResult
{
public:
    NxResult(T value) : m_state(std::in_place_index<0>, std::move(value)) {}
    NxResult(NxError error) : m_state(std::in_place_index<1>, std::move(error)) {}

    /// True when there is a value.
    explicit operator bool() const { return m_state.index() == 0; }

    T &operator*() { return std::get<0>(m_state); }
    const T &operator*() const { return std::get<0>(m_state); }
    T *operator->() { return &std::get<0>(m_state); }
    const T *operator->() const { return &std::get<0>(m_state); }
    /// Moves the value out.
    [[nodiscard]] T take() { return std::move(std::get<0>(m_state)); }

    [[nodiscard]] const NxError &error() const { return std::get<1>(m_state); }
    /// The error's sentence, empty when there is a value.
    [[nodiscard]] QString errorText() const { return *this ? QString() : error().message; }

private:
    std::variant<T, NxError> m_state;
};

/// Done, or the reason why not. `return {};` means done.
template<>
class [[nodiscard]] NxResult<void>
{
public:
    NxResult() = default;
    NxResult(NxError error) : m_error(std::move(error)) {}

    /// True when it was done.
    explicit operator bool() const { return !m_error.has_value(); }

    [[nodiscard]] const NxError &error() const { return m_error.value(); }
    /// The error's sentence, empty when it was done.
    [[nodiscard]] QString errorText() const { return m_error ? m_error->message : QString(); }

private:
    std::optional<NxError> m_error;
};
