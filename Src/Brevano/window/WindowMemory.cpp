// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/WindowMemory.h>

#include <NxCore/INxSettingsStore.h>
#include <NxCore/NxIniSettingsStore.h>

#include <QHeaderView>
#include <QMainWindow>
#include <QSplitter>

#include <algorithm>
#include <chrono>
#include <iterator>

namespace {

constexpr std::chrono::milliseconds Pause{500};

const QString GeometryKey = QStringLiteral("Window/Geometry");
const QString StateKey = QStringLiteral("Window/State");
const QString SkinKey = QStringLiteral("Window/Skin");
const QString LanguageKey = QStringLiteral("Window/Language");

struct PartEntry
{
    WindowMemory::Part part;
    const char *key;
    bool isShownAtFirst;
};

constexpr PartEntry Parts[] = {
    {WindowMemory::Part::Folders, "Window/FoldersShown", true},
    {WindowMemory::Part::Info, "Window/InfoShown", true},
    {WindowMemory::Part::Report, "Window/ReportShown", false},
};

struct SkinEntry
{
    NxSkin skin;
    const char *name;
};

constexpr SkinEntry Skins[] = {{NxSkin::Dark, "dark"}, {NxSkin::Light, "light"}};

const PartEntry &entryOf(WindowMemory::Part part)
{
    return *std::find_if(std::begin(Parts), std::end(Parts),
                         [part](const PartEntry &entry) { return entry.part == part; });
}

std::unique_ptr<INxSettingsStore> storeOr(std::unique_ptr<INxSettingsStore> store)
{
    if (store)
        return store;
    return std::make_unique<NxIniSettingsStore>(NxIniSettingsStore::userPath());
}

QString splitterKey(const QString &name)
{
    return QStringLiteral("Window/Splitter_") + name;
}

QString headerKey(const QString &name)
{
    return QStringLiteral("Window/Header_") + name;
}

} // namespace

WindowMemory::WindowMemory(std::unique_ptr<INxSettingsStore> store)
    : m_store(storeOr(std::move(store)))
{
    m_writing.setSingleShot(true);
    m_writing.setInterval(Pause);
    QObject::connect(&m_writing, &QTimer::timeout, &m_writing, [this] { flush(); });
    loadProjects();
}

WindowMemory::~WindowMemory()
{
    if (m_writing.isActive())
        flush();
}

QString WindowMemory::text(const QString &key) const
{
    return m_store->value(key).toString();
}

// Qt believes the blobs that it is given. The sum in front finds out what is not ours.
void WindowMemory::setBlob(const QString &key, const QByteArray &blob)
{
    const quint16 sum = qChecksum(blob.constData(), uint(blob.size()));
    m_store->setValue(key,
                      QStringLiteral("%1:%2").arg(sum).arg(QString::fromLatin1(blob.toBase64())));
}

QByteArray WindowMemory::blob(const QString &key) const
{
    const QString stored = text(key);
    const int colon = stored.indexOf(QLatin1Char(':'));
    const QByteArray blob = QByteArray::fromBase64(stored.mid(colon + 1).toLatin1());
    const quint16 sum = qChecksum(blob.constData(), uint(blob.size()));
    return colon > 0 && stored.left(colon) == QString::number(sum) ? blob : QByteArray();
}

void WindowMemory::saveWindow(const QMainWindow &window)
{
    setBlob(GeometryKey, window.saveGeometry());
    setBlob(StateKey, window.saveState());
}

bool WindowMemory::restoreWindow(QMainWindow *window) const
{
    return window->restoreGeometry(blob(GeometryKey)) && window->restoreState(blob(StateKey));
}

void WindowMemory::saveSplitter(const QString &name, const QSplitter &splitter)
{
    QStringList sizes;
    for (const int size : splitter.sizes())
        sizes.append(QString::number(size));
    m_store->setValue(splitterKey(name), sizes.join(QLatin1Char(' ')));
}

bool WindowMemory::restoreSplitter(const QString &name, QSplitter *splitter) const
{
    constexpr int WidestPane = 32767; // As wide as a widget may be in any window system.
    QList<int> sizes;
    for (const QString &word : text(splitterKey(name)).split(QLatin1Char(' '))) {
        bool isNumber = false;
        const int size = word.toInt(&isNumber);
        if (!isNumber || size < 0 || size > WidestPane)
            return false;
        sizes.append(size);
    }
    const bool fits = sizes.size() == splitter->count() && sizes.count(0) < sizes.size();
    if (fits)
        splitter->setSizes(sizes);
    return fits;
}

void WindowMemory::saveHeader(const QString &name, const QHeaderView &header)
{
    setBlob(headerKey(name), QByteArray::number(header.count()) + ' ' + header.saveState());
}

bool WindowMemory::restoreHeader(const QString &name, QHeaderView *header) const
{
    const QByteArray stored = blob(headerKey(name));
    const int space = stored.indexOf(' ');
    if (space < 0 || stored.left(space) != QByteArray::number(header->count()))
        return false;
    return header->restoreState(stored.mid(space + 1));
}

bool WindowMemory::isShown(Part part) const
{
    const PartEntry &entry = entryOf(part);
    const QString stored = text(QLatin1String(entry.key));
    if (stored != QLatin1String("true") && stored != QLatin1String("false"))
        return entry.isShownAtFirst;
    return stored == QLatin1String("true");
}

void WindowMemory::setShown(Part part, bool shown)
{
    m_store->setValue(QLatin1String(entryOf(part).key), shown);
}

NxSkin WindowMemory::skin() const
{
    const QString stored = text(SkinKey);
    const auto *found =
        std::find_if(std::begin(Skins), std::end(Skins), [&stored](const SkinEntry &entry) {
            return stored == QLatin1String(entry.name);
        });
    return found == std::end(Skins) ? NxSkin::Dark : found->skin;
}

void WindowMemory::setSkin(NxSkin skin)
{
    for (const SkinEntry &entry : Skins) {
        if (entry.skin == skin)
            m_store->setValue(SkinKey, QString::fromLatin1(entry.name));
    }
}

QString WindowMemory::language() const
{
    return text(LanguageKey);
}

void WindowMemory::setLanguage(const QString &code)
{
    m_store->setValue(LanguageKey, code);
}
