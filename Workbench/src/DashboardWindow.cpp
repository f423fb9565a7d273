#include "DashboardWindow.h"

#include "HostError.h"
#include "InputError.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlError>
#include <QQmlProperty>
#include <QQuickItem>
#include <QSurfaceFormat>

namespace {

constexpr QSize UsualSize(1280, 800);
constexpr QSize MinimumSize(1024, 640);
constexpr int SmoothingSamples = 4;

const QString ImportPath = QStringLiteral("qrc:/qt/qml");

// An error without a place of its own is one of the page as a whole.
QString describe(const QQmlError &error, const QUrl &source)
{
    const QUrl url = error.url().isEmpty() ? source : error.url();
    const QString file = url.isLocalFile() ? url.toLocalFile() : url.toString();
    if (error.line() <= 0)
        return file + QStringLiteral(": ") + error.description();
    return DashboardWindow::tr("%1: line %2, column %3: %4")
        .arg(file, QString::number(error.line()), QString::number(error.column()),
             error.description());
}

// What is undefined in QML.
QVariant dateOrNothing(const QDateTime &date)
{
    return date.isValid() ? QVariant(date) : QVariant();
}

[[noreturn]] void refuse(const QUrl &source, const QList<QQmlError> &errors)
{
    QStringList lines;
    for (const QQmlError &error : errors)
        lines.append(describe(error, source));
    const QString text = lines.join(u'\n');
    if (source == DashboardWindow::dashboardUrl())
        throw HostError(DashboardWindow::tr("The dashboard cannot be loaded: %1").arg(text));
    throw InputError(text);
}

} // namespace

QUrl DashboardWindow::dashboardUrl()
{
    return QUrl(QStringLiteral("qrc:/qt/qml/Dashboard/DashboardView.qml"));
}

QUrl DashboardWindow::pageUrl(const QString &fileName)
{
    return fileName.isEmpty() ? dashboardUrl()
                              : QUrl::fromLocalFile(QFileInfo(fileName).absoluteFilePath());
}

void DashboardWindow::expectLoadable(QQmlEngine &engine, const QUrl &source)
{
    engine.addImportPath(ImportPath);
    const QQmlComponent component(&engine, source);
    if (component.isError())
        refuse(source, component.errors());
}

DashboardWindow::DashboardWindow(QQmlEngine &engine, QObject &plugin, const QString &siteName,
                                 const QUrl &source)
    : QQuickView(&engine, nullptr)
{
    engine.addImportPath(ImportPath);
    // Drawn by OpenGL, shapes have jagged edges without this.
    QSurfaceFormat smooth = requestedFormat();
    smooth.setSamples(SmoothingSamples);
    setFormat(smooth);
    setResizeMode(QQuickView::SizeRootObjectToView);
    setMinimumSize(MinimumSize);
    resize(UsualSize);
    setInitialProperties({{QStringLiteral("plugin"), QVariant::fromValue(&plugin)},
                          {QStringLiteral("siteName"), siteName}});
    setSource(source);
    if (status() != QQuickView::Ready)
        refuse(source, errors());
    setSiteName(siteName);
    rootObject()->setProperty("clipboard", QVariant::fromValue<QObject *>(&m_clipboard));
    QQmlProperty(rootObject(), QStringLiteral("dark"))
        .connectNotifySignal(this, SLOT(announceDark()));
    QQmlProperty(rootObject(), QStringLiteral("zoom"))
        .connectNotifySignal(this, SLOT(announceZoom()));
}

void DashboardWindow::setSiteName(const QString &siteName)
{
    setTitle(tr("%1 - system monitor").arg(siteName));
    rootObject()->setProperty("siteName", siteName);
}

void DashboardWindow::setConnection(bool isConnected, const QDateTime &since)
{
    rootObject()->setProperty("connectionSince", since);
    rootObject()->setProperty("serverConnected", isConnected);
}

void DashboardWindow::setConnectionFailure(const QString &reason, const QDateTime &nextAttempt)
{
    rootObject()->setProperty("connectionFailure", reason);
    rootObject()->setProperty("nextAttempt", dateOrNothing(nextAttempt));
}

void DashboardWindow::setServerTime(qint64 nowMs, double rate)
{
    const auto realMs = static_cast<double>(QDateTime::currentMSecsSinceEpoch());
    rootObject()->setProperty("serverRate", rate);
    rootObject()->setProperty("serverOffset", static_cast<double>(nowMs) - realMs * rate);
}

void DashboardWindow::setStatesSince(const QDateTime &since)
{
    rootObject()->setProperty("statesSince", dateOrNothing(since));
}

void DashboardWindow::setStations(const QVariantList &stations)
{
    rootObject()->setProperty("stations", stations);
}

void DashboardWindow::setSnoozes(const QVariantList &snoozes)
{
    rootObject()->setProperty("snoozes", snoozes);
}

void DashboardWindow::setDark(bool isDark)
{
    rootObject()->setProperty("dark", isDark);
}

void DashboardWindow::setZoom(double zoom)
{
    rootObject()->setProperty("zoom", zoom);
}

void DashboardWindow::setOperationalLog(QObject &log)
{
    rootObject()->setProperty("operationalLog", QVariant::fromValue(&log));
}

void DashboardWindow::announceDark()
{
    Q_EMIT darkChanged(rootObject()->property("dark").toBool());
}

void DashboardWindow::announceZoom()
{
    Q_EMIT zoomChanged(rootObject()->property("zoom").toDouble());
}

void DashboardWindow::setFiles(QObject &files)
{
    rootObject()->setProperty("files", QVariant::fromValue(&files));
}

bool DashboardWindow::saveImage(const QString &fileName)
{
    QDir().mkpath(QFileInfo(fileName).absolutePath());
    return grabWindow().save(fileName);
}
