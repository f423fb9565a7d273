#ifndef REALPROGRAMS_H
#define REALPROGRAMS_H

#include "TextFile.h"

#include <QByteArray>
#include <QProcess>
#include <QStringList>

#include <memory>

/// A port of this machine that nobody listens on.
quint16 freePort();

/// A program that runs until it is stopped or the test ends.
class Program
{
public:
    Program(const QString &program, const QStringList &arguments);
    ~Program();

    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// Waits for the first line of its output. False when it ends without one.
    bool printsALine();

private:
    QProcess m_process;
};

/// Whether Debian's prometheus-node-exporter is there.
bool hasExporter();

/// An exporter that reads what a kernel tells below a folder, such as /proc.
std::unique_ptr<Program> startExporter(quint16 port, const QString &machine);

/// A site whose one station, "recorder", stands for the machine of such an exporter.
///
/// @param cameras of the station, objects of a site's file
QByteArray siteWith(quint16 exporterPort, const QByteArray &cameras = {});

/// The Workbench without a window on a site where no scenario happens, and what it has printed so
/// far.
class HeadlessWorkbench
{
public:
    /// @param cpuThreshold in percent; no load is above 101
    HeadlessWorkbench(const QByteArray &site, int cpuThreshold);
    ~HeadlessWorkbench();

    HeadlessWorkbench(const HeadlessWorkbench &) = delete;
    HeadlessWorkbench &operator=(const HeadlessWorkbench &) = delete;

    /// Waits for lines that are printed after those of the call before, in any order.
    bool prints(QStringList texts);

    QByteArray output() const { return m_output.join(QString()).toUtf8(); }

private:
    TextFile m_site;
    TextFile m_scenario;
    QProcess m_process;
    QStringList m_output;
};

#endif
