<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>CapacityBanner</name>
    <message>
        <source>%1 has reached %2 of its capacity</source>
        <comment>server and percentage</comment>
        <translation>%1 hat %2 der Kapazität erreicht</translation>
    </message>
    <message>
        <source>A server</source>
        <translation>Ein Server</translation>
    </message>
    <message>
        <source>Dismiss the warning</source>
        <translation>Warnung ausblenden</translation>
    </message>
    <message numerus="yes">
        <source>and %n more server(s)</source>
        <comment>near their capacity</comment>
        <translation>
            <numerusform>und ein weiterer Server</numerusform>
            <numerusform>und %n weitere Server</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ClientPanel</name>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>%1 of this computer: %2</source>
        <comment>usage and value</comment>
        <translation>%1 dieses Rechners: %2</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Dieser Rechner</translation>
    </message>
    <message>
        <source>last %1</source>
        <translation>letzte %1</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>The sample failed, or less than 1% is in use: both are reported as 0.</source>
        <translation>Die Messung schlug fehl, oder weniger als 1 % ist belegt: Beides wird als 0 gemeldet.</translation>
    </message>
</context>
<context>
    <name>ConnectionState</name>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Server connection lost</source>
        <translation>Verbindung zum Server verloren</translation>
    </message>
    <message>
        <source>Nothing is known about the site</source>
        <translation>Über den Standort ist nichts bekannt</translation>
    </message>
    <message>
        <source>since %1</source>
        <translation>seit %1</translation>
    </message>
    <message>
        <source>Nothing is known since %1 (%2)</source>
        <comment>time and age</comment>
        <translation>Seit %1 ist nichts bekannt (%2)</translation>
    </message>
</context>
<context>
    <name>DashboardHeader</name>
    <message>
        <source>Local time: %1</source>
        <translation>Ortszeit: %1</translation>
    </message>
    <message>
        <source>Switch to light colours</source>
        <translation>Helle Farben verwenden</translation>
    </message>
    <message>
        <source>Switch to dark colours</source>
        <translation>Dunkle Farben verwenden</translation>
    </message>
</context>
<context>
    <name>DashboardView</name>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Snoozed</source>
        <translation>Zurückgestellt</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
</context>
<context>
    <name>ErrorActionBar</name>
    <message>
        <source>Snooze</source>
        <translation>Zurückstellen</translation>
    </message>
    <message>
        <source>Snooze %1</source>
        <comment>number of errors</comment>
        <translation>%1 zurückstellen</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>%1</source>
        <comment>number of errors</comment>
        <translation>%1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>shown and all errors</comment>
        <translation>%1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n ausgewählt</numerusform>
            <numerusform>%n ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>Snooze the selected disconnections (S)</source>
        <translation>Die ausgewählten Verbindungsfehler zurückstellen (S)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected errors (Ctrl+C)</source>
        <translation>Die ausgewählten Fehler kopieren (Strg+C)</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Neu verbinden</translation>
    </message>
    <message>
        <source>Ask the server to reconnect what is disconnected</source>
        <translation>Den Server bitten, Getrenntes neu zu verbinden</translation>
    </message>
    <message>
        <source>All disconnected cameras</source>
        <translation>Alle getrennten Kameras</translation>
    </message>
    <message>
        <source>All disconnected sub-stations</source>
        <translation>Alle getrennten Unterstationen</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Save the errors shown as a CSV file (Ctrl+E)</source>
        <translation>Die angezeigten Fehler als CSV-Datei speichern (Strg+E)</translation>
    </message>
</context>
<context>
    <name>ErrorBadge</name>
    <message numerus="yes">
        <source>Show the %n error(s)</source>
        <translation>
            <numerusform>Den Fehler zeigen</numerusform>
            <numerusform>Die %n Fehler zeigen</numerusform>
        </translation>
    </message>
    <message>
        <source>Show only these errors (F)</source>
        <translation>Nur diese Fehler zeigen (F)</translation>
    </message>
