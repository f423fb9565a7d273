#include "HandMadeFramework.h"

#include "FrameworkWrapperBase.h"

#include <cstddef>
#include <typeinfo>

namespace {

using Object = HandMadeFramework::Object;

bool sendCommand(Object *self, void *handle, const QString &senderID, const QString &command,
                 const QVariant &data, void *context, int flag, const QString &target)
{
    return self->host->sendCommand({handle, senderID, command, data, context, flag, target});
}

bool connectPluginSignal(Object *self, void *handle, const QString &sourceID, const char *signal,
                         const QString &receiverID, const char *slot, int flag)
{
    return self->host->connectPluginSignal({handle, sourceID, signal, receiverID, slot, flag});
}

bool shouldSkipPairWiring(Object *self, void *handle)
{
    return self->host->shouldSkipPairWiring(handle);
}

QObject *getPluginObject(Object *self, void *handle, const QString &pluginID)
{
    return self->host->pluginObject(handle, pluginID);
}

template <int Position> void foreign(Object *)
{
    qFatal("A plug-in called position %d of the framework's table", Position);
}

using Foreign = void (*)(Object *);

// The table as the compiler of a host lays it out. Objects point past the first two words, which
// describe the class to run-time type checks.
struct Table
{
    std::ptrdiff_t offsetToTop = 0;
    const std::type_info *type = &typeid(FrameworkWrapperBase);

    Foreign position0 = foreign<0>;
    Foreign position1 = foreign<1>;
    decltype(&sendCommand) position2 = sendCommand;
    Foreign position3 = foreign<3>;
    Foreign position4 = foreign<4>;
    Foreign position5 = foreign<5>;
    Foreign position6 = foreign<6>;
    decltype(&connectPluginSignal) position7 = connectPluginSignal;
    Foreign position8 = foreign<8>;
    Foreign position9 = foreign<9>;
    decltype(&shouldSkipPairWiring) position10 = shouldSkipPairWiring;
    Foreign position11 = foreign<11>;
    Foreign position12 = foreign<12>;
    Foreign position13 = foreign<13>;
    decltype(&getPluginObject) position14 = getPluginObject;
};

constexpr std::size_t offsetOfPosition(std::size_t position)
{
    return offsetof(Table, position0) + position * sizeof(void *);
}

static_assert(offsetof(Table, position0) == 2 * sizeof(void *));
static_assert(offsetof(Table, position2) == offsetOfPosition(2));
static_assert(offsetof(Table, position7) == offsetOfPosition(7));
static_assert(offsetof(Table, position10) == offsetOfPosition(10));
static_assert(offsetof(Table, position14) == offsetOfPosition(14));

const Table table;

} // namespace

HandMadeFramework::HandMadeFramework(CallLog &log)
    : FakeHost(log)
    , m_object{&table.position0, this}
{ }

FrameworkWrapperBase *HandMadeFramework::framework()
{
    return reinterpret_cast<FrameworkWrapperBase *>(&m_object);
}
