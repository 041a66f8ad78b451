// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryUtils.h>

#include <NxCore/NxConfig.h>
#include <NxCore/NxCustomProductInfo.h>
#include <NxCore/NxDesktopService.h>
#include <NxCore/NxMemorySettingsStore.h>

#include <NxWidgets/DialogUser.h>
#include <Support/NxTestMain.h>

#include <QTest>
#include <QTextEdit>
#include <QTranslator>
#include <QUrl>

#include <memory>

using Utils = NxMediaLibraryUtils;

namespace {

const auto pageKey = QStringLiteral("HevcPage");
const auto page = QStringLiteral("https://example.org/hevc?from=library");

QString textOf(const NMessageDialog &dialog)
{
    return dialog.findChild<QTextEdit *>(QStringLiteral("text"))->toPlainText();
}

bool hasArrow()
{
    const QCursor *cursor = QGuiApplication::overrideCursor();
    return cursor && cursor->shape() == Qt::ArrowCursor;
}

/// Speaks a language in which the library says one thing only.
class Terse : public QTranslator
{
public:
    QString translate(const char *context, const char *, const char *, int) const override
    {
        const bool isOurs = qstrcmp(context, "NxMediaLibraryUtils") == 0;
        return isOurs ? QStringLiteral("No HEVC.") : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_NxMediaLibraryUtils_prompt : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void saysWhatIsMissing();
    void speaksTheUsersLanguage();
    void opensThePageHoweverItIsClosed_data();
    void opensThePageHoweverItIsClosed();
    void opensTheBuiltInPage();
    void opensThePageWhenTheParentDied();
    void reportsAPageThatDoesNotOpen();
    void hidesTheHourglassMeanwhile();

private:
    QList<QUrl> m_opened;
    bool m_canOpen = true;
};

void tst_NxMediaLibraryUtils_prompt::init()
{
    m_opened.clear();
    m_canOpen = true;
    NxConfig::Instance()->setStore(std::make_unique<NxMemorySettingsStore>());
    NxConfig::Instance()->setCBSUrl(pageKey, page);
    NxDesktopService::setOpener([this](const QUrl &url) {
        m_opened += url;
        return m_canOpen;
    });
}

void tst_NxMediaLibraryUtils_prompt::cleanup()
{
    QVERIFY(!QGuiApplication::overrideCursor());
    NxDesktopService::setOpener({});
    NxConfig::Instance()->setStore(nullptr);
}

void tst_NxMediaLibraryUtils_prompt::saysWhatIsMissing()
{
    QWidget parent;
    const DialogUser user([&](NMessageDialog &dialog) {
        QCOMPARE(dialog.parentWidget(), &parent);
        QCOMPARE(dialog.windowTitle(), NxCustomProductInfo::NGetProductName());
        QCOMPARE(textOf(dialog),
                 QStringLiteral("HEVC Codec must be installed to solve this failure. Clicking Yes "
                                "will install and enabled this codec for immediate use."));
        QVERIFY(m_opened.isEmpty());
        DialogUser::clicking(mdbAffirmative)(dialog);
    });
    Utils::ShowHEVCHintWidget(&parent);
    QCOMPARE(user.dialogs(), 1);
}

void tst_NxMediaLibraryUtils_prompt::speaksTheUsersLanguage()
{
    Terse terse;
    QVERIFY(QCoreApplication::installTranslator(&terse));
    const DialogUser user([](NMessageDialog &dialog) {
        QCOMPARE(textOf(dialog), QStringLiteral("No HEVC."));
        DialogUser::clicking(mdbAffirmative)(dialog);
    });
    Utils::ShowHEVCHintWidget(nullptr);
}

void tst_NxMediaLibraryUtils_prompt::opensThePageHoweverItIsClosed_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("by its button") << int(Qt::Key_Return);
    QTest::newRow("by Escape") << int(Qt::Key_Escape);
}

void tst_NxMediaLibraryUtils_prompt::opensThePageHoweverItIsClosed()
{
    QFETCH(int, key);
    const DialogUser user(DialogUser::typing({QKeySequence(key)}));
    Utils::ShowHEVCHintWidget(nullptr);
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(m_opened, QList<QUrl>{QUrl(page)});
}

void tst_NxMediaLibraryUtils_prompt::opensTheBuiltInPage()
{
    NxConfig::Instance()->setCBSUrl(pageKey, QString());
    const DialogUser user(DialogUser::clicking(mdbAffirmative));
    Utils::ShowHEVCHintWidget(nullptr);
    QCOMPARE(m_opened, QList<QUrl>{QUrl(NxConfig::Instance()->GetCBSUrl(pageKey))});
    QVERIFY(m_opened.first() != QUrl(page));
}

void tst_NxMediaLibraryUtils_prompt::opensThePageWhenTheParentDied()
{
    auto parent = std::make_unique<QWidget>();
    const DialogUser user([&parent](NMessageDialog &) { parent.reset(); });
    Utils::ShowHEVCHintWidget(parent.get());
    QVERIFY(!parent);
    QCOMPARE(m_opened, QList<QUrl>{QUrl(page)});
}

void tst_NxMediaLibraryUtils_prompt::reportsAPageThatDoesNotOpen()
{
    m_canOpen = false;
    NxTestLog::expectError(page + QStringLiteral(" could not be opened"));
    const DialogUser user(DialogUser::clicking(mdbAffirmative));
    Utils::ShowHEVCHintWidget(nullptr);
    QCOMPARE(m_opened.size(), 1);
}

void tst_NxMediaLibraryUtils_prompt::hidesTheHourglassMeanwhile()
{
    bool isArrowWhileOpening = false;
    NxDesktopService::setOpener([&](const QUrl &) { return isArrowWhileOpening = hasArrow(); });
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    bool isArrowWhileAsking = false;
    const DialogUser user([&](NMessageDialog &dialog) {
        isArrowWhileAsking = hasArrow();
        dialog.close();
    });
    Utils::ShowHEVCHintWidget(nullptr);
    const Qt::CursorShape after = QGuiApplication::overrideCursor()->shape();
    QGuiApplication::restoreOverrideCursor();
    QVERIFY(isArrowWhileAsking);
    QVERIFY(isArrowWhileOpening);
    QCOMPARE(after, Qt::WaitCursor);
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaLibraryUtils_prompt)
#include "tst_NxMediaLibraryUtils_prompt.moc"
