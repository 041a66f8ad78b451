// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ShotCommand.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/ExitCode.h>
#include <Brevano/commands/ListedFolders.h>
#include <Brevano/window/BorrowedSettings.h>
#include <Brevano/window/CoverView.h>
#include <Brevano/window/CoverWait.h>
#include <Brevano/window/InfoPanel.h>
#include <Brevano/window/Languages.h>
#include <Brevano/window/MainWindow.h>
#include <Brevano/window/PanelView.h>
#include <Brevano/window/ProjectHolder.h>
#include <Brevano/window/ShotWords.h>
#include <Brevano/window/WindowMemory.h>
#include <NxCore/NxDiskBan.h>
#include <NxCore/NxMemorySettingsStore.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxMediaLibrary/setting/NxMediaLibrarySetting.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxVBLModel/INxAbstractMedia.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaLibrary.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxProject.h>

#include <QEventLoop>
#include <QFileInfo>
#include <QImage>
#include <QPixmap>
#include <QSaveFile>
#include <QTimer>

#include <chrono>

namespace {

constexpr char Name[] = "shot";
constexpr std::chrono::seconds LongestWait{60};
constexpr std::chrono::milliseconds Pause{40};
constexpr std::chrono::milliseconds FadeOut{200};
constexpr int MostLooks = 50;
constexpr int LooksAtRest = 5; // Longer than anything in the window takes to fade in.

/// The category begins as the words say.
void choose(const ViewChoice &view)
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    setting->SetViewType(view.category, view.mode);
    setting->SetSortBy(view.category, view.sort.sortBy);
    setting->SetSortByOrder(view.category, view.sort.order);
    setting->SetGroupBy(view.category, view.group.groupBy);
    setting->SetGroupByOrder(view.category, view.group.order);
    setting->SetFilterType(view.category,
                           static_cast<NXMEDIALIBRARY::NxMediaTypeFilter>(view.filter.type));
}

NxEmbeddedEngine::Options engineOptions()
{
    NxEmbeddedEngine::Options options;
    options.backups = false;
    options.readsFootage = false; // Only what can be seen.
    return options;
}

void pause(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

/// What stands there once the window has come to rest.
QImage pictureOf(QWidget *window)
{
    QImage before;
    int equal = 0;
    for (int looks = 0; looks < MostLooks && equal < LooksAtRest; ++looks) {
        pause(Pause);
        const QImage now = window->grab().toImage();
        equal = now == before ? equal + 1 : 0;
        before = now;
    }
    return before;
}

} // namespace

CommandEntry ShotCommand::entry()
{
    using namespace CommandOptions;
    return {Name,
            {"PROJECT --out FILE.png"},
            "Draws the window with the project into a picture, without a display. The project is\n"
            "only looked at, and no setting is changed. What is not said of the order is as the\n"
            "user chose it last; the words for it are those of \"list\".\n"
            "Views: list, small, middle, large. Skins: dark, light. Languages: en, de, zh_CN.",
            {out, size, scale, category, folder, section, view, sort, desc, group, groupDesc, type,
             search, selected, skin, language},
            1,
            1,
            []() -> std::unique_ptr<Command> { return std::make_unique<ShotCommand>(); }};
}

bool ShotCommand::isMeant(const ProgramArguments &words)
{
    return !words.isEmpty() && words.constFirst().text == QLatin1String(Name);
}

void ShotCommand::prepareProcess(const ProgramArguments &words)
{
    const NxResult<CommandLine> line = CommandLine::parse(words.mid(1), entry().options);
    const NxResult<int> scale = line ? ShotWords::scaleOf(*line) : NxResult<int>(1);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scale ? *scale : 1));
    for (const char *other : {"QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR",
                              "QT_ENABLE_HIGHDPI_SCALING", "QT_DEVICE_PIXEL_RATIO"})
        qunsetenv(other);
}

int ShotCommand::run(const CommandLine &line, Console *console)
{
    m_console = console;
    const NxResult<ShotWords> words = ShotWords::of(line);
    if (!words)
        return wrongUsage(console, words.error().message);
    const QString fault = ListedFolders::fault(line, words->view.category);
    if (!fault.isEmpty())
        return wrongUsage(console, fault);
    const BorrowedSettings settings;
    const int code = draw(line, *words);
    if (line.has(CommandOptions::search))
        pause(FadeOut); // The button that clears the search frees itself when it has faded out.
    return code;
}

