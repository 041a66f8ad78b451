// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaItemViewAccessible_p.h>

#include <NxMediaLibrary/TextLines.h>
#include <Support/NxBracketLanguage.h>
#include <Support/NxTestMain.h>

#include <QAccessible>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>

#include "MediaViewStand.h"

using namespace NXMEDIALIBRARY;

namespace {

/// Writes down what the view tells assistive programs: "focus 2", "add 3"; -1 for the view.
class News
{
public:
    explicit News(const QObject *about)
    {
        s_about = about;
        s_lines.clear();
        NxMediaItemViewAccessible::setListener(&News::take);
    }
    ~News() { NxMediaItemViewAccessible::setListener(nullptr); }

    static QStringList taken() { return std::exchange(s_lines, {}); }

private:
    static void take(QAccessibleEvent *event)
    {
        static const QHash<int, QString> names{
            {QAccessible::Focus, QStringLiteral("focus")},
            {QAccessible::SelectionAdd, QStringLiteral("add")},
            {QAccessible::SelectionRemove, QStringLiteral("remove")},
            {QAccessible::SelectionWithin, QStringLiteral("within")},
            {QAccessible::NameChanged, QStringLiteral("name")},
        };
        if (event->object() == s_about && names.contains(event->type()))
            s_lines.append(
                QStringLiteral("%1 %2").arg(names.value(event->type())).arg(event->child()));
    }

    static const QObject *s_about; // Not owned.
    static QStringList s_lines;
};

const QObject *News::s_about = nullptr;
QStringList News::s_lines;

/// What assistive programs see of a stand's view.
struct Reader
{
    explicit Reader(MediaViewStand *shown) : stand(shown) {}

    [[nodiscard]] QAccessibleInterface *view() const
    {
        return QAccessible::queryAccessibleInterface(&stand->view);
    }
    [[nodiscard]] QAccessibleInterface *row(const char *text) const
    {
        return view()->child(stand->row(QString::fromLatin1(text)));
    }
    [[nodiscard]] QString name(const char *text) const
    {
        return row(text)->text(QAccessible::Name);
    }
    [[nodiscard]] QAccessible::State state(const char *text) const { return row(text)->state(); }
    void act(const char *text, const QString &action) const
    {
        row(text)->actionInterface()->doAction(action);
    }

    MediaViewStand *const stand; // Not owned.
};

} // namespace

/// What assistive programs, and programs that test others, see and do in the view.
class tst_NxMediaItemView_accessible : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theViewIsAListOfItsRows();
    void namesAreInTheUsersLanguage();
    void rowsSayWhatTheyAre_data();
    void rowsSayWhatTheyAre();
    void aListSaysWhatStandsInItsColumns();
    void rowsSayHowTheyAre();
    void headersSayWhetherTheyAreFolded();
    void rowsAreFoundWhereTheyAre();
    void theFocusIsOnTheCurrentRow();
    void theFocusIsInTheFieldOfAName();
    void rowsLastUntilAReset();
    void manyRowsAreMadeOneByOne();
    void mediaCanBePressedChosenAndRenamed();
    void headersCanBeFolded();
    void tilesCanBePressed();
    void aNameCanBeWritten();
    void changesAreTold();
    void aResetTellsWhereTheFocusIs();
    void aViewThatGoesLeavesNothing();
};

