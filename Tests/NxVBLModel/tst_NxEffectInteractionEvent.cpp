// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxEffectInteractionEvent.h>

#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <Support/NxTestMain.h>

#include <QTest>

using Member = QVariant NxEffectInteractionEvent::*;
Q_DECLARE_METATYPE(Member)

namespace {

struct TrackingEngine final : INxMediaEngine
{
    void trackEvent(const NxTrackEvent &event) override
    {
        names += event.name();
        sent += event.toJson();
    }
    QStringList names;
    QStringList sent;
};

const QVector<QPair<QString, Member>> &fields()
{
    static const QVector<QPair<QString, Member>> table{
        {QStringLiteral("effect_name"), &NxEffectInteractionEvent::effectName},
        {QStringLiteral("res_id"), &NxEffectInteractionEvent::resId},
        {QStringLiteral("rank_id"), &NxEffectInteractionEvent::rankId},
        {QStringLiteral("current_sort_name"), &NxEffectInteractionEvent::currentSortName},
        {QStringLiteral("current_sort_by"), &NxEffectInteractionEvent::currentSortBy},
        {QStringLiteral("effect_type"), &NxEffectInteractionEvent::effectType},
        {QStringLiteral("effect_category"), &NxEffectInteractionEvent::effectCategory},
        {QStringLiteral("search_session_id"), &NxEffectInteractionEvent::searchSessionId},
        {QStringLiteral("current_keyword"), &NxEffectInteractionEvent::currentKeyword},
        {QStringLiteral("algorithm"), &NxEffectInteractionEvent::algorithm},
        {QStringLiteral("catalog_name_path"), &NxEffectInteractionEvent::catalogNamePath},
        {QStringLiteral("catalog_id_path"), &NxEffectInteractionEvent::catalogIdPath},
        {QStringLiteral("effect_payment_attri"), &NxEffectInteractionEvent::effectPaymentAttri},
        {QStringLiteral("interaction_type"), &NxEffectInteractionEvent::interactionType},
        {QStringLiteral("effect_type_filter"), &NxEffectInteractionEvent::effectTypeFilter},
        {QStringLiteral("effect_pay_filter"), &NxEffectInteractionEvent::effectPayFilter},
        {QStringLiteral("similar_session_id"), &NxEffectInteractionEvent::similarSessionId},
        {QStringLiteral("project_template_name"), &NxEffectInteractionEvent::projectTemplateName},
        {QStringLiteral("text_border_count"), &NxEffectInteractionEvent::textBorderCount},
        {QStringLiteral("text_shadow_count"), &NxEffectInteractionEvent::textShadowCount},
    };
    return table;
}

} // namespace

class tst_NxEffectInteractionEvent : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void hasItsFixedName();
    void sendsNoFieldThatIsNotKnown();
    void sendsAFieldUnderItsKey_data();
    void sendsAFieldUnderItsKey();
    void sendsItsFieldsInOneOrderHoweverTheyWereFilled();
    void sendsAnEmptyText();
    void isFilledFromAPreparedMap();
    void aMapLeavesTheFieldsThatItDoesNotName();
    void ignoresKeysThatAreNoFields();
    void sendsWhatItHoldsNowWhenSentAgain();
    void keepsPropertiesOfItsOwn();
    void isSentThroughItsBase();
};

void tst_NxEffectInteractionEvent::hasItsFixedName()
{
    QCOMPARE(NxEffectInteractionEvent().name(), QStringLiteral("effect_interaction"));
}

void tst_NxEffectInteractionEvent::sendsNoFieldThatIsNotKnown()
{
    TrackingEngine engine;
    const NxMediaEngineDoor door(&engine);
    NxEffectInteractionEvent().sendEvent();
    QCOMPARE(engine.sent, QStringList{QStringLiteral("{}")});
    QCOMPARE(engine.names, QStringList{QStringLiteral("effect_interaction")});
}

void tst_NxEffectInteractionEvent::sendsAFieldUnderItsKey_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<Member>("field");
    for (const auto &field : fields())
        QTest::newRow(qUtf8Printable(field.first)) << field.first << field.second;
}

