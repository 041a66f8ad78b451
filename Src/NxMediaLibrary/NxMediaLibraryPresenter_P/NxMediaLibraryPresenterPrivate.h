// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxBaseMediaPresenterPrivate.h>
#include <NxVBLModel/NxMediaTypes.h>

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class INxAbstractMedia;
class INxAbstractMediaItem;
class INxFolderMedia;
class INxFolderMediaManager;
class INxMediaLibrary;
class INxMediaManager;
class NxMediaCategoryPresenter;
class NxMediaLibraryPresenter;
class NxMessage;

class NXMEDIALIBRARY_TEST_EXPORT NxMediaLibraryPresenterPrivate : public NxBaseMediaPresenterPrivate
{
public:
    explicit NxMediaLibraryPresenterPrivate(INxMediaLibrary *mediaLibrary);
    ~NxMediaLibraryPresenterPrivate() override;

    /// Does what a message asks for, by its code. What the panel does not know counts as handled.
    bool dispatch(NxMessage *message);

    /// The child of `parent` of that very name, made when there is none; null when it cannot be.
    static INxFolderMedia *findOrCreateFolder(INxFolderMediaManager *manager,
                                              INxFolderMedia *parent, const QString &name);
    /// Files what a timeline uses into the project's own media.
    void processAddTimelineMediaResponse(NxMessage *message);
    void processTimelineAddProjectTemplateResponse(NxMessage *message);

    INxMediaLibrary *library = nullptr; // Not owned.
    int currentCategory = NXVBLMODEL::mctNone;
    QMap<int, NxMediaCategoryPresenter *> categories; // Children of the presenter, by category.

private:
    /// An import that a message asks for.
    struct ImportRequest
    {
        NXVBLMODEL::NxMediaCategoryType category;
        int kind;
        QStringList files;
        bool firstFlag;
        bool secondFlag;
    };
    /// The file by which a media is recognised in the project; empty for one that is known by
    /// itself alone.
    using FileKey = QString (*)(const INxAbstractMedia *);

    [[nodiscard]] NxMediaLibraryPresenter *q() const;
    [[nodiscard]] INxMediaManager *manager(NXVBLMODEL::NxMediaCategoryType category) const;

    void importMedia(NxMessage *message);
    void importExportedClips(NxMessage *message);
    /// `result` gets what was made before anything else is shown.
    void import(const ImportRequest &request, INxFolderMedia *folder, bool showsFolder,
                QList<INxAbstractMediaItem *> *result);
    void removeMedia(NxMessage *message);
    void getImportFiles(NxMessage *message);
    void addRandomClips(NxMessage *message);
    void addCustomMedia(NxMessage *message);
    void findSimilar(NxMessage *message);
    void startAudioSync(NxMessage *message);
    void applyProxySettings(NxMessage *message);
    [[nodiscard]] int selectedCutPoints();
    void fileIntoProject(INxMediaManager *owner, const QList<INxAbstractMedia *> &medias,
                         FileKey fileKey, const char *function);

    using Handler = void (NxMediaLibraryPresenterPrivate::*)(NxMessage *);
    using Question = bool (*)(const NxMessage *);
    /// What is done about the messages of one code.
    struct MessageRule
    {
        int code;
        Handler handle;
        Question goesOn; ///< Whether other receivers see it, too.
    };
    static const MessageRule s_messageRules[];
};
