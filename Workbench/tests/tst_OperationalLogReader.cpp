#include "OperationalLogReader.h"

#include "OperationalLogPlugin.h"
#include "OperationalLogStore.h"
#include "VirtualClock.h"

#include <QSignalSpy>
#include <QTest>

class tst_OperationalLogReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entriesComeNewestFirstWithTheirTexts();
    void knownEntriesAreNamedInWords();
    void textIsSoughtInNamesAndParameters_data();
    void textIsSoughtInNamesAndParameters();
    void limitCountsHitsOnly();
    void tellsOfNewEntries();

private:
    QStringList found(const QString &text, int limit = 10) const;

    VirtualClock m_clock;
    OperationalLogStore m_log{QString()};
    OperationalLogPlugin m_plugin{m_log, m_clock};
    OperationalLogReader m_reader{m_log, m_plugin};
};

QStringList tst_OperationalLogReader::found(const QString &text, int limit) const
{
    QStringList names;
    const QVariantList list = m_reader.newest(limit, text);
    for (const QVariant &entry : list)
        names.append(entry.toMap().value(QStringLiteral("name")).toString());
    return names;
}

void tst_OperationalLogReader::entriesComeNewestFirstWithTheirTexts()
{
    m_log.add({QDateTime::fromMSecsSinceEpoch(1'780'660'800'123),
               QStringLiteral("Login"),
               {QStringLiteral("Süd"), 3}});
    m_log.add({QDateTime::fromMSecsSinceEpoch(1'780'660'801'000), QStringLiteral("Logout"), {}});
    const QVariantList list = m_reader.newest(10, QString());
    QCOMPARE(list.size(), 2);
    const QVariantMap oldest = list.at(1).toMap();
    QCOMPARE(oldest.value(QStringLiteral("time")).toLongLong(), 1'780'660'800'123);
    QCOMPARE(oldest.value(QStringLiteral("name")).toString(), QStringLiteral("Login"));
    QCOMPARE(oldest.value(QStringLiteral("parameters")).toStringList(),
             QStringList({QStringLiteral("Süd"), QStringLiteral("3")}));
    QCOMPARE(found(QString(), 1), QStringList{QStringLiteral("Logout")});
}

void tst_OperationalLogReader::knownEntriesAreNamedInWords()
{
    m_log.add({QDateTime(), QStringLiteral("AddDashboardSnooze"), {}});
    QCOMPARE(found(QString(), 1), QStringList{QStringLiteral("Error snoozed")});
}

void tst_OperationalLogReader::textIsSoughtInNamesAndParameters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("name") << QStringLiteral("LOGI") << QStringList{QStringLiteral("Login")};
    QTest::newRow("words of a name")
        << QStringLiteral("snoozed") << QStringList{QStringLiteral("Error snoozed")};
    QTest::newRow("letters beyond ASCII")
        << QStringLiteral("SÜD") << QStringList{QStringLiteral("Login")};
    QTest::newRow("number") << QStringLiteral("3") << QStringList{QStringLiteral("Login")};
    QTest::newRow("signs of the file's own") << QStringLiteral("\",") << QStringList();
    QTest::newRow("nothing") << QStringLiteral("none such") << QStringList();
}

void tst_OperationalLogReader::textIsSoughtInNamesAndParameters()
{
    QFETCH(QString, text);
    QFETCH(QStringList, names);
    QCOMPARE(found(text), names);
}

void tst_OperationalLogReader::limitCountsHitsOnly()
{
    QCOMPARE(found(QStringLiteral("login"), 1), QStringList{QStringLiteral("Login")});
    QCOMPARE(found(QStringLiteral("log"), 1), QStringList{QStringLiteral("Logout")});
    QCOMPARE(found(QString(), 0), QStringList());
}

void tst_OperationalLogReader::tellsOfNewEntries()
{
    const QSignalSpy changes(&m_reader, &OperationalLogReader::changed);
    m_plugin.addOperationalLog(QStringLiteral("x"), {});
    QCOMPARE(changes.size(), 1);
}

QTEST_GUILESS_MAIN(tst_OperationalLogReader)
#include "tst_OperationalLogReader.moc"
