// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>

#include <QStyledItemDelegate>

#include <memory>

class INxItemBasePainter;

/// The delegate of a folder tree: the style draws a row's ground, and a painter what is on it.
///
/// The tree's model is an NxMediaTreeModel, or another one whose rows folderAt() knows. A name that
/// the user typed is announced and never written to the model. The style says how high rows are:
/// a host whose painter says so overrides sizeHint(). Lives as long as its view. GUI thread only;
/// nothing here touches a disk.
class NXMEDIALIBRARY_EXPORT NxFolderTreeDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit NxFolderTreeDelegate(QObject *parent = nullptr);
    ~NxFolderTreeDelegate() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /// A line edit named "NxEditItem_LineEdit".
    [[nodiscard]] QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    /// Announces a name that is new, an empty one, too; the model is left alone.
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

    /// To the painter, if it is an NxFolderTreeItemPainter.
    void setIndent(int first, int second, int third, int fourth);
    /// Of a row, for the painter; ignored without one.
    void setItemSize(const QSize &size);
    /// The same with the height that the painter has.
    void setItemWidth(const int &width);

Q_SIGNALS:
    /// The user typed a new name, which may be empty, for the folder that was being edited.
    /// sigFolderRenameEvent() follows and tells which one that is; connect one of the two.
    void sigFolderItemRenameEvent(const QString &value) const;
    /// Does not come when the folder has left the tree since.
    void sigFolderRenameEvent(const QModelIndex &index, const QString &value) const;

protected:
    /// Where a host makes its painter and gives it to setItemPainter(). Called once, when a painter
    /// is needed for the first time and there is none; never from a constructor.
    virtual void createItemPaintTool();
    /// Takes the painter over, as its parent, and deletes the one before; the same again changes
    /// nothing. Null: only the ground of rows is drawn.
    void setItemPainter(INxItemBasePainter *painter);
    /// Null without one. Makes it if need be.
    [[nodiscard]] INxItemBasePainter *itemPainter() const;

private:
    struct PaintTool;
    const std::unique_ptr<PaintTool> d;
};
