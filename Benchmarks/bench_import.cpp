// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// The importer's job: ten thousand files from the disk into a project file, with an observer that
// is told of each. The bound is what no importer can do without: reading the folders, looking at
// every file, and inserting the rows through the bare interface of SQLite in one transaction.
// Besides, how long the event loop was held, and what an import from paths alone costs.

#include "BenchmarkTools.h"
#include "Heartbeat.h"

#include <NxVBLEngine/disk/NxDiskThread.h>
#include <NxVBLEngine/import/NxEngineImporter.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/store/NxProjectStore.h>
#include <NxVBLModel/INxMediaItemEventObserver.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QHash>
#include <QTemporaryDir>
#include <QTimer>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <dirent.h>
#include <sys/stat.h>

namespace {

constexpr int Folders = 10;
constexpr int FilesEach = 1'000;
constexpr int Rounds = 5;

/// The footage of all rounds; made once.
const QString &footage()
{
    static const QTemporaryDir dir;
    static const QString path = [] {
        const QString root = dir.filePath(QStringLiteral("footage"));
        for (int folder = 0; folder < Folders; ++folder) {
            const QString at = QStringLiteral("%1/Shoot %2").arg(root).arg(folder);
            if (!QDir().mkpath(at))
                giveUp(at);
            for (int number = 0; number < FilesEach; ++number) {
                const QString name =
                    QStringLiteral("/DSC_%1.MOV").arg(number, 5, 10, QLatin1Char('0'));
                QFile file(at + name);
                if (!file.open(QIODevice::WriteOnly) || file.write("x") != 1)
                    giveUp(file.fileName());
            }
        }
        return root;
    }();
    return path;
}

// The bound

void bareStep(sqlite3 *database, sqlite3_stmt *insert, const std::string &path,
              const struct stat &facts)
{
    sqlite3_bind_text(insert, 1, path.data(), int(path.size()), SQLITE_STATIC);
    sqlite3_bind_int64(insert, 2, facts.st_size);
    sqlite3_bind_int64(insert, 3, facts.st_mtim.tv_sec);
    if (sqlite3_step(insert) != SQLITE_DONE)
        giveUp(QString::fromUtf8(sqlite3_errmsg(database)));
    sqlite3_reset(insert);
}

void bareWalk(sqlite3 *database, sqlite3_stmt *insert, const std::string &folder)
{
    DIR *handle = opendir(folder.c_str());
    while (const dirent *found = readdir(handle)) {
        const std::string name = found->d_name;
        if (name == "." || name == "..")
            continue;
        const std::string path = folder + "/" + name;
        struct stat facts = {};
        stat(path.c_str(), &facts);
        if (S_ISDIR(facts.st_mode))
            bareWalk(database, insert, path);
        else
            bareStep(database, insert, path, facts);
    }
    closedir(handle);
}

double importBare(const QString &project)
{
    QElapsedTimer timer;
    timer.start();
    sqlite3 *database = nullptr;
    sqlite3_open(QFile::encodeName(project).constData(), &database);
    sqlite3_exec(database,
                 "PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL;"
                 "CREATE TABLE media(id INTEGER PRIMARY KEY, path TEXT UNIQUE,"
                 " size INTEGER, modified INTEGER); BEGIN",
                 nullptr, nullptr, nullptr);
    sqlite3_stmt *insert = nullptr;
    sqlite3_prepare_v2(database, "INSERT INTO media(path, size, modified) VALUES(?,?,?)", -1,
                       &insert, nullptr);
    bareWalk(database, insert, footage().toStdString());
    sqlite3_finalize(insert);
    sqlite3_exec(database, "COMMIT", nullptr, nullptr, nullptr);
    const double spent = milliseconds(timer);
    sqlite3_close(database);
    return spent;
}

// Ours

class PairCounter final : public INxMediaItemEventObserver
{
public:
    void onBeforeAddItemEvent(INxFolderMedia *, INxAbstractMedia *item) override { m_item = item; }
    void onAfterAddItemEvent(INxFolderMedia *, INxAbstractMedia *item) override
    {
        pairs += item == m_item;
    }
    int pairs = 0;

private:
    INxAbstractMedia *m_item = nullptr;
};

struct Project
{
    explicit Project(const QString &path)
        : disk(std::make_shared<NxDiskThread>()),
          memory(path),
          category(memory.category(NXVBLMODEL::mctMedia)),
          section(category->folder(NXVBLMODEL::fidRoot))
    {
        auto created = NxProjectStore::create(path, {});
        if (!created)
            giveUp(created.errorText());
        store = created.take();
        memory.setWriter([this](NxStoreBatch batch) { store->write(std::move(batch)); });
        category->itemObservers.add(&observer);
        importer = std::make_unique<NxEngineImporter>(&memory, category, disk, store.get());
    }
    ~Project()
    {
        importer.reset();
        memory.flush();
        memory.setWriter({});
        if (!store->close())
            giveUp(QStringLiteral("the project cannot be closed"));
        category->itemObservers.remove(&observer);
    }

