#include "NamedCall.h"

#include <QRegularExpression>
#include <QTest>

namespace {

class Speaker : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    Q_INVOKABLE QString joined(const QString &text, int number, bool flag, double share)
    {
        return QStringLiteral("%1 %2 %3 %4").arg(text).arg(number).arg(flag).arg(share);
    }
    Q_INVOKABLE int number() { return 1; }
    Q_INVOKABLE int number(int number) { return number; }
    Q_INVOKABLE int sum(int, int, int, int, int) { return 5; }
    Q_INVOKABLE QObject *self() { return this; }
    Q_INVOKABLE void note(const QVariantList &list) { m_noted = list; }

    const QVariantList &noted() const { return m_noted; }

Q_SIGNALS:
    void spoken();

private Q_SLOTS:
    QString whispered() { return QStringLiteral("psst"); }

private:
    QVariantList m_noted;
};

} // namespace

class tst_NamedCall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void methodsGoByNameAndNumberOfArguments();
    void signalsAreNoMethods();
    void argumentsAreConverted();
    void resultsOfAnyTypeComeBack();
    void privateSlotsCanBeCalled();
    void whatReturnsNothingIsCalled();
    void whatIsMissingIsNotCalled();
};

void tst_NamedCall::methodsGoByNameAndNumberOfArguments()
{
    Speaker speaker;
    QCOMPARE(methodByName(speaker, "number", 0).methodSignature(), QByteArray("number()"));
    QCOMPARE(methodByName(speaker, "number", 1).methodSignature(), QByteArray("number(int)"));
    QVERIFY(!methodByName(speaker, "number", 2).isValid());
    QVERIFY(!methodByName(speaker, "silence", 0).isValid());
    QCOMPARE(callByName(speaker, "number", {}).toInt(), 1);
    QCOMPARE(callByName(speaker, "number", {7}).toInt(), 7);
}

void tst_NamedCall::signalsAreNoMethods()
{
    QVERIFY(!methodByName(Speaker(), "spoken", 0).isValid());
}

// A journal has numbers as JSON has them.
void tst_NamedCall::argumentsAreConverted()
{
    Speaker speaker;
    QCOMPARE(callByName(speaker, "joined", {QStringLiteral("a"), 2.0, 1, 3}).toString(),
             QStringLiteral("a 2 1 3"));
    QCOMPARE(callByName(speaker, "number", {QStringLiteral("12")}).toInt(), 12);
}

void tst_NamedCall::resultsOfAnyTypeComeBack()
{
    Speaker speaker;
    QCOMPARE(callByName(speaker, "self", {}).value<QObject *>(), &speaker);
}

void tst_NamedCall::privateSlotsCanBeCalled()
{
    Speaker speaker;
    QCOMPARE(callByName(speaker, "whispered", {}).toString(), QStringLiteral("psst"));
}

void tst_NamedCall::whatReturnsNothingIsCalled()
{
    Speaker speaker;
    const QVariantList list{1, QStringLiteral("b")};
    QVERIFY(!callByName(speaker, "note", {QVariant(list)}).isValid());
    QCOMPARE(speaker.noted(), list);
}

void tst_NamedCall::whatIsMissingIsNotCalled()
{
    Speaker speaker;
    QVERIFY(!callByName(speaker, "silence", {}).isValid());
    QVERIFY(!callByName(speaker, "joined", {QStringLiteral("a")}).isValid());
    QVERIFY(!callByName(speaker, "sum", {1, 2, 3, 4, 5}).isValid());
}

QTEST_GUILESS_MAIN(tst_NamedCall)
#include "tst_NamedCall.moc"
