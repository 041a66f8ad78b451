// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NxFileDialog.h>

#include "FileDialogUser.h"

#include <NxCore/NxCustomProductInfo.h>
#include <NxWidgets/NMaskManager.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QComboBox>
#include <QDir>
#include <QListView>
#include <QMessageBox>
#include <QScreen>
#include <QToolButton>

#include <memory>

using Button = QDialogButtonBox::StandardButton;

Q_DECLARE_METATYPE(FileDialogUser::Deed)

namespace {

const QString Clips = QStringLiteral("Video (*.MP4;*.MOV)");

QString choose(const QString &directory, const FileDialogUser::Deed &deed,
               const QString &filter = {})
{
    const FileDialogUser user(deed);
    return NxFileDialog::getOpenFileName(nullptr, QStringLiteral("Relink"), directory, filter);
}

/// Where a dialog begins that is told to begin there.
QString beginning(const QString &directory)
{
    QString shown;
    const QString chosen = choose(directory, [&shown](QFileDialog &dialog) {
        shown = dialog.directory().absolutePath();
        dialog.close();
    });
    return chosen.isEmpty() ? shown : QStringLiteral("chosen: ") + chosen;
}

/// What the dialog lists, in the order of the names.
QStringList listed(const QFileDialog &dialog)
{
    const auto *view = dialog.findChild<QListView *>(QStringLiteral("listView"));
    QStringList names;
    for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row)
        names += view->model()->index(row, 0, view->rootIndex()).data().toString();
    names.sort();
    return names;
}

/// A window with a widget in it, one in another.
struct Window
{
    Window()
    {
        window->resize(300, 200);
        window->show();
    }
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    QWidget *box = new QWidget(window.get());
    QWidget *view = new QWidget(box);
};

} // namespace

class tst_NxFileDialog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void answersTheFileThatIsTyped_data();
    void answersTheFileThatIsTyped();
    void answersTheFileThatIsConfirmed_data();
    void answersTheFileThatIsConfirmed();
    void answersTheFileThatIsDoubleClicked();
    void answersNothingWhenItIsLeft_data();
    void answersNothingWhenItIsLeft();
    void waitsForAFileThatIsThere();
    void goesIntoFolders();
    void saysWhatItAsksFor_data();
    void saysWhatItAsksFor();
    void writesPatternsAsTheSystemWantsThem_data();
    void writesPatternsAsTheSystemWantsThem();
    void offersOnlyFilesThatFit_data();
    void offersOnlyFilesThatFit();
    void listsTheFilesOfAnotherChoice();
    void manyPatternsFitOnTheScreen();
    void proposesAName_data();
    void proposesAName();
    void takesTheProposedName();
    void beginsWhereItIsTold();
    void beginsWhereTheLastOneEnded_data();
    void beginsWhereTheLastOneEnded();
    void beginsAtHomeWithoutAPlace_data();
    void beginsAtHomeWithoutAPlace();
    void windowsAreMaskedWhileItWaits();
    void survivesItsParent_data();
    void survivesItsParent();
    void changesNoFiles();

private:
    const NxTempDir m_dir;
};

void tst_NxFileDialog::init()
{
    NxFileDialog::setStartDirectory({});
}

void tst_NxFileDialog::answersTheFileThatIsTyped_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("typed");
    const auto row = [this](const char *name, const char *file, const QString &typed = {}) {
        const QString there = QString::fromUtf8(file);
        m_dir.write(there);
        QTest::newRow(name) << there << (typed.isEmpty() ? there : typed);
    };
    row("a name", "beach.mp4");
    row("with blanks", "at the beach.mp4");
    row("of other scripts", "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D \xF0\x9F\x8E\x89.mov");
    row("without suffix", "beach");
    row("that the filter hides", "notes.txt");
    row("hidden", ".beach.mp4");
    row("in a folder", "day1/beach.mp4");
    row("whole", "day2/beach.mp4", m_dir.filePath(QStringLiteral("day2/beach.mp4")));
    row("with detours", "day3/beach.mp4", QStringLiteral("day3/../day3/./beach.mp4"));
}

void tst_NxFileDialog::answersTheFileThatIsTyped()
{
    QFETCH(QString, file);
    QFETCH(QString, typed);
    QCOMPARE(choose(m_dir.path(), FileDialogUser::choosing(typed), Clips), m_dir.filePath(file));
}

void tst_NxFileDialog::answersTheFileThatIsConfirmed_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("the mouse") << 0;
}

