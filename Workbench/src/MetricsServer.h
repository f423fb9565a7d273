#ifndef METRICSSERVER_H
#define METRICSSERVER_H

#include "Metrics.h"

#include <QTcpServer>

class QTcpSocket;

/// What a client of a MetricsServer may take.
struct MetricsLimits
{
    int requestBytes = 8192;  ///< of a request line and headers
    int connectionMs = 5000;  ///< from the connection until the client has its answer
    int connections = 16;     ///< at the same time
    int acceptPauseMs = 1000; ///< without new connections, after one that could not be taken
};

/// Answers GET /metrics on this machine's loopback address with the figures of a Workbench.
///
/// It speaks just so much HTTP: one request a connection, without a body. Whatever else comes is
/// refused with the status that fits; a connection that takes too long, or is one too many, ends
/// without an answer.
class MetricsServer : public QObject
{
    Q_OBJECT

public:
    /// @param workbench must outlive the server
    /// @param port      0 for one that is free. Throws HostError when it cannot be used
    MetricsServer(Workbench &workbench, quint16 port, const MetricsLimits &limits = {});

    quint16 port() const { return m_tcp.serverPort(); }

private:
    void takeConnections();
    void takeRequest(QTcpSocket &socket);
    void answer(QTcpSocket &socket, int status);

    const MetricsLimits m_limits;
    Metrics m_metrics;
    int m_connectionCount = 0;
    QTcpServer m_tcp; // ends its connections, which are counted, when it goes
};

#endif
