// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxFile.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemSelectionModel.h>
#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>
#include <NxMediaViews/NxMediaItemPainter.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/NxMediaItemMimeData.h>
#include <NxWidgets/NxSkinStyle.h>

#include <NxMediaLibrary/ItemStand.h>

#include <QApplication>
#include <QDrag>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QScrollBar>
#include <QTest>
#include <QUrl>

#include <memory>
#include <utility>
#include <vector>

/// A media that has a file. "gone" in its name: the file is missing.
struct ShownMedia final : INxAbstractMediaItem
{
    explicit ShownMedia(const QString &called) : title(called) {}

    NXVBLMODEL::NxMediaType mediaType() const override { return type; }
    QString name() const override { return title; }
    QString filePath() const override { return QStringLiteral("/footage/") + title; }
    QString categoryName() const override { return category; }
    int usedCount() const override { return used; }
    bool hasDuration() const override { return true; }
    qint64 frameCount() const override { return frames; }
    NxRational frameRate() const override { return {25, 1}; }

    NXVBLMODEL::NxMediaType type = NXVBLMODEL::mtVideo;
    QString title;
    QString category;
    int used = 0;
    qint64 frames = 50;
};

/// The view, which tells what it painted and what was dragged out of it.
class ShownView final : public NxMediaItemView
{
public:
    using NxMediaItemView::NxMediaItemView;
    using NxMediaItemView::selectedIndexes;
    using NxMediaItemView::state;

    QVector<QRegion> paints; ///< What was painted, the latest last.
    QStringList dragged; ///< The media and, behind them, the file names of each drag.

protected:
    void paintEvent(QPaintEvent *event) override
    {
        paints.append(event->region());
        NxMediaItemView::paintEvent(event);
    }
    void dragOut(QDrag *drag) override
    {
        const auto *mime = qobject_cast<const NxMediaItemMimeData *>(drag->mimeData());
        QStringList files;
        for (const QUrl &url : drag->mimeData()->urls())
            files.append(url.fileName());
        dragged.append(rowsText(mime->items()) + QLatin1Char('|') + files.join(QLatin1Char(' ')));
        drag->deleteLater();
    }
};

/// A view in a window, over a model of media which a test names: "A:x" is called A in the category
/// x. Three small tiles stand in a line, and four lines fit into the window.
class MediaViewStand
{
public:
    static constexpr int PerLine = 3;
    static constexpr int Lines = 4;

