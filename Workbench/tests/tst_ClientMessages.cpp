#include "ClientMessages.h"

#include <QJsonValue>
#include <QTest>

class tst_ClientMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void helloComesThroughUnchanged_data();
    void helloComesThroughUnchanged();
    void commandsComeThroughUnchanged_data();
    void commandsComeThroughUnchanged();
};

void tst_ClientMessages::helloComesThroughUnchanged_data()
{
    QTest::addColumn<QString>("token");
    QTest::newRow("without a token") << QString();
    QTest::newRow("with a token") << QStringLiteral("a \"token\" ä");
}

void tst_ClientMessages::helloComesThroughUnchanged()
{
    QFETCH(QString, token);
    const QString text = toText(ClientMessage::Hello{token});
    QCOMPARE(std::get<ClientMessage::Hello>(readClientMessage(text)).token, token);
}

void tst_ClientMessages::commandsComeThroughUnchanged_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<QString>("target");
    QTest::newRow("bare") << QVariant() << QString();
    QTest::newRow("list of texts")
        << QVariant(QStringList{QStringLiteral("c1")}) << QStringLiteral("north");
    QTest::newRow("map") << QVariant(QVariantMap{{QStringLiteral("timestamp"), 1'780'660'800LL}})
                         << QString();
}

void tst_ClientMessages::commandsComeThroughUnchanged()
{
    QFETCH(QVariant, data);
    QFETCH(QString, target);
    const QString text = toText(ClientMessage::Command{7, QStringLiteral("do"), data, target});
    const auto read = std::get<ClientMessage::Command>(readClientMessage(text));
    QCOMPARE(read.id, 7);
    QCOMPARE(read.name, QStringLiteral("do"));
    QCOMPARE(read.target, target);
    QCOMPARE(QJsonValue::fromVariant(read.data), QJsonValue::fromVariant(data));
}

QTEST_GUILESS_MAIN(tst_ClientMessages)
#include "tst_ClientMessages.moc"