</context>
<context>
    <name>ErrorMenu</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Show the station&apos;s usage</source>
        <translation>Auslastung der Station zeigen</translation>
    </message>
</context>
<context>
    <name>ErrorRow</name>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>%1, %2, %3, since %4</source>
        <comment>kind, device, station, time</comment>
        <translation>%1, %2, %3, seit %4</translation>
    </message>
</context>
<context>
    <name>ErrorSheet</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Station</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Alter</translation>
    </message>
    <message>
        <source>Since (%1)</source>
        <comment>time zone</comment>
        <translation>Seit (%1)</translation>
    </message>
    <message>
        <source>Station ID</source>
        <translation>Stations-ID</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>Geräte-ID</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
</context>
<context>
    <name>ErrorTable</name>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>ErrorTableHeader</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Device and station</source>
        <translation>Gerät und Station</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Station</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Alter</translation>
    </message>
    <message>
        <source>Age and time</source>
        <translation>Alter und Zeit</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Seit</translation>
    </message>
</context>
<context>
    <name>ErrorsEmptyState</name>
    <message>
        <source>Server connection lost</source>
        <translation>Verbindung zum Server verloren</translation>
    </message>
    <message numerus="yes">
        <source>A filter hides %n error(s)</source>
        <translation>
            <numerusform>Ein Filter verbirgt %n Fehler</numerusform>
            <numerusform>Ein Filter verbirgt %n Fehler</numerusform>
        </translation>
    </message>
    <message>
        <source>Checking the site</source>
        <translation>Der Standort wird geprüft</translation>
    </message>
    <message>
        <source>No errors</source>
        <translation>Keine Fehler</translation>
    </message>
    <message>
        <source>Nothing is known about the site since %1.</source>
        <translation>Über den Standort ist seit %1 nichts bekannt.</translation>
    </message>
    <message>
        <source>Nothing is known about the site.</source>
        <translation>Über den Standort ist nichts bekannt.</translation>
    </message>
    <message>
        <source>Press Esc to show all errors.</source>
        <translation>Esc zeigt wieder alle Fehler.</translation>
    </message>
    <message>
        <source>All is well: no camera, station or volume reports an error.</source>
        <translation>Alles in Ordnung: Keine Kamera, keine Station und kein Datenträger meldet einen Fehler.</translation>
    </message>
    <message>
        <source>The states of the devices have just come.</source>
        <translation>Die Zustände der Geräte sind gerade erst eingetroffen.</translation>
    </message>
    <message>
        <source>The states of the devices are not known yet.</source>
        <translation>Die Zustände der Geräte sind noch nicht bekannt.</translation>
    </message>
    <message>
        <source>Reason: %1</source>
        <translation>Grund: %1</translation>
    </message>
    <message>
        <source>Next try in %1</source>
        <translation>Nächster Versuch in %1</translation>
    </message>
    <message>
        <source>Trying to connect</source>
        <translation>Verbindungsversuch läuft</translation>
    </message>
    <message numerus="yes">
        <source>%n error(s) snoozed, no others</source>
        <translation>
            <numerusform>%n Fehler zurückgestellt, sonst keine</numerusform>
            <numerusform>%n Fehler zurückgestellt, sonst keine</numerusform>
        </translation>
    </message>
    <message>
        <source>What is snoozed may fail still; the page of the snoozes lists it.</source>
        <translation>Zurückgestelltes kann weiter gestört sein; die Seite der Zurückstellungen führt es auf.</translation>
    </message>
