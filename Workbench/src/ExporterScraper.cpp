#include "ExporterScraper.h"

#include "MetricsText.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QUrlQuery>

#include <utility>

namespace {

constexpr int StatusOk = 200;

QUrl withCollectors(QUrl url)
{
    if (url.path().isEmpty() || url.path() == QLatin1String("/"))
        url.setPath(QStringLiteral("/metrics"));
    QUrlQuery query(url);
    for (const char *const collector : {"cpu", "meminfo", "netdev"})
        query.addQueryItem(QStringLiteral("collect[]"), QLatin1String(collector));
    url.setQuery(query);
    return url;
}

} // namespace

ExporterScraper::ExporterScraper(const QUrl &url, std::chrono::milliseconds timeout,
                                 QNetworkAccessManager &manager, QObject *parent)
    : QObject(parent)
    , m_url(withCollectors(url))
    , m_manager(manager)
{
    m_deadline.setSingleShot(true);
    m_deadline.setInterval(timeout);
    connect(&m_deadline, &QTimer::timeout, this, [this] { stop(tr("no answer in time")); });
}

ExporterScraper::~ExporterScraper()
{
    if (!m_reply)
        return;
    m_reply->disconnect(this);
    delete m_reply;
}

void ExporterScraper::scrape()
{
    if (m_reply)
        return;
    m_stopReason.clear();
    QNetworkRequest request(m_url);
    // A page elsewhere is not the station's, and a compressed one hides how long it is.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    request.setRawHeader("Accept-Encoding", "identity");
    request.setRawHeader("Accept", "text/plain;version=0.0.4");
    m_reply = m_manager.get(request);
    // Bounds what Qt holds for us, too, should this thread be busy: it stops short of this.
    m_reply->setReadBufferSize(2 * MaxMetricsSize);
    connect(m_reply, &QNetworkReply::readyRead, this, [this] {
        if (m_reply->bytesAvailable() > MaxMetricsSize)
            stop(tr("the answer is too long"));
    });
    connect(m_reply, &QNetworkReply::finished, this, &ExporterScraper::finish);
    m_deadline.start();
}

// Aborting leads to finish() at once.
void ExporterScraper::stop(const QString &reason)
{
    m_stopReason = reason;
    m_reply->abort();
}

void ExporterScraper::finish()
{
    m_deadline.stop();
    QNetworkReply *const reply = std::exchange(m_reply, nullptr);
    reply->deleteLater();
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (!m_stopReason.isEmpty())
        Q_EMIT failed(m_stopReason);
    else if (status != 0 && status != StatusOk)
        Q_EMIT failed(tr("HTTP status %1").arg(status));
    else if (reply->error() != QNetworkReply::NoError)
        Q_EMIT failed(reply->errorString());
    else
        Q_EMIT answered(reply->readAll());
}
