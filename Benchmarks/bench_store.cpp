// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Writing and reading project files, each beside the same work with the bare C interface of
// SQLite. Ours and the bound take turns within one process; "ratio" is median by median.

#include "BenchmarkTools.h"

#include <NxVBLEngine/store/NxProjectStore.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace {

constexpr int BatchSize = 1000;
constexpr int Rounds = 5;

NxMediaRecord recordOf(int number)
{
    NxMediaRecord media;
    media.id = number + 1;
    media.folder = 1 + number / 500;
    media.place = number + 1;
    const QString name = QStringLiteral("DSC_%1.MOV").arg(number, 7, 10, QLatin1Char('0'));
    const QString inner = QStringLiteral("Footage/2026/Shoot %1/Card A/").arg(number / 500) + name;
    media.name = name;
    media.path = QStringLiteral("/Volumes/Raid/") + inner;
    media.relativePath = QStringLiteral("../") + inner;
    media.size = 1'000'000 + number;
    media.created = 1'700'000'000'000 + number * 1000LL;
    media.modified = media.created + 5;
    return media;
}

const std::vector<NxStoreBatch> &batches(int count)
{
    static std::map<int, std::vector<NxStoreBatch>> made;
    std::vector<NxStoreBatch> &list = made[count];
    for (int first = int(list.size()) * BatchSize; first < count; first += BatchSize) {
        NxStoreEntry::NewMedia entry;
        for (int number = first; number < std::min(count, first + BatchSize); ++number)
            entry.media.append(recordOf(number));
        list.push_back({entry});
    }
    return list;
}

/// One row as the bare interface wants it.
struct BareRow
{
    std::vector<sqlite3_int64> numbers;
    std::vector<std::string> texts;
};

std::vector<BareRow> bareRows(int count)
{
    std::vector<BareRow> rows;
    rows.reserve(size_t(count));
    for (int number = 0; number < count; ++number) {
        const NxMediaRecord media = recordOf(number);
        BareRow row;
        row.numbers = {media.id,
                       media.category,
                       media.folder,
                       media.place,
                       media.size,
                       media.created,
                       media.modified,
                       0,
                       media.importKind,
                       media.kindCode,
                       1};
        for (const QString &text :
             {media.name, media.path, media.canonicalPath, media.relativePath})
            row.texts.push_back(text.toStdString());
        rows.push_back(row);
    }
    return rows;
}

