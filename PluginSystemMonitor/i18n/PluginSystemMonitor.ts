<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>QObject</name>
    <message>
        <source>CPU utilization over %1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory usage over %1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network usage over %1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera disconnected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Station disconnected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume disconnected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insufficient recording days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Station</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Archive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CPU usage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory usage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network usage</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