void tst_NxMediaItemView_accessible::theViewIsAListOfItsRows()
{
    MediaViewStand stand("A:x B:x C:y");
    stand.group();
    const Reader reader(&stand);
    QVERIFY(reader.view());
    QCOMPARE(reader.view()->role(), QAccessible::List);
    QCOMPARE(reader.view()->text(QAccessible::Name), QStringLiteral("Media"));
    QCOMPARE(reader.view()->childCount(), 5);
    for (int row = 0; row < 5; ++row) {
        QAccessibleInterface *child = reader.view()->child(row);
        QVERIFY(child && child->isValid());
        QCOMPARE(reader.view()->child(row), child);
        QCOMPARE(reader.view()->indexOfChild(child), row);
        QCOMPARE(child->parent(), reader.view());
        QCOMPARE(child->childCount(), 0);
        QCOMPARE(child->window(), stand.view.windowHandle());
    }
    QVERIFY(!reader.view()->child(-1));
    QVERIFY(!reader.view()->child(5));
    QCOMPARE(reader.view()->indexOfChild(reader.view()), -1);
    QCOMPARE(stand.view.columnHeader()->accessibleName(), QStringLiteral("Columns"));
}

void tst_NxMediaItemView_accessible::namesAreInTheUsersLanguage()
{
    MediaViewStand stand("A");
    stand.media(QStringLiteral("A"))->used = 1;
    const Reader reader(&stand);
    const NxBracketLanguage language;
    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(&stand.view, &change);
    QCOMPARE(reader.view()->text(QAccessible::Name), QStringLiteral("[Media]"));
    QCOMPARE(stand.view.columnHeader()->accessibleName(), QStringLiteral("[Columns]"));
    QCOMPARE(reader.name("A"), QStringLiteral("A, [Video], 00:00:02:00, [used]"));
}

void tst_NxMediaItemView_accessible::rowsSayWhatTheyAre_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<int>("role");
    QTest::addColumn<QString>("name");
    QTest::newRow("film") << "A" << int(QAccessible::ListItem) << "A, Video, 00:00:02:00";
    QTest::newRow("used") << "B" << int(QAccessible::ListItem) << "B, Video, 00:00:02:00, used";
    QTest::newRow("photo") << "P" << int(QAccessible::ListItem) << "P, Photo";
    QTest::newRow("missing") << "gone" << int(QAccessible::ListItem)
                             << "gone, Video, 00:00:02:00, missing";
    QTest::newRow("header") << "[x]" << int(QAccessible::Heading) << "x (4)";
    QTest::newRow("tile") << "+" << int(QAccessible::Button) << "Import Media";
}

void tst_NxMediaItemView_accessible::rowsSayWhatTheyAre()
{
    QFETCH(QString, row);
    QFETCH(int, role);
    QFETCH(QString, name);
    MediaViewStand stand("A:x B:x P:x gone:x", NXVBLMODEL::fkProject);
    stand.media(QStringLiteral("B"))->used = 2;
    stand.media(QStringLiteral("P"))->type = NXVBLMODEL::mtImage;
    stand.group();
    const Reader reader(&stand);
    QAccessibleInterface *child = reader.row(qPrintable(row));
    QCOMPARE(int(child->role()), role);
    QCOMPARE(child->text(QAccessible::Name), name);
    QCOMPARE(child->text(QAccessible::Description), QString());
    QCOMPARE(child->text(QAccessible::Value), QString());
}

void tst_NxMediaItemView_accessible::aListSaysWhatStandsInItsColumns()
{
    MediaViewStand stand("A:x", NXVBLMODEL::fkProject);
    stand.group();
    stand.media(QStringLiteral("A"))->used = 2;
    stand.showList();
    const Reader reader(&stand);
    const auto described = [&](const char *row) {
        return reader.row(row)->text(QAccessible::Description);
    };
    QVERIFY2(described("A").startsWith(QLatin1String("Used: 2; Type: Video; ")),
             qPrintable(described("A")));
    stand.view.columnHeader()->hideSection(1);
    QVERIFY2(described("A").startsWith(QLatin1String("Type: Video; ")), qPrintable(described("A")));
    QCOMPARE(described("[x]"), QString());
    QCOMPARE(described("+"), QString());
}

