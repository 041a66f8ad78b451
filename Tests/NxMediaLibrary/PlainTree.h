// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStringList>
#include <QVector>

class INxFolderMedia;

/// A folder tree in the plainest way, for tests to compare the tree model with: at every event it
/// goes through all folders and writes down what a view has to be told.
///
/// A place is the rows that lead to it ("0/2"), "-" is the place of the root.
class PlainTree
{
public:
    void load(INxFolderMedia *root);
    void clear();
    /// The root is gone; call it where it dies.
    void rootDied() { clear(); }
    /// No end will be told of what is open.
    void unsubscribed();

    void beforeAdd(INxFolderMedia *parent, int first, int last);
    void afterAdd() { after(Open::Add, QStringLiteral("inserted")); }
    void beforeRemove(INxFolderMedia *parent, int first, int last);
    void afterRemove() { after(Open::Remove, QStringLiteral("removed")); }
    void stateChanged(INxFolderMedia *folder);

    [[nodiscard]] INxFolderMedia *root() const { return m_root; }
    /// What views are told, and the error lines, since the last call.
    [[nodiscard]] QStringList takeTold();
    /// All names, as "A(B C(D)) E".
    [[nodiscard]] QString drawing() const;
    /// The place of a folder at or below another one; empty when it is not there.
    [[nodiscard]] QString placeBelow(INxFolderMedia *top, INxFolderMedia *folder) const;

private:
    enum class Open { Nothing, Add, Remove };
    struct Row
    {
        INxFolderMedia *folder;
        QVector<int> path;
    };

    [[nodiscard]] QVector<Row> allRows() const;
    void before(Open open, INxFolderMedia *parent, int first, int last, const QString &words);
    void after(Open open, const QString &words);
    void reset();

    INxFolderMedia *m_root = nullptr;
    Open m_open = Open::Nothing;
    bool m_isOutdated = false;
    QString m_range; // Of what is open.
    QStringList m_told;
};
