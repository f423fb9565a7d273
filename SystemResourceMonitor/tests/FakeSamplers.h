#ifndef FAKESAMPLERS_H
#define FAKESAMPLERS_H

#include "ICpuUsage.h"
#include "IMemoryUsage.h"
#include "INetworkUsage.h"
#include "SamplerFactory.h"

#include <QStringList>

#include <stdexcept>

/// What a sampler throws that cannot be created.
class SamplerFailure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Samplers that give what a test wants and note in a list what happens to them. The object must
/// outlive the monitor that uses its samplers.
class FakeSamplers
{
public:
    struct Interface
    {
        QString name;
        NetworkInfo info;
    };

    double cpu = 0.0;
    double memory = 0.0;
    QList<Interface> interfaces;
    QString failing; ///< "cpu", "memory" or "network": the sampler that cannot be created
    QStringList calls;

    SamplerFactory factory()
    {
        return {
            [this] { return QSharedPointer<Cpu>::create(*this); },
            [this] { return QSharedPointer<Memory>::create(*this); },
            [this] { return QSharedPointer<Network>::create(*this); },
        };
    }

private:
    // Notes when it comes and goes.
    class Noted
    {
    public:
        Noted(FakeSamplers &samplers, const QString &name)
            : m_samplers(samplers)
            , m_name(name)
        {
            if (m_name == samplers.failing)
                throw SamplerFailure(m_name.toStdString());
            note(QStringLiteral("create ") + m_name);
        }
        ~Noted() { note(QStringLiteral("release ") + m_name); }
        Noted(const Noted &) = delete;
        Noted &operator=(const Noted &) = delete;

        void note(const QString &call) { m_samplers.calls.append(call); }
        FakeSamplers &samplers() { return m_samplers; }

    private:
        FakeSamplers &m_samplers;
        QString m_name;
    };

    class Cpu : public ICpuUsage
    {
    public:
        explicit Cpu(FakeSamplers &samplers)
            : m_noted(samplers, QStringLiteral("cpu"))
        { }
        double getPercentage() override
        {
            m_noted.note(QStringLiteral("cpu"));
            return m_noted.samplers().cpu;
        }

    private:
        Noted m_noted;
    };

    class Memory : public IMemoryUsage
    {
    public:
        explicit Memory(FakeSamplers &samplers)
            : m_noted(samplers, QStringLiteral("memory"))
        { }
        double getPercentage() override
        {
            m_noted.note(QStringLiteral("memory"));
            return m_noted.samplers().memory;
        }

    private:
        Noted m_noted;
    };

    class Network : public INetworkUsage
    {
    public:
        explicit Network(FakeSamplers &samplers)
            : m_noted(samplers, QStringLiteral("network"))
        { }
        QStringList getInterfaceNameList() override
        {
            m_noted.note(QStringLiteral("interfaces"));
            QStringList names;
            for (const Interface &interface : std::as_const(m_noted.samplers().interfaces))
                names.append(interface.name);
            return names;
        }
        NetworkInfo getNetworkInfo(const QString &interfaceName) override
        {
            m_noted.note(QStringLiteral("interface ") + interfaceName);
            for (const Interface &interface : std::as_const(m_noted.samplers().interfaces)) {
                if (interface.name == interfaceName)
                    return interface.info;
            }
            return {0.0, 0.0};
        }

    private:
        Noted m_noted;
    };
};

#endif
