// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FootageYard.h"

#include <Footage/NxFootageMutations.h>
#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QHash>
#include <QJsonDocument>
#include <QtTest>

#include <sys/resource.h>

namespace {

/// Processor time of all processes that were started and waited for, in ms. Their workers count.
qint64 workOfEndedProcesses()
{
    constexpr qint64 perSecond = 1'000;
    const auto inMilliseconds = [](const timeval &time) {
        return qint64(time.tv_sec) * perSecond + qint64(time.tv_usec) / perSecond;
    };
    rusage work = {};
    (void)::getrusage(RUSAGE_CHILDREN, &work);
    return inMilliseconds(work.ru_utime) + inMilliseconds(work.ru_stime);
}

constexpr int filesOfAProject = 70;

QByteArray wholeContent(const QString &recipe)
{
    QFile file(NxFootageSet::path(NxFootageRecipes::named(recipe)));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qUtf8Printable(recipe), qUtf8Printable(file.errorString()));
    return file.readAll();
}

bool hasText(const QJsonObject &info, const char *key)
{
    return !info.value(QLatin1String(key)).toString().isEmpty();
}

/// What a file must tell that was read, by its kind: one of these.
bool hasFacts(const QJsonObject &info)
{
    return info.value(QLatin1String("duration_ms")).toDouble() > 0
           || info.value(QLatin1String("width")).toInt() > 0
           || info.value(QLatin1String("sample_rate")).toInt() > 0;
}

/// What is wrong with the end of one picture: made, or with a reason not made.
QString faultOfPicture(const QJsonObject &info, const QString &picture)
{
    const QString state = info.value(picture + QLatin1String("_state")).toString();
    const QString path = info.value(picture).toString();
    const QString reason = info.value(picture + QLatin1String("_reason")).toString();
    if (state == QLatin1String("made"))
        return QFile::exists(path) ? QString() : picture + QLatin1String(" is not there");
    if (state == QLatin1String("none"))
        return path.isEmpty() ? QString() : picture + QLatin1String(" is there");
    if (state == QLatin1String("failed") && path.isEmpty() && !reason.isEmpty())
        return {};
    return QStringLiteral("%1 is \"%2\": %3").arg(picture, state, reason);
}

/// Writes the damaged files of one project; answers their paths.
QStringList damagedFiles(const Yard &yard, int first)
{
    const std::vector<NxFootageMutation> all = NxFootageMutations::all();
    QStringList paths;
    for (int number = first; number < qMin(first + filesOfAProject, int(all.size())); ++number) {
        const NxFootageMutation &mutation = all.at(size_t(number));
        paths += yard.clip(mutation.name(), mutation.applied(wholeContent(mutation.recipe)));
    }
    return paths;
}

/// What an import said against files, by their paths.
QHash<QString, QString> reasonsOf(const ProgramResult &imported)
{
    QHash<QString, QString> reasons;
    const QVector<QJsonObject> lines = imported.objects();
    for (const QJsonObject &line : lines)
        reasons.insert(line.value(QLatin1String("path")).toString(),
                       line.value(QLatin1String("reason")).toString());
    return reasons;
}

/// What is wrong with what a damaged file tells; empty when nothing is.
QString faultOf(const QJsonObject &info)
{
    const QString state = info.value(QLatin1String("read")).toString();
    if (state == QLatin1String("failed")) {
        const QString path = info.value(QLatin1String("path")).toString();
        const QString reason = info.value(QLatin1String("reason")).toString();
        const bool isSentence = hasText(info, "reason") && !reason.contains(path);
        return isSentence ? QString() : QStringLiteral("no reason: \"%1\"").arg(reason);
    }
    if (state != QLatin1String("done") || !hasFacts(info)) {
        return QStringLiteral("neither facts nor reason: ")
               + QString::fromUtf8(QJsonDocument(info).toJson(QJsonDocument::Compact));
    }
    QString fault = faultOfPicture(info, QStringLiteral("cover"));
    if (fault.isEmpty())
        fault = faultOfPicture(info, QStringLiteral("strip"));
    return fault;
}

} // namespace

class tst_DamagedFootage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyDamagedFileEndsWithFactsOrAReason_data();
    void everyDamagedFileEndsWithFactsOrAReason();
};

void tst_DamagedFootage::everyDamagedFileEndsWithFactsOrAReason_data()
{
    QTest::addColumn<int>("first");

    const int count = int(NxFootageMutations::all().size());
    for (int first = 0; first < count; first += filesOfAProject) {
        QTest::addRow("damages %d to %d", first + 1, qMin(first + filesOfAProject, count)) << first;
    }
}

void tst_DamagedFootage::everyDamagedFileEndsWithFactsOrAReason()
{
    QFETCH(int, first);

    constexpr qint64 longest = 15'000; // ms of work for one file, the program's start included
    const FootageYard footage;
    const QStringList paths = damagedFiles(footage.yard(), first);
    const NxFootageGuard guard(footage.yard().footage());
    const ProgramResult imported = footage.imported(footage.yard().footage());
    QVERIFY2(imported.code == 0 || imported.code == 3, imported.story().constData());

    const QHash<QString, QString> reasons = reasonsOf(imported);
    const QStringList added = footage.yard().paths();
    QStringList faults;
    int unreadable = 0;
    for (const QString &path : paths) {
        if (!added.contains(path)) {
            if (reasons.value(path).isEmpty())
                faults += path + QLatin1String(": left out without a reason");
            continue;
        }
        const qint64 before = workOfEndedProcesses();
        const QJsonObject info = footage.info(path, {0, 3});
        unreadable += info.value(QLatin1String("read")) == QLatin1String("failed") ? 1 : 0;
        const QString fault = faultOf(info);
        if (!fault.isEmpty())
            faults += path + QLatin1String(": ") + fault;
        const qint64 work = workOfEndedProcesses() - before;
        if (work > longest)
            faults += QStringLiteral("%1 took %2 ms").arg(path).arg(work);
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
    const QJsonObject checked = footage.yard().run("check", {QStringLiteral("--json")}).summary();
    QCOMPARE(checked.value(QLatin1String("unreadable")).toInt(-1), unreadable);
    QCOMPARE(checked.value(QLatin1String("missing")).toInt(-1), 0);
    QCOMPARE(checked.value(QLatin1String("integrity")).toInt(-1), 0);
    NX_VERIFY_UNTOUCHED(guard);
}

NX_TEST_MAIN(tst_DamagedFootage)
#include "tst_DamagedFootage.moc"