void tst_NxMediaItemView_accessible::rowsSayHowTheyAre()
{
    MediaViewStand stand("A B C D E F G H I J K L M", NXVBLMODEL::fkProject);
    stand.fit(MediaViewStand::PerLine, 2);
    stand.click(QStringLiteral("A"));
    const Reader reader(&stand);
    const QAccessible::State chosen = reader.state("A");
    QVERIFY(chosen.selectable && chosen.selected && chosen.focusable && chosen.focused);
    QVERIFY(chosen.editable && !chosen.offscreen && !chosen.invisible && !chosen.disabled);
    QVERIFY(!chosen.expandable);
    const QAccessible::State other = reader.state("B");
    QVERIFY(other.selectable && !other.selected && !other.focused);
    QVERIFY(reader.state("M").offscreen);
    const QAccessible::State tile = reader.state("+");
    QVERIFY(!tile.selectable && !tile.selected && !tile.editable && tile.focusable);
    stand.view.setEnabled(false);
    QVERIFY(reader.state("B").disabled);
    stand.view.hide();
    QVERIFY(reader.state("B").invisible);
}

void tst_NxMediaItemView_accessible::headersSayWhetherTheyAreFolded()
{
    MediaViewStand stand("A:x B:y");
    stand.group();
    const Reader reader(&stand);
    QVERIFY(reader.state("[x]").expandable && reader.state("[x]").expanded);
    QVERIFY(!reader.state("[x]").collapsed && !reader.state("[x]").selectable);
    stand.view.setAllExpanded(false);
    QVERIFY(reader.state("[x]").expandable && reader.state("[x]").collapsed);
    QVERIFY(!reader.state("[x]").expanded);
}

void tst_NxMediaItemView_accessible::rowsAreFoundWhereTheyAre()
{
    MediaViewStand stand("A:x B:x");
    stand.group();
    stand.showList();
    const Reader reader(&stand);
    const QPoint origin = stand.view.viewport()->mapToGlobal({0, 0});
    for (const char *row : {"[x]", "A", "B"}) {
        const QRect place = stand.rect(QLatin1String(row)).translated(origin);
        QCOMPARE(reader.row(row)->rect(), place);
        QCOMPARE(reader.view()->childAt(place.center().x(), place.center().y()), reader.row(row));
    }
    const QPoint ground = origin + stand.view.viewport()->rect().bottomRight() - QPoint(2, 2);
    QVERIFY(!reader.view()->childAt(ground.x(), ground.y()));
    QVERIFY(!reader.view()->childAt(origin.x() + 2, origin.y() - 2)); // On the columns' titles.
}

void tst_NxMediaItemView_accessible::theFocusIsOnTheCurrentRow()
{
    MediaViewStand stand("A B C");
    const Reader reader(&stand);
    QCOMPARE(reader.view()->focusChild(), reader.row("A")); // It came with the focus.
    stand.choose(QStringLiteral("B"));
    QCOMPARE(reader.view()->focusChild(), reader.row("B"));
    stand.view.clearFocus();
    QVERIFY(!reader.view()->focusChild());
    QVERIFY(!reader.state("B").focused);
}

void tst_NxMediaItemView_accessible::theFocusIsInTheFieldOfAName()
{
    MediaViewStand stand("A B C");
    const Reader reader(&stand);
    stand.view.editName(stand.media(QStringLiteral("B")));
    auto *field = stand.view.findChild<QLineEdit *>(QStringLiteral("NxEditItem_LineEdit"));
    QVERIFY(field);
    QCOMPARE(reader.view()->focusChild(), QAccessible::queryAccessibleInterface(field));
}

void tst_NxMediaItemView_accessible::rowsLastUntilAReset()
{
    MediaViewStand stand("A B C");
    const Reader reader(&stand);
    const QAccessible::Id before = QAccessible::uniqueId(reader.row("B"));
    QCOMPARE(QAccessible::accessibleInterface(before), reader.row("B"));
    stand.model.load(stand.folder);
    QVERIFY(!QAccessible::accessibleInterface(before));
    QCOMPARE(reader.name("B"), QStringLiteral("B, Video, 00:00:02:00"));
    const QAccessible::Id then = QAccessible::uniqueId(reader.row("C"));
    stand.view.setModel(nullptr);
    QVERIFY(!QAccessible::accessibleInterface(then));
    QCOMPARE(reader.view()->childCount(), 0);
    QVERIFY(!reader.view()->focusChild());
}

