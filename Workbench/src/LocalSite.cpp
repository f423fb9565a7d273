#include "LocalSite.h"

LocalSite::LocalSite(const Site &site, Clock &clock, SnoozeStore *store)
    : m_initialSite(site)
    , m_server(site, clock, store)
    , m_link(m_server)
    , m_actor(m_server)
    , m_thisMachine(m_server, NetworkCounters())
    , m_watch(m_server, site)
{ }