void tst_NxFileDialog::answersTheFileThatIsConfirmed()
{
    QFETCH(int, key);
    const QString file = m_dir.write(QStringLiteral("confirmed.mp4"));
    const auto deed = [key](const QFileDialog &dialog) {
        FileDialogUser::enter(dialog, QStringLiteral("confirmed.mp4"));
        if (key)
            QTest::keyClick(FileDialogUser::nameEdit(dialog), Qt::Key(key));
        else
            FileDialogUser::click(dialog, QDialogButtonBox::Open);
    };
    QCOMPARE(choose(m_dir.path(), deed), file);
}

void tst_NxFileDialog::answersTheFileThatIsDoubleClicked()
{
    const QString file = m_dir.write(QStringLiteral("click/only.mp4"));
    const auto deed = [](const QFileDialog &dialog) {
        QTRY_COMPARE(listed(dialog), QStringList(QStringLiteral("only.mp4")));
        auto *view = dialog.findChild<QListView *>(QStringLiteral("listView"));
        const QModelIndex index = view->model()->index(0, 0, view->rootIndex());
        const QPoint there = view->visualRect(index).center();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, there);
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, there);
    };
    QCOMPARE(choose(m_dir.filePath(QStringLiteral("click")), deed, Clips), file);
}

void tst_NxFileDialog::answersNothingWhenItIsLeft_data()
{
    QTest::addColumn<FileDialogUser::Deed>("deed");
    const auto row = [](const char *name, const FileDialogUser::Deed &deed) {
        QTest::newRow(name) << deed;
    };
    row("Escape", FileDialogUser::typing({Qt::Key_Escape}));
    row("the cancel button",
        [](const QFileDialog &dialog) { FileDialogUser::click(dialog, QDialogButtonBox::Cancel); });
    row("the window's close", [](QFileDialog &dialog) { dialog.close(); });
    row("hidden", [](QFileDialog &dialog) { dialog.hide(); });
}

void tst_NxFileDialog::answersNothingWhenItIsLeft()
{
    QFETCH(FileDialogUser::Deed, deed);
    m_dir.write(QStringLiteral("left.mp4"));
    const QString chosen = choose(m_dir.path(), [&deed](QFileDialog &dialog) {
        FileDialogUser::enter(dialog, QStringLiteral("left.mp4"));
        deed(dialog);
    });
    QVERIFY(chosen.isNull());
}

void tst_NxFileDialog::waitsForAFileThatIsThere()
{
    const UserOf<QMessageBox> warned(
        [](const QMessageBox &box) { QTest::mouseClick(box.buttons().first(), Qt::LeftButton); });
    const QString file = m_dir.write(QStringLiteral("there.mp4"));
    const QString chosen = choose(m_dir.path(), [&warned](const QFileDialog &dialog) {
        FileDialogUser::enter(dialog, QStringLiteral("gone.mp4"));
        QVERIFY(!FileDialogUser::button(dialog, QDialogButtonBox::Open)->isEnabled());
        QTest::keyClick(FileDialogUser::nameEdit(dialog), Qt::Key_Return);
        QCOMPARE(warned.dialogs(), 1);
        QVERIFY(dialog.isVisible());
        FileDialogUser::choose(dialog, QStringLiteral("there.mp4"));
    });
    QCOMPARE(chosen, file);
}

void tst_NxFileDialog::goesIntoFolders()
{
    const QString file = m_dir.write(QStringLiteral("outer/inner/deep.mp4"));
    const QString chosen = choose(m_dir.path(), [this](const QFileDialog &dialog) {
        FileDialogUser::choose(dialog, QStringLiteral("outer/inner"));
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.directory().path(), m_dir.filePath(QStringLiteral("outer/inner")));
        FileDialogUser::choose(dialog, QStringLiteral("deep.mp4"));
    });
    QCOMPARE(chosen, file);
}

void tst_NxFileDialog::saysWhatItAsksFor_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("shown");
    QTest::newRow("a title") << QStringLiteral("Relink") << QStringLiteral("Relink");
    QTest::newRow("none") << QString() << NxCustomProductInfo::NGetProductName();
}

void tst_NxFileDialog::saysWhatItAsksFor()
{
    QFETCH(QString, title);
    QFETCH(QString, shown);
    QWidget parent;
    const FileDialogUser user([&](QFileDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), shown);
        QCOMPARE(dialog.parentWidget(), &parent);
        dialog.close();
    });
    QCOMPARE(NxFileDialog::getOpenFileName(&parent, title, m_dir.path(), Clips), QString());
    QCOMPARE(user.dialogs(), 1);
}

