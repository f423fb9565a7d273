#ifndef RTSPOPTIONS_H
#define RTSPOPTIONS_H

#include <QByteArray>
#include <QString>

class QUrl;

/// No answer to OPTIONS may have a longer head, in bytes.
constexpr qsizetype MaxRtspHeadSize = 8192;

/// The request with which one asks an RTSP server what it can do, which needs neither a stream nor
/// a password.
///
/// @param url without a user; it is sent percent-encoded, so it cannot break the request's lines
QByteArray rtspOptionsRequest(const QUrl &url, int sequence);

/// Whether the head of an answer, up to its empty line, has arrived.
bool isRtspHeadComplete(const QByteArray &received);

/// What is wrong with the answer to rtspOptionsRequest(); empty when nothing is. A server that asks
/// for a password is as alive as one that does not. Lines may end with CR LF or LF.
///
/// @param received has a complete head
QString rtspFailure(const QByteArray &received, int sequence);

#endif
