// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/delegate/NxCustomDelegate.h>

/// The delegate of the media views: a painter for media, one for group headers and one for "View
/// More" rows.
///
/// Clicks become sigMediaItemEvent(); files that are missing and tiles send none. A name that the
/// user typed is announced and never written to the model. The view calls itemEntered() and
/// viewportEntered(), and connects what is said of NxCustomDelegate.
class NXMEDIALIBRARY_EXPORT NxMediaItemDelegate : public NxCustomDelegate
{
    Q_OBJECT
public:
    explicit NxMediaItemDelegate(QObject *parent = nullptr);
    ~NxMediaItemDelegate() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /// A line edit named "NxEditItem_LineEdit", without margins.
    [[nodiscard]] QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    /// Announces a name that is new and not empty; the model is left alone.
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

    virtual void itemEntered(const QModelIndex &index);
    virtual void itemLeave();
    virtual void viewportEntered();
    /// Takes the painter of media over, and plays previews through it. The one before is deleted;
    /// a painter is never deleted by who gives it, nor given twice. Null: media are not drawn.
    virtual void setItemPainter(INxItemBasePainter *painter);
    /// The painter that draws a row; that of media for an invalid index.
    [[nodiscard]] virtual INxItemBasePainter *getItemPainter(const QModelIndex &index) const;
    /// Takes the painter of group headers over, as setItemPainter().
    virtual void setGroupPainter(INxItemBasePainter *painter);

    /// Of group headers and "View More" rows, for their own layout; every row of the view has the
    /// size of a media.
    void setGroupHeaderSize(QSize size);
    void setViewMoreHeaderSize(QSize size);

Q_SIGNALS:
    /// `usageEvent`: NxMediaItemUsageEvents, or a host's own. A click on a row comes twice, with
    /// mecPress and mecRelease; a double click once more, with mecDoubleClick.
    void sigMediaItemEvent(int usageEvent, NxMediaItemEventCondition condition,
                           const QModelIndex &index);
    void sigMediaItemRenameEvent(const QModelIndex &index, const QString &value) const;
    void sigItemEnterEvent(const QModelIndex &index);
    void sigViewportEnterEvent();
    /// The "Import Media" tile was clicked, with whatever button.
    void sigExtraImportEvent();
    /// For the owner of the view, who lets the user find a missing file again.
    void sigDealMissingItemEvent(const QModelIndex &index);

protected:
    void mouseEventHandle(const QMouseEvent *event, const QPoint &position,
                          const QModelIndex &index) override;

    /// All false for an index without media.
    [[nodiscard]] bool isGroupItem(const QModelIndex &index) const;
    [[nodiscard]] bool isExtraImportItem(const QModelIndex &index) const;
    [[nodiscard]] bool isViewMoreItem(const QModelIndex &index) const;
    [[nodiscard]] bool isVCGClassifyItem(const QModelIndex &index) const;
    /// A media of the project whose file is not there; asks what is known, not the disk.
    [[nodiscard]] bool isMissingItem(const QModelIndex &index) const;

private:
    QPointer<INxItemBasePainter> m_groupPainter; // Children of this.
    QPointer<INxItemBasePainter> m_viewMorePainter;
};