void tst_NxEffectInteractionEvent::sendsAFieldUnderItsKey()
{
    QFETCH(QString, key);
    QFETCH(Member, field);
    TrackingEngine engine;
    const NxMediaEngineDoor door(&engine);
    NxEffectInteractionEvent event;
    event.*field = 17;
    event.sendEvent();
    QCOMPARE(engine.sent, QStringList{QStringLiteral("{\"%1\":17}").arg(key)});
}

void tst_NxEffectInteractionEvent::sendsItsFieldsInOneOrderHoweverTheyWereFilled()
{
    TrackingEngine engine;
    const NxMediaEngineDoor door(&engine);
    NxEffectInteractionEvent event;
    QStringList expected;
    for (int i = fields().size() - 1; i >= 0; --i) {
        event.*fields().at(i).second = i;
        expected.prepend(QStringLiteral("\"%1\":%2").arg(fields().at(i).first).arg(i));
    }
    event.sendEvent();
    QCOMPARE(engine.sent,
             QStringList{QLatin1Char('{') + expected.join(QLatin1Char(',')) + QLatin1Char('}')});
}

void tst_NxEffectInteractionEvent::sendsAnEmptyText()
{
    TrackingEngine engine;
    const NxMediaEngineDoor door(&engine);
    NxEffectInteractionEvent event;
    event.currentKeyword = QString();
    event.sendEvent();
    QCOMPARE(engine.sent, QStringList{QStringLiteral(R"({"current_keyword":""})")});
}

void tst_NxEffectInteractionEvent::isFilledFromAPreparedMap()
{
    QVariantMap prepared;
    for (int i = 0; i < fields().size(); ++i)
        prepared.insert(fields().at(i).first, i);
    NxEffectInteractionEvent event;
    event.setFields(prepared);
    for (int i = 0; i < fields().size(); ++i)
        QCOMPARE(event.*fields().at(i).second, QVariant(i));
}

void tst_NxEffectInteractionEvent::aMapLeavesTheFieldsThatItDoesNotName()
{
    NxEffectInteractionEvent event;
    event.effectName = QStringLiteral("Glow");
    event.resId = 5;
    event.setFields({{QStringLiteral("res_id"), 6}});
    QCOMPARE(event.effectName, QVariant(QStringLiteral("Glow")));
    QCOMPARE(event.resId, QVariant(6));
}

void tst_NxEffectInteractionEvent::ignoresKeysThatAreNoFields()
{
    TrackingEngine engine;
    const NxMediaEngineDoor door(&engine);
    NxEffectInteractionEvent event;
    event.setFields({{QStringLiteral("mood"), 1}, {QStringLiteral("rank_id"), 2}});
    event.sendEvent();
    QCOMPARE(engine.sent, QStringList{QStringLiteral(R"({"rank_id":2})")});
}

void tst_NxEffectInteractionEvent::sendsWhatItHoldsNowWhenSentAgain()
{
    TrackingEngine engine;
    const NxMediaEngineDoor door(&engine);
    NxEffectInteractionEvent event;
    event.resId = 1;
    event.sendEvent();
    event.resId = QVariant();
    event.algorithm = QStringLiteral("b");
    event.effectName = QStringLiteral("Glow");
    event.sendEvent();
    QCOMPARE(engine.sent.last(), QStringLiteral(R"({"effect_name":"Glow","algorithm":"b"})"));
}

void tst_NxEffectInteractionEvent::keepsPropertiesOfItsOwn()
{
    TrackingEngine engine;
    const NxMediaEngineDoor door(&engine);
    NxEffectInteractionEvent event;
    event.setProperty(QStringLiteral("host"), QStringLiteral("test"));
    event.resId = 1;
    event.sendEvent();
    QCOMPARE(engine.sent, QStringList{QStringLiteral(R"({"host":"test","res_id":1})")});
}

void tst_NxEffectInteractionEvent::isSentThroughItsBase()
{
    TrackingEngine engine;
    const NxMediaEngineDoor door(&engine);
    NxEffectInteractionEvent event;
    event.rankId = 3;
    NxTrackEvent &base = event;
    base.sendEvent();
    QCOMPARE(engine.sent, QStringList{QStringLiteral(R"({"rank_id":3})")});
}

NX_TEST_MAIN(tst_NxEffectInteractionEvent)
#include "tst_NxEffectInteractionEvent.moc"
