// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/Reading.h>

#include <brevano-worker/facts/FactsReader.h>
#include <brevano-worker/input/Container.h>
#include <brevano-worker/input/FootageFile.h>

#include <QCoreApplication>

#include <exception>
#include <new>
#include <utility>

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("Reading", text);
}

bool wishesPictures(const NxReadRequest &request)
{
    return (request.wishes & (rwCover | rwStrip)) != 0;
}

/// Takes the facts over when they were wished; false, with the reason, when there are none.
bool takeFacts(const NxReadRequest &request, NxResult<NxFootageFacts> facts, NxReadAnswer *answer)
{
    if (!facts) {
        answer->failure = facts.error().message;
        return false;
    }
    if (request.wishes & rwFacts)
        answer->facts = facts.take();
    return true;
}

} // namespace

Reading::Reading(const QString &cacheFolder) : m_pictures(cacheFolder) {}

NxReadAnswer Reading::answer(const NxReadRequest &request,
                             const std::function<void()> &opened) const
{
    NxReadAnswer answer;
    answer.number = request.number;
    try {
        read(request, opened, &answer);
    } catch (const std::bad_alloc &) {
        answer.failure = translated("Reading the file takes too much memory.");
    } catch (const std::exception &problem) {
        answer.failure =
            translated("The file cannot be read: %1.").arg(QString::fromLocal8Bit(problem.what()));
    }
    return answer;
}

void Reading::read(const NxReadRequest &request, const std::function<void()> &opened,
                   NxReadAnswer *answer) const
{
    const NxResult<std::unique_ptr<FootageFile>> file = FootageFile::open(request.path);
    char first = 0;
    if (!file) {
        answer->failure = file.error().message;
        return;
    }
    answer->stamp = (*file)->stamp();
    if ((*file)->readAt(0, &first, 1) < 0) {
        answer->failure = translated("The disk cannot read the file.");
        return;
    }
    opened();
    if (request.wishes & (rwFingerprint | rwCover | rwStrip))
        answer->fingerprint = fingerprintOf(**file);

    using Road = void (Reading::*)(const NxReadRequest &, FootageFile *, NxReadAnswer *) const;
    static constexpr Road roads[] = {&Reading::readStream, &Reading::readStill,
                                     &Reading::readText};
    (this->*roads[size_t(request.road)])(request, file->get(), answer);
    answer->changedMeanwhile = (*file)->hasChanged();
}

void Reading::readStream(const NxReadRequest &request, FootageFile *file,
                         NxReadAnswer *answer) const
{
    if (!(request.wishes & rwFacts) && !wishesPictures(request))
        return;
    const NxResult<std::unique_ptr<Container>> container = Container::open(file);
    if (!container) {
        answer->failure = container.error().message;
        return;
    }
    NxResult<NxFootageFacts> facts = FactsReader::ofStream(container->get());
    const qint64 durationUs = facts ? facts->durationUs : 0;
    if (takeFacts(request, std::move(facts), answer) && wishesPictures(request))
        m_pictures.makeOfStream(request, container->get(), durationUs, answer);
}

void Reading::readStill(const NxReadRequest &request, FootageFile *file,
                        NxReadAnswer *answer) const
{
    const bool isFine =
        !(request.wishes & rwFacts) || takeFacts(request, FactsReader::ofStill(file), answer);
    if (isFine && wishesPictures(request))
        m_pictures.makeOfStill(request, file, answer);
}

void Reading::readText(const NxReadRequest &request, FootageFile *file,
                       NxReadAnswer *answer) const
{
    if (request.wishes & rwFacts)
        takeFacts(request, FactsReader::ofText(file), answer);
    if (request.wishes & rwCover)
        answer->cover.outcome = NxPictureOutcome::NoneThere;
    if (request.wishes & rwStrip)
        answer->strip.outcome = NxPictureOutcome::NoneThere;
}
