#ifndef SITEWATCH_H
#define SITEWATCH_H

#include "CameraWatch.h"

#include <QNetworkAccessManager>
#include <QObject>

#include <memory>
#include <vector>

class SiteServer;
class StationWatch;

/// Watches those stations and cameras of a site that stand for real ones, and tells the site's
/// server what is found. Time is the real one here, however fast the site's clock runs.
class SiteWatch : public QObject
{
    Q_OBJECT

public:
    /// @param site   names what is to be watched; nothing in most sites
    /// @param server must outlive this object
    SiteWatch(SiteServer &server, const Site &site, QObject *parent = nullptr);
    ~SiteWatch() override;

    SiteWatch(const SiteWatch &) = delete;
    SiteWatch &operator=(const SiteWatch &) = delete;

    void start();

Q_SIGNALS:
    /// A node has not answered for some time, and counts as disconnected.
    void lost(const QString &nodeId, const QString &reason);
    void back(const QString &nodeId);

private:
    void add(SiteServer &server, const Station &station);

    QNetworkAccessManager m_manager;
    std::vector<std::unique_ptr<StationWatch>> m_stations;
    CameraWatch m_cameras;
};

#endif
