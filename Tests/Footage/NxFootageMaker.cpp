// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFootageMaker.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

namespace NxFootageMaker {

namespace {

constexpr int longestStep = 120000; // ms

NxError failed(const NxFootageRecipe &recipe, const QString &cause)
{
    return {recipe.name + QStringLiteral(": ") + cause};
}

/// Whether the program took all of it.
bool feed(const NxNumberedFrames &frames, QProcess *program)
{
    program->write(frames.streamHeader());
    for (int number = 0; number < frames.count(); ++number) {
        program->write(frames.streamFrame(number));
        if (!program->waitForBytesWritten(longestStep))
            return false;
    }
    return true;
}

NxResult<void> run(const NxFootageRecipe &recipe, const NxFootageStep &step, bool isFed)
{
    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(step.program, step.arguments);
    if (!program.waitForStarted(longestStep))
        return failed(recipe, step.program + QStringLiteral(": ") + program.errorString());
    const bool tookAll = !isFed || feed(recipe.frames, &program);
    program.closeWriteChannel();
    const bool ended =
        program.state() == QProcess::NotRunning || program.waitForFinished(longestStep);
    if (tookAll && ended && program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0)
        return {};
    return failed(recipe, step.arguments.join(QLatin1Char(' ')) + QLatin1Char('\n')
                              + QString::fromLocal8Bit(program.readAll()));
}

NxFootageStep placed(NxFootageStep step, const QString &output, const QString &scratch)
{
    step.arguments.replaceInStrings(NxFootageStep::Output, output);
    step.arguments.replaceInStrings(NxFootageStep::Scratch, scratch);
    return step;
}

NxResult<void> write(const NxFootageRecipe &recipe, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(recipe.content) != recipe.content.size()
        || !file.flush())
        return failed(recipe, file.errorString());
    return {};
}

} // namespace

NxResult<void> make(const NxFootageRecipe &recipe, const QString &folder)
{
    const QString output = folder + QLatin1Char('/') + recipe.name;
    if (recipe.steps.isEmpty())
        return write(recipe, output);
    const QTemporaryDir scratch;
    if (!scratch.isValid())
        return failed(recipe, scratch.errorString());
    bool isFed = recipe.frames.count() > 0;
    for (const NxFootageStep &step : recipe.steps) {
        const NxFootageStep here = placed(step, output, scratch.path());
        if (const NxResult<void> done = run(recipe, here, isFed); !done)
            return done;
        isFed = false;
    }
    if (!QFileInfo::exists(output))
        return failed(recipe, QStringLiteral("nothing was made"));
    return {};
}

NxResult<void> makeAll(const std::vector<NxFootageRecipe> &recipes, const QString &folder)
{
    std::atomic<size_t> next{0};
    std::mutex guard;
    NxResult<void> result;
    const auto work = [&] {
        for (size_t index = next++; index < recipes.size(); index = next++) {
            const NxResult<void> done = make(recipes[index], folder);
            if (done)
                continue;
            const std::lock_guard<std::mutex> lock(guard);
            result = done;
            next = recipes.size();
        }
    };
    std::vector<std::thread> threads;
    constexpr int most = 4; // Memory may be scarcer than processors.
    for (int thread = 0; thread < std::min(QThread::idealThreadCount(), most); ++thread)
        threads.emplace_back(work);
    for (std::thread &thread : threads)
        thread.join();
    return result;
}

} // namespace NxFootageMaker
