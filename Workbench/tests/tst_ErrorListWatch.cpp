#include "ErrorListWatch.h"

#include "CallLog.h"
#include "ErrorModel.h"

#include <QTest>

class tst_ErrorListWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsOfEachChange();
    void tellsOfEveryRowOfABurst();
    void listsWhatThereIs();
    void readsEveryRole();

private:
    void watch(const ErrorListWatch &watch);

    CallLog m_log;
};

void tst_ErrorListWatch::watch(const ErrorListWatch &watch)
{
    const auto logs = [this](const char *word) {
        return [this, word](const ListedError &error) {
            m_log.add(QStringLiteral("%1 %2 %3 %4 %5")
                          .arg(QString::fromLatin1(word), error.key)
                          .arg(error.type)
                          .arg(error.name, error.origin));
        };
    };
    connect(&watch, &ErrorListWatch::raised, this, logs("raised"));
    connect(&watch, &ErrorListWatch::cleared, this, logs("cleared"));
    connect(&watch, &ErrorListWatch::changed, this, logs("changed"));
}

void tst_ErrorListWatch::tellsOfEachChange()
{
    ErrorModel model;
    const ErrorListWatch errors(model);
    watch(errors);
    model.add(QStringLiteral("7_a_g"), 7, QStringLiteral("Days"), QStringLiteral("A"));
    model.setData(model.index(0, 0), QStringLiteral("B"), ErrorModel::Origin);
    model.removeRow(0);
    QCOMPARE(m_log.take(), QStringList({QStringLiteral("raised 7_a_g 7 Days A"),
                                        QStringLiteral("changed 7_a_g 7 Days B"),
                                        QStringLiteral("cleared 7_a_g 7 Days B")}));
}

void tst_ErrorListWatch::tellsOfEveryRowOfABurst()
{
    ErrorModel model;
    for (const char *const key : {"a", "b", "c"})
        model.add(QString::fromLatin1(key), 3, QStringLiteral("N"), QStringLiteral("O"));
    const ErrorListWatch errors(model);
    watch(errors);
    model.removeRows(0, 2);
    QCOMPARE(m_log.take(),
             QStringList({QStringLiteral("cleared a 3 N O"), QStringLiteral("cleared b 3 N O")}));
}

void tst_ErrorListWatch::listsWhatThereIs()
{
    ErrorModel model;
    const ErrorListWatch errors(model);
    QVERIFY(errors.listed().isEmpty());
    model.add(QStringLiteral("a"), 3, QStringLiteral("N"), QStringLiteral("O"));
    QCOMPARE(errors.listed().size(), 1);
    QCOMPARE(errors.listed().at(0).key, QStringLiteral("a"));
}

void tst_ErrorListWatch::readsEveryRole()
{
    ErrorModel model;
    model.add(QStringLiteral("3_st/cam"), 3, QStringLiteral("Camera"), QStringLiteral("Gate"));
    const QModelIndex row = model.index(0, 0);
    model.setData(row, QStringLiteral("st"), ErrorModel::Station);
    model.setData(row, QStringLiteral("st/cam"), ErrorModel::Device);
    model.setData(row, 2, ErrorModel::Category);
    model.setData(row, qint64(1'780'660'800'123), ErrorModel::Time);
    const ListedError error = ErrorListWatch(model).listed().value(0);
    QCOMPARE(error.key, QStringLiteral("3_st/cam"));
    QCOMPARE(error.type, 3);
    QCOMPARE(error.name, QStringLiteral("Camera"));
    QCOMPARE(error.origin, QStringLiteral("Gate"));
    QCOMPARE(error.stationId, QStringLiteral("st"));
    QCOMPARE(error.deviceId, QStringLiteral("st/cam"));
    QCOMPARE(error.category, 2);
    QCOMPARE(error.timeMs, qint64(1'780'660'800'123));
}

QTEST_GUILESS_MAIN(tst_ErrorListWatch)
#include "tst_ErrorListWatch.moc"
