#ifndef ACCESSTOKEN_H
#define ACCESSTOKEN_H

#include <QCoreApplication>
#include <QString>

/// The secret that the clients of a site server share with it.
class AccessToken
{
    Q_DECLARE_TR_FUNCTIONS(AccessToken)

public:
    /// No token: every client may come.
    AccessToken() = default;

    /// Reads the token from a file that holds nothing else: 16 to 1024 characters in one line.
    /// Throws InputError, which never shows the token.
    static AccessToken fromFile(const QString &fileName);

    bool isSet() const { return !m_text.isEmpty(); }
    const QString &text() const { return m_text; }

    /// Whether a client that gives this text may come. The time that this takes does not depend on
    /// how much of the text is right.
    bool admits(const QString &given) const;

private:
    QString m_text;
};

#endif
