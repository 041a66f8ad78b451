// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/relink/NxRelinkMatcher.h>

#include <QCollator>
#include <QLocale>
#include <QSet>

#include <algorithm>
#include <iterator>
#include <set>

namespace {

QCollator naturalOrder()
{
    QCollator collator(QLocale(QLocale::English));
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

} // namespace

NxRelinkMatcher::NxRelinkMatcher(const std::vector<NxRelinkWanted> &wanted,
                                 const std::vector<NxRelinkCandidate> &candidates)
    : m_wanted(wanted),
      m_candidates(candidates)
{
    for (int i = 0; i < int(candidates.size()); ++i) {
        const NxRelinkCandidate &file = candidates[size_t(i)];
        if (file.isOut)
            continue;
        m_byNameAndSize[{file.name, file.size}].push_back(i);
        if (!file.fingerprint.isNull())
            m_byHash[file.fingerprint.low].push_back(i);
    }
}

std::vector<int> NxRelinkMatcher::lengthsNeeded() const
{
    std::set<int> needed;
    for (const NxRelinkWanted &wanted : m_wanted) {
        if (wanted.id == 0 || wanted.length < 0 || !ofSameContents(wanted).empty())
            continue;
        for (const int file : m_byNameAndSize.value({wanted.name, wanted.size})) {
            if (m_candidates[size_t(file)].length < 0)
                needed.insert(file);
        }
    }
    return {needed.begin(), needed.end()};
}

QVector<NxRelinkFinding> NxRelinkMatcher::findings() const
{
    std::vector<Matches> matches;
    matches.reserve(m_wanted.size());
    for (const NxRelinkWanted &wanted : m_wanted)
        matches.push_back(wanted.id == 0 ? Matches() : matchesOf(wanted));
    leaveSharedToTheUser(&matches);
    QVector<NxRelinkFinding> findings;
    findings.reserve(int(m_wanted.size()));
    for (size_t i = 0; i < m_wanted.size(); ++i)
        findings.append({m_wanted[i].media, matches[i].by, sortedPaths(matches[i].files)});
    return findings;
}

NxRelinkMatcher::Matches NxRelinkMatcher::matchesOf(const NxRelinkWanted &wanted) const
{
    Matches matches{NxRelinkMatch::Fingerprint, ofSameContents(wanted)};
    if (matches.files.empty()) {
        matches = {NxRelinkMatch::NameSizeDuration, ofSameNameAndSize(wanted)};
    } else if (matches.files.size() > 1) {
        std::vector<int> named = ofSameName(wanted, matches.files);
        if (!named.empty())
            matches.files = std::move(named);
    }
    if (matches.files.empty())
        matches.by = NxRelinkMatch::None;
    else if (matches.files.size() > 1)
        matches.by = NxRelinkMatch::Ambiguous;
    return matches;
}

std::vector<int> NxRelinkMatcher::ofSameContents(const NxRelinkWanted &wanted) const
{
    std::vector<int> same;
    if (wanted.fingerprint.isNull())
        return same;
    const std::vector<int> files = m_byHash.value(wanted.fingerprint.low);
    std::copy_if(files.begin(), files.end(), std::back_inserter(same), [&](int file) {
        return m_candidates[size_t(file)].fingerprint == wanted.fingerprint;
    });
    return same;
}

std::vector<int> NxRelinkMatcher::ofSameName(const NxRelinkWanted &wanted,
                                             const std::vector<int> &files) const
{
    std::vector<int> same;
    std::copy_if(files.begin(), files.end(), std::back_inserter(same),
                 [&](int file) { return m_candidates[size_t(file)].name == wanted.name; });
    return same;
}

bool NxRelinkMatcher::isOfSameLength(const NxRelinkWanted &wanted, int file) const
{
    if (wanted.length >= 0)
        return m_candidates[size_t(file)].length == wanted.length;
    // No length speaks for a file whose contents may be, or are, others.
    return wanted.fingerprint.isNull();
}

std::vector<int> NxRelinkMatcher::ofSameNameAndSize(const NxRelinkWanted &wanted) const
{
    std::vector<int> same;
    const std::vector<int> files = m_byNameAndSize.value({wanted.name, wanted.size});
    std::copy_if(files.begin(), files.end(), std::back_inserter(same),
                 [&](int file) { return isOfSameLength(wanted, file); });
    return same;
}

void NxRelinkMatcher::leaveSharedToTheUser(std::vector<Matches> *matches) const
{
    QHash<int, QSet<qint64>> takers; // Media by the file that each would get.
    for (size_t i = 0; i < matches->size(); ++i) {
        const Matches &one = (*matches)[i];
        if (one.files.size() == 1)
            takers[one.files.front()].insert(m_wanted[i].id);
    }
    for (Matches &one : *matches) {
        if (one.files.size() == 1 && takers.value(one.files.front()).size() > 1)
            one.by = NxRelinkMatch::Ambiguous;
    }
}

QStringList NxRelinkMatcher::sortedPaths(const std::vector<int> &files) const
{
    QStringList paths;
    for (const int file : files)
        paths.append(m_candidates[size_t(file)].path);
    if (paths.size() < 2)
        return paths;
    static const QCollator collator = naturalOrder(); // GUI thread only.
    std::sort(paths.begin(), paths.end(), [](const QString &a, const QString &b) {
        const int order = collator.compare(a, b);
        return order == 0 ? a < b : order < 0;
    });
    return paths;
}