void tst_NxFileDialog::writesPatternsAsTheSystemWantsThem_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("withCase");
    QTest::addColumn<QString>("withoutCase");
    const auto row = [](const char *name, const char *filter, const char *withCase,
                        const char *withoutCase) {
        QTest::newRow(name) << QString::fromLatin1(filter) << QString::fromLatin1(withCase)
                            << QString::fromLatin1(withoutCase);
    };
    row("none", "", "", "");
    row("nothing but separators", ";; ;", "", "");
    row("patterns alone", "*.MP4;*.MOV", "*.MP4 *.mp4 *.MOV *.mov", "*.MP4 *.MOV");
    row("one choice", "Video (*.MP4;*.MOV)", "Video (*.MP4 *.mp4 *.MOV *.mov)",
        "Video (*.MP4 *.MOV)");
    row("no blank before the patterns", "Video(*.MP4)", "Video (*.MP4 *.mp4)", "Video (*.MP4)");
    row("several choices", "Video (*.MP4);;Sound (*.MP3)",
        "Video (*.MP4 *.mp4);;Sound (*.MP3 *.mp3)", "Video (*.MP4);;Sound (*.MP3)");
    row("empty patterns", "Video (;*.MP4;;*.MOV; ;);;Sound(*.MP3;)",
        "Video (*.MP4 *.mp4 *.MOV *.mov);;Sound (*.MP3 *.mp3)",
        "Video (*.MP4 *.MOV);;Sound (*.MP3)");
    row("blanks", "Video (*.MP4; *.MOV ) ;; Sound (*.MP3)",
        "Video (*.MP4 *.mp4 *.MOV *.mov);;Sound (*.MP3 *.mp3)",
        "Video (*.MP4 *.MOV);;Sound (*.MP3)");
    row("a choice without patterns", "Video ();;Sound (*.MP3);;Text ( ;)", "Sound (*.MP3 *.mp3)",
        "Sound (*.MP3)");
    row("only choices without patterns", "Video ();;Text ( ;)", "", "");
    row("parentheses in a name", "Video (HD) (*.MP4);;Sound (*.MP3)",
        "Video (HD) (*.MP4 *.mp4);;Sound (*.MP3 *.mp3)", "Video (HD) (*.MP4);;Sound (*.MP3)");
    row("small ones", "*.mp4;*.mov", "*.mp4 *.mov", "*.mp4 *.mov");
    row("twice", "*.MP4;*.mp4;*.MP4", "*.MP4 *.mp4", "*.MP4 *.mp4");
    row("everything", "All files(*.*)", "All files (*)", "All files (*)");
}

void tst_NxFileDialog::writesPatternsAsTheSystemWantsThem()
{
    QFETCH(QString, filter);
#ifdef Q_OS_WIN
    QFETCH(QString, withoutCase);
    QCOMPARE(NxFileDialog::nameFilter(filter), withoutCase);
#else
    QFETCH(QString, withCase);
    QCOMPARE(NxFileDialog::nameFilter(filter), withCase);
#endif
}

void tst_NxFileDialog::offersOnlyFilesThatFit_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("choices");
    QTest::addColumn<QStringList>("fitting");
    const auto row = [](const char *name, const QString &filter, const QString &choices,
                        const QStringList &fitting) {
        QTest::newRow(name) << filter << choices << fitting;
    };
    const QString film = QStringLiteral("film.MP4");
    const QString small = QStringLiteral("film.mov");
    const QString folder = QStringLiteral("folder");
    const QString notes = QStringLiteral("notes");
    const QString all = QStringLiteral("All Files");
    row("the first choice", QStringLiteral("Video(*.MP4;);;Other(*.MOV;);;All files(*.*)"),
        QStringLiteral("Video|Other|All files"), {film, folder});
    row("of any case", QStringLiteral("Video (*.MP4;*.MOV)"), QStringLiteral("Video"),
        {film, small, folder});
    row("everything", QStringLiteral("Any (*.*)"), QStringLiteral("Any"),
        {film, small, folder, notes});
    row("no filter", QString(), all, {film, small, folder, notes});
    row("an empty filter", QStringLiteral(" ;"), all, {film, small, folder, notes});
}

