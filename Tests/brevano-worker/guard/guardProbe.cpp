// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// A program that is guarded as the worker is, and says what it may still do. The test runs it,
// because what a process gave up it never gets back.
#include <NxWorkerProtocol/NxWorkerExit.h>
#include <brevano-worker/guard/Confinement.h>
#include <brevano-worker/guard/ProcessWatch.h>

#include <QElapsedTimer>
#include <QFile>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr qint64 MiB = 1024 * 1024;

int holdMemory(const char *megabytes, const char *limit)
{
    const ProcessWatch watch(std::atoll(limit) * MiB);
    std::vector<char> held(size_t(std::atoll(megabytes) * MiB), 1);
    constexpr int longEnough = 500; // ms
    const bool isTooMuch = std::atoll(megabytes) > std::atoll(limit);
    QElapsedTimer clock;
    clock.start();
    for (int round = 0; isTooMuch || !clock.hasExpired(longEnough); ++round)
        std::memset(held.data(), round, held.size());
    return int(NxWorkerExit::Done);
}

int waitForEnd()
{
    const ProcessWatch watch;
    std::printf("%d\n", int(::getpid()));
    std::fflush(stdout);
    while (true)
        ::pause();
}

const char *verdictOfSocket()
{
    const int descriptor = ::socket(AF_INET, SOCK_STREAM, 0);
    if (descriptor >= 0)
        ::close(descriptor);
    return descriptor >= 0 ? "network" : errno == EPERM ? "refused" : "failed";
}

const char *verdictOfWriting(const QString &path)
{
    return QFile(path).open(QIODevice::WriteOnly) ? "written" : "refused";
}

int confine(const QString &inside, const QString &outside)
{
    const bool network = Confinement::dropNetwork();
    const bool writing = Confinement::writeOnlyBelow(inside);
    std::printf("%d %s %d %s %s\n", int(network), verdictOfSocket(), int(writing),
                verdictOfWriting(inside + QStringLiteral("/a")),
                verdictOfWriting(outside + QStringLiteral("/b")));
    return QFile(outside + QStringLiteral("/readable")).open(QIODevice::ReadOnly) ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    const std::string what = argc > 1 ? argv[1] : "";
    if (what == "hold" && argc == 4)
        return holdMemory(argv[2], argv[3]);
    if (what == "confine" && argc == 4)
        return confine(QFile::decodeName(argv[2]), QFile::decodeName(argv[3]));
    return waitForEnd();
}
