#ifndef CAMERAPROBE_H
#define CAMERAPROBE_H

#include <QObject>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>

#include <chrono>

/// Asks a camera once whether it is there: an RTSP address by OPTIONS, any other by a connection
/// alone.
class CameraProbe : public QObject
{
    Q_OBJECT

public:
    /// @param address "rtsp://host[:port]/path" or "tcp://host:port"
    /// @param timeout for all of it: name, connection and answer
    CameraProbe(const QUrl &address, std::chrono::milliseconds timeout, QObject *parent = nullptr);

    /// Asks; one of the signals follows, once. The probe may be deleted later than in its slots.
    void start();

Q_SIGNALS:
    void answered();
    void failed(const QString &reason);

private:
    void ask();
    void read();
    void end(const QString &failure = {});

    const QUrl m_address;
    QTcpSocket m_socket;
    QTimer m_deadline;
    bool m_hasEnded = false;
};

#endif