    /// A section that can be grouped and has no tiles, unless another kind is wanted.
    explicit MediaViewStand(const char *words, int sectionKind = NXVBLMODEL::fkFavourites)
        : section(sectionKind)
    {
        NxFile::setAnswerer([](const QString &path) -> std::optional<bool> {
            return !path.contains(QLatin1String("gone"));
        });
        for (const QString &word : QString::fromUtf8(words).split(QLatin1Char(' '))) {
            if (!word.isEmpty())
                append(word);
        }
        model.load(folder);
        view.setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
        view.setFrameShape(QFrame::NoFrame);
        view.setModel(&model);
        view.setViewMode(NXMEDIALIBRARY::vmSmallThumbnail);
        view.show();
        fit();
        view.activateWindow();
        view.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&view));
        view.viewport()->grab();
    }
    ~MediaViewStand()
    {
        view.setModel(nullptr);
        NxFile::setAnswerer({});
        NxSkinStyle::instance()->setSkin(NxSkin::Dark);
    }

    ShownMedia *append(const QString &word)
    {
        medias.push_back(std::make_unique<ShownMedia>(
            word.section(QLatin1Char(':'), 0, 0).replace(QLatin1Char('_'), QLatin1Char(' '))));
        medias.back()->category = word.section(QLatin1Char(':'), 1);
        folder->media.append(medias.back().get());
        return medias.back().get();
    }
    void group() { model.setGroupBy({NXMEDIALIBRARY::gbCategory, NXMEDIALIBRARY::soASC, folder}); }
    /// Gives the window the size of so many tiles.
    void fit(int perLine = PerLine, int lines = Lines)
    {
        constexpr int spacing = 4; // px
        const QSize cell = view.mediaPainter()->size() + QSize(spacing, spacing);
        const QSize around = view.size() - view.viewport()->size();
        view.resize(QSize(perLine * cell.width() + spacing, lines * cell.height() + spacing)
                    + around);
        QCoreApplication::sendPostedEvents();
        view.viewport()->grab();
    }
    /// A list that is narrower than its columns, or wide enough for them.
    void showList(int width = 1200)
    {
        view.setViewMode(NXMEDIALIBRARY::vmList);
        view.resize(width, 300);
        QCoreApplication::sendPostedEvents();
        view.viewport()->grab();
    }

    [[nodiscard]] QString rows() const { return rowsText(model.getItems()); }
    [[nodiscard]] QString selected() const { return rowsText(view.selectedMedia()); }
    /// What stands in the current row; "-" for none.
    [[nodiscard]] QString current() const
    {
        const INxAbstractMedia *media = view.currentMedia();
        return media ? rowText(media) : QStringLiteral("-");
    }
    /// As rowText() names it; -1 for none.
    [[nodiscard]] int row(const QString &text) const
    {
        for (int row = 0; row < model.rowCount(); ++row) {
            if (rowText(model.mediaItem(row)) == text)
                return row;
        }
        return -1;
    }
    [[nodiscard]] QModelIndex index(const QString &text) const { return model.index(row(text), 0); }
    [[nodiscard]] QRect rect(const QString &text) const { return view.visualRect(index(text)); }
    [[nodiscard]] QPoint at(const QString &text) const { return rect(text).center(); }
    [[nodiscard]] ShownMedia *media(const QString &name) const
    {
        for (const auto &one : medias) {
            if (one->title == name)
                return one.get();
        }
        return nullptr;
    }
    void choose(const QString &text)
    {
        view.selectionModel()->setCurrentIndex(index(text), QItemSelectionModel::ClearAndSelect
                                                                | QItemSelectionModel::Rows);
    }

    void send(QEvent::Type type, const QPoint &point, Qt::MouseButton button,
              Qt::MouseButtons buttons, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        QMouseEvent event(type, point, view.viewport()->mapToGlobal(point), button, buttons, held);
        QApplication::sendEvent(view.viewport(), &event);
    }
    void press(const QPoint &point, Qt::KeyboardModifiers held = Qt::NoModifier,
               Qt::MouseButton button = Qt::LeftButton)
    {
        send(QEvent::MouseButtonPress, point, button, button, held);
    }
    void release(const QPoint &point, Qt::KeyboardModifiers held = Qt::NoModifier,
                 Qt::MouseButton button = Qt::LeftButton)
    {
        send(QEvent::MouseButtonRelease, point, button, Qt::NoButton, held);
    }
    void move(const QPoint &point, Qt::MouseButtons buttons = Qt::NoButton,
              Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        send(QEvent::MouseMove, point, Qt::NoButton, buttons, held);
    }
    void click(const QPoint &point, Qt::KeyboardModifiers held = Qt::NoModifier,
               Qt::MouseButton button = Qt::LeftButton)
    {
        press(point, held, button);
        release(point, held, button);
    }
    void click(const QString &text, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        click(at(text), held);
    }
    void doubleClick(const QPoint &point)
    {
        click(point);
        send(QEvent::MouseButtonDblClick, point, Qt::LeftButton, Qt::LeftButton);
        release(point);
    }
    /// With the left button held; far enough for a drag.
    void pull(const QPoint &from, const QPoint &to, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        press(from, held);
        move(from + (to - from) / 2, Qt::LeftButton, held);
        move(to, Qt::LeftButton, held);
    }

    ScriptedItemFolder root;
    const int section;
    ScriptedItemFolder *const above =
        root.append(std::make_unique<ScriptedItemFolder>(QStringLiteral("section"), section));
    ScriptedItemFolder *const folder =
        above->append(std::make_unique<ScriptedItemFolder>(QStringLiteral("folder")));
    std::vector<std::unique_ptr<ShownMedia>> medias;
    NxMediaItemModel model{NXVBLMODEL::mctMedia, nullptr};
    ShownView view;
};