</context>
<context>
    <name>ErrorsPane</name>
    <message numerus="yes">
        <source>%n error(s) copied</source>
        <translation>
            <numerusform>%n Fehler kopiert</numerusform>
            <numerusform>%n Fehler kopiert</numerusform>
        </translation>
    </message>
    <message>
        <source>Asked to reconnect all disconnected cameras</source>
        <translation>Neuverbindung aller getrennten Kameras angefordert</translation>
    </message>
    <message>
        <source>Asked to reconnect all disconnected sub-stations</source>
        <translation>Neuverbindung aller getrennten Unterstationen angefordert</translation>
    </message>
    <message>
        <source>errors-%1.csv</source>
        <comment>date and time</comment>
        <translation>fehler-%1.csv</translation>
    </message>
    <message numerus="yes">
        <source>%n error(s) saved as %1</source>
        <translation>
            <numerusform>%n Fehler als %1 gespeichert</numerusform>
            <numerusform>%n Fehler als %1 gespeichert</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>%1 was not written: %2</source>
        <comment>path and reason</comment>
        <translation>%1 wurde nicht geschrieben: %2</translation>
    </message>
    <message>
        <source>Export as CSV</source>
        <translation>Als CSV exportieren</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>This file exists and will be replaced</source>
        <translation>Diese Datei gibt es schon; sie wird ersetzt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Stations</source>
        <translation>Stationen</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>Filter by error or device</source>
        <translation>Nach Fehler oder Gerät filtern</translation>
    </message>
</context>
<context>
    <name>FilterNotice</name>
    <message numerus="yes">
        <source>%1 and %n more station(s)</source>
        <translation>
            <numerusform>%1 und %n weitere Station</numerusform>
            <numerusform>%1 und %n weitere Stationen</numerusform>
        </translation>
    </message>
    <message>
        <source>stations only</source>
        <translation>nur Stationen</translation>
    </message>
    <message>
        <source>cameras only</source>
        <translation>nur Kameras</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message numerus="yes">
        <source>%1: hides %n error(s)</source>
        <comment>filter conditions</comment>
        <translation>
            <numerusform>%1: verbirgt %n Fehler</numerusform>
            <numerusform>%1: verbirgt %n Fehler</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear (Esc)</source>
        <translation>Aufheben (Esc)</translation>
    </message>
</context>
<context>
    <name>FocusedStationPanel</name>
    <message>
        <source>Choose a station to see its usage.</source>
        <translation>Wählen Sie eine Station, um ihre Auslastung zu sehen.</translation>
    </message>
    <message>
        <source>Nothing is known while the server is away.</source>
        <translation>Ohne den Server ist nichts bekannt.</translation>
    </message>
    <message>
        <source>This station does not support monitoring.</source>
        <translation>Diese Station unterstützt keine Überwachung.</translation>
    </message>
    <message>
        <source>Waiting for the first report.</source>
        <translation>Warten auf den ersten Bericht.</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Auslastung</translation>
    </message>
    <message>
        <source>No report for %1</source>
        <translation>Kein Bericht seit %1</translation>
    </message>
    <message>
        <source>Usage of %1</source>
        <translation>Auslastung von %1</translation>
    </message>
</context>
<context>
    <name>Format</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1 d %2 h</source>
        <translation>%1 d %2 h</translation>
    </message>
    <message>
        <source>%1 Gbit/s</source>
        <translation>%1 Gbit/s</translation>
    </message>
    <message>
        <source>%1 Mbit/s</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>log-%1.csv</source>
        <comment>date and time</comment>
        <translation>protokoll-%1.csv</translation>
    </message>
    <message numerus="yes">
        <source>%n entries saved as %1</source>
        <translation>
            <numerusform>%n Eintrag als %1 gespeichert</numerusform>
            <numerusform>%n Einträge als %1 gespeichert</numerusform>
        </translation>
    </message>
    <message>
        <source>Operational log</source>
        <translation>Betriebsprotokoll</translation>
    </message>
    <message>
        <source>newest %1</source>
        <comment>number of entries</comment>
        <translation>neueste %1</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Save the entries shown as a CSV file (Ctrl+E)</source>
        <translation>Die angezeigten Einträge als CSV-Datei speichern (Strg+E)</translation>
    </message>
    <message>
        <source>Search the log</source>
        <translation>Protokoll durchsuchen</translation>
    </message>
    <message>
        <source>No operational log</source>
        <translation>Kein Betriebsprotokoll</translation>
    </message>
    <message>
        <source>Nothing matches “%1”</source>
        <translation>Kein Eintrag enthält „%1“</translation>
    </message>
    <message>
        <source>The log is empty</source>
        <translation>Das Protokoll ist leer</translation>
    </message>
    <message>
        <source>This program offers the dashboard no operational log.</source>
        <translation>Dieses Programm stellt der Übersicht kein Betriebsprotokoll bereit.</translation>
    </message>
    <message>
        <source>Press Esc to show all entries.</source>
        <translation>Esc zeigt wieder alle Einträge.</translation>
    </message>
    <message>
        <source>What operators do stands here.</source>
        <translation>Hier steht, was an der Anlage getan wurde.</translation>
    </message>
    <message>
        <source>Show %1 more</source>
        <comment>number of entries</comment>
        <translation>%1 weitere anzeigen</translation>
    </message>