void tst_NxFileDialog::offersOnlyFilesThatFit()
{
    QFETCH(QString, filter);
    QFETCH(QString, choices);
    QFETCH(QStringList, fitting);
    const NxTempDir dir;
    dir.write(QStringLiteral("film.MP4"));
    dir.write(QStringLiteral("film.mov"));
    dir.write(QStringLiteral("notes"));
    dir.makeDir(QStringLiteral("folder"));
    const auto look = [&](QFileDialog &dialog) {
        QTRY_COMPARE(listed(dialog), fitting);
        const auto *box = dialog.findChild<QComboBox *>(QStringLiteral("fileTypeCombo"));
        QStringList offered;
        for (int i = 0; i < box->count(); ++i)
            offered += box->itemText(i);
        QCOMPARE(offered.join(QLatin1Char('|')), choices);
        dialog.close();
    };
    choose(dir.path(), look, filter);
}

void tst_NxFileDialog::listsTheFilesOfAnotherChoice()
{
    const QString file = m_dir.write(QStringLiteral("choices/a.mov"));
    m_dir.write(QStringLiteral("choices/b.mp4"));
    const auto deed = [](const QFileDialog &dialog) {
        QTRY_COMPARE(listed(dialog), QStringList(QStringLiteral("b.mp4")));
        QTest::keyClick(dialog.findChild<QComboBox *>(QStringLiteral("fileTypeCombo")),
                        Qt::Key_Down);
        QTRY_COMPARE(listed(dialog), QStringList(QStringLiteral("a.mov")));
        FileDialogUser::choose(dialog, QStringLiteral("a.mov"));
    };
    const QString filter = QStringLiteral("Video (*.MP4);;Other (*.MOV)");
    QCOMPARE(choose(m_dir.filePath(QStringLiteral("choices")), deed, filter), file);
}

void tst_NxFileDialog::manyPatternsFitOnTheScreen()
{
    QString patterns;
    for (int i = 0; i < 120; ++i)
        patterns += QStringLiteral("*.FILM%1;").arg(i);
    const auto look = [](QFileDialog &dialog) {
        QVERIFY(dialog.width() <= dialog.screen()->availableGeometry().width());
        dialog.close();
    };
    choose(m_dir.path(), look, QStringLiteral("Video (%1)").arg(patterns));
    choose(m_dir.path(), look, patterns);
}

void tst_NxFileDialog::proposesAName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("of a file that is there") << QStringLiteral("proposed.mp4");
    QTest::newRow("of a lost file") << QStringLiteral("lost.mp4");
    QTest::newRow("none") << QString();
}

void tst_NxFileDialog::proposesAName()
{
    QFETCH(QString, name);
    m_dir.write(QStringLiteral("proposed.mp4"));
    NxFileDialogInfo info;
    info.directory = m_dir.path();
    info.fileName = name;
    const FileDialogUser user([&](QFileDialog &dialog) {
        QCOMPARE(dialog.directory().path(), m_dir.path());
        QCOMPARE(FileDialogUser::nameEdit(dialog)->text(), name);
        dialog.close();
    });
    QCOMPARE(NxFileDialog::getOpenFileName(nullptr, info), QString());
    QCOMPARE(user.dialogs(), 1);
}

void tst_NxFileDialog::takesTheProposedName()
{
    NxFileDialogInfo info;
    info.directory = m_dir.path();
    info.fileName = QStringLiteral("accepted.mp4");
    const QString file = m_dir.write(info.fileName);
    const FileDialogUser user(FileDialogUser::typing({Qt::Key_Return}));
    QCOMPARE(NxFileDialog::getOpenFileName(nullptr, info), file);
}

void tst_NxFileDialog::beginsWhereItIsTold()
{
    const QString told = m_dir.makeDir(QStringLiteral("told"));
    const QString other = m_dir.makeDir(QStringLiteral("other"));
    NxFileDialog::setStartDirectory(other);
    QCOMPARE(beginning(told), told);
    NxFileDialog::setStartDirectory(other);
    QCOMPARE(beginning(m_dir.write(QStringLiteral("told/no folder"))), other);
}

void tst_NxFileDialog::beginsWhereTheLastOneEnded_data()
{
    QTest::addColumn<FileDialogUser::Deed>("deed");
    QTest::addColumn<QString>("folder");
    const auto row = [](const char *name, const char *folder, const FileDialogUser::Deed &deed) {
        QTest::newRow(name) << deed << QString::fromLatin1(folder);
    };
    const auto leaving = [](QFileDialog &dialog) {
        FileDialogUser::choose(dialog, QStringLiteral("away"));
        dialog.close();
    };
    row("a file was chosen", "ended", FileDialogUser::choosing(QStringLiteral("clip.mp4")));
    row("elsewhere", "ended/away", FileDialogUser::choosing(QStringLiteral("away/clip.mp4")));
    row("nothing was chosen", "ended", [](QFileDialog &dialog) { dialog.close(); });
    row("nothing was chosen elsewhere", "ended/away", leaving);
}

