<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>QObject</name>
    <message>
        <source>CPU utilization over %1%</source>
        <translation>CPU-Auslastung über %1 %</translation>
    </message>
    <message>
        <source>Memory usage over %1%</source>
        <translation>Speicherauslastung über %1 %</translation>
    </message>
    <message>
        <source>Network usage over %1%</source>
        <translation>Netzwerkauslastung über %1 %</translation>
    </message>
    <message>
        <source>Camera disconnected</source>
        <translation>Kamera getrennt</translation>
    </message>
    <message>
        <source>Station disconnected</source>
        <translation>Station getrennt</translation>
    </message>
    <message>
        <source>Volume disconnected</source>
        <translation>Volume getrennt</translation>
    </message>
    <message>
        <source>Insufficient recording days</source>
        <translation>Zu wenige Aufzeichnungstage</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Station</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archiv</translation>
    </message>
    <message>
        <source>CPU usage</source>
        <translation>CPU-Auslastung</translation>
    </message>
    <message>
        <source>Memory usage</source>
        <translation>Speicherauslastung</translation>
    </message>
    <message>
        <source>Network usage</source>
        <translation>Netzwerkauslastung</translation>
    </message>
</context>
</TS>
