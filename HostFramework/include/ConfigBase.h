#ifndef CONFIGBASE_H
#define CONFIGBASE_H

/// A configuration object of the host, passed to the `Ex` entry points of PluginBase.
///
/// The host owns it and keeps it alive for the duration of the call. Plug-ins that have no use for
/// it need to know no more than its name.
class ConfigBase
{
public:
    ConfigBase() = default;
    virtual ~ConfigBase() = default;

    ConfigBase(const ConfigBase &) = delete;
    ConfigBase &operator=(const ConfigBase &) = delete;
};

#endif
