// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// The frames that play in place of a cover, px.
namespace NxPreviewFrame {

constexpr int Width = 144;
constexpr int Height = 81;

} // namespace NxPreviewFrame
