#include "InputFailure.h"
#include "ScenarioFile.h"
#include "SiteFile.h"
#include "TextFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

/// Holds the program to the table of right and wrong files to which check_schemas.py holds the
/// schemas.
class tst_SchemaCases : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void programAndSchemasJudgeAlike_data();
    void programAndSchemasJudgeAlike();
};

void tst_SchemaCases::programAndSchemasJudgeAlike_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isValid");
    QFile file(QStringLiteral(SCHEMA_CASES));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonArray cases = QJsonDocument::fromJson(file.readAll()).array();
    QVERIFY(!cases.isEmpty());
    for (const auto &value : cases) {
        const QString kind = value[QStringLiteral("kind")].toString();
        QTest::addRow("%s: %s", qPrintable(kind),
                      qPrintable(value[QStringLiteral("name")].toString()))
            << kind << QJsonDocument(value[QStringLiteral("document")].toObject()).toJson()
            << value[QStringLiteral("valid")].toBool();
    }
}

void tst_SchemaCases::programAndSchemasJudgeAlike()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, text);
    QFETCH(bool, isValid);
    const TextFile file(text);
    const QString failure = inputFailure([&kind, &file] {
        if (kind == QStringLiteral("site"))
            readSiteFile(file.path());
        else
            readScenarioFile(file.path(),
                             readSiteFile(QStringLiteral(":/workbench/sites/default.json")));
    });
    QVERIFY2(failure.isEmpty() == isValid, qPrintable(failure));
}

QTEST_GUILESS_MAIN(tst_SchemaCases)
#include "tst_SchemaCases.moc"
