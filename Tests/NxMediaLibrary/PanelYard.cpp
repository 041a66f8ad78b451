// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PanelYard.h"

#include <NxAppSettings/NxAppSettings.h>
#include <NxCore/NxConfig.h>
#include <NxCore/NxMemorySettingsStore.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemSelectionModel.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaTreeModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaImporter.h>
#include <NxVBLModel/INxMediaManager.h>

#include <EngineFixture.h>

#include <QApplication>
#include <QTest>

#include "PanelList.h"
#include "PanelNames.h"

namespace {

NxEmbeddedEngine::Options options(const NxTempDir &dir, PanelYard::Reading reading)
{
    NxEmbeddedEngine::Options options;
    options.backups = false;
    options.readsFootage = reading == PanelYard::Reading::Everything;
    options.pictureFolder = dir.filePath(QStringLiteral("pictures"));
    return options;
}

} // namespace

PanelYard::PanelYard(Reading reading) : m_engine(options(dir, reading)), m_door(&m_engine)
{
    NxConfig::Instance()->setStore(std::make_unique<NxMemorySettingsStore>());
    NxAppSettings::instance()->setStore(std::make_unique<NxMemorySettingsStore>());
    open(true);
    showPanel();
    items()->setSortBy({NXMEDIALIBRARY::sbName, NXMEDIALIBRARY::soASC});
}

PanelYard::~PanelYard()
{
    if (project)
        close();
    NxConfig::Instance()->setStore(nullptr);
    NxAppSettings::instance()->setStore(nullptr);
}

void PanelYard::open(bool isNew)
{
    const QString path = dir.filePath(QStringLiteral("film.brevano"));
    const NxResult<INxProject *> opened =
        isNew ? m_engine.createProject(path)
              : m_engine.openProject(path, NxProjectOpenMode::ReadWrite);
    QVERIFY2(bool(opened), qPrintable(opened.errorText()));
    project = static_cast<NxEngineProject *>(*opened);
}

void PanelYard::showPanel()
{
    library = std::make_unique<NxMediaLibraryPresenter>(project, nullptr);
    panel = std::make_unique<MediaPanel>(library.get());
    library->setCurrentCategoryType(NXVBLMODEL::mctMedia);
    panel->show();
}

void PanelYard::restart()
{
    close();
    panel.reset();
    (void)SettingYard::restart();
    open(false);
    showPanel();
}

void PanelYard::leavePanel()
{
    if (panel)
        panel->letGo();
    library.reset();
}

void PanelYard::close()
{
    leavePanel();
    project = nullptr;
    const NxResult<void> closed = m_engine.closeProject();
    QVERIFY2(bool(closed), qPrintable(closed.errorText()));
}

QByteArray PanelYard::kept()
{
    if (project)
        close();
    open(false);
    const QByteArray text = dump();
    project = nullptr;
    return m_engine.closeProject() ? text : QByteArray("it cannot be closed");
}

QByteArray PanelYard::dump() const
{
    return projectDump(*project->memory());
}

NxMediaItemManagerPresenter *PanelYard::items() const
{
    return library->getMediaCategoryPresenter(NXVBLMODEL::mctMedia)->mediaItemManagerPresenter();
}

NxFolderMediaManagerPresenter *PanelYard::folders() const
{
    return library->getMediaCategoryPresenter(NXVBLMODEL::mctMedia)->folderManagerPresenter();
}

INxFolderMedia *PanelYard::section() const
{
    return folders()->folderManager()->folder(NXVBLMODEL::fidRoot);
}

INxUndoStack *PanelYard::undo() const
{
    return project->undoStack();
}

void PanelYard::add(const QStringList &files, INxFolderMedia *into) const
{
    QStringList paths;
    for (const QString &file : files)
        paths.append(file.startsWith(QLatin1Char('/')) ? file : QStringLiteral("/footage/") + file);
    INxMediaImporter *importer = project->mediaManager(NXVBLMODEL::mctMedia)->importer();
    QCOMPARE(importer->addNow(into ? into : section(), paths, nullptr).size(), files.size());
}

