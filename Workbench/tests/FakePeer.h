#ifndef FAKEPEER_H
#define FAKEPEER_H

#include <QByteArray>
#include <QList>
#include <QTcpServer>

class QTcpSocket;

/// A peer on this machine that answers each request, or does not, as a test wants it.
class FakePeer : public QObject
{
    Q_OBJECT

public:
    enum Manner {
        Answers,  ///< with the answer as a whole, then closes
        Dribbles, ///< a byte of the answer at a time, without an end
        Hangs,    ///< takes the request and is silent
        Closes,   ///< without an answer
        Pours,    ///< the answer again and again, without an end
    };
    Q_ENUM(Manner)

    /// Listens on a free port of the loopback interface.
    FakePeer();

    quint16 port() const { return m_server.serverPort(); }

    void setManner(Manner manner) { m_manner = manner; }
    void setAnswer(const QByteArray &answer) { m_answer = answer; }

    /// The requests so far, up to their empty lines.
    const QList<QByteArray> &requests() const { return m_requests; }

    /// The most clients at a time so far.
    int mostClients() const { return m_mostClients; }

    /// The text as the body of an HTTP answer.
    static QByteArray http(const QByteArray &body, const QByteArray &status = "200 OK");

private:
    void accept();
    void take(QTcpSocket *client);
    void respond(QTcpSocket *client);
    void pour(QTcpSocket *client);
    void dribble(QTcpSocket *client, qsizetype position);

    QTcpServer m_server;
    Manner m_manner = Answers;
    QByteArray m_answer;
    QList<QByteArray> m_requests;
    int m_clients = 0;
    int m_mostClients = 0;
};

#endif
