// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxAddCustomMediaItemMessage.h>
#include <NxVBLModel/NxClipExportImportMediaMessage.h>
#include <NxVBLModel/NxMediaLibraryFindSimilarMessage.h>
#include <NxVBLModel/NxMediaLibraryGetImportFilesMessage.h>
#include <NxVBLModel/NxMediaLibraryImportMediaMessage.h>
#include <NxVBLModel/NxMediaLibraryRemoveMediaMessage.h>
#include <NxVBLModel/NxTimelineAddMediaMessage.h>
#include <NxVBLModel/NxTimelineAddMediaResponseMessage.h>
#include <NxVBLModel/NxTimelineAddProjectTemplateResponseMessage.h>
#include <NxVBLModel/NxTimelineAudioSynMessage.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <functional>
#include <memory>

namespace {

/// A class of messages: how one is made, and how one is recognised.
struct MessageClass
{
    std::function<std::unique_ptr<NxMessage>()> make;
    std::function<bool(const NxMessage &)> recognises;
    int code = 0;
};

template<typename Message>
MessageClass messageClass(int code)
{
    return {
        [] { return std::make_unique<Message>(); },
        [](const NxMessage &message) { return dynamic_cast<const Message *>(&message) != nullptr; },
        code};
}

const std::vector<std::pair<const char *, MessageClass>> &messageClasses()
{
    static const std::vector<std::pair<const char *, MessageClass>> classes{
        {"MediaLibraryImportMedia", messageClass<NxMediaLibraryImportMediaMessage>(514)},
        {"MediaLibraryRemoveMedia", messageClass<NxMediaLibraryRemoveMediaMessage>(515)},
        {"MediaLibraryGetImportFiles", messageClass<NxMediaLibraryGetImportFilesMessage>(516)},
        {"TimelineAddMediaResponse", messageClass<NxTimelineAddMediaResponseMessage>(3009)},
        {"TimelineAddProjectTemplateResponse",
         messageClass<NxTimelineAddProjectTemplateResponseMessage>(3010)},
        {"AddCustomMediaItem", messageClass<NxAddCustomMediaItemMessage>(3012)},
        {"MediaLibraryFindSimilar", messageClass<NxMediaLibraryFindSimilarMessage>(3013)},
        {"ClipExportImportMedia", messageClass<NxClipExportImportMediaMessage>(3035)},
        {"TimelineAddMedia", messageClass<NxTimelineAddMediaMessage>(3008)},
        {"TimelineAudioSyn", messageClass<NxTimelineAudioSynMessage>(3017)},
    };
    return classes;
}

} // namespace

/// The messages between the panel and the rest of the editor.
class tst_MediaMessages : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void eachClassHasItsCode_data();
    void eachClassHasItsCode();
    void eachMessageIsRecognisedAsItsOwnClassAlone_data() { eachClassHasItsCode_data(); }
    void eachMessageIsRecognisedAsItsOwnClassAlone();
    void anImportGoesToTheFirstSectionUnlessItSaysOtherwise();
    void anImportOfExportedClipsNamesAFolder();
    void aRemovalNamesNothingAtFirst();
    void aQuestionForFilesIsEmptyAtFirst();
    void mediaAreAppendedUnlessAskedOtherwise();
    void audioIsSynchronisedBySoundWithoutAQuestion();
    void aCustomMediaIsNotReceivedAtFirst();
    void aSimilarSearchIsOfNoCategoryAtFirst();
};

void tst_MediaMessages::eachClassHasItsCode_data()
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < messageClasses().size(); ++i)
        QTest::newRow(messageClasses()[i].first) << int(i);
}

void tst_MediaMessages::eachClassHasItsCode()
{
    QFETCH(int, index);
    const MessageClass &tested = messageClasses()[size_t(index)].second;
    QCOMPARE(tested.make()->type(), tested.code);
}

void tst_MediaMessages::eachMessageIsRecognisedAsItsOwnClassAlone()
{
    QFETCH(int, index);
    const std::unique_ptr<NxMessage> message = messageClasses()[size_t(index)].second.make();
    for (size_t other = 0; other < messageClasses().size(); ++other)
        QCOMPARE(messageClasses()[other].second.recognises(*message), int(other) == index);
}

void tst_MediaMessages::anImportGoesToTheFirstSectionUnlessItSaysOtherwise()
{
    const NxMediaLibraryImportMediaMessage message;
    QCOMPARE(message.categoryType, NXVBLMODEL::mctMedia);
    QCOMPARE(message.folderId, int(NXVBLMODEL::fidRoot));
    QCOMPARE(message.subFolderName, QString());
    QCOMPARE(message.importKind, int(NXVBLMODEL::mitFiles));
    QVERIFY(message.files.isEmpty());
    QVERIFY(!message.flag1);
    QVERIFY(!message.flag2);
    QVERIFY(message.result.isEmpty());
}

void tst_MediaMessages::anImportOfExportedClipsNamesAFolder()
{
    const NxClipExportImportMediaMessage message;
    QCOMPARE(message.categoryType, NXVBLMODEL::mctMedia);
    QCOMPARE(message.folderName, QString());
    QCOMPARE(message.importKind, int(NXVBLMODEL::mitFiles));
    QVERIFY(message.files.isEmpty());
    QVERIFY(!message.flag1);
    QVERIFY(!message.flag2);
    QVERIFY(message.result.isEmpty());
}

void tst_MediaMessages::aRemovalNamesNothingAtFirst()
{
    const NxMediaLibraryRemoveMediaMessage message;
    QCOMPARE(message.categoryType, NXVBLMODEL::mctMedia);
    QCOMPARE(message.folderId, int(NXVBLMODEL::fidRoot));
    QCOMPARE(message.mediaId, QString());
}

void tst_MediaMessages::aQuestionForFilesIsEmptyAtFirst()
{
    const NxMediaLibraryGetImportFilesMessage message;
    QVERIFY(message.files.isEmpty());
    QVERIFY(message.result.isEmpty());
}

void tst_MediaMessages::mediaAreAppendedUnlessAskedOtherwise()
{
    const NxTimelineAddMediaMessage sent;
    QCOMPARE(sent.addMode, 4);
    QVERIFY(sent.medias.isEmpty());
    const NxTimelineAddMediaResponseMessage answered;
    QCOMPARE(answered.status, 0);
    QVERIFY(answered.medias.isEmpty());
    QVERIFY(NxTimelineAddProjectTemplateResponseMessage().medias.isEmpty());
}

void tst_MediaMessages::audioIsSynchronisedBySoundWithoutAQuestion()
{
    const NxTimelineAudioSynMessage message;
    QVERIFY(!message.first);
    QVERIFY(!message.second);
    QCOMPARE(message.mode, 1);
    QCOMPARE(message.muteChoice, 0);
}

void tst_MediaMessages::aCustomMediaIsNotReceivedAtFirst()
{
    const NxAddCustomMediaItemMessage message;
    QVERIFY(!message.received);
    QVERIFY(!message.alreadyAdded);
    QVERIFY(!message.value.isValid());
}

void tst_MediaMessages::aSimilarSearchIsOfNoCategoryAtFirst()
{
    const NxMediaLibraryFindSimilarMessage message;
    QCOMPARE(message.categoryType, NXVBLMODEL::mctNone);
    QCOMPARE(message.resourceId, qint64(0));
    QCOMPARE(message.keyword, QString());
}

NX_TEST_MAIN(tst_MediaMessages)
#include "tst_MediaMessages.moc"