</context>
<context>
    <name>LogRow</name>
    <message>
        <source>%1, %2: %3</source>
        <comment>time, entry, details</comment>
        <translation>%1, %2: %3</translation>
    </message>
</context>
<context>
    <name>LogSheet</name>
    <message>
        <source>Time (%1)</source>
        <comment>time zone</comment>
        <translation>Zeit (%1)</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Dismiss the notice</source>
        <translation>Hinweis ausblenden</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Stations</source>
        <translation>Stationen</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Auslastung</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>%1 (Ctrl+F)</source>
        <comment>what the field is for</comment>
        <translation>%1 (Strg+F)</translation>
    </message>
</context>
<context>
    <name>SnoozeMenu</name>
    <message>
        <source>15 minutes</source>
        <translation>15 Minuten</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 Stunde</translation>
    </message>
    <message>
        <source>8 hours</source>
        <translation>8 Stunden</translation>
    </message>
    <message>
        <source>Snooze</source>
        <translation>Zurückstellen</translation>
    </message>
    <message>
        <source>Until…</source>
        <translation>Bis …</translation>
    </message>
</context>
<context>
    <name>SnoozeRequests</name>
    <message numerus="yes">
        <source>%n error(s) snoozed</source>
        <translation>
            <numerusform>%n Fehler zurückgestellt</numerusform>
            <numerusform>%n Fehler zurückgestellt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The server refused %n snooze(s)</source>
        <translation>
            <numerusform>Der Server lehnte %n Zurückstellung ab</numerusform>
            <numerusform>Der Server lehnte %n Zurückstellungen ab</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n snooze(s) could not be sent</source>
        <translation>
            <numerusform>%n Zurückstellung konnte nicht gesendet werden</numerusform>
            <numerusform>%n Zurückstellungen konnten nicht gesendet werden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Waiting for the answer to %n snooze(s)</source>
        <translation>
            <numerusform>Warten auf die Antwort zu %n Zurückstellung</numerusform>
            <numerusform>Warten auf die Antwort zu %n Zurückstellungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No answer to %n snooze(s)</source>
        <translation>
            <numerusform>Keine Antwort auf %n Zurückstellung</numerusform>
            <numerusform>Keine Antwort auf %n Zurückstellungen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SnoozeUntilDialog</name>
    <message>
        <source>Snooze until</source>
        <translation>Zurückstellen bis</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <comment>time and duration</comment>
        <translation>%1, in %2</translation>
    </message>
    <message>
        <source>This moment is over; choose a later one</source>
        <translation>Dieser Zeitpunkt ist vorbei; wählen Sie einen späteren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Snooze</source>
        <translation>Zurückstellen</translation>
    </message>
