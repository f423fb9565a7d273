#include <QObject>

/// A plug-in for another host.
class ForeignPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.example.Foreign")
};

#include "ForeignPlugin.moc"
