<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>CapacityBanner</name>
    <message numerus="yes">
        <source>and %n more server(s)</source>
        <comment>near their capacity</comment>
        <translation>
            <numerusform>and %n more server</numerusform>
            <numerusform>and %n more servers</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ErrorActionBar</name>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n selected</numerusform>
            <numerusform>%n selected</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ErrorBadge</name>
    <message numerus="yes">
        <source>Show the %n error(s)</source>
        <translation>
            <numerusform>Show the error</numerusform>
            <numerusform>Show the %n errors</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ErrorsEmptyState</name>
    <message numerus="yes">
        <source>A filter hides %n error(s)</source>
        <translation>
            <numerusform>A filter hides %n error</numerusform>
            <numerusform>A filter hides %n errors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n error(s) snoozed, no others</source>
        <translation>
            <numerusform>%n error snoozed, no others</numerusform>
            <numerusform>%n errors snoozed, no others</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ErrorsPane</name>
    <message numerus="yes">
        <source>%n error(s) copied</source>
        <translation>
            <numerusform>%n error copied</numerusform>
            <numerusform>%n errors copied</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n error(s) saved as %1</source>
        <translation>
            <numerusform>%n error saved as %1</numerusform>
            <numerusform>%n errors saved as %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n row</numerusform>
            <numerusform>%n rows</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FilterNotice</name>
    <message numerus="yes">
        <source>%1 and %n more station(s)</source>
        <translation>
            <numerusform>%1 and %n more station</numerusform>
            <numerusform>%1 and %n more stations</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: hides %n error(s)</source>
        <comment>filter conditions</comment>
        <translation>
            <numerusform>%1: hides %n error</numerusform>
            <numerusform>%1: hides %n errors</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message numerus="yes">
        <source>%n entries saved as %1</source>
        <translation>
            <numerusform>%n entry saved as %1</numerusform>
            <numerusform>%n entries saved as %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SnoozeRequests</name>
    <message numerus="yes">
        <source>%n error(s) snoozed</source>
        <translation>
            <numerusform>%n error snoozed</numerusform>
            <numerusform>%n errors snoozed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The server refused %n snooze(s)</source>
        <translation>
            <numerusform>The server refused %n snooze</numerusform>
            <numerusform>The server refused %n snoozes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n snooze(s) could not be sent</source>
        <translation>
            <numerusform>%n snooze could not be sent</numerusform>
            <numerusform>%n snoozes could not be sent</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Waiting for the answer to %n snooze(s)</source>
        <translation>
            <numerusform>Waiting for the answer to %n snooze</numerusform>
            <numerusform>Waiting for the answer to %n snoozes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No answer to %n snooze(s)</source>
        <translation>
            <numerusform>No answer to %n snooze</numerusform>
            <numerusform>No answer to %n snoozes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SnoozedPage</name>
    <message numerus="yes">
        <source>%n still failing</source>
        <translation>
            <numerusform>%n still failing</numerusform>
            <numerusform>%n still failing</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not confirmed</source>
        <translation>
            <numerusform>%n not confirmed</numerusform>
            <numerusform>%n not confirmed</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StationRow</name>
    <message numerus="yes">
        <source>%1, %2, %n error(s)</source>
        <comment>station, state</comment>
        <translation>
            <numerusform>%1, %2, %n error</numerusform>
            <numerusform>%1, %2, %n errors</numerusform>
        </translation>
    </message>
</context>
</TS>
