#include "FakeMach.h"

#include <sys/sysctl.h>

#include <cstring>

namespace {

void note(const QString &call)
{
    fakeMach().calls.append(call);
}

// Like the kernel, writes nothing on failure and no more than there is room for.
template <typename Info>
kern_return_t answer(kern_return_t result, const Info &source, integer_t *target,
                     mach_msg_type_number_t count)
{
    if (result == KERN_SUCCESS)
        std::memcpy(target, &source, qMin(sizeof(source), count * sizeof(integer_t)));
    return result;
}

} // namespace

FakeMach &fakeMach()
{
    static FakeMach theFake;
    return theFake;
}

host_t mach_host_self()
{
    note(QStringLiteral("mach_host_self()"));
    return ++fakeMach().lastHost;
}

kern_return_t host_statistics(host_t host, host_flavor_t flavor, host_info_t info,
                              mach_msg_type_number_t *count)
{
    note(QStringLiteral("host_statistics(host %1, flavor %2, count %3)")
             .arg(host)
             .arg(flavor)
             .arg(*count));
    return answer(fakeMach().cpuResult, fakeMach().cpu, info, *count);
}

kern_return_t host_statistics64(host_t host, host_flavor_t flavor, host_info64_t info,
                                mach_msg_type_number_t *count)
{
    note(QStringLiteral("host_statistics64(host %1, flavor %2, count %3)")
             .arg(host)
             .arg(flavor)
             .arg(*count));
    return answer(fakeMach().vmResult, fakeMach().vm, info, *count);
}

kern_return_t host_page_size(host_t host, vm_size_t *pageSize)
{
    note(QStringLiteral("host_page_size(host %1)").arg(host));
    if (fakeMach().pageSizeResult == KERN_SUCCESS)
        *pageSize = fakeMach().pageSize;
    return fakeMach().pageSizeResult;
}

int sysctl(int *name, unsigned int nameLength, void *oldValue, std::size_t *oldLength,
           void *newValue, std::size_t newLength)
{
    QStringList names;
    for (unsigned int i = 0; i < nameLength; ++i)
        names.append(QString::number(name[i]));
    note(QStringLiteral("sysctl(%1, old length %2, %3, new length %4)")
             .arg(names.join(QLatin1Char('.')))
             .arg(*oldLength)
             .arg(newValue ? QStringLiteral("new value") : QStringLiteral("no new value"))
             .arg(newLength));
    if (fakeMach().fillsMemorySize)
        std::memcpy(oldValue, &fakeMach().memorySize, *oldLength);
    return fakeMach().sysctlResult;
}
