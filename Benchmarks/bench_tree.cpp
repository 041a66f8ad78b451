// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaTreeModel.h>
#include <NxVBLModel/INxFolderMedia.h>

#include <benchmark/benchmark.h>

#include <QRandomGenerator>

#include <ctime>
#include <memory>
#include <vector>

// The folder tree among many folders: what it takes to find a folder, and to follow an event, each
// beside its bound: "times_bound" counts processor time in units of the 50 us that it may take
// among 10,000 folders.
namespace {

struct Folder final : INxFolderMedia
{
    QString name() const override { return QStringLiteral("Folder"); }
    QList<INxAbstractMedia *> items(bool, bool) const override { return {}; }
    int folderId() const override { return NXVBLMODEL::fidFirstUserFolder; }
    INxFolderMedia *parentFolder() const override { return above; }
    int rowInParent() const override { return row; }
    int childFolderCount() const override { return int(children.size()); }
    INxFolderMedia *childFolder(int childRow) const override
    {
        const bool isThere = childRow >= 0 && childRow < childFolderCount();
        return isThere ? children[size_t(childRow)] : nullptr;
    }

    Folder *above = nullptr;
    int row = -1;
    std::vector<Folder *> children; // Not owned.
};

enum Shape { Wide, Deep };

/// Wide: half of the folders are top rows, with one folder below each. Deep: chains of a hundred.
struct Tree
{
    Tree(int count, Shape shape)
    {
        folders.push_back(std::make_unique<Folder>());
        while (int(folders.size()) <= count) {
            Folder *last = folders.back().get();
            const size_t chain = shape == Deep ? 100 : 2;
            append(folders.size() % chain == 1 ? root() : last);
        }
        model.load(root());
    }
    Folder *root() const { return folders.front().get(); }
    void append(Folder *parent)
    {
        folders.push_back(std::make_unique<Folder>());
        folders.back()->above = parent;
        folders.back()->row = parent->childFolderCount();
        parent->children.push_back(folders.back().get());
    }
    std::vector<Folder *> scattered() const
    {
        QRandomGenerator random(1);
        std::vector<Folder *> list;
        for (int i = 0; i < 1024; ++i)
            list.push_back(folders[size_t(random.bounded(1, int(folders.size())))].get());
        return list;
    }

    std::vector<std::unique_ptr<Folder>> folders;
    NxMediaTreeModel model;
};

template<typename Work>
void measure(benchmark::State &state, Shape shape, Work work)
{
    constexpr double boundInSeconds = 50e-6;
    Tree tree(int(state.range(0)), shape);
    const std::vector<Folder *> folders = tree.scattered();
    size_t next = 0;
    const std::clock_t begin = std::clock();
    for (auto turn : state) {
        Q_UNUSED(turn)
        work(tree, folders[next++ % folders.size()]);
    }
    const double seconds = double(std::clock() - begin) / CLOCKS_PER_SEC;
    state.counters["times_bound"] = seconds / double(state.iterations()) / boundInSeconds;
}

void findIndex(benchmark::State &state, Shape shape)
{
    measure(state, shape, [](Tree &tree, Folder *folder) {
        benchmark::DoNotOptimize(tree.model.findIndex(folder));
    });
}

void findStranger(benchmark::State &state, Shape shape)
{
    Folder loose;
    measure(state, shape, [&loose](Tree &tree, Folder *) {
        benchmark::DoNotOptimize(tree.model.findIndex(&loose));
    });
}

void stateChanged(benchmark::State &state, Shape shape)
{
    measure(state, shape,
            [](Tree &tree, Folder *folder) { tree.model.onFolderStateChangedEvent(folder); });
}

void addAndRemove(benchmark::State &state, Shape shape)
{
    Folder added;
    measure(state, shape, [&added](Tree &tree, Folder *parent) {
        const int row = parent->childFolderCount();
        tree.model.onBeforeAddFolderEvent(parent, row, row);
        added.above = parent;
        added.row = row;
        parent->children.push_back(&added);
        tree.model.onAfterAddFolderEvent();
        tree.model.onBeforeRemoveFolderEvent(parent, row, row);
        parent->children.pop_back();
        tree.model.onAfterRemoveFolderEvent();
    });
}

#define NX_BENCHMARK_TREE(Function)                                                                \
    BENCHMARK_CAPTURE(Function, wide, Wide)->Arg(1000)->Arg(10000)->Arg(100000);                   \
    BENCHMARK_CAPTURE(Function, deep, Deep)->Arg(1000)->Arg(10000)->Arg(100000)

NX_BENCHMARK_TREE(findIndex);
NX_BENCHMARK_TREE(findStranger);
NX_BENCHMARK_TREE(stateChanged);
NX_BENCHMARK_TREE(addAndRemove);

} // namespace

BENCHMARK_MAIN();