</context>
<context>
    <name>SnoozedPage</name>
    <message>
        <source>Snoozed</source>
        <translation>Zurückgestellt</translation>
    </message>
    <message numerus="yes">
        <source>%n still failing</source>
        <translation>
            <numerusform>%n weiter gestört</numerusform>
            <numerusform>%n weiter gestört</numerusform>
        </translation>
    </message>
    <message>
        <source>As last known: nothing is known since %1.</source>
        <translation>Letzter bekannter Stand: seit %1 ist nichts bekannt.</translation>
    </message>
    <message>
        <source>As last known: the server is away.</source>
        <translation>Letzter bekannter Stand: der Server ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>Only what was snoozed here is listed; what others snoozed is not known.</source>
        <translation>Hier steht nur, was von hier aus zurückgestellt wurde; was andere zurückgestellt haben, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Nothing is snoozed</source>
        <translation>Nichts ist zurückgestellt</translation>
    </message>
    <message>
        <source>No snooze is known</source>
        <translation>Keine Zurückstellung bekannt</translation>
    </message>
    <message>
        <source>Errors that are snoozed stand here until they come back.</source>
        <translation>Zurückgestellte Fehler stehen hier, bis sie wiederkommen.</translation>
    </message>
    <message numerus="yes">
        <source>%n not confirmed</source>
        <translation>
            <numerusform>%n nicht bestätigt</numerusform>
            <numerusform>%n nicht bestätigt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SnoozedRow</name>
    <message>
        <source>Camera disconnected</source>
        <translation>Kamera getrennt</translation>
    </message>
    <message>
        <source>Station disconnected</source>
        <translation>Station getrennt</translation>
    </message>
    <message>
        <source>Still failing</source>
        <translation>Weiter gestört</translation>
    </message>
    <message>
        <source>Snoozed</source>
        <translation>Zurückgestellt</translation>
    </message>
    <message>
        <source>over for %1</source>
        <translation>vorbei seit %1</translation>
    </message>
    <message>
        <source>due</source>
        <translation>fällig</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>bis %1</translation>
    </message>
    <message>
        <source>asked elsewhere</source>
        <translation>anderswo angefragt</translation>
    </message>
    <message>
        <source>asked here</source>
        <translation>hier angefragt</translation>
    </message>
    <message>
        <source>asked here %1</source>
        <comment>time</comment>
        <translation>hier angefragt %1</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4, %5, %6, %7</source>
        <comment>state, device, error, station, time left, time, request</comment>
        <translation>%1: %2, %3, %4, %5, %6, %7</translation>
    </message>
    <message>
        <source>Not confirmed</source>
        <translation>Nicht bestätigt</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wartet</translation>
    </message>
</context>
<context>
    <name>StationChoice</name>
    <message>
        <source>All stations</source>
        <translation>Alle Stationen</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Station</translation>
    </message>
</context>
<context>
    <name>StationRow</name>
    <message>
        <source>Without a station</source>
        <translation>Ohne Station</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Getrennt</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>Zustand unbekannt</translation>
    </message>
    <message>
        <source>monitored</source>
        <translation>überwacht</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2, %n error(s)</source>
        <comment>station, state</comment>
        <translation>
            <numerusform>%1, %2, %n Fehler</numerusform>
            <numerusform>%1, %2, %n Fehler</numerusform>
        </translation>
    </message>
    <message>
        <source>unmonitored</source>
        <translation>unüberwacht</translation>
    </message>
</context>
<context>
    <name>StationsPane</name>
    <message>
        <source>Stations</source>
        <translation>Stationen</translation>
    </message>
    <message>
        <source>No stations</source>
        <translation>Keine Stationen</translation>
    </message>
</context>
<context>
    <name>UsageCard</name>
    <message>
        <source>threshold %1</source>
        <translation>Schwellwert %1</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <comment>usage, value, detail</comment>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>%1: not known</source>
        <translation>%1: nicht bekannt</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>over threshold %1</source>
        <translation>über Schwellwert %1</translation>
    </message>
    <message>
        <source>bandwidth %1</source>
        <translation>Bandbreite %1</translation>
    </message>
</context>
</TS>
