#ifndef READMETRICS_H
#define READMETRICS_H

#include <QByteArray>
#include <QProcess>
#include <QStringList>
#include <QTest>

/// The samples of an OpenMetrics text as an independent parser reads them: type, name, labels,
/// value and unit. Where the text breaks a rule, the one entry is what the parser says of it.
inline QStringList readMetrics(const QByteArray &text)
{
    QProcess reader;
    // Names in any alphabet, whatever the locale of the test.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PYTHONIOENCODING"), QStringLiteral("utf-8"));
    reader.setProcessEnvironment(environment);
    // The system's own Python, which has the packages of the system.
    reader.start(QStringLiteral("/usr/bin/python3"), {QFINDTESTDATA("data/read-metrics.py")});
    reader.write(text);
    reader.closeWriteChannel();
    reader.waitForFinished();
    const QByteArray output =
        reader.exitCode() == 0 ? reader.readAllStandardOutput() : reader.readAllStandardError();
    return QString::fromUtf8(output).split(u'\n', Qt::SkipEmptyParts);
}

#endif
