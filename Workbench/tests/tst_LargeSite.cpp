#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

namespace {

struct Outcome
{
    int exitCode = -1;
    QString errors;
    QJsonObject cameraErrors; ///< how many were raised, cleared, and are listed in the end
};

Outcome run(const QStringList &arguments)
{
    QProcess program;
    program.start(QStringLiteral(WORKBENCH_PROGRAM),
                  QStringList{QStringLiteral("--headless"), QStringLiteral("--format"),
                              QStringLiteral("json")}
                      + arguments);
    Outcome outcome;
    if (!program.waitForFinished(60'000) || program.exitStatus() != QProcess::NormalExit)
        return outcome;
    outcome.exitCode = program.exitCode();
    outcome.errors = QString::fromUtf8(program.readAllStandardError());
    const QByteArray lastLine = program.readAllStandardOutput().trimmed().split('\n').last();
    const QJsonObject kinds =
        QJsonDocument::fromJson(lastLine).object().value(QStringLiteral("kinds")).toObject();
    outcome.cameraErrors = kinds.value(QStringLiteral("camera")).toObject();
    return outcome;
}

} // namespace

/// The program on a site of ten thousand cameras.
class tst_LargeSite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noChangeOfAFlappingSiteIsLost();
};

// A thousand changes a second make 30,000 losses in the minute; then one of the stations loses its
// hundred cameras.
void tst_LargeSite::noChangeOfAFlappingSiteIsLost()
{
    const Outcome outcome =
        run({QStringLiteral("--site"), QStringLiteral("large"), QStringLiteral("--scenario"),
             QStringLiteral("flap"), QStringLiteral("--speed"), QStringLiteral("200")});
    QCOMPARE(outcome.errors, QString());
    const QJsonObject expected{{QStringLiteral("raised"), 30'100},
                               {QStringLiteral("cleared"), 30'000},
                               {QStringLiteral("listed"), 100}};
    QCOMPARE(outcome.cameraErrors, expected);
    QCOMPARE(outcome.exitCode, 1);
}

QTEST_GUILESS_MAIN(tst_LargeSite)
#include "tst_LargeSite.moc"
