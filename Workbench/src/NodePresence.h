#ifndef NODEPRESENCE_H
#define NODEPRESENCE_H

#include "Site.h"

#include <QObject>

class SiteServer;

/// Tells a site server whether a real station or camera answers.
///
/// What the server says follows what is found: a node that a scenario or a user has reported
/// otherwise is set right with the next answers. One that has been taken out of the site is left
/// alone.
class NodePresence : public QObject
{
    Q_OBJECT

public:
    /// @param server    must outlive this object
    /// @param lostAfter how many attempts in a row must fail before the node counts as lost
    NodePresence(SiteServer &server, NodeType type, const QString &nodeId, int lostAfter,
                 QObject *parent = nullptr);

    void answered();
    void failed(const QString &reason);

Q_SIGNALS:
    /// The server has been told.
    void lost(const QString &nodeId, const QString &reason);
    void back(const QString &nodeId);

private:
    bool isIn(bool connected) const;
    void setConnected(bool connected);

    SiteServer &m_server;
    const NodeType m_type;
    const QString m_nodeId;
    const int m_lostAfter;
    int m_failures = 0; // in a row
};

#endif
