#ifndef NODEREPORT_H
#define NODEREPORT_H

class FuzzInput;
class HostedPlugin;

/// Reports that some node is connected or not, and requires that the list has followed: a snoozed
/// node is never newly listed.
void reportNode(HostedPlugin &hosted, FuzzInput &input);

#endif