INxFolderMedia *PanelYard::addFolder(const QString &name) const
{
    INxFolderMedia *made = folders()->addFolder(section(), name);
    panel->tree()->expandAll();
    return made;
}

void PanelYard::lookAtFiles()
{
    m_engine.refreshExistence();
}

void PanelYard::settleFiles()
{
    panel->hide();
    lookAtFiles();
    panel->show();
}

INxAbstractMedia *PanelYard::media(const QString &name) const
{
    const QList<INxAbstractMedia *> all = section()->items(true, true);
    for (INxAbstractMedia *one : all) {
        if (one->name() == name)
            return one;
    }
    return nullptr;
}

QStringList PanelYard::rows() const
{
    QList<INxAbstractMedia *> shown;
    const QAbstractItemModel *model = panel->list()->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        INxAbstractMedia *media = panel->model()->mediaItem(row);
        if (dynamic_cast<INxAbstractMediaItem *>(media))
            shown.append(media);
    }
    return PanelNames::of(shown);
}

QStringList PanelYard::selection() const
{
    const QStringList shown = PanelNames::of(panel->list()->selectedMedia());
    const QStringList known = PanelNames::of(items()->selectedItems());
    if (known == shown)
        return known;
    return QStringList(QStringLiteral("known:")) + known + QStringList(QStringLiteral("shown:"))
           + shown;
}

QString PanelYard::shownFolder() const
{
    const QModelIndex index = panel->tree()->currentIndex();
    const QStringList names{PanelNames::of(static_cast<INxFolderMedia *>(index.internalPointer())),
                            PanelNames::of(folders()->currentFolder()),
                            PanelNames::of(items()->folder()),
                            PanelNames::of(panel->model()->folder())};
    const bool agree = names.count(names.first()) == names.size();
    return agree ? names.first() : names.join(QLatin1Char('/'));
}

// No window manager does it here when a dialog went.
void PanelYard::bringForward() const
{
    panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(panel.get()));
}

void PanelYard::clickRow(const QString &name,
                         void (*gesture)(QWidget *, Qt::KeyboardModifiers, QPoint),
                         Qt::KeyboardModifiers modifiers) const
{
    bringForward();
    const int row = panel->model()->rows(media(name)).value(0, -1);
    QVERIFY2(row >= 0, qPrintable(name));
    PanelList *list = panel->list();
    const QModelIndex index = list->model()->index(row, 0);
    list->scrollTo(index);
    const QRect rect = list->visualRect(index);
    QVERIFY(rect.height() > 0);
    gesture(list->viewport(), modifiers, rect.center());
}

void PanelYard::click(const QString &name, Qt::KeyboardModifiers modifiers) const
{
    const auto gesture = [](QWidget *widget, Qt::KeyboardModifiers held, QPoint at) {
        QTest::mouseClick(widget, Qt::LeftButton, held, at);
    };
    clickRow(name, gesture, modifiers);
}

void PanelYard::doubleClick(const QString &name) const
{
    click(name);
    const auto gesture = [](QWidget *widget, Qt::KeyboardModifiers held, QPoint at) {
        QTest::mouseDClick(widget, Qt::LeftButton, held, at);
    };
    clickRow(name, gesture, Qt::NoModifier);
}

void PanelYard::pick(INxFolderMedia *folder) const
{
    bringForward();
    NxFolderTreeView *tree = panel->tree();
    const QModelIndex index = panel->treeModel()->findIndex(folder);
    QVERIFY(index.isValid());
    tree->scrollTo(index);
    const QPoint at = tree->visualRect(index).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, at);
}

void PanelYard::press(const QKeySequence &keys) const
{
    bringForward();
    QWidget *focus = QApplication::focusWidget();
    QVERIFY(focus);
    QTest::keySequence(focus, keys);
}

void PanelYard::enter(const QString &text) const
{
    press(QKeySequence::SelectAll);
    QTest::keyClicks(QApplication::focusWidget(), text);
    press(Qt::Key_Return);
}
