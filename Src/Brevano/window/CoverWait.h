// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QEventLoop>
#include <QList>
#include <QObject>
#include <QSet>

#include <chrono>

class INxAbstractMedia;
class INxAbstractMediaItem;
class INxBsThumbManager;
class INxFootageService;
class NxMediaItemView;
class CoverView;

/// Waits until a view has the pictures of all that can be seen in it, as far as there are any, and
/// so has what shows a single media beside it.
class CoverWait : public QObject
{
    Q_OBJECT
public:
    /// None is owned; all outlive this.
    /// @param single may be null.
    CoverWait(INxFootageService *service, NxMediaItemView *view, const CoverView *single);
    ~CoverWait() override;

    /// Has the pictures made that are not there. False when some did not come in this time.
    [[nodiscard]] bool wait(std::chrono::milliseconds longest);

private:
    void check();
    [[nodiscard]] bool isComplete();
    void wantFresh(const QList<INxAbstractMediaItem *> &items);
    [[nodiscard]] bool isSettled(INxAbstractMediaItem *item, const QSize &box) const;
    [[nodiscard]] bool isSingleSettled() const;
    [[nodiscard]] QList<INxAbstractMediaItem *> visibleItems() const;
    /// In device pixels, as the view asks for covers.
    [[nodiscard]] QSize coverSize() const;

    INxFootageService *const m_service; // Not owned.
    NxMediaItemView *const m_view; // Not owned.
    const CoverView *const m_single; // Not owned.
    INxBsThumbManager *const m_pictures; // Given back at the end; null when there are none.
    QSet<const INxAbstractMediaItem *> m_wanted;
    QEventLoop m_loop;
    bool m_isComplete = false;
};
