#ifndef DASHBOARDWINDOW_H
#define DASHBOARDWINDOW_H

#include "SystemClipboard.h"

#include <QQuickView>
#include <QUrl>
#include <QVariantList>

/// The window with the dashboard, on a display or off screen.
class DashboardWindow : public QQuickView
{
    Q_OBJECT

public:
    /// Where the dashboard's root component is.
    static QUrl dashboardUrl();

    /// Where a page of the user's is; the dashboard for an empty name.
    static QUrl pageUrl(const QString &fileName);

    /// Throws as the constructor does when a page cannot be compiled, before anything is done.
    static void expectLoadable(QQmlEngine &engine, const QUrl &source);

    /// Loads the dashboard. When it cannot be loaded, throws HostError for the one of this program
    /// and InputError, which names place and reason, for another.
    ///
    /// @param engine   must outlive the window
    /// @param plugin   the initialised plug-in, which must outlive the window
    /// @param siteName shown as the site's name, until setSiteName() is called
    /// @param source   an item with the properties that are set here
    DashboardWindow(QQmlEngine &engine, QObject &plugin, const QString &siteName,
                    const QUrl &source = dashboardUrl());

    /// Gives the dashboard and the window's title the site's name.
    void setSiteName(const QString &siteName);

    /// Tells the dashboard whether the server is connected, and since when that is so.
    void setConnection(bool isConnected, const QDateTime &since);

    /// Tells the dashboard why there is no connection, and when it is tried again; an empty text
    /// and a null date when there is nothing to tell.
    void setConnectionFailure(const QString &reason, const QDateTime &nextAttempt);

    /// Tells the dashboard that the server's clock shows a time now, in milliseconds since the
    /// epoch, and how many seconds pass on it in a real one.
    void setServerTime(qint64 nowMs, double rate);

    /// Tells the dashboard since when the states of all nodes have been known; a null date when
    /// they are not.
    void setStatesSince(const QDateTime &since);

    /// Tells the dashboard of the stations, as stationList() gives them.
    void setStations(const QVariantList &stations);

    /// Tells the dashboard of the snoozes in force, as dashboardSnoozes() gives them.
    void setSnoozes(const QVariantList &snoozes);

    /// Chooses dark or light colours.
    void setDark(bool isDark);

    /// Chooses how many times as large as usual everything is shown.
    void setZoom(double zoom);

    /// Hands the dashboard what writes its files; the object must outlive the window.
    void setFiles(QObject &files);

    /// Hands the dashboard what reads the operational log; the object must outlive the window.
    void setOperationalLog(QObject &log);

    /// Draws the dashboard as it is now and saves the picture, whose format is that of the file's
    /// suffix. The window must be shown. False when the file cannot be written.
    bool saveImage(const QString &fileName);

Q_SIGNALS:
    /// The user chose other colours.
    void darkChanged(bool isDark);
    /// The user chose another size.
    void zoomChanged(double zoom);

private Q_SLOTS:
    void announceDark();
    void announceZoom();

private:
    SystemClipboard m_clipboard;
};

#endif
