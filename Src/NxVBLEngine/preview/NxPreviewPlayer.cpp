// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/preview/NxPreviewPlayer.h>

#include <NxCore/NxDiskBan.h>
#include <NxCore/NxLog.h>

#include <algorithm>
#include <utility>

namespace {

constexpr int MostVainStarts = 3;
constexpr int MostKilled = 2;

int milliseconds(std::chrono::milliseconds time)
{
    return int(time.count());
}

/// By NxWorkerEnd, for a worker that ended over a file.
QString reasonOf(NxWorkerEnd end)
{
    if (end == NxWorkerEnd::TooMuchMemory)
        return NxPreviewPlayer::tr("Playing the file takes too much memory.");
    return NxPreviewPlayer::tr("Playing the file crashed its player.");
}

} // namespace

NxPreviewPlayer::NxPreviewPlayer(NxPreviewSettings settings, Tell tell)
    : m_settings(std::move(settings)),
      m_tell(std::move(tell))
{
    m_limitTimer.setSingleShot(true);
    m_idleTimer.setSingleShot(true);
    m_idleTimer.setInterval(milliseconds(m_settings.idleLimit));
    connect(&m_limitTimer, &QTimer::timeout, this, &NxPreviewPlayer::onSilent);
    connect(&m_idleTimer, &QTimer::timeout, this, &NxPreviewPlayer::stop);
}

NxPreviewPlayer::~NxPreviewPlayer() = default;

void NxPreviewPlayer::obey(const NxPreviewOrder &order)
{
    using Action = void (NxPreviewPlayer::*)(const NxPreviewOrder &);
    static constexpr Action actions[] = {&NxPreviewPlayer::play, &NxPreviewPlayer::show,
                                         &NxPreviewPlayer::close};
    m_idleTimer.start();
    (this->*actions[size_t(order.what)])(order);
}

qint64 NxPreviewPlayer::processId() const
{
    return m_process ? m_process->processId() : 0;
}

// Orders

void NxPreviewPlayer::play(const NxPreviewOrder &order)
{
    const Killer killer = m_killers.value(order.open.path);
    if (killer.workers >= MostKilled || !m_givenUp.isEmpty()) {
        close(order);
        tellUnplayable(order.open.number, m_givenUp.isEmpty() ? killer.reason : m_givenUp);
        return;
    }
    m_film = order.open;
    takeShow(order);
    ensureProcess();
    if (!isListening())
        return;
    sendOpen(*m_film);
    sendShow();
}

void NxPreviewPlayer::show(const NxPreviewOrder &order)
{
    const bool isNew = order.show.frame != m_show.frame || order.show.size != m_show.size;
    takeShow(order);
    if (m_film && isListening() && (isNew || m_freed != 0))
        sendShow();
}

void NxPreviewPlayer::close(const NxPreviewOrder &order)
{
    m_film.reset();
    takeShow(order);
    NxPreviewOpen nothing;
    nothing.number = order.open.number;
    if (isListening())
        sendOpen(nothing);
}

void NxPreviewPlayer::takeShow(const NxPreviewOrder &order)
{
    m_show = order.show;
    if (order.memory && order.memory == m_memory)
        m_freed |= order.show.freed & m_lent;
}

void NxPreviewPlayer::sendOpen(const NxPreviewOpen &film)
{
    NxDiskBan::note("NxPreviewPlayer::sendOpen");
    m_asked.push_back({film.number, film.path, m_turnSent, false, 0});
    m_process->say(NxWorkerWord::PreviewOpen, NxPreviewMessages::packed(film));
    watch();
}

void NxPreviewPlayer::sendShow()
{
    NxDiskBan::note("NxPreviewPlayer::sendShow");
    NxPreviewShow show = m_show;
    show.number = m_film->number;
    show.turn = ++m_turnSent;
    show.freed = std::exchange(m_freed, 0);
    m_lent &= ~show.freed;
    m_process->say(NxWorkerWord::PreviewShow, NxPreviewMessages::packed(show));
    watch();
}

// The worker

void NxPreviewPlayer::ensureProcess()
{
    if (m_process)
        return;
    NxResult<QString> program = m_settings.program();
    if (program)
        start(program.take());
    else
        giveUp(program.errorText());
}

void NxPreviewPlayer::start(const QString &program)
{
    NxDiskBan::note("NxPreviewPlayer::start");
    NxResult<std::unique_ptr<NxSharedMemory>> memory =
        NxSharedMemory::create(NxPreviewSlots::MemoryBytes);
    if (!memory) {
        giveUp(memory.errorText());
        return;
    }
    m_memory = memory.take();
    m_process = std::make_unique<NxWorkerProcess>(program, m_settings.cacheFolder, m_memory);
    NxWorkerProcess *process = m_process.get();
    connect(process, &NxWorkerProcess::ready, this, &NxPreviewPlayer::onReady);
    connect(process, &NxWorkerProcess::said, this, &NxPreviewPlayer::onSaid);
    connect(process, &NxWorkerProcess::ended, this, &NxPreviewPlayer::onEnded);
    m_limitTimer.start(milliseconds(m_settings.startLimit));
    process->start();
}

void NxPreviewPlayer::onReady()
{
    m_vainStarts = 0;
    m_limitTimer.stop();
    if (!m_film)
        return;
    sendOpen(*m_film);
    sendShow();
}

