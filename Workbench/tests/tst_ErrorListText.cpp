#include "ErrorListText.h"

#include "ErrorModel.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QTest>

class tst_ErrorListText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void emptyListIsNoText();
    void rowsAreLinesInTheirOrder();
    void rolesAreSortedByTheirNames();
    void timesAreLeftOut();
};

void tst_ErrorListText::emptyListIsNoText()
{
    QCOMPARE(errorListText(ErrorModel()), QStringList());
}

void tst_ErrorListText::rowsAreLinesInTheirOrder()
{
    ErrorModel errors;
    for (const char *const key : {"3_b", "3_a", "3_c"})
        errors.add(QString::fromLatin1(key), 3, {}, {});
    const QStringList lines = errorListText(errors);
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines.at(0).endsWith(QStringLiteral("uniqueIDRole=3_b")));
    QVERIFY(lines.at(1).endsWith(QStringLiteral("uniqueIDRole=3_a")));
    QVERIFY(lines.at(2).endsWith(QStringLiteral("uniqueIDRole=3_c")));
}

// The numbers of roles may differ from one version of the plug-in to the next.
void tst_ErrorListText::rolesAreSortedByTheirNames()
{
    ErrorModel errors;
    errors.add(QStringLiteral("3_c"), 3, QStringLiteral("Lost"), QStringLiteral("Door; back"));
    QCOMPARE(errorListText(errors),
             QStringList{QStringLiteral("deviceIDRole=; errorCategoryRole=; errorNameRole=Lost; "
                                        "errorTypeRole=3; stationIDRole=; "
                                        "triggerDeviceNameRole=Door; back; uniqueIDRole=3_c")});
}

void tst_ErrorListText::timesAreLeftOut()
{
    ErrorModel errors;
    errors.add(QStringLiteral("3_c"), 3, {}, {});
    const QStringList before = errorListText(errors);
    errors.item(0)->setData(QDateTime::currentDateTime(), ErrorModel::Time);
    QCOMPARE(errorListText(errors), before);
}

QTEST_GUILESS_MAIN(tst_ErrorListText)
#include "tst_ErrorListText.moc"
