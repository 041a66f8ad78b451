// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/INxUndoStack.h>
#include <NxCore/NxUndoRedoCommander.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxCompositeTimeline.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxSplitScreenClip.h>
#include <NxVBLModel/INxTimelineEditor.h>
#include <NxVBLModel/NxMediaEngineDoor.h>
#include <NxVBLModel/NxTimelineAddMediaResponseMessage.h>
#include <NxWidgets/NxDialogScript.h>

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <chrono>
#include <memory>
#include <vector>

// What the presenters do to many media at once, over a project file. Each time stands beside the
// most that a user would put up with.
namespace {

using namespace NXMEDIALIBRARY;
using Clock = std::chrono::steady_clock;

constexpr int Listed = 100000;

double millisecondsSince(Clock::time_point begin)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

/// Says yes to everything.
class Yes final : public INxDialogAnswerer
{
public:
    NMessageDialogAnswer answer(const NMessageDialogInfo &) override
    {
        return {mdbAffirmative, false};
    }
    QString chooseFile(const NxFileDialogInfo &) override { return {}; }
};

/// A clip that was downloaded from the stock provider.
class StockClip final : public INxAbstractMediaItem
{
public:
    explicit StockClip(int number) : m_path(QStringLiteral("/Downloads/stock %1.mp4").arg(number))
    {
    }
    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideoAudio; }
    int kindCode() const override { return NXVBLMODEL::mkcStockCopy; }
    QString name() const override { return m_path.section(QLatin1Char('/'), -1); }
    QString sourcePath() const override { return m_path; }
    QString filePath() const override { return m_path; }
    bool isResource() const override { return true; }
    bool isSourceMedia() const override { return true; }

private:
    const QString m_path;
};

/// A project of 100,000 media in a file, its presenters, and perhaps a list that shows all of it.
class Panel
{
public:
    enum class List { Without, With };

    explicit Panel(List list) : m_engine(options()), m_door(&m_engine)
    {
        const auto made = m_engine.createProject(m_folder.filePath(QStringLiteral("p.brevano")));
        m_project = static_cast<NxEngineProject *>(*made);
        addMedia();
        m_presenter = std::make_unique<NxMediaLibraryPresenter>(m_project, nullptr);
        if (list == List::With)
            showList();
    }
    ~Panel()
    {
        m_model.reset();
        m_presenter.reset();
        const NxResult<void> closed = m_engine.closeProject();
        if (!closed)
            qFatal("%s", qUtf8Printable(closed.errorText()));
    }

    NxEngineProject *project() const { return m_project; }
    const QVector<NxEngineMedia *> &media() const { return m_media; }
    NxEngineFolder *section() const { return category()->section(NXVBLMODEL::fkProject); }
    NxMediaLibraryPresenter *presenter() const { return m_presenter.get(); }
    NxMediaItemManagerPresenter *items() const
    {
        return m_presenter->getMediaCategoryPresenter(NXVBLMODEL::mctMedia)
            ->mediaItemManagerPresenter();
    }
    int rows() const { return m_model ? m_model->rowCount() : -1; }

    /// Every tenth of the first media stands on a timeline, some inside of something.
    void use(int media)
    {
        const NxUndoRedoCommander step(m_project->undoStack(), QStringLiteral("Panel::use"),
                                       QStringLiteral("cut"));
        INxTimelineEditor *editor = m_project->timelineEditor();
        INxTimeline *outer = editor->addTimeline(QStringLiteral("Cut"));
        INxTimeline *inner = editor->addComposite(outer, QStringLiteral("Intro"), {1, 0, 10, 0});
        INxSplitScreenClip *split = editor->addSplitScreen(outer, {2, 0, 10, 0});
        for (int i = 0; i < media; ++i) {
            const NxClipPlace place{0, qint64(i) * 10, 10, 0};
            NxEngineMedia *used = m_media.at(i * 10);
            if (i % 10 == 0)
                editor->addClip(inner, used, place);
            else if (i % 10 == 1)
                editor->addInnerClip(split, used, 0);
            else
                editor->addClip(outer, used, place);
        }
    }

private:
    static NxEmbeddedEngine::Options options()
    {
        NxEmbeddedEngine::Options options;
        options.backups = false;
        options.readsFootage = false;
        return options;
    }
    NxEngineCategory *category() const
    {
        return m_project->memory()->category(NXVBLMODEL::mctMedia);
    }
    void addMedia()
    {
        QRandomGenerator random(1);
        QVector<NxMediaSeed> seeds;
        for (int i = 0; i < Listed; ++i) {
            NxMediaSeed seed;
            seed.path = QStringLiteral("/Volumes/Footage/%1 clip %2.mov")
                            .arg(random.bounded(100000))
                            .arg(i);
            seeds.append(seed);
        }
        m_media = m_project->memory()->addNewMedia(section(), seeds);
    }
    void showList()
    {
        m_model = std::make_unique<NxMediaItemModel>(NXVBLMODEL::mctMedia, nullptr);
        m_model->subscribeMediaItemManager(category()->itemManager());
        m_model->setSortEnable(true);
        m_model->setSortBy({sbName, soASC});
        m_model->load(section());
        items()->setFolder(section());
    }

