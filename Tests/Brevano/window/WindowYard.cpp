// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "WindowYard.h"

#include <Brevano/window/ImportDesk.h>
#include <Brevano/window/MainWindow.h>
#include <Brevano/window/PanelView.h>
#include <Brevano/window/ProjectHolder.h>
#include <Brevano/window/ToolRow.h>
#include <Brevano/window/WindowMemory.h>
#include <NxAppSettings/NxAppSettings.h>
#include <NxCore/NxConfig.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaTreeModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxMediaViews/NxMediaPanelBinder.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxVBLModel/INxGroupMedia.h>
#include <NxVBLModel/INxMediaLibrary.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxProject.h>

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <NxMediaLibrary/PanelNames.h>
#include <Support/NxPatience.h>

#include <QAction>
#include <QApplication>
#include <QDragEnterEvent>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QUrl>
#include <QWindow>

#include <algorithm>

class WindowYard::Store final : public INxSettingsStore
{
public:
    explicit Store(QHash<QString, QVariant> *values) : m_values(values) {}

    QVariant value(const QString &key) const override { return m_values->value(key); }
    void setValue(const QString &key, const QVariant &value) override
    {
        m_values->insert(key, value);
    }
    void remove(const QString &key) override { m_values->remove(key); }

private:
    QHash<QString, QVariant> *const m_values; // Not owned.
};

namespace {

NxEmbeddedEngine::Options options(const NxTempDir &dir, WindowYard::Reading reading)
{
    NxEmbeddedEngine::Options options;
    options.backups = false;
    options.readsFootage = reading == WindowYard::Reading::Everything;
    options.pictureFolder = dir.filePath(QStringLiteral("pictures"));
    return options;
}

/// Empty for what is neither a media nor a group.
QString rowText(INxAbstractMedia *media)
{
    if (const auto *group = dynamic_cast<const INxGroupMedia *>(media))
        return QLatin1Char('[') + group->name() + QLatin1Char(']');
    return dynamic_cast<INxAbstractMediaItem *>(media) ? media->name() : QString();
}

} // namespace

WindowYard::WindowYard(Reading reading) : m_reading(reading)
{
    NxConfig::Instance()->setStore(std::make_unique<Store>(&m_config));
    NxAppSettings::instance()->setStore(std::make_unique<Store>(&m_appSettings));
    m_remembered.insert(QStringLiteral("Window/Language"), QStringLiteral("en"));
    start();
}

WindowYard::~WindowYard()
{
    end();
    NxConfig::Instance()->setStore(nullptr);
    NxAppSettings::instance()->setStore(nullptr);
}

void WindowYard::start()
{
    end();
    (void)SettingYard::restart();
    m_memory = std::make_unique<WindowMemory>(std::make_unique<Store>(&m_remembered));
    m_window = std::make_unique<MainWindow>(m_memory.get(), options(dir, m_reading));
    m_window->show();
    comeForward();
}

void WindowYard::end()
{
    if (!m_window)
        return;
    QVERIFY(m_window->close());
    m_window.reset();
    m_memory.reset();
}

void WindowYard::openFilm()
{
    QVERIFY(QFileInfo::exists(film()) ? m_window->openProject(film())
                                      : m_window->createProject(film()));
    QVERIFY(items());
}

void WindowYard::restart()
{
    start();
    openFilm();
}

PanelView *WindowYard::panel() const
{
    return m_window->panel();
}

NxMediaItemView *WindowYard::view() const
{
    return panel()->view();
}

NxFolderTreeView *WindowYard::tree() const
{
    return panel()->tree();
}

NxMediaItemManagerPresenter *WindowYard::items() const
{
    return panel()->binder()->items();
}

INxProject *WindowYard::project() const
{
    return m_window->holder()->project();
}

INxFolderMedia *WindowYard::section() const
{
    INxMediaManager *manager = project()->mediaLibrary()->mediaManager(NXVBLMODEL::mctMedia);
    return manager->folderManager()->folder(NXVBLMODEL::fidRoot);
}

