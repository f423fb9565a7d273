#include "DashboardWindow.h"

#include "HostError.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QQmlEngine>
#include <QQmlError>
#include <QQmlProperty>
#include <QQuickItem>
#include <QSurfaceFormat>

namespace {

constexpr QSize UsualSize(1280, 800);
constexpr QSize MinimumSize(1024, 640);
constexpr int SmoothingSamples = 4;

QString describe(const QList<QQmlError> &errors)
{
    QStringList lines;
    for (const QQmlError &error : errors)
        lines.append(error.toString());
    return lines.join(u'\n');
}

} // namespace

QUrl DashboardWindow::dashboardUrl()
{
    return QUrl(QStringLiteral("qrc:/qt/qml/Dashboard/DashboardView.qml"));
}

DashboardWindow::DashboardWindow(QQmlEngine &engine, QObject &plugin, const QString &siteName,
                                 const QUrl &source)
    : QQuickView(&engine, nullptr)
{
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    // Drawn by OpenGL, shapes have jagged edges without this.
    QSurfaceFormat smooth = requestedFormat();
    smooth.setSamples(SmoothingSamples);
    setFormat(smooth);
    setTitle(tr("%1 - system monitor").arg(siteName));
    setResizeMode(QQuickView::SizeRootObjectToView);
    setMinimumSize(MinimumSize);
    resize(UsualSize);
    setInitialProperties({{QStringLiteral("plugin"), QVariant::fromValue(&plugin)},
                          {QStringLiteral("siteName"), siteName}});
    setSource(source);
    if (status() != QQuickView::Ready)
        throw HostError(tr("The dashboard cannot be loaded: %1").arg(describe(errors())));
    rootObject()->setProperty("clipboard", QVariant::fromValue<QObject *>(&m_clipboard));
    QQmlProperty(rootObject(), QStringLiteral("dark"))
        .connectNotifySignal(this, SLOT(announceDark()));
}

void DashboardWindow::setConnection(bool isConnected, const QDateTime &since)
{
    rootObject()->setProperty("connectionSince", since);
    rootObject()->setProperty("serverConnected", isConnected);
}

void DashboardWindow::setServerTime(qint64 nowMs, double rate)
{
    const auto realMs = static_cast<double>(QDateTime::currentMSecsSinceEpoch());
    rootObject()->setProperty("serverRate", rate);
    rootObject()->setProperty("serverOffset", static_cast<double>(nowMs) - realMs * rate);
}

void DashboardWindow::setStatesSince(const QDateTime &since)
{
    rootObject()->setProperty("statesSince", since.isValid() ? QVariant(since) : QVariant());
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

void DashboardWindow::setOperationalLog(QObject &log)
{
    rootObject()->setProperty("operationalLog", QVariant::fromValue(&log));
}

void DashboardWindow::announceDark()
{
    Q_EMIT darkChanged(rootObject()->property("dark").toBool());
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
