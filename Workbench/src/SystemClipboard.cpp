#include "SystemClipboard.h"

#include <QClipboard>
#include <QGuiApplication>

void SystemClipboard::put(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}
