#ifndef SERVEDSITE_H
#define SERVEDSITE_H

#include "ServerGate.h"
#include "SiteServer.h"
#include "TestSite.h"
#include "VirtualClock.h"

/// The small test site on a virtual clock, served at a free port of this machine.
struct ServedSite
{
    explicit ServedSite(const AccessToken &token = {})
        : server(testSite(), clock)
        , gate(server, token, clock)
    {
        gate.listen(QHostAddress::LocalHost, 0);
    }

    VirtualClock clock;
    SiteServer server;
    ServerGate gate;
};

#endif
