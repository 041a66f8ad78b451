// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/delegate/INxItemBasePainter.h>

#include <QColor>
#include <QHash>
#include <QModelIndex>
#include <QPainter>
#include <QStringList>
#include <QStyleOptionViewItem>

#include <utility>

/// A painter that writes down which rows it draws, "media draws 2 in state 1", and its death.
///
/// With an ink it fills the row's first pixels. A click on one of its areas completes the usage
/// event that the area was given: on the press, on the release and on the double click.
template<typename Base = INxItemBasePainter>
class RecordingPainter : public Base
{
public:
    /// The journal is not owned.
    RecordingPainter(QString name, QStringList *journal)
        : m_name(std::move(name)),
          m_journal(journal)
    {
    }
    ~RecordingPainter() override { m_journal->append(m_name + QStringLiteral(" dies")); }

    /// The next child, from 0 upwards, each beside the others: 20 px wide, 20 px free after it.
    void addArea(int usageEvent)
    {
        m_usageEvents.append(usageEvent);
        this->initItemChildrenInfo(m_usageEvents.size());
        for (int child = 0; child < m_usageEvents.size(); ++child)
            this->setChildRect(child, areaOf(child));
    }
    static QRect areaOf(int child) { return {40 * child, 0, 20, 20}; }
    void setInk(const QColor &ink) { m_ink = ink; }
    void setNameRect(const QRect &rect) { m_nameRect = rect; }
    INxPreviewFrameHelper *preview() const { return this->previewFrameHelper(); }

    using INxItemBasePainter::changeItemChildrenRect;
    void changeItemChildrenRect() override {}
    void initPaintStateInfo() override {}
    void usageEventFromFromChild(const int &child) override
    {
        this->setUseEvent(m_usageEvents.value(child, 0));
    }
    QRect nameEditorRect(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return m_nameRect;
    }
    void draw(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
              NxMediaItemState state) const override
    {
        m_journal->append(
            QStringLiteral("%1 draws %2 in state %3").arg(m_name).arg(index.row()).arg(state));
        if (m_ink.isValid())
            painter->fillRect(QRect(option.rect.topLeft(), QSize(4, 4)), m_ink);
    }

private:
    const QString m_name;
    QStringList *const m_journal; // Not owned.
    QList<int> m_usageEvents;
    QColor m_ink;
    QRect m_nameRect;
};
