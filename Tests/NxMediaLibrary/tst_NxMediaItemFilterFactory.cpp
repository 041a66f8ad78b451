// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemFilterFactory.h>

#include <NxMediaLibrary/NxMediaDataModel/NxStockMediaItemFilter.h>
#include <NxMediaLibrary/NxMediaDataModel/NxVCGMediaItemFilter.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <typeinfo>

using Factory = NxMediaItemFilterFactory;

class tst_NxMediaItemFilterFactory : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void makesTheFilterOfEachFamily();
    void makesANewFilterEachTime();
};

void tst_NxMediaItemFilterFactory::makesTheFilterOfEachFamily()
{
    const std::unique_ptr<INxMediaItemFilter> plain = Factory::createMediaItemFilter();
    const std::unique_ptr<INxMediaItemFilter> stock = Factory::createStockMediaItemFilter();
    const std::unique_ptr<INxMediaItemFilter> provider = Factory::createVCGMediaItemFilter();
    const INxMediaItemFilter &plainFilter = *plain;
    const INxMediaItemFilter &stockFilter = *stock;
    const INxMediaItemFilter &providerFilter = *provider;
    QVERIFY(typeid(plainFilter) == typeid(NxMediaItemFilter));
    QVERIFY(typeid(stockFilter) == typeid(NxStockMediaItemFilter));
    QVERIFY(typeid(providerFilter) == typeid(NxVCGMediaItemFilter));
}

void tst_NxMediaItemFilterFactory::makesANewFilterEachTime()
{
    QVERIFY(Factory::createMediaItemFilter() != Factory::createMediaItemFilter());
    QVERIFY(Factory::createStockMediaItemFilter() != Factory::createStockMediaItemFilter());
    QVERIFY(Factory::createVCGMediaItemFilter() != Factory::createVCGMediaItemFilter());
}

NX_TEST_MAIN(tst_NxMediaItemFilterFactory)
#include "tst_NxMediaItemFilterFactory.moc"
