#include "RtspOptions.h"

#include <QCoreApplication>
#include <QList>
#include <QUrl>

#include <optional>

namespace {

constexpr int Unauthorized = 401;

struct RtspOptions
{
    Q_DECLARE_TR_FUNCTIONS(RtspOptions)
};

bool isSuccess(int status)
{
    return status >= 200 && status < 300;
}

// "RTSP/1.0 200 OK"; the phrase at the end may be missing.
std::optional<int> statusOf(const QByteArray &line)
{
    const QList<QByteArray> words = line.trimmed().split(' ');
    bool isNumber = false;
    const int status = words.value(1).toInt(&isNumber);
    if (!words.constFirst().startsWith("RTSP/") || words.value(1).size() != 3 || !isNumber)
        return {};
    return status;
}

bool answersAnother(const QList<QByteArray> &lines, int sequence)
{
    for (const QByteArray &line : lines) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0 && line.left(colon).trimmed().toLower() == "cseq")
            return line.mid(colon + 1).trimmed() != QByteArray::number(sequence);
    }
    return false;
}

} // namespace

QByteArray rtspOptionsRequest(const QUrl &url, int sequence)
{
    return "OPTIONS " + url.toEncoded(QUrl::RemoveUserInfo | QUrl::RemoveFragment)
           + " RTSP/1.0\r\nCSeq: " + QByteArray::number(sequence) + "\r\n\r\n";
}

bool isRtspHeadComplete(const QByteArray &received)
{
    return received.contains("\r\n\r\n") || received.contains("\n\n");
}

QString rtspFailure(const QByteArray &received, int sequence)
{
    const QList<QByteArray> lines = received.split('\n');
    const std::optional<int> status = statusOf(lines.constFirst());
    if (!status)
        return RtspOptions::tr("the answer is no RTSP");
    if (answersAnother(lines.mid(1), sequence))
        return RtspOptions::tr("the answer is that to another request");
    if (!isSuccess(*status) && *status != Unauthorized)
        return RtspOptions::tr("RTSP status %1").arg(*status);
    return {};
}