int ShotCommand::draw(const CommandLine &line, const ShotWords &words)
{
    choose(words.view);
    WindowMemory memory(std::make_unique<NxMemorySettingsStore>());
    memory.setSkin(words.skin);
    memory.setLanguage(QStringLiteral("en")); // Until all is said that is said on the console.
    MainWindow window(&memory, engineOptions());
    window.resize(words.size);
    window.show();
    if (!open(&window, line.names().constFirst()))
        return ProjectUnusable;
    if (!mayWrite(window, words.out) || !arrange(&window, line, words))
        return NothingDone;
    const QString damage = window.holder()->damage();
    window.languages()->setCurrent(words.language);
    INxFootageService *service = window.holder()->project()->footageService();
    const auto *cover = window.info()->findChild<CoverView *>();
    const bool isComplete = CoverWait(service, window.panel()->view(), cover).wait(LongestWait);
    if (!isComplete)
        m_console->error(words.out, QStringLiteral("some pictures of media did not come in time"));
    const QImage picture = pictureOf(&window);
    if (window.size() != words.size) {
        m_console->note(QStringLiteral("the window cannot be smaller than %1x%2")
                            .arg(window.width())
                            .arg(window.height()));
        return NothingDone;
    }
    if (!write(picture, words.out))
        return NothingDone;
    return isComplete && damage.isEmpty() ? Done : SomeRefused;
}

bool ShotCommand::open(MainWindow *window, const ProgramArgument &project)
{
    const NxResult<void> opened =
        project.isText ? window->holder()->openToLook(project.text)
                       : NxResult<void>(NxError{QStringLiteral("the name is not UTF-8")});
    if (!opened)
        m_console->error(project.text, opened.error().message);
    else if (!window->holder()->damage().isEmpty())
        m_console->error(project.text, window->holder()->damage());
    return bool(opened);
}

bool ShotCommand::arrange(MainWindow *window, const CommandLine &line, const ShotWords &words)
{
    NxMediaLibraryPresenter *panel = window->holder()->presenter();
    panel->setCurrentCategoryType(words.view.category);
    NxMediaCategoryPresenter *category = panel->currentMediaCategoryPresenter();
    if (!category) {
        m_console->note(
            QStringLiteral("category %1 cannot be shown").arg(int(words.view.category)));
        return false;
    }
    if (line.has(CommandOptions::folder) || line.has(CommandOptions::section)) {
        const NxResult<QList<INxFolderMedia *>> folders = ListedFolders::chosen(
            line, words.view.category, category->mediaManager()->folderManager());
        if (!folders) {
            m_console->note(folders.error().message);
            return false;
        }
        category->folderManagerPresenter()->setCurrentFolder(folders->constFirst());
    }
    if (!words.view.filter.keyword.isEmpty())
        category->mediaItemManagerPresenter()->setFilterKeyword(words.view.filter.keyword,
                                                                NXMEDIALIBRARY::esmKeyword);
    return words.selected.isEmpty() || selectNamed(window, words.selected);
}

bool ShotCommand::selectNamed(MainWindow *window, const QString &name)
{
    NxMediaItemView *view = window->panel()->view();
    const NxMediaItemModel *model = view->mediaModel();
    QList<INxAbstractMedia *> named;
    for (int row = 0; model && row < model->rowCount(); ++row) {
        INxAbstractMedia *media = model->mediaItem(row);
        const bool isMedia = model->flags(model->index(row, 0)).testFlag(Qt::ItemIsSelectable);
        if (isMedia && media->name() == name)
            named.append(media);
    }
    if (named.isEmpty()) {
        m_console->note(QStringLiteral("no media \"%1\" is shown").arg(name));
        return false;
    }
    view->selectMedia(named);
    view->showMedia(named.constFirst());
    return true;
}

// Footage is never written, whatever the words say.
bool ShotCommand::mayWrite(const MainWindow &window, const QString &path)
{
    NxDiskBan::note("ShotCommand::mayWrite");
    const INxFolderMedia *all = window.holder()
                                    ->project()
                                    ->mediaLibrary()
                                    ->mediaManager(NXVBLMODEL::mctMedia)
                                    ->folderManager()
                                    ->rootFolder();
    const QFileInfo file(path);
    for (const QString &name : {file.absoluteFilePath(), file.canonicalFilePath()}) {
        if (name.isEmpty() || !all->findMediaByPath(name, true))
            continue;
        m_console->error(path, QStringLiteral("it is a media of the project"));
        return false;
    }
    return true;
}

bool ShotCommand::write(const QImage &picture, const QString &path)
{
    NxDiskBan::note("ShotCommand::write");
    QSaveFile file(path);
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && picture.save(&file, "PNG") && file.commit();
    if (!isWritten)
        m_console->error(path, file.errorString());
    return isWritten;
}
