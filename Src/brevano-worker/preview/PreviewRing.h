// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxPreviewMessages.h>

#include <array>
#include <optional>

/// Whose the slots of the shared memory are, and which pictures the editor holds.
class PreviewRing
{
public:
    /// A slot to render into; none while the editor holds them all.
    [[nodiscard]] std::optional<quint32> freeSlot() const;
    /// The picture in its slot is the editor's from now on.
    void lend(const NxPreviewFrame &picture);
    /// The editor gives slots back.
    void takeBack(quint32 slots);
    /// Before each picture that is rendered: what is shown by then. When that has run past the
    /// picture before, rendering goes on further ahead of it, so that a film that takes long to
    /// decode shows some of its frames in time, and not all of them too late.
    void keepUp(const NxPreviewShow &shown, qint64 frames);
    /// How many frames ahead of what is shown rendering begins.
    [[nodiscard]] qint64 lead() const { return m_lead; }
    /// Of the pictures that are wanted while that is shown, the first that the editor does not
    /// hold, from the lead on, then before it; none when it holds them all. `frames`: how many the
    /// film has.
    [[nodiscard]] std::optional<qint64> missing(const NxPreviewShow &shown, qint64 frames) const;

private:
    [[nodiscard]] bool isLent(const NxPreviewShow &shown, qint64 frame) const;

    std::array<std::optional<NxPreviewFrame>, NxPreviewSlots::Count> m_lent;
    std::optional<NxPreviewFrame> m_newest; // Of all that were lent.
    qint64 m_lead = 0;
};