double msec(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

void run(sqlite3 *database, const char *sql)
{
    char *why = nullptr;
    if (sqlite3_exec(database, sql, nullptr, nullptr, &why) != SQLITE_OK)
        giveUp(QString::fromUtf8(why));
}

/// Writes all rows in one transaction with unique paths; answers ms.
double insertBare(const QString &path, const std::vector<BareRow> &rows)
{
    sqlite3 *database = nullptr;
    sqlite3_open(QFile::encodeName(path).constData(), &database);
    run(database, "PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL;"
                  "PRAGMA cache_size = -32768; PRAGMA secure_delete = OFF;"
                  "CREATE TABLE media(id INTEGER PRIMARY KEY, category INTEGER, folder INTEGER,"
                  " place INTEGER, size INTEGER, created INTEGER, modified INTEGER,"
                  " favourite INTEGER, import_kind INTEGER, kind_code INTEGER,"
                  " alive INTEGER, name TEXT, path TEXT UNIQUE, canonical_path TEXT,"
                  " relative_path TEXT)");
    QElapsedTimer timer;
    timer.start();
    sqlite3_stmt *insert = nullptr;
    sqlite3_prepare_v2(database, "INSERT INTO media VALUES(?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)", -1,
                       &insert, nullptr);
    run(database, "BEGIN");
    for (const BareRow &row : rows) {
        int parameter = 0;
        for (const sqlite3_int64 number : row.numbers)
            sqlite3_bind_int64(insert, ++parameter, number);
        for (const std::string &text : row.texts)
            sqlite3_bind_text(insert, ++parameter, text.data(), int(text.size()), SQLITE_STATIC);
        if (sqlite3_step(insert) != SQLITE_DONE)
            giveUp(QString::fromUtf8(sqlite3_errmsg(database)));
        sqlite3_reset(insert);
    }
    run(database, "COMMIT");
    const double spent = msec(timer);
    sqlite3_finalize(insert);
    sqlite3_close(database);
    return spent;
}

/// Queues all batches to a new project and waits for their commit; answers ms.
double insertOurs(const QString &path, int count)
{
    auto store = NxProjectStore::create(path, {});
    if (!store)
        giveUp(store.errorText());
    QElapsedTimer timer;
    timer.start();
    std::optional<NxResult<void>> answer;
    for (const NxStoreBatch &batch : batches(count))
        (*store)->write(batch);
    (*store)->commit([&answer](const NxResult<void> &result) { answer = result; });
    while (!answer)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const double spent = msec(timer);
    if (!*answer)
        giveUp(answer->errorText());
    return spent;
}

/// Steps through the media of a project and touches every column; answers ms.
double loadBare(const QString &path, int count)
{
    sqlite3 *database = nullptr;
    const QByteArray uri =
        "file://" + QFile::encodeName(path).toPercentEncoding("/") + "?immutable=1";
    sqlite3_open_v2(uri.constData(), &database, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, nullptr);
    QElapsedTimer timer;
    timer.start();
    sqlite3_stmt *select = nullptr;
    sqlite3_prepare_v2(database,
                       "SELECT id, category, folder, place, size, created, modified, favourite,"
                       " import_kind, kind_code, alive, name, path, canonical_path,"
                       " relative_path FROM media",
                       -1, &select, nullptr);
    constexpr int numbers = 11;
    constexpr int columns = 15;
    qint64 sum = 0;
    int rows = 0;
    while (sqlite3_step(select) == SQLITE_ROW) {
        for (int column = 0; column < numbers; ++column)
            sum += sqlite3_column_int64(select, column);
        for (int column = numbers; column < columns; ++column) {
            sum += *sqlite3_column_text(select, column);
            sum += sqlite3_column_bytes(select, column);
        }
        ++rows;
    }
    benchmark::DoNotOptimize(sum);
    const double spent = msec(timer);
    sqlite3_finalize(select);
    sqlite3_close(database);
    if (rows != count)
        giveUp(QStringLiteral("%1 rows instead of %2").arg(rows).arg(count));
    return spent;
}

/// Reads a project into records; answers ms.
double loadOurs(const QString &path, int count)
{
    NxProjectStoreOptions options;
    options.readOnly = true;
    auto store = NxProjectStore::open(path, options);
    if (!store)
        giveUp(store.errorText());
    QElapsedTimer timer;
    timer.start();
    const NxResult<NxProjectContents> contents = (*store)->load();
    const double spent = msec(timer);
    if (!contents || int(contents->media.size()) != count || !contents->damage.isEmpty())
        giveUp(contents ? contents->damage : contents.errorText());
    return spent;
}

void tell(benchmark::State &state, const std::vector<double> &ours,
          const std::vector<double> &bound)
{
    state.counters["ours_ms"] = median(ours);
    state.counters["bound_ms"] = median(bound);
    state.counters["ratio"] = median(ours) / median(bound);
}

void insertMedia(benchmark::State &state)
{
    const int count = int(state.range(0));
    const std::vector<BareRow> rows = bareRows(count);
    std::vector<double> ours;
    std::vector<double> bound;
    static_cast<void>(batches(count));
    for (auto _ : state) {
        const QTemporaryDir folder;
        bound.push_back(insertBare(folder.filePath(QStringLiteral("bare.db")), rows));
        ours.push_back(insertOurs(folder.filePath(QStringLiteral("ours.brevano")), count));
        state.SetIterationTime(ours.back() / 1000);
    }
    tell(state, ours, bound);
}
BENCHMARK(insertMedia)
    ->Arg(100000)
    ->UseManualTime()
    ->Iterations(Rounds)
    ->Unit(benchmark::kMillisecond);

void loadMedia(benchmark::State &state)
{
    const int count = int(state.range(0));
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("ours.brevano"));
    insertOurs(path, count);
    std::vector<double> ours;
    std::vector<double> bound;
    for (auto _ : state) {
        bound.push_back(loadBare(path, count));
        ours.push_back(loadOurs(path, count));
        state.SetIterationTime(ours.back() / 1000);
    }
    tell(state, ours, bound);
}
BENCHMARK(loadMedia)->Arg(100000)->Arg(1000000)->UseManualTime()->Iterations(Rounds)->Unit(
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