QAction *WindowYard::action(PanelActions::Id id) const
{
    return m_window->actions()->action(id);
}

// Files

QString WindowYard::picture(const QString &name, const QColor &colour) const
{
    const QString file = dir.write(name);
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(colour);
    image.setText(QStringLiteral("Title"), name); // No two have the same contents.
    return image.save(file, "PNG") ? file : QString();
}

QString WindowYard::footage(const char *recipe) const
{
    const NxFootageRecipe &one = NxFootageRecipes::named(QLatin1String(recipe));
    const QString to = dir.makeDir(QStringLiteral("footage")) + QLatin1Char('/') + one.name;
    return QFile::exists(to) || QFile::copy(NxFootageSet::path(one), to) ? to : QString();
}

void WindowYard::import(const QStringList &paths, INxFolderMedia *into) const
{
    ImportDesk *desk = m_window->desk();
    QVERIFY(desk->start(into ? into : items()->folder(), paths, NXVBLMODEL::mitFiles) != 0);
    QTRY_VERIFY_WITH_TIMEOUT(!desk->isBusy(), Patience);
}

void WindowYard::readAll() const
{
    INxFootageService *service = project()->footageService();
    const QSignalSpy read(service, &INxFootageService::itemRead);
    const QSignalSpy pictured(service, &INxFootageService::picturesMade);
    const auto isIdle = [service] { return service->isIdle(); };
    // As long as it goes on: machines are not equally fast.
    for (int before = -1, now = 0; !isIdle() && now > before; now = read.size() + pictured.size()) {
        before = now;
        (void)QTest::qWaitFor(isIdle, Patience);
    }
    QVERIFY(isIdle());
}

INxFolderMedia *WindowYard::addFolder(const QString &name) const
{
    INxFolderMedia *made = panel()->binder()->folders()->addFolder(section(), name);
    tree()->expandAll();
    return made;
}

// What is seen

INxAbstractMediaItem *WindowYard::media(const QString &name) const
{
    const QList<INxAbstractMedia *> all = section()->items(true, true);
    for (INxAbstractMedia *one : all) {
        if (one->name() == name)
            return dynamic_cast<INxAbstractMediaItem *>(one);
    }
    return nullptr;
}

QStringList WindowYard::rows() const
{
    QStringList texts;
    const NxMediaItemModel *model = panel()->binder()->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        const QString text = rowText(model->mediaItem(row));
        if (!text.isEmpty())
            texts.append(text);
    }
    return texts;
}

QStringList WindowYard::selection() const
{
    const QStringList shown = PanelNames::of(view()->selectedMedia());
    const QStringList known = PanelNames::of(items()->selectedItems());
    if (known == shown)
        return known;
    return QStringList(QStringLiteral("known:")) + known + QStringList(QStringLiteral("shown:"))
           + shown;
}

QString WindowYard::shownFolder() const
{
    const auto *inTree = static_cast<INxFolderMedia *>(tree()->currentIndex().internalPointer());
    const QStringList names{
        PanelNames::of(inTree), PanelNames::of(panel()->binder()->folders()->currentFolder()),
        PanelNames::of(items()->folder()), PanelNames::of(panel()->binder()->model()->folder())};
    const bool agree = names.count(names.first()) == names.size();
    return agree ? names.first() : names.join(QLatin1Char('/'));
}

QRect WindowYard::rect(const QString &name) const
{
    const NxMediaItemModel *model = panel()->binder()->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        if (rowText(model->mediaItem(row)) != name)
            continue;
        const QModelIndex index = model->index(row, 0);
        view()->scrollTo(index);
        return view()->visualRect(index);
    }
    return {};
}

QString WindowYard::told() const
{
    return m_window->statusBar()->currentMessage();
}

bool WindowYard::says(const QString &text) const
{
    const QList<QLabel *> labels = m_window->statusBar()->findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(), [&text](const QLabel *label) {
        return label->isVisible() && label->text() == text;
    });
}

// What the user does

void WindowYard::comeForward() const
{
    m_window->activateWindow();
    // It counts as active while a window that belongs to it is, but has no keys yet.
    QTRY_COMPARE(QApplication::focusWindow(), m_window->windowHandle());
}

