// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QRandomGenerator>
#include <QString>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <random>
#include <vector>

/// Work over n media beside its bound: sorting n random 64-bit integers, in turn with the work.
namespace SortBound {

using Clock = std::chrono::steady_clock;

/// A name as footage has it.
inline QString nameOf(int number, QRandomGenerator &random)
{
    const int place = random.bounded(100);
    const QString digits = QStringLiteral("%1").arg(random.bounded(10000), 4, 10, QLatin1Char('0'));
    if (place < 18)
        return QStringLiteral("IMG_") + digits + QStringLiteral(".JPG");
    if (place < 34)
        return QStringLiteral("GX01") + digits + QStringLiteral(".MP4");
    if (place < 60)
        return QStringLiteral("Scene %1 take %2.mov").arg(random.bounded(200)).arg(number % 30);
    if (place < 90)
        return QStringLiteral("2024-%1-%2 clip %3")
            .arg(random.bounded(1, 13))
            .arg(random.bounded(1, 29))
            .arg(number);
    return QString::fromUtf8("Müller Straße %1").arg(random.bounded(5000));
}

inline double secondsOf(Clock::time_point begin)
{
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

inline double boundOnce(int count)
{
    std::vector<quint64> numbers(static_cast<size_t>(count));
    std::mt19937_64 random(static_cast<quint64>(count));
    for (quint64 &number : numbers)
        number = random();
    const Clock::time_point begin = Clock::now();
    std::sort(numbers.begin(), numbers.end());
    benchmark::DoNotOptimize(numbers.data());
    return secondsOf(begin);
}

/// `work` answers its own seconds; "times_S" is its median in units of the bound's.
template<typename Work>
void measure(benchmark::State &state, int count, Work work)
{
    std::vector<double> bounds;
    std::vector<double> times;
    for (auto turn : state) {
        Q_UNUSED(turn)
        bounds.push_back(boundOnce(count));
        times.push_back(work());
        state.SetIterationTime(times.back());
    }
    const auto median = [](std::vector<double> &values) {
        std::nth_element(values.begin(), values.begin() + qint64(values.size() / 2), values.end());
        return values[values.size() / 2];
    };
    state.counters["times_S"] = median(times) / median(bounds);
}

/// A thousand to a million.
inline void sized(benchmark::internal::Benchmark *bench)
{
    bench->Arg(1000)->Arg(10000)->Arg(100000)->Arg(1000000)->UseManualTime()->Iterations(7)->Unit(
        benchmark::kMillisecond);
}

} // namespace SortBound