void tst_NxFileDialog::beginsWhereTheLastOneEnded()
{
    QFETCH(FileDialogUser::Deed, deed);
    QFETCH(QString, folder);
    m_dir.write(QStringLiteral("ended/clip.mp4"));
    m_dir.write(QStringLiteral("ended/away/clip.mp4"));
    choose(m_dir.filePath(QStringLiteral("ended")), deed);
    QCOMPARE(beginning({}), m_dir.filePath(folder));
    for (const char *noFolder : {"nowhere", "ended/clip.mp4"})
        QCOMPARE(beginning(m_dir.filePath(QLatin1String(noFolder))), m_dir.filePath(folder));
}

void tst_NxFileDialog::beginsAtHomeWithoutAPlace_data()
{
    QTest::addColumn<QString>("told");
    QTest::addColumn<QString>("remembered");
    const QString gone = m_dir.filePath(QStringLiteral("gone"));
    const QString file = m_dir.write(QStringLiteral("file.mp4"));
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("the last one's folder is gone") << QString() << gone;
    QTest::newRow("both are gone") << gone << gone;
    QTest::newRow("files") << file << file;
}

void tst_NxFileDialog::beginsAtHomeWithoutAPlace()
{
    QFETCH(QString, told);
    QFETCH(QString, remembered);
    NxFileDialog::setStartDirectory(remembered);
    QCOMPARE(beginning(told), QDir::homePath());
}

void tst_NxFileDialog::windowsAreMaskedWhileItWaits()
{
    const Window window;
    const auto lightness = [](QWidget *grabbed) {
        return grabbed->grab().toImage().pixelColor(1, 1).lightness();
    };
    const int before = lightness(window.window.get());
    choose(m_dir.path(), [&](QFileDialog &dialog) {
        QVERIFY(NMaskManager::GetInstance()->IsMaskVisible());
        QVERIFY(lightness(window.window.get()) < before);
        QCOMPARE(lightness(&dialog), before);
        dialog.close();
    });
    QVERIFY(!NMaskManager::GetInstance()->IsMaskVisible());
    QCOMPARE(lightness(window.window.get()), before);
}

void tst_NxFileDialog::survivesItsParent_data()
{
    QTest::addColumn<int>("generations");
    QTest::newRow("the parent dies") << 0;
    QTest::newRow("the parent's parent dies") << 1;
    QTest::newRow("the window dies") << 2;
}

void tst_NxFileDialog::survivesItsParent()
{
    QFETCH(int, generations);
    m_dir.write(QStringLiteral("orphan.mp4"));
    Window window;
    const auto deed = [&](const QFileDialog &dialog) {
        FileDialogUser::enter(dialog, QStringLiteral("orphan.mp4"));
        if (generations == 2)
            window.window.reset();
        else
            delete (generations == 1 ? window.box : window.view);
    };
    {
        const FileDialogUser user(deed);
        QCOMPARE(NxFileDialog::getOpenFileName(window.view, {}, m_dir.path(), {}), QString());
        QCOMPARE(user.dialogs(), 1);
    }
    QVERIFY(!NMaskManager::GetInstance()->IsMaskVisible());
    QCOMPARE(beginning({}), m_dir.path());
}

void tst_NxFileDialog::changesNoFiles()
{
    const QString file = m_dir.write(QStringLiteral("kept/clip.mp4"));
    choose(m_dir.filePath(QStringLiteral("kept")), [](QFileDialog &dialog) {
        QTRY_COMPARE(listed(dialog).size(), 1);
        auto *view = dialog.findChild<QListView *>(QStringLiteral("listView"));
        view->setCurrentIndex(view->model()->index(0, 0, view->rootIndex()));
        QTest::keyClick(view, Qt::Key_F2);
        QVERIFY(!view->viewport()->findChild<QLineEdit *>());
        QTest::keyClick(view, Qt::Key_Delete);
        QVERIFY(!dialog.findChild<QToolButton *>(QStringLiteral("newFolderButton"))->isEnabled());
        dialog.close();
    });
    QVERIFY(QFile::exists(file));
}

NX_TEST_MAIN_WIDGETS(tst_NxFileDialog)
#include "tst_NxFileDialog.moc"
