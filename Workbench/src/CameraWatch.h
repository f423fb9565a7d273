#ifndef CAMERAWATCH_H
#define CAMERAWATCH_H

#include "Site.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <deque>

class CameraProbe;
class NodePresence;
class SiteServer;

/// How often real cameras are asked, and how long they may be silent.
struct CameraPace
{
    std::chrono::milliseconds interval{3000}; ///< from the end of one attempt to the next
    std::chrono::milliseconds timeout{2000};
    int lostAfter = 2; ///< failed attempts in a row
    int atATime = 8;   ///< attempts under way, of all cameras
};

/// Real cameras: has each one asked again and again whether it is there, and reports when it is
/// not.
///
/// The first attempts are spread over one interval. Where more cameras are due than may be asked at
/// a time, they wait for their turn.
class CameraWatch : public QObject
{
    Q_OBJECT

public:
    /// @param server must outlive this object
    explicit CameraWatch(SiteServer &server, CameraPace pace = {}, QObject *parent = nullptr);

    /// Adds a camera with an address, before start().
    void add(const Camera &camera);

    void start();

Q_SIGNALS:
    void lost(const QString &nodeId, const QString &reason);
    void back(const QString &nodeId);

private:
    /// A camera that waits for its turn.
    struct Turn
    {
        QUrl address;
        NodePresence *presence; // a child
        qint64 dueMs;
    };

    void proceed();
    void probe(const Turn &turn);
    void finish(CameraProbe *probe, Turn turn);

    SiteServer &m_server;
    const CameraPace m_pace;
    std::deque<Turn> m_turns; // by the time when they are due
    QElapsedTimer m_time;
    QTimer m_timer; // until the first turn
    int m_underWay = 0;
};

#endif
