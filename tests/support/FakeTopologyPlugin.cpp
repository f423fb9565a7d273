#include "FakeTopologyPlugin.h"

QObject *FakeTopologyPlugin::getStandardTopologyModel()
{
    m_log.add(QStringLiteral("getStandardTopologyModel"));
    return model;
}
