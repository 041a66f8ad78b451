// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ProjectDialogs.h>
#include <Brevano/window/ProjectHolder.h>
#include <Brevano/window/WindowMemory.h>
#include <NxCore/NxMemorySettingsStore.h>
#include <NxWidgets/NxDialogScript.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QFile>
#include <QtTest>

namespace {

/// A user who presses one button, and reads what stands there.
class Reader : public INxDialogAnswerer
{
public:
    NMessageDialogAnswer answer(const NMessageDialogInfo &info) override
    {
        texts.append(info.text);
        defaults.append(info.defaultButton);
        return {button, false};
    }
    QString chooseFile(const NxFileDialogInfo &) override { return {}; }

    int button = mdbAffirmative;
    QStringList texts;
    QList<int> defaults;
};

} // namespace

class tst_ProjectDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aProjectIsOpenedWithoutAWord();
    void aMissingProjectIsMadeWhenTheUserWantsIt();
    void aMissingProjectIsLeftWhenTheUserDoesNotWantIt();
    void whyAProjectCannotBeOpenedIsTold();
    void whyAProjectCannotBeMadeIsTold();

private:
    QString path(const char *name) const { return m_dir->filePath(QLatin1String(name)); }

    std::unique_ptr<NxTempDir> m_dir;
    std::unique_ptr<WindowMemory> m_memory;
    std::unique_ptr<ProjectHolder> m_holder;
    std::unique_ptr<Reader> m_reader;
    std::unique_ptr<NxDialogScript> m_script;
};

void tst_ProjectDialogs::init()
{
    m_dir = std::make_unique<NxTempDir>();
    m_memory = std::make_unique<WindowMemory>(std::make_unique<NxMemorySettingsStore>());
    NxEmbeddedEngine::Options options;
    options.backups = false;
    options.readsFootage = false;
    options.pictureFolder = path("pictures");
    m_holder = std::make_unique<ProjectHolder>(m_memory.get(), options);
    m_reader = std::make_unique<Reader>();
    m_script = std::make_unique<NxDialogScript>(m_reader.get());
}

void tst_ProjectDialogs::cleanup()
{
    m_script.reset();
    m_reader.reset();
    m_holder.reset();
    m_memory.reset();
    m_dir.reset();
}

void tst_ProjectDialogs::aProjectIsOpenedWithoutAWord()
{
    QVERIFY(ProjectDialogs::create(m_holder.get(), path("film.brevano"), nullptr));
    QVERIFY(bool(m_holder->close()));
    QVERIFY(ProjectDialogs::open(m_holder.get(), path("film.brevano"), nullptr));
    QCOMPARE(m_holder->title(), QStringLiteral("film"));
    QCOMPARE(m_reader->texts, QStringList());
}

void tst_ProjectDialogs::aMissingProjectIsMadeWhenTheUserWantsIt()
{
    const QString film = path("film.brevano");
    QVERIFY(ProjectDialogs::open(m_holder.get(), film, nullptr));
    QCOMPARE(
        m_reader->texts,
        QStringList(
            QStringLiteral("There is no project \"%1\".").arg(QDir::toNativeSeparators(film))));
    QCOMPARE(m_holder->path(), film);
    QVERIFY(QFile::exists(film));
}

void tst_ProjectDialogs::aMissingProjectIsLeftWhenTheUserDoesNotWantIt()
{
    m_reader->button = mdbNegative;
    QVERIFY(!ProjectDialogs::open(m_holder.get(), path("film.brevano"), nullptr));
    QCOMPARE(m_reader->defaults, QList<int>{mdbNegative});
    QVERIFY(!m_holder->project());
    QVERIFY(!QFile::exists(path("film.brevano")));
}

void tst_ProjectDialogs::whyAProjectCannotBeOpenedIsTold()
{
    const QString file = m_dir->write(QStringLiteral("letter.txt"), "dear");
    QVERIFY(!ProjectDialogs::open(m_holder.get(), file, nullptr));
    QCOMPARE(m_reader->texts.size(), 1);
    QVERIFY2(m_reader->texts.first().contains(file), qPrintable(m_reader->texts.first()));
}

void tst_ProjectDialogs::whyAProjectCannotBeMadeIsTold()
{
    const QString file = m_dir->write(QStringLiteral("letter.txt"), "dear");
    QVERIFY(!ProjectDialogs::create(m_holder.get(), file, nullptr));
    QCOMPARE(m_reader->texts.size(), 1);
    QVERIFY2(m_reader->texts.first().contains(QLatin1String("exists already")),
             qPrintable(m_reader->texts.first()));
}

NX_TEST_MAIN_WIDGETS(tst_ProjectDialogs)
#include "tst_ProjectDialogs.moc"
