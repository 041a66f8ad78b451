// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>

#include <QList>
#include <QString>

#include <vector>

class INxAbstractMedia;
class INxGroupMedia;

/// Which media goes to which group, before any group is made.
class NxMediaItemGrouping
{
public:
    /// The group of a null entry.
    static constexpr quint32 NoGroup = ~quint32(0);

    /// No groups when the key is none or unknown.
    NxMediaItemGrouping(const QList<INxAbstractMedia *> &media,
                        const NXMEDIALIBRARY::NxMediaItemViewGroup &group);

    /// The groups' keys in the order in which they are shown, those of empty groups included.
    [[nodiscard]] const std::vector<QString> &keys() const { return m_keys; }
    /// For each media the number of its key.
    [[nodiscard]] const std::vector<quint32> &groupOf() const { return m_groupOf; }

    /// An empty group with its title in the user's language. The caller releases it.
    [[nodiscard]] static INxGroupMedia *makeGroup(const QString &key);

private:
    using ClassOf = int (*)(const INxAbstractMedia *media);
    using Media = QList<INxAbstractMedia *>;

    void byClass(const Media &media, int firstFixed, int count, ClassOf classOf);
    void byDay(const Media &media);
    template<QString (*TextOf)(const INxAbstractMedia *)>
    void byText(const Media &media);
    void reverse();

    bool m_isDescending;
    std::vector<QString> m_keys;
    std::vector<quint32> m_groupOf;
};
