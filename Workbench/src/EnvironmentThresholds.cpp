#include "EnvironmentThresholds.h"

#include <array>

namespace {

constexpr std::array Names{"TALO2_HIGH_CPU_USAGE", "TALO2_HIGH_MEM_USAGE", "TALO2_HIGH_NET_USAGE"};

} // namespace

QJsonObject thresholdsOfEnvironment()
{
    QJsonObject thresholds;
    for (const char *const name : Names) {
        if (qEnvironmentVariableIsSet(name))
            thresholds.insert(QString::fromLatin1(name), qEnvironmentVariable(name));
    }
    return thresholds;
}

void setThresholdsOfEnvironment(const QJsonObject &thresholds)
{
    for (const char *const name : Names) {
        const QJsonValue text = thresholds.value(QString::fromLatin1(name));
        if (text.isString())
            qputenv(name, text.toString().toUtf8());
        else
            qunsetenv(name);
    }
}