void tst_NxMediaItemView_accessible::manyRowsAreMadeOneByOne()
{
    MediaViewStand stand("A");
    constexpr int count = 100'000;
    for (int number = 0; number < count; ++number)
        stand.append(QString::number(number));
    stand.model.load(stand.folder);
    const Reader reader(&stand);
    QCOMPARE(reader.view()->childCount(), count + 1);
    QAccessibleInterface *last = reader.view()->child(count);
    const QAccessible::Id first = QAccessible::uniqueId(last);
    QAccessibleInterface *other = reader.view()->child(0);
    QCOMPARE(QAccessible::uniqueId(other), first + 1); // Ids are given one after the other.
}

void tst_NxMediaItemView_accessible::mediaCanBePressedChosenAndRenamed()
{
    MediaViewStand stand("A B C");
    const Reader reader(&stand);
    QAccessibleActionInterface *actions = reader.row("B")->actionInterface();
    QVERIFY(actions);
    QCOMPARE(actions->actionNames(), lines({"Press", "SetFocus", "Toggle", "Rename"}));
    QCOMPARE(actions->keyBindingsForAction(QStringLiteral("Rename")), lines({"F2"}));
    QSignalSpy activated(&stand.view, &NxMediaItemView::sigMediaActivated);
    reader.act("B", QAccessibleActionInterface::pressAction());
    QCOMPARE(activated.size(), 1);
    QCOMPARE(activated.at(0).at(0).value<INxAbstractMedia *>()->name(), QStringLiteral("B"));
    reader.act("B", QAccessibleActionInterface::setFocusAction());
    QCOMPARE(stand.current(), QStringLiteral("B"));
    QCOMPARE(stand.selected(), QString());
    reader.act("B", QAccessibleActionInterface::toggleAction());
    reader.act("C", QAccessibleActionInterface::toggleAction());
    QCOMPARE(stand.selected(), QStringLiteral("B C"));
    reader.act("B", QAccessibleActionInterface::toggleAction());
    QCOMPARE(stand.selected(), QStringLiteral("C"));
    reader.act("A", QStringLiteral("Fly"));
    QCOMPARE(activated.size(), 1);
    reader.act("A", QStringLiteral("Rename"));
    QVERIFY(stand.view.findChild<QLineEdit *>(QStringLiteral("NxEditItem_LineEdit")));
    QCOMPARE(stand.current(), QStringLiteral("A"));
}

void tst_NxMediaItemView_accessible::headersCanBeFolded()
{
    MediaViewStand stand("A:x B:y");
    stand.group();
    const Reader reader(&stand);
    QCOMPARE(reader.row("[x]")->actionInterface()->actionNames(),
             lines({"Press", "SetFocus", "Toggle"}));
    reader.act("[x]", QAccessibleActionInterface::toggleAction());
    QCOMPARE(stand.rows(), QStringLiteral("[x] [y] B"));
    reader.act("[x]", QAccessibleActionInterface::pressAction());
    QCOMPARE(stand.rows(), QStringLiteral("[x] A [y] B"));
}

void tst_NxMediaItemView_accessible::tilesCanBePressed()
{
    MediaViewStand stand("A B", NXVBLMODEL::fkProject);
    const Reader reader(&stand);
    QSignalSpy asked(&stand.view, &NxMediaItemView::sigImportWanted);
    QCOMPARE(reader.row("+")->actionInterface()->actionNames(), lines({"Press", "SetFocus"}));
    reader.act("+", QAccessibleActionInterface::pressAction());
    QCOMPARE(asked.size(), 1);
    reader.act("+", QStringLiteral("Rename"));
    QVERIFY(!stand.view.findChild<QLineEdit *>(QStringLiteral("NxEditItem_LineEdit")));
}

