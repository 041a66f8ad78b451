// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/NxFolderTreeDelegate.h>

#include <NxMediaLibrary/delegate/NxFolderTreeItemPainter.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/NxMediaIndex.h>
#include <NxWidgets/NxLineEdit.h>

#include <QLineEdit>
#include <QPersistentModelIndex>
#include <QPointer>

/// The painter, which drawing, a const function, may be the first to need.
struct NxFolderTreeDelegate::PaintTool
{
    explicit PaintTool(NxFolderTreeDelegate *delegate) : q(delegate) {}

    INxItemBasePainter *get()
    {
        if (!painter && !isAsked) {
            isAsked = true;
            q->createItemPaintTool();
        }
        return painter;
    }

    NxFolderTreeDelegate *const q; // Not owned.
    QPointer<INxItemBasePainter> painter; // A child of q.
    bool isAsked = false;
};

NxFolderTreeDelegate::NxFolderTreeDelegate(QObject *parent)
    : QStyledItemDelegate(parent),
      d(std::make_unique<PaintTool>(this))
{
}

NxFolderTreeDelegate::~NxFolderTreeDelegate() = default;

void NxFolderTreeDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    if (!folderAt(index))
        return;
    if (const INxItemBasePainter *rowPainter = itemPainter())
        rowPainter->draw(painter, option, index, mediaItemState(option));
}

QWidget *NxFolderTreeDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                            const QModelIndex &) const
{
    QLineEdit *editor = NxLineEdit::creartNormalLineEdit(parent, NxLineEditSizeType::lestFolder);
    editor->setObjectName(QStringLiteral("NxEditItem_LineEdit"));
    return editor;
}

void NxFolderTreeDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *line = qobject_cast<QLineEdit *>(editor);
    const INxFolderMedia *folder = folderAt(index);
    if (line && folder)
        line->setText(folder->name());
}

void NxFolderTreeDelegate::setModelData(QWidget *editor, QAbstractItemModel *,
                                        const QModelIndex &index) const
{
    const auto *line = qobject_cast<QLineEdit *>(editor);
    const INxFolderMedia *folder = folderAt(index);
    if (!line || !folder)
        return;
    const QString name = line->text();
    if (name == folder->name())
        return;
    // Whoever hears of the name may take the folder, or the whole view, away.
    const QPersistentModelIndex edited(index);
    const QPointer<const NxFolderTreeDelegate> self(this);
    Q_EMIT sigFolderItemRenameEvent(name);
    if (self && edited.isValid())
        Q_EMIT sigFolderRenameEvent(edited, name);
}

void NxFolderTreeDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                                const QModelIndex &index) const
{
    const INxItemBasePainter *rowPainter = itemPainter();
    const QRect rect = rowPainter ? rowPainter->nameEditorRect(option, index) : QRect();
    if (editor && rect.isValid())
        editor->setGeometry(rect);
    else
        QStyledItemDelegate::updateEditorGeometry(editor, option, index);
}

void NxFolderTreeDelegate::setIndent(int first, int second, int third, int fourth)
{
    if (auto *rowPainter = qobject_cast<NxFolderTreeItemPainter *>(itemPainter()))
        rowPainter->setIndent(first, second, third, fourth);
}

void NxFolderTreeDelegate::setItemSize(const QSize &size)
{
    if (INxItemBasePainter *rowPainter = itemPainter())
        rowPainter->setSize(size);
}

void NxFolderTreeDelegate::setItemWidth(const int &width)
{
    if (INxItemBasePainter *rowPainter = itemPainter())
        rowPainter->setSize({width, rowPainter->size().height()});
}

void NxFolderTreeDelegate::createItemPaintTool() {}

void NxFolderTreeDelegate::setItemPainter(INxItemBasePainter *painter)
{
    if (d->painter == painter)
        return;
    delete d->painter;
    d->painter = painter;
    if (painter)
        painter->setParent(this);
}

INxItemBasePainter *NxFolderTreeDelegate::itemPainter() const
{
    return d->get();
}
