// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <memory>

/// A member that tells whether its object still lives, for objects that are no QObjects.
class NxLifeToken
{
public:
    NxLifeToken() = default;
    NxLifeToken(const NxLifeToken &) = delete;
    NxLifeToken &operator=(const NxLifeToken &) = delete;

    /// Expires when the object dies.
    [[nodiscard]] std::weak_ptr<void> watch() const { return m_token; }

private:
    std::shared_ptr<void> m_token = std::make_shared<char>();
};
