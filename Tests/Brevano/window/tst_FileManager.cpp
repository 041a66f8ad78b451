// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/FileManager.h>
#include <NxCore/NxDesktopService.h>
#include <Support/NxTestLog.h>
#include <Support/NxTestMain.h>

#include <QSignalSpy>
#include <QUrl>
#include <QtTest>

#include <memory>
#include <utility>

#ifdef QT_DBUS_LIB
#include <Brevano/window/FileManagerBus.h>

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusServer>
#endif

namespace {

const QString clipPath = QStringLiteral("/footage/day 1/50% \u00fc#2.mov");

/// A file manager that answers when a test says so, and a desktop that opens what it may.
struct Stand
{
    explicit Stand(bool opens = true)
    {
        NxDesktopService::setOpener([this, opens](const QUrl &url) {
            opened.append(url);
            return opens;
        });
    }
    ~Stand() { NxDesktopService::setOpener({}); }
    Q_DISABLE_COPY_MOVE(Stand)

    QList<QUrl> opened;
    QStringList asked;
    FileManager::Answer answer;
    FileManager manager{[this](const QString &path, QObject *, FileManager::Answer told) {
        asked.append(path);
        answer = std::move(told);
    }};
    QSignalSpy revealed{&manager, &FileManager::sigRevealed};
    QSignalSpy failed{&manager, &FileManager::sigFailed};
};

#ifdef QT_DBUS_LIB
/// A file manager at the other end of a bus.
class BusManager final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")
public:
    QStringList shown;
    bool refuses = false;

public Q_SLOTS:
    // Called from the bus, by this name.
    void ShowItems(const QStringList &uris, const QString &, const QDBusMessage &call)
    {
        shown += uris;
        if (refuses)
            m_server->send(call.createErrorReply(QDBusError::Failed, QStringLiteral("too busy")));
    }

public:
    void listen(QDBusServer *server)
    {
        connect(server, &QDBusServer::newConnection, this, [this](const QDBusConnection &made) {
            m_server = std::make_unique<QDBusConnection>(made);
            m_server->registerObject(QStringLiteral("/org/freedesktop/FileManager1"), this,
                                     QDBusConnection::ExportAllSlots);
        });
    }
    [[nodiscard]] bool isListening() const { return m_server != nullptr; }

private:
    std::unique_ptr<QDBusConnection> m_server;
};

/// Two ends of a bus of their own.
struct Bus
{
    Bus() { manager.listen(&server); }
    ~Bus() { QDBusConnection::disconnectFromPeer(name); }
    Q_DISABLE_COPY_MOVE(Bus)

    const QString name = QStringLiteral("client");
    QDBusServer server;
    BusManager manager;
    QDBusConnection client = QDBusConnection::connectToPeer(server.address(), name);
};
#endif

} // namespace

/// Files shown in the user's file manager.
class tst_FileManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksTheFileManagerFirst();
    void opensTheFolderWhereNobodySelectsFiles();
    void namesFileAndCauseWhenNothingHelps();
#ifdef QT_DBUS_LIB
    void selectsTheFileOverTheBus();
    void whatTheBusAnswersIsTheCause();
    void aBusThatIsNotThereIsACause();
    void nobodyIsToldAfterDeath();
#endif
};

void tst_FileManager::asksTheFileManagerFirst()
{
    Stand s;
    s.manager.reveal(clipPath);
    QCOMPARE(s.asked, QStringList(clipPath));
    QCOMPARE(s.revealed.size(), 0);
    s.answer(QString());
    QCOMPARE(s.revealed.value(0).value(0).toString(), clipPath);
    QCOMPARE(s.failed.size(), 0);
    QVERIFY(s.opened.isEmpty());
}

void tst_FileManager::opensTheFolderWhereNobodySelectsFiles()
{
    Stand s;
    s.manager.reveal(clipPath);
    s.answer(QStringLiteral("nobody listens"));
    QCOMPARE(s.opened.size(), 1);
    QCOMPARE(s.opened.constFirst().toLocalFile(), QStringLiteral("/footage/day 1"));
    QCOMPARE(s.revealed.size(), 1);
    QCOMPARE(s.failed.size(), 0);
}

void tst_FileManager::namesFileAndCauseWhenNothingHelps()
{
    Stand s(false);
    NxTestLog::expectError(QStringLiteral("could not be opened"));
    s.manager.reveal(clipPath);
    s.answer(QStringLiteral("nobody listens"));
    QCOMPARE(s.revealed.size(), 0);
    QCOMPARE(s.failed.size(), 1);
    QCOMPARE(s.failed.constFirst().at(0).toString(), clipPath);
    const QString reason = s.failed.constFirst().at(1).toString();
    QVERIFY2(reason.contains(clipPath), qPrintable(reason));
    QVERIFY2(reason.contains(QStringLiteral("nobody listens")), qPrintable(reason));
}

#ifdef QT_DBUS_LIB
void tst_FileManager::selectsTheFileOverTheBus()
{
    Bus bus;
    QTRY_VERIFY(bus.manager.isListening());
    QStringList answers;
    FileManagerBus::ask(bus.client, clipPath, this,
                        [&answers](const QString &cause) { answers.append(cause); });
    QVERIFY(answers.isEmpty()); // Nobody waited.
    QTRY_COMPARE(answers, QStringList(QString()));
    QCOMPARE(bus.manager.shown,
             QStringList(QStringLiteral("file:///footage/day%201/50%25%20%C3%BC%232.mov")));
}

void tst_FileManager::whatTheBusAnswersIsTheCause()
{
    Bus bus;
    bus.manager.refuses = true;
    QTRY_VERIFY(bus.manager.isListening());
    QStringList answers;
    FileManagerBus::ask(bus.client, clipPath, this,
                        [&answers](const QString &cause) { answers.append(cause); });
    QTRY_COMPARE(answers, QStringList(QStringLiteral("too busy")));
}

void tst_FileManager::aBusThatIsNotThereIsACause()
{
    QStringList answers;
    const QDBusConnection none = QDBusConnection::connectToPeer(
        QStringLiteral("unix:path=/nowhere/bus"), QStringLiteral("nobody"));
    FileManagerBus::ask(none, clipPath, this,
                        [&answers](const QString &cause) { answers.append(cause); });
    QCOMPARE(answers.size(), 1);
    QVERIFY(!answers.constFirst().isEmpty());
    QDBusConnection::disconnectFromPeer(QStringLiteral("nobody"));
}

void tst_FileManager::nobodyIsToldAfterDeath()
{
    Bus bus;
    QTRY_VERIFY(bus.manager.isListening());
    auto dying = std::make_unique<QObject>();
    QStringList answers;
    FileManagerBus::ask(bus.client, clipPath, dying.get(),
                        [&answers](const QString &) { answers.append(QStringLiteral("dead")); });
    dying.reset();
    FileManagerBus::ask(bus.client, clipPath, this,
                        [&answers](const QString &) { answers.append(QStringLiteral("alive")); });
    QTRY_VERIFY(!answers.isEmpty());
    QCOMPARE(answers, QStringList(QStringLiteral("alive")));
}
#endif

NX_TEST_MAIN_WIDGETS(tst_FileManager)
#include "tst_FileManager.moc"