void tst_NxMediaItemView_accessible::aNameCanBeWritten()
{
    MediaViewStand stand("A B", NXVBLMODEL::fkProject);
    const Reader reader(&stand);
    QSignalSpy wanted(&stand.view, &NxMediaItemView::sigRenameWanted);
    reader.row("A")->setText(QAccessible::Name, QStringLiteral("Dawn"));
    QCOMPARE(wanted.size(), 1);
    QCOMPARE(wanted.at(0).at(0).value<INxAbstractMedia *>()->name(), QStringLiteral("A"));
    QCOMPARE(wanted.at(0).at(1).toString(), QStringLiteral("Dawn"));
    reader.row("A")->setText(QAccessible::Name, QString());
    reader.row("A")->setText(QAccessible::Name, QStringLiteral("A"));
    reader.row("A")->setText(QAccessible::Description, QStringLiteral("Dawn"));
    reader.row("+")->setText(QAccessible::Name, QStringLiteral("Dawn"));
    QCOMPARE(wanted.size(), 1);
}

void tst_NxMediaItemView_accessible::changesAreTold()
{
    MediaViewStand stand("A B C D");
    const News news(&stand.view);
    stand.click(QStringLiteral("A"));
    QCOMPARE(News::taken(), lines({"add 0"}));
    stand.click(QStringLiteral("B"));
    QCOMPARE(News::taken(), lines({"focus 1", "remove 0", "add 1"}));
    stand.click(QStringLiteral("C"), Qt::ControlModifier);
    QCOMPARE(News::taken(), lines({"focus 2", "add 2"}));
    stand.view.selectAll();
    QCOMPARE(News::taken(), lines({"within -1"}));
    stand.model.onMediaStateChangedEvent(stand.media(QStringLiteral("D")));
    QCOMPARE(News::taken(), lines({"name 3"}));
    stand.view.clearFocus();
    News::taken();
    stand.choose(QStringLiteral("A"));
    QVERIFY(!News::taken().contains(QStringLiteral("focus 0")));
}

void tst_NxMediaItemView_accessible::aResetTellsWhereTheFocusIs()
{
    MediaViewStand stand("A B C D");
    stand.choose(QStringLiteral("C"));
    const News news(&stand.view);
    stand.folder->media.removeFirst();
    stand.model.load(stand.folder);
    stand.view.viewport()->grab();
    QStringList told;
    const auto hear = [&] {
        told += News::taken();
        return told;
    };
    QTRY_COMPARE(hear(), lines({"focus 1"}));
}

void tst_NxMediaItemView_accessible::aViewThatGoesLeavesNothing()
{
    QAccessible::Id view = 0;
    QAccessible::Id row = 0;
    {
        MediaViewStand stand("A B");
        const Reader reader(&stand);
        view = QAccessible::uniqueId(reader.view());
        row = QAccessible::uniqueId(reader.row("B"));
    }
    QVERIFY(!QAccessible::accessibleInterface(view));
    QVERIFY(!QAccessible::accessibleInterface(row));
    auto shown = std::make_unique<ShownView>(nullptr);
    ShownMedia media(QStringLiteral("A"));
    ScriptedItemFolder folder;
    folder.media.append(&media);
    NxMediaItemModel model(NXVBLMODEL::mctMedia, nullptr);
    model.load(&folder);
    shown->setModel(&model);
    QAccessibleInterface *first = QAccessible::queryAccessibleInterface(shown.get())->child(0);
    row = QAccessible::uniqueId(first);
    shown.reset();
    QVERIFY(!QAccessible::accessibleInterface(row));
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaItemView_accessible)
#include "tst_NxMediaItemView_accessible.moc"
