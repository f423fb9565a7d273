#ifndef LOCALSITE_H
#define LOCALSITE_H

#include "LocalServerLink.h"
#include "LocalStation.h"
#include "SiteActor.h"
#include "SiteServer.h"
#include "SiteWatch.h"

/// A site that runs in the Workbench's own process, with this machine as one more
/// station.
class LocalSite
{
public:
    /// @param site  this machine among its stations
    /// @param store keeps the snoozes, or null; like the clock, it must outlive this object
    LocalSite(const Site &site, Clock &clock, SnoozeStore *store = nullptr);

    ServerLink &link() { return m_link; }
    SiteActor &actor() { return m_actor; }
    /// Tells of this machine's load.
    LocalStation &thisMachine() { return m_thisMachine; }
    /// Watches what is real of the site, once it is started.
    SiteWatch &watch() { return m_watch; }

    /// Starts anew with the site as it was at first.
    void reset() { m_server.reset(m_initialSite); }

private:
    const Site m_initialSite;
    SiteServer m_server;
    LocalServerLink m_link;
    SiteActor m_actor;
    LocalStation m_thisMachine;
    SiteWatch m_watch;
};

#endif
