// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWorkerProtocol/NxPreviewMessages.h>
#include <NxWorkerProtocol/NxSharedMemory.h>
#include <NxWorkerProtocol/NxWorkerExit.h>
#include <brevano-worker/WorkerLoop.h>
#include <brevano-worker/guard/Confinement.h>
#include <brevano-worker/guard/ProcessWatch.h>
#include <brevano-worker/preview/PreviewLoop.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <new>
#include <sys/resource.h>
#include <unistd.h>
#include <utility>

extern "C" {
#include <libavutil/log.h>
}

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool IsSanitized = true; // It needs terabytes of addresses, and stderr for its reports.
#else
constexpr bool IsSanitized = false;
#endif

template<typename Resource>
void limit(Resource resource, rlim_t most)
{
    const rlimit limits = {most, most};
    if (::setrlimit(resource, &limits) != 0)
        std::perror("brevano-worker: setrlimit");
}

void limitResources(bool isWaitedFor)
{
    constexpr rlim_t mostAddresses = 8ULL * 1024 * 1024 * 1024;
    limit(RLIMIT_CORE, 0);
    if (!IsSanitized)
        limit(RLIMIT_AS, mostAddresses);
    std::set_new_handler([] { ::_exit(int(NxWorkerExit::TooMuchMemory)); });
    // The window before all, what is being watched before what nobody waits for.
    constexpr int watched = 5;
    constexpr int background = 10;
    if (::setpriority(PRIO_PROCESS, 0, isWaitedFor ? watched : background) != 0)
        std::perror("brevano-worker: setpriority");
}

/// Keeps the pipe for messages alone, whatever a library prints.
int takeOutput()
{
    const int pipe = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    const int nothing = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (nothing < 0)
        return pipe;
    ::dup2(nothing, STDOUT_FILENO);
    if (!IsSanitized)
        ::dup2(nothing, STDERR_FILENO);
    ::close(nothing);
    return pipe;
}

} // namespace

/// brevano-worker CACHE_FOLDER [--preview MEMORY]: started by the editor, speaks over its standard
/// streams. Reads footage, or plays it into a memory that it shares with the editor.
int main(int argc, char *argv[])
{
    constexpr int readingArguments = 2;
    constexpr int previewArguments = 4;
    const bool isPreview = argc == previewArguments && std::strcmp(argv[2], "--preview") == 0;
    if ((argc != readingArguments && !isPreview) || argv[1][0] == '\0') {
        std::fprintf(stderr, "brevano-worker is started by the editor: brevano-worker FOLDER\n");
        return int(NxWorkerExit::WrongUsage);
    }
    std::unique_ptr<NxSharedMemory> memory;
    if (isPreview) {
        auto attached = NxSharedMemory::attach(QString::fromLocal8Bit(argv[previewArguments - 1]),
                                               NxPreviewSlots::MemoryBytes);
        if (!attached) {
            std::fprintf(stderr, "brevano-worker: %s\n", qUtf8Printable(attached.errorText()));
            return int(NxWorkerExit::WrongUsage);
        }
        memory = attached.take();
    }
    limitResources(isPreview); // A film plays on while others are being read.
    std::signal(SIGPIPE, SIG_IGN);
    const QString cacheFolder = QDir(QFile::decodeName(argv[1])).absolutePath();
    const int output = takeOutput();
    av_log_set_level(AV_LOG_QUIET);
    const QCoreApplication application(argc, argv);

    NxWorkerHello hello;
    hello.hasNoNetwork = Confinement::dropNetwork();
    hello.writesCacheOnly =
        QDir().mkpath(cacheFolder) && Confinement::writeOnlyBelow(cacheFolder);
    const ProcessWatch watch;
    if (memory)
        return int(PreviewLoop(STDIN_FILENO, output, std::move(memory)).run(hello));
    return int(WorkerLoop(STDIN_FILENO, output, cacheFolder).run(hello));
}
