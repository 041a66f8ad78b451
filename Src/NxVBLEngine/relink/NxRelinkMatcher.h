// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/relink/NxRelinkWanted.h>
#include <NxVBLModel/NxRelinkReport.h>

#include <QHash>
#include <QPair>
#include <QString>
#include <QVector>

#include <vector>

/// Says which file belongs to which media, by what is known of both.
///
/// The same contents decide; of several such files the one of the media's own name. Where no file
/// has them, the name, the size and the length decide together. A file that two media would get
/// is left to the user.
class NXVBLENGINE_TEST_EXPORT NxRelinkMatcher
{
public:
    /// Both must outlive the matcher and stay as they are.
    NxRelinkMatcher(const std::vector<NxRelinkWanted> &wanted,
                    const std::vector<NxRelinkCandidate> &candidates);

    /// Places of the candidates whose lengths decide and are not known yet, in order.
    [[nodiscard]] std::vector<int> lengthsNeeded() const;
    /// One for each media, in their order.
    [[nodiscard]] QVector<NxRelinkFinding> findings() const;

private:
    using NameAndSize = QPair<QString, qint64>;
    /// What matches one media, by places of candidates.
    struct Matches
    {
        NxRelinkMatch by = NxRelinkMatch::None;
        std::vector<int> files;
    };

    [[nodiscard]] Matches matchesOf(const NxRelinkWanted &wanted) const;
    [[nodiscard]] std::vector<int> ofSameContents(const NxRelinkWanted &wanted) const;
    [[nodiscard]] std::vector<int> ofSameName(const NxRelinkWanted &wanted,
                                              const std::vector<int> &files) const;
    [[nodiscard]] bool isOfSameLength(const NxRelinkWanted &wanted, int file) const;
    [[nodiscard]] std::vector<int> ofSameNameAndSize(const NxRelinkWanted &wanted) const;
    [[nodiscard]] QStringList sortedPaths(const std::vector<int> &files) const;
    void leaveSharedToTheUser(std::vector<Matches> *matches) const;

    const std::vector<NxRelinkWanted> &m_wanted;
    const std::vector<NxRelinkCandidate> &m_candidates;
    QHash<quint64, std::vector<int>> m_byHash; // Half of a fingerprint; others may share it.
    QHash<NameAndSize, std::vector<int>> m_byNameAndSize;
};