void WindowYard::click(const QString &name, Qt::KeyboardModifiers modifiers) const
{
    comeForward();
    const QRect place = rect(name);
    QVERIFY2(place.height() > 0, qPrintable(name));
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, modifiers, place.center());
}

void WindowYard::doubleClick(const QString &name) const
{
    click(name);
    QTest::mouseDClick(view()->viewport(), Qt::LeftButton, Qt::NoModifier, rect(name).center());
}

QPoint WindowYard::folderAt(INxFolderMedia *folder) const
{
    const auto *model = static_cast<const NxMediaTreeModel *>(tree()->model());
    const QModelIndex index = model->findIndex(folder);
    tree()->scrollTo(index);
    return tree()->visualRect(index).center();
}

void WindowYard::pick(INxFolderMedia *folder) const
{
    comeForward();
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier, folderAt(folder));
}

void WindowYard::press(const QKeySequence &keys) const
{
    comeForward();
    QVERIFY(QApplication::focusWidget());
    QTest::keySequence(QApplication::focusWidget(), keys);
}

void WindowYard::type(const QString &text) const
{
    QVERIFY(QApplication::focusWidget());
    QTest::keyClicks(QApplication::focusWidget(), text);
}

bool WindowYard::clickEntry(QMenu *menu, QAction *entry) const
{
    const QList<QAction *> all = menu->actions();
    for (QAction *one : all) {
        if (one == entry) {
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(one).center());
            return true;
        }
        if (!one->menu() || !one->menu()->actions().contains(entry))
            continue;
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(one).center());
        return QTest::qWaitFor([one] { return one->menu()->isVisible(); }, Patience)
               && clickEntry(one->menu(), entry);
    }
    return false;
}

void WindowYard::choose(PanelActions::Id id) const
{
    comeForward();
    QAction *wanted = action(id);
    QVERIFY2(wanted->isEnabled(), qPrintable(wanted->text()));
    QMenuBar *bar = m_window->menuBar();
    const QList<QAction *> menus = bar->actions();
    for (QAction *one : menus) {
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(one).center());
        QVERIFY(one->menu()->isVisible());
        if (clickEntry(one->menu(), wanted))
            return;
        one->menu()->hide();
    }
    QFAIL(qPrintable(wanted->text()));
}

void WindowYard::choose(const char *tool, const QString &entry) const
{
    comeForward();
    auto *button = panel()->toolRow()->findChild<QToolButton *>(QLatin1String(tool));
    QVERIFY(button && button->isVisible());
    bool isChosen = false;
    QTimer::singleShot(0, button, [&] { // The menu waits for the user.
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        const QList<QAction *> all = menu->actions();
        for (QAction *one : all)
            isChosen = isChosen || (one->text() == entry && clickEntry(menu, one));
        menu->close();
    });
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY2(isChosen, qPrintable(entry));
}

std::unique_ptr<QMimeData> WindowYard::files(const QStringList &paths)
{
    auto data = std::make_unique<QMimeData>();
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    data->setUrls(urls);
    return data;
}

bool WindowYard::drop(QWidget *target, const QPoint &at, const QMimeData &data,
                      Qt::DropActions actions)
{
    const Qt::DropAction proposed =
        actions.testFlag(Qt::MoveAction) ? Qt::MoveAction : Qt::CopyAction;
    QDragEnterEvent enter(at, actions, &data, Qt::LeftButton, Qt::NoModifier);
    enter.setDropAction(proposed);
    QApplication::sendEvent(target, &enter);
    QDragMoveEvent move(at, actions, &data, Qt::LeftButton, Qt::NoModifier);
    move.setDropAction(proposed);
    move.setAccepted(enter.isAccepted()); // Whoever takes it in need not take each move.
    QApplication::sendEvent(target, &move);
    if (!enter.isAccepted() || !move.isAccepted())
        return false;
    QDropEvent drop(at, actions, &data, Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(proposed);
    QApplication::sendEvent(target, &drop);
    return drop.isAccepted();
}