    std::shared_ptr<NxDiskThread> disk;
    NxProjectMemory memory;
    std::unique_ptr<NxProjectStore> store;
    NxEngineCategory *const category;
    NxEngineFolder *const section;
    PairCounter observer;
    std::unique_ptr<NxEngineImporter> importer;
};

double importOurs(const QString &path, double *longestHold)
{
    Project project(path);
    QEventLoop loop;
    NxImportReport report;
    QObject::connect(project.importer.get(), &INxMediaImporter::finished, &loop,
                     [&](quint64, const NxImportReport &finished) {
                         report = finished;
                         loop.quit();
                     });
    const Heartbeat heart;
    QElapsedTimer timer;
    timer.start();
    project.importer->start(project.section, {footage()}, NXVBLMODEL::mitFolder);
    loop.exec();
    const double spent = milliseconds(timer);
    *longestHold = heart.longest();
    constexpr int all = Folders * FilesEach;
    if (report.added != all || project.observer.pairs != all
        || project.section->items(true, true).size() != all)
        giveUp(QStringLiteral("not all files came in"));
    return spent;
}

void importFiles(benchmark::State &state)
{
    constexpr double perSecond = 1'000;
    static_cast<void>(footage());
    std::vector<double> ours;
    std::vector<double> bound;
    std::vector<double> holds;
    for (auto _ : state) {
        const QTemporaryDir folder;
        bound.push_back(importBare(folder.filePath(QStringLiteral("bare.db"))));
        double hold = 0;
        ours.push_back(importOurs(folder.filePath(QStringLiteral("ours.brevano")), &hold));
        holds.push_back(hold);
        state.SetIterationTime(ours.back() / perSecond);
    }
    state.counters["ours_ms"] = median(ours);
    state.counters["bound_ms"] = median(bound);
    state.counters["ratio"] = median(ours) / median(bound);
    state.counters["files_per_s"] = Folders * FilesEach * perSecond / median(ours);
    state.counters["longest_hold_ms"] = *std::max_element(holds.begin(), holds.end());
}
BENCHMARK(importFiles)->UseManualTime()->Iterations(Rounds)->Unit(benchmark::kMillisecond);

// Paths alone

double addPathsOurs(const QString &project, const QStringList &paths)
{
    Project opened(project);
    QElapsedTimer timer;
    timer.start();
    const int added = opened.importer->addNow(opened.section, paths, nullptr).size();
    const double spent = milliseconds(timer);
    if (added != paths.size() || opened.observer.pairs != paths.size())
        giveUp(QStringLiteral("not all paths came in"));
    return spent;
}

/// The least that has to happen: a record of each path, found again by its path.
double addPathsBare(const QStringList &paths)
{
    QElapsedTimer timer;
    timer.start();
    QHash<QString, std::shared_ptr<NxMediaRecord>> records;
    for (const QString &path : paths) {
        auto record = std::make_shared<NxMediaRecord>();
        record->path = QDir::cleanPath(path);
        record->name = path.section(QLatin1Char('/'), -1);
        records.insert(record->path, record);
    }
    benchmark::DoNotOptimize(records);
    return milliseconds(timer);
}

void addNow(benchmark::State &state)
{
    constexpr double microseconds = 1'000;
    QStringList paths;
    for (int number = 0; number < int(state.range(0)); ++number)
        paths.append(QStringLiteral("/Volumes/Raid/Footage/DSC_%1.MOV").arg(number));
    std::vector<double> ours;
    std::vector<double> bound;
    for (auto _ : state) {
        const QTemporaryDir folder;
        bound.push_back(addPathsBare(paths));
        ours.push_back(addPathsOurs(folder.filePath(QStringLiteral("p.brevano")), paths));
        state.SetIterationTime(ours.back() / microseconds);
    }
    state.counters["ours_ms"] = median(ours);
    state.counters["bound_ms"] = median(bound);
    state.counters["ratio"] = median(ours) / median(bound);
    state.counters["us_per_file"] = median(ours) * microseconds / double(paths.size());
}
BENCHMARK(addNow)->Arg(1'000)->Arg(10'000)->UseManualTime()->Iterations(Rounds)->Unit(
    benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
