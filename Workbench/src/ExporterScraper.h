#ifndef EXPORTERSCRAPER_H
#define EXPORTERSCRAPER_H

#include <QObject>
#include <QTimer>
#include <QUrl>

#include <chrono>

class QNetworkAccessManager;
class QNetworkReply;

/// Fetches what an exporter tells, asking only for processors, memory and networks.
class ExporterScraper : public QObject
{
    Q_OBJECT

public:
    /// @param url     of the exporter; "/metrics" is added where it names no path
    /// @param timeout how long an answer may take as a whole
    /// @param manager must outlive the scraper
    ExporterScraper(const QUrl &url, std::chrono::milliseconds timeout,
                    QNetworkAccessManager &manager, QObject *parent = nullptr);
    ~ExporterScraper() override;

    ExporterScraper(const ExporterScraper &) = delete;
    ExporterScraper &operator=(const ExporterScraper &) = delete;

    /// What is asked for: the exporter's address with the collectors.
    const QUrl &url() const { return m_url; }

    /// Asks once; one of the signals follows. Nothing happens while an answer is awaited.
    void scrape();

Q_SIGNALS:
    void answered(const QByteArray &text);
    /// The exporter refused, took too long, or answered with an error or too much.
    void failed(const QString &reason);

private:
    void stop(const QString &reason);
    void finish();

    const QUrl m_url;
    QNetworkAccessManager &m_manager;
    QTimer m_deadline;
    QNetworkReply *m_reply = nullptr; // null while nothing is awaited
    QString m_stopReason;             // why this object itself has ended the transfer
};

#endif
