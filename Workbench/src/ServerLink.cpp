#include "ServerLink.h"

ServerLink::ServerLink(QObject *parent)
    : QObject(parent)
{ }

void ServerLink::setOpen(bool isOpen)
{
    if (isOpen == m_isOpen)
        return;
    m_isOpen = isOpen;
    m_since = QDateTime::currentDateTime();
    if (isOpen)
        Q_EMIT opened();
    else
        Q_EMIT closed();
}