    const QTemporaryDir m_folder;
    NxEmbeddedEngine m_engine;
    const NxMediaEngineDoor m_door;
    NxEngineProject *m_project = nullptr;
    QVector<NxEngineMedia *> m_media;
    std::unique_ptr<NxMediaLibraryPresenter> m_presenter;
    std::unique_ptr<NxMediaItemModel> m_model;
};

QList<INxAbstractMedia *> firstOf(const Panel &panel, int count)
{
    QList<INxAbstractMedia *> medias;
    for (int i = 0; i < count; ++i)
        medias.append(panel.media().at(i));
    return medias;
}

/// 5,000 of 100,000, 500 of them on timelines: the removal, then its undo.
void deleteSelected(benchmark::State &state)
{
    Panel panel(state.range(0) ? Panel::List::With : Panel::List::Without);
    panel.use(500);
    Yes yes;
    const NxDialogScript script(&yes);
    INxUndoStack *history = panel.project()->undoStack();
    double removeMs = 0;
    double undoMs = 0;
    const int steps = history->count();
    for (auto _ : state) {
        const QList<INxAbstractMedia *> selected = firstOf(panel, 5000);
        panel.items()->setSelectedItems(selected);
        const Clock::time_point begin = Clock::now();
        panel.items()->removeMediaItems(panel.section(), selected);
        const double removing = millisecondsSince(begin);
        if (history->count() != steps + 1 || panel.section()->ownItems().size() != Listed - 5000)
            return state.SkipWithError("not one step, or not all were removed");
        const Clock::time_point back = Clock::now();
        history->undo();
        const double undoing = millisecondsSince(back);
        removeMs = std::max(removeMs, removing);
        undoMs = std::max(undoMs, undoing);
        state.SetIterationTime((removing + undoing) / 1000);
    }
    state.counters["remove_ms"] = removeMs;
    state.counters["undo_ms"] = undoMs;
    state.counters["bound_ms"] = 1000;
}
BENCHMARK(deleteSelected)
    ->Arg(0)
    ->Arg(1)
    ->UseManualTime()
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);

/// The timeline tells of 1,000 clips that the project does not have yet.
void fileTimelineMedia(benchmark::State &state)
{
    Panel panel(state.range(0) ? Panel::List::With : Panel::List::Without);
    std::vector<std::unique_ptr<StockClip>> clips;
    NxTimelineAddMediaResponseMessage message;
    for (int i = 0; i < 1000; ++i) {
        clips.push_back(std::make_unique<StockClip>(i));
        message.medias.append(clips.back().get());
    }
    double worst = 0;
    for (auto _ : state) {
        const Clock::time_point begin = Clock::now();
        panel.presenter()->dispatchMessage(&message);
        const double filing = millisecondsSince(begin);
        if (panel.section()->ownItems().size() != Listed + 1000)
            return state.SkipWithError("not all were filed");
        while (panel.section()->ownItems().size() != Listed)
            panel.project()->undoStack()->undo();
        worst = std::max(worst, filing);
        state.SetIterationTime(filing / 1000);
    }
    state.counters["worst_ms"] = worst;
    state.counters["bound_ms"] = state.range(0) ? 60 : 10;
}
BENCHMARK(fileTimelineMedia)
    ->Arg(0)
    ->Arg(1)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