void NxPreviewPlayer::onSaid(const NxWorkerFrames::Frame &frame)
{
    const bool isUnderstood = frame.word == NxWorkerWord::PreviewOpened  ? takeOpened(frame.bytes)
                              : frame.word == NxWorkerWord::PreviewFrame ? takeFrame(frame.bytes)
                                                                         : takeRested(frame.bytes);
    if (!isUnderstood) {
        onEnded(NxWorkerEnd::Confused, {});
        return;
    }
    m_limitTimer.stop();
    watch();
}

bool NxPreviewPlayer::takeOpened(const QByteArray &bytes)
{
    NxPreviewNews news;
    news.what = NxPreviewNews::What::Opened;
    if (!NxPreviewMessages::unpack(bytes, &news.opened))
        return false;
    Asked *film = asked(news.opened.number);
    // A second answer can only take back the first: the film turned out to be damaged.
    if (!film || (film->isAnswered && (film->frames == 0 || news.opened.frames != 0)))
        return false;
    film->isAnswered = true;
    film->frames = news.opened.frames;
    while (m_asked.front().number != news.opened.number)
        m_asked.pop_front();
    m_tell(std::move(news));
    return true;
}

bool NxPreviewPlayer::takeFrame(const QByteArray &bytes)
{
    NxPreviewNews news;
    news.what = NxPreviewNews::What::Frame;
    if (!NxPreviewMessages::unpack(bytes, &news.frame))
        return false;
    const Asked *film = asked(news.frame.number);
    const quint32 slot = NxPreviewSlots::bit(int(news.frame.slot));
    if (!film || news.frame.frame >= film->frames || (m_lent & slot) != 0)
        return false;
    m_lent |= slot;
    news.memory = m_memory;
    m_tell(std::move(news));
    return true;
}

bool NxPreviewPlayer::takeRested(const QByteArray &bytes)
{
    quint64 turn = 0;
    if (!NxPreviewMessages::unpackRested(bytes, &turn) || turn < m_turnRested || turn > m_turnSent)
        return false;
    m_turnRested = turn;
    // It rests before it opens the next film, so what was shown of the last one is behind it.
    while (m_asked.size() > 1 && m_asked[0].isAnswered && m_asked[1].turnBefore <= turn)
        m_asked.pop_front();
    return true;
}

NxPreviewPlayer::Asked *NxPreviewPlayer::asked(quint64 number)
{
    const auto film = std::find_if(m_asked.begin(), m_asked.end(),
                                   [number](const Asked &one) { return one.number == number; });
    return film == m_asked.end() ? nullptr : &*film;
}

bool NxPreviewPlayer::isAtWork() const
{
    return m_turnRested != m_turnSent || (!m_asked.empty() && !m_asked.back().isAnswered);
}

void NxPreviewPlayer::watch()
{
    if (!isAtWork())
        m_limitTimer.stop();
    else if (!m_limitTimer.isActive())
        m_limitTimer.start(milliseconds(m_settings.answerLimit));
}

// Its end

void NxPreviewPlayer::onEnded(NxWorkerEnd end, const QString &why)
{
    if (!m_process->hasGreeted())
        onVainStart(end, why);
    else if (isAtWork())
        strike(reasonOf(end));
    else
        stop(); // No file is to blame; whoever asks next starts another worker.
}

void NxPreviewPlayer::onSilent()
{
    if (m_process->hasGreeted())
        strike(tr("Playing the file took too long."));
    else
        onVainStart(NxWorkerEnd::Crashed, tr("The program that plays films said nothing."));
}

void NxPreviewPlayer::onVainStart(NxWorkerEnd end, const QString &why)
{
    letGo(0);
    const bool isHopeless = end == NxWorkerEnd::NotStarted || end == NxWorkerEnd::WrongVersion;
    if (isHopeless || ++m_vainStarts >= MostVainStarts)
        giveUp(why);
    else if (m_film)
        ensureProcess();
}

void NxPreviewPlayer::strike(const QString &reason)
{
    const Asked blamed = m_asked.front();
    letGo(0);
    Killer &killer = m_killers[blamed.path];
    killer.reason = reason;
    if (!blamed.path.isEmpty())
        ++killer.workers;
    if (m_film && m_film->path == blamed.path && killer.workers >= MostKilled)
        tellUnplayable(std::exchange(m_film, std::nullopt)->number, reason);
    if (m_film)
        ensureProcess();
}

void NxPreviewPlayer::stop()
{
    const std::optional<NxPreviewOpen> film = std::exchange(m_film, std::nullopt);
    letGo(film ? film->number : 0);
}

void NxPreviewPlayer::letGo(quint64 stopped)
{
    m_limitTimer.stop();
    m_asked.clear();
    m_turnSent = m_turnRested = 0;
    m_lent = m_freed = 0;
    if (!m_process)
        return;
    m_burial.take(std::move(m_process)); // It holds nothing that is worth a farewell.
    NxPreviewNews news;
    news.memory = std::exchange(m_memory, nullptr);
    news.stopped = stopped;
    m_tell(std::move(news));
}

void NxPreviewPlayer::giveUp(const QString &why)
{
    NX_LOG_ERROR("no preview is played: %s", qUtf8Printable(why));
    m_givenUp = why;
    if (m_film)
        tellUnplayable(std::exchange(m_film, std::nullopt)->number, why);
}

void NxPreviewPlayer::tellUnplayable(quint64 number, const QString &reason)
{
    NxPreviewNews news;
    news.what = NxPreviewNews::What::Opened;
    news.opened = {number, 0, reason};
    m_tell(std::move(news));
}
