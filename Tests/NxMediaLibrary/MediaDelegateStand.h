// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>
#include <NxVBLModel/INxExtraMedia.h>
#include <NxVBLModel/INxGroupMedia.h>
#include <NxVBLModel/NxMediaIndex.h>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStringList>

#include <memory>
#include <utility>

#include "MediaRows.h"
#include "RecordingPainter.h"
#include "ScriptedMedia.h"

/// A media of a file.
struct ScriptedFile final : INxAbstractMediaItem
{
    explicit ScriptedFile(const char *called) : title(QString::fromLatin1(called)) {}

    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideo; }
    QString name() const override { return title; }
    QString filePath() const override { return path; }
    bool isResource() const override { return resource; }

    QString title;
    QString path;
    bool resource = false;
};

/// An entry into the stock provider's classifications.
struct ScriptedClassification final : INxAbstractMedia
{
    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideo; }
    int subKind() const override { return NXVBLMODEL::mskStockClassification; }
    QString name() const override { return QStringLiteral("classification"); }
};

/// A row of each kind, a delegate with a painter called "media" for them, and a journal of all that
/// both tell.
///
/// The rows, 300 x 24 px below each other from (30, 50) on: "file" is there and "gone" is not,
/// "resource" needs no file, "nothing" has no media; "group", "import", "more", "folder" and
/// "classification" are what they are called.
struct MediaDelegateStand
{
    class OpenDelegate : public NxMediaItemDelegate
    {
    public:
        using NxMediaItemDelegate::isExtraImportItem;
        using NxMediaItemDelegate::isGroupItem;
        using NxMediaItemDelegate::isMissingItem;
        using NxMediaItemDelegate::isVCGClassifyItem;
        using NxMediaItemDelegate::isViewMoreItem;
        using NxMediaItemDelegate::mouseEventHandle;
    };

    MediaDelegateStand()
    {
        file.path = QCoreApplication::applicationFilePath();
        gone.path = file.path + QStringLiteral(".gone");
        resource.path = gone.path;
        resource.resource = true;
        group->setTitle(QStringLiteral("group"));
        delegate->setItemPainter(painter);
        delegate->setGroupHeaderSize(rowSize);
        delegate->setViewMoreHeaderSize(rowSize);
        listen();
    }

    QStringList names() const
    {
        return QStringLiteral("file gone resource nothing group import more folder classification")
            .split(QLatin1Char(' '));
    }
    QModelIndex at(const QString &name) const { return model->index(names().indexOf(name), 0); }
    QStyleOptionViewItem option(const QModelIndex &index) const
    {
        QStyleOptionViewItem option;
        option.rect = QRect(QPoint(30, 50 + rowSize.height() * index.row()), rowSize);
        option.state = QStyle::State_Enabled;
        return option;
    }
    void paint(const QModelIndex &index, QStyle::State state) const
    {
        QImage image(400, 400, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter canvas(&image);
        QStyleOptionViewItem shown = option(index);
        shown.state = state;
        delegate->paint(&canvas, shown, index);
    }
    /// As a view does it; `place` from the row's top left corner.
    bool send(const QModelIndex &index, QEvent::Type type, const QPoint &place,
              Qt::MouseButton button = Qt::LeftButton) const
    {
        const QStyleOptionViewItem shown = option(index);
        QMouseEvent event(type, shown.rect.topLeft() + place, button, button, Qt::NoModifier);
        return delegate->editorEvent(&event, model.get(), shown, index);
    }
    QStringList take() { return std::exchange(journal, {}); }

    const QSize rowSize{300, 24};
    ScriptedFile file{"file"};
    ScriptedFile gone{"gone"};
    ScriptedFile resource{"resource"};
    ScriptedPlain folder{NXVBLMODEL::mtFolder, QStringLiteral("folder")};
    ScriptedClassification classification;
    const std::unique_ptr<INxGroupMedia, void (*)(INxGroupMedia *)> group{
        INxGroupMedia::createGroup(), &INxGroupMedia::releaseGroup};
    const std::unique_ptr<INxExtraMedia, void (*)(INxExtraMedia *)> import{
        INxExtraMedia::createExtraMedia(NXVBLMODEL::mtImportTile),
        &INxExtraMedia::releaseExtraMedia};
    const std::unique_ptr<INxExtraMedia, void (*)(INxExtraMedia *)> more{
        INxExtraMedia::createExtraMedia(NXVBLMODEL::mtViewMoreTile),
        &INxExtraMedia::releaseExtraMedia};

    QStringList journal;
    std::unique_ptr<MediaRows> model = std::make_unique<MediaRows>(
        QList<INxAbstractMedia *>{&file, &gone, &resource, nullptr, group.get(), import.get(),
                                    more.get(), &folder, &classification});
    RecordingPainter<> *const painter =
        new RecordingPainter<>(QStringLiteral("media"), &journal); // The delegate owns it.
    std::unique_ptr<OpenDelegate> delegate = std::make_unique<OpenDelegate>();

private:
    void listen()
    {
        using Delegate = NxMediaItemDelegate;
        const Delegate *told = delegate.get();
        const auto note = [this](const char *words) {
            return [this, line = QString::fromLatin1(words)] { journal.append(line); };
        };
        const auto noteRow = [this](const char *words) {
            return [this, text = QString::fromLatin1(words)](const QModelIndex &index) {
                journal.append(text + names().value(index.row()));
            };
        };
        const auto noteEvent = [this](int usage, NxMediaItemEventCondition condition,
                                      const QModelIndex &index) {
            journal.append(QStringLiteral("event %1 %2 on %3")
                               .arg(usage)
                               .arg(condition)
                               .arg(names().value(index.row())));
        };
        const auto noteName = [this](const QModelIndex &index, const QString &name) {
            journal.append(
                QStringLiteral("rename %1 to '%2'").arg(names().value(index.row()), name));
        };
        QObject::connect(told, &Delegate::sigRepaint, noteRow("repaint "));
        QObject::connect(told, &Delegate::sigRepaintAll, note("repaint all"));
        QObject::connect(told, &Delegate::sigMediaItemEvent, noteEvent);
        QObject::connect(told, &Delegate::sigMediaItemRenameEvent, noteName);
        QObject::connect(told, &Delegate::sigItemEnterEvent, noteRow("entered "));
        QObject::connect(told, &Delegate::sigViewportEnterEvent, note("entered no row"));
        QObject::connect(told, &Delegate::sigExtraImportEvent, note("import"));
        QObject::connect(told, &Delegate::sigDealMissingItemEvent, noteRow("missing "));
    }
};
