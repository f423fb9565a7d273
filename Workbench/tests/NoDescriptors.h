#ifndef NODESCRIPTORS_H
#define NODESCRIPTORS_H

#include <sys/resource.h>

#include <unistd.h>

/// While it lives, this process can open nothing more: no file and no connection.
class NoDescriptors
{
public:
    NoDescriptors()
    {
        getrlimit(RLIMIT_NOFILE, &m_before);
        const int firstFree = dup(STDERR_FILENO);
        close(firstFree);
        const rlimit limit{static_cast<rlim_t>(firstFree), m_before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &limit);
    }

    ~NoDescriptors() { setrlimit(RLIMIT_NOFILE, &m_before); }

    NoDescriptors(const NoDescriptors &) = delete;
    NoDescriptors &operator=(const NoDescriptors &) = delete;

private:
    rlimit m_before{};
};

#endif
