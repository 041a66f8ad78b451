// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QStringList>

/// Whether \a faults is empty; prints every one of them if not, for Qt Test cuts long texts short.
[[nodiscard]] bool noFaults(const QStringList &faults);
