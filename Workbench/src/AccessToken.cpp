#include "AccessToken.h"

#include "InputError.h"

#include <QCryptographicHash>
#include <QFile>

#include <algorithm>

namespace {

constexpr qsizetype LeastLength = 16;
constexpr qsizetype GreatestLength = 1024;

// Digests are of one length, so that comparing them does not tell the token's.
QByteArray digest(const QString &text)
{
    return QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256);
}

bool equalInConstantTime(const QByteArray &left, const QByteArray &right)
{
    volatile char difference = 0;
    for (qsizetype i = 0; i < left.size(); ++i)
        difference = static_cast<char>(difference | (left.at(i) ^ right.at(i)));
    return difference == 0;
}

bool hasBlanks(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
}

} // namespace

AccessToken AccessToken::fromFile(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw InputError(tr("%1: cannot be read: %2").arg(fileName, file.errorString()));
    AccessToken token;
    token.m_text = QString::fromUtf8(file.read(GreatestLength * 4)).trimmed();
    const qsizetype length = token.m_text.size();
    if (length < LeastLength || length > GreatestLength)
        throw InputError(tr("%1: expected a token of %2 to %3 characters, found %4")
                             .arg(fileName)
                             .arg(LeastLength)
                             .arg(GreatestLength)
                             .arg(length));
    if (hasBlanks(token.m_text))
        throw InputError(tr("%1: expected a token in one line without blanks").arg(fileName));
    return token;
}

bool AccessToken::admits(const QString &given) const
{
    return !isSet() || equalInConstantTime(digest(m_text), digest(given));
}
