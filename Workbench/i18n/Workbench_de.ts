<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AccessToken</name>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1: kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1: expected a token of %2 to %3 characters, found %4</source>
        <translation>%1: erwartet: ein Kennwort von %2 bis %3 Zeichen, gefunden: %4</translation>
    </message>
    <message>
        <source>%1: expected a token in one line without blanks</source>
        <translation>%1: erwartet: ein Kennwort in einer Zeile ohne Leerzeichen</translation>
    </message>
</context>
<context>
    <name>AddressReader</name>
    <message>
        <source>an address like http://station:9100/metrics without a user</source>
        <translation>eine Adresse wie http://station:9100/metrics ohne Benutzer</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>a station without &quot;resources&quot;</source>
        <translation>eine Station ohne „resources“</translation>
    </message>
    <message>
        <source>both</source>
        <translation>beides</translation>
    </message>
    <message>
        <source>an address like rtsp://camera/path or camera:554 without a user</source>
        <translation>eine Adresse wie rtsp://kamera/pfad oder kamera:554 ohne Benutzer</translation>
    </message>
</context>
<context>
    <name>CameraProbe</name>
    <message>
        <source>no answer in time</source>
        <translation>keine Antwort in der Frist</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>die Verbindung wurde geschlossen</translation>
    </message>
    <message>
        <source>the answer is too long</source>
        <translation>die Antwort ist zu lang</translation>
    </message>
</context>
<context>
    <name>Catalogues</name>
    <message>
        <source>--language: expected en or de, found &quot;%1&quot;.</source>
        <translation>--language: erwartet: en oder de, gefunden: „%1“.</translation>
    </message>
</context>
<context>
    <name>ClientSession</name>
    <message>
        <source>message: expected text, found binary data</source>
        <translation>Nachricht: erwartet: Text, gefunden: Binärdaten</translation>
    </message>
    <message>
        <source>expected a hello within %1 seconds</source>
        <translation>erwartet: eine Begrüßung binnen %1 Sekunden</translation>
    </message>
    <message>
        <source>message: expected one hello, found another</source>
        <translation>Nachricht: erwartet: eine einzige Begrüßung, gefunden: noch eine</translation>
    </message>
    <message>
        <source>expected a token</source>
        <translation>erwartet: ein Kennwort</translation>
    </message>
    <message>
        <source>the token is wrong</source>
        <translation>das Kennwort ist falsch</translation>
    </message>
    <message>
        <source>message: expected a hello first</source>
        <translation>Nachricht: erwartet: zuerst eine Begrüßung</translation>
    </message>
    <message>
        <source>too many commands at a time</source>
        <translation>zu viele Befehle auf einmal</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The site: a JSON file, or the name of a bundled one (default, large, real).</source>
        <translation>Der Standort: eine JSON-Datei oder der Name eines mitgelieferten (default, large, real).</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>The language of all texts: en or de.</source>
        <translation>Die Sprache aller Texte: en oder de.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Diese Hilfe ausgeben.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Die Version ausgeben.</translation>
    </message>
    <message>
        <source>Expected options only, found &quot;%1&quot;.</source>
        <translation>Erwartet: nur Optionen, gefunden: „%1“.</translation>
    </message>
    <message>
        <source>--%1: expected a value.</source>
        <translation>--%1: erwartet: ein Wert.</translation>
    </message>
</context>
<context>
    <name>ConsoleReport</name>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>raised</source>
        <translation>neu</translation>
    </message>
    <message>
        <source>cleared</source>
        <translation>behoben</translation>
    </message>
    <message>
        <source>listed</source>
        <translation>offen</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Samples of this machine: %1</source>
        <translation>Messwerte dieses Rechners: %1</translation>
    </message>
    <message>
        <source>; the last: CPU %1, memory %2</source>
        <translation>; zuletzt: CPU %1, Speicher %2</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>connection lost</source>
        <translation>Verbindung verloren</translation>
    </message>
    <message>
        <source>states</source>
        <translation>Zustände</translation>
    </message>
    <message>
        <source>the states of all nodes were retrieved</source>
        <translation>die Zustände aller Knoten wurden abgerufen</translation>
    </message>
    <message>
        <source>retrieving the states of nodes failed</source>
        <translation>das Abrufen der Zustände ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>capacity</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>%1 is at %2% of its capacity</source>
        <translation>%1 hat %2 % der Kapazität erreicht</translation>
    </message>
    <message>
        <source>support</source>
        <translation>Abfrage</translation>
    </message>
    <message>
        <source>%1 supports system monitoring</source>
        <translation>%1 unterstützt die Systemüberwachung</translation>
    </message>
    <message>
        <source>%1 does not support system monitoring</source>
        <translation>%1 unterstützt die Systemüberwachung nicht</translation>
    </message>
    <message>
        <source>logged</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>reconnect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>cameras %1</source>
        <translation>Kameras %1</translation>
    </message>
    <message>
        <source>stations %1</source>
        <translation>Stationen %1</translation>
    </message>
    <message>
        <source>snooze</source>
        <translation>Aufschub</translation>
    </message>
    <message>
        <source>%1 is snoozed until %2</source>
        <translation>%1 ist bis %2 zurückgestellt</translation>
    </message>
    <message>
        <source>%1 was refused: %2</source>
        <translation>%1 wurde abgelehnt: %2</translation>
    </message>
    <message>
        <source>expired</source>
        <translation>Ablauf</translation>
    </message>
    <message>
        <source>the snooze of %1, which is still disconnected</source>
        <translation>%1 ist nicht mehr zurückgestellt und noch immer getrennt</translation>
    </message>
    <message>
        <source>the snooze of %1</source>
        <translation>%1 ist nicht mehr zurückgestellt</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1; next try in %2 s</source>
        <translation>%1; nächster Versuch in %2 s</translation>
    </message>
    <message>
        <source>refuses this client: %1</source>
        <translation>weist diesen Client ab: %1</translation>
    </message>
    <message>
        <source>waited</source>
        <translation>gewartet</translation>
    </message>
    <message>
        <source>in vain until %1 is listed</source>
        <translation>vergeblich, bis %1 gemeldet ist</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>saved as %1</source>
        <translation>gespeichert als %1</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>watch</source>
        <translation>Wache</translation>
    </message>
    <message>
        <source>%1 does not answer: %2</source>
        <translation>%1 antwortet nicht: %2</translation>
    </message>
    <message>
        <source>%1 answers</source>
        <translation>%1 antwortet</translation>
    </message>
    <message>
        <source>there is no answer for %1, which may be snoozed or not</source>
        <translation>keine Antwort zu %1; vielleicht zurückgestellt, vielleicht nicht</translation>
    </message>
    <message>
        <source>no connection within %1 s; the run ends</source>
        <translation>keine Verbindung binnen %1 s; der Lauf endet</translation>
    </message>
</context>
<context>
    <name>DashboardFeed</name>
    <message>
        <source>the server refuses this client for good: %1</source>
        <translation>der Server weist diesen Client endgültig ab: %1</translation>
    </message>
</context>
<context>
    <name>DashboardWindow</name>
    <message>
        <source>%1 - system monitor</source>
        <translation>%1 - Systemüberwachung</translation>
    </message>
    <message>
        <source>The dashboard cannot be loaded: %1</source>
        <translation>Die Übersicht kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>%1: line %2, column %3: %4</source>
        <translation>%1: Zeile %2, Spalte %3: %4</translation>
    </message>
</context>
<context>
    <name>ExporterReading</name>
    <message>
        <source>it tells nothing of the memory</source>
        <translation>sie sagt nichts über den Speicher</translation>
    </message>
    <message>
        <source>it tells nothing of the processors</source>
        <translation>sie sagt nichts über die Prozessoren</translation>
    </message>
</context>
<context>
    <name>ExporterScraper</name>
    <message>
        <source>no answer in time</source>
        <translation>keine Antwort in der Frist</translation>
    </message>
    <message>
        <source>the answer is too long</source>
        <translation>die Antwort ist zu lang</translation>
    </message>
    <message>
        <source>HTTP status %1</source>
        <translation>HTTP-Status %1</translation>
    </message>
</context>
<context>
    <name>JournalPlayer</name>
    <message>
        <source>The plug-in failed to initialise.</source>
        <translation>Das Plug-in ließ sich nicht initialisieren.</translation>
    </message>
    <message>
        <source>The plug-in has no error list.</source>
        <translation>Das Plug-in hat keine Fehlerliste.</translation>
    </message>
    <message>
        <source>%1: line %2: expected a call that the plug-in has, found &quot;%3&quot; with %4 arguments</source>
        <translation>%1: Zeile %2: erwartet: ein Aufruf, den das Plug-in hat, gefunden: „%3“ mit %4 Argumenten</translation>
    </message>
</context>
<context>
    <name>JournalReader</name>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1: kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1: line %2: expected %3</source>
        <translation>%1: Zeile %2: erwartet: %3</translation>
    </message>
    <message>
        <source>the header of a journal that --record has written</source>
        <translation>der Kopf eines Journals, das --record geschrieben hat</translation>
    </message>
    <message>
        <source>version %1 of the journal</source>
        <translation>Version %1 des Journals</translation>
    </message>
    <message>
        <source>an entry of a journal</source>
        <translation>ein Eintrag eines Journals</translation>
    </message>
</context>
<context>
    <name>JournalWriter</name>
    <message>
        <source>%1: expected a new file, found one that is there</source>
        <translation>%1: erwartet: eine neue Datei, gefunden: eine vorhandene</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1: kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>JsonObject</name>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>null</source>
        <translation>null</translation>
    </message>
    <message>
        <source>the number %1</source>
        <translation>die Zahl %1</translation>
    </message>
    <message>
        <source>an empty text</source>
        <translation>ein leerer Text</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1: kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1: line %2: expected valid JSON, found: %3</source>
        <translation>%1: Zeile %2: erwartet: gültiges JSON, gefunden: %3</translation>
    </message>
    <message>
        <source>%1: line 1: expected an object, found a list</source>
        <translation>%1: Zeile 1: erwartet: ein Objekt, gefunden: eine Liste</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>eine Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>eine ganze Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>a list of objects</source>
        <translation>eine Liste von Objekten</translation>
    </message>
    <message>
        <source>one of the keys %1</source>
        <translation>einer der Schlüssel %1</translation>
    </message>
    <message>
        <source>an unknown key</source>
        <translation>ein unbekannter Schlüssel</translation>
    </message>
    <message>
        <source>%1: %2: expected %3, found %4</source>
        <translation>%1: %2: erwartet: %3, gefunden: %4</translation>
    </message>
    <message>
        <source>%1: %2: expected the key once, found it twice</source>
        <translation>%1: %2: erwartet: den Schlüssel einmal, gefunden: zweimal</translation>
    </message>
</context>
<context>
    <name>LocalStation</name>
    <message>
        <source>This machine (%1)</source>
        <translation>Dieser Rechner (%1)</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>eines von %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
</context>
<context>
    <name>MetricsServer</name>
    <message>
        <source>--metrics: port %1 cannot be used: %2</source>
        <translation>--metrics: Port %1 kann nicht benutzt werden: %2</translation>
    </message>
</context>
<context>
    <name>MetricsText</name>
    <message>
        <source>a name</source>
        <translation>ein Name</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a timestamp</source>
        <translation>ein Zeitstempel</translation>
    </message>
    <message>
        <source>the end of the line</source>
        <translation>das Ende der Zeile</translation>
    </message>
    <message>
        <source>the name of a label</source>
        <translation>der Name eines Labels</translation>
    </message>
    <message>
        <source>a comma</source>
        <translation>ein Komma</translation>
    </message>
    <message>
        <source>line %1, column %2: expected %3</source>
        <translation>Zeile %1, Spalte %2: erwartet: %3</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>mehr als %1 Bytes</translation>
    </message>
</context>
<context>
    <name>OperationalLogReader</name>
    <message>
        <source>Error snoozed</source>
        <translation>Fehler zurückgestellt</translation>
    </message>
</context>
<context>
    <name>OperationalLogStore</name>
    <message>
        <source>%1: cannot be used for the operational log: %2</source>
        <translation>%1: kann nicht für das Betriebsprotokoll verwendet werden: %2</translation>
    </message>
    <message>
        <source>an SQLite file of another kind</source>
        <translation>eine SQLite-Datei anderer Art</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1: kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Run without a window: play the scenario to its end, print each change of the error list, then a summary. This is what happens, too, when there is no display.</source>
        <translation>Ohne Fenster laufen: das Szenario bis zum Ende spielen, jede Änderung der Fehlerliste ausgeben, dann eine Zusammenfassung. Das geschieht auch, wenn es keinen Bildschirm gibt.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>How many seconds of the scenario pass in a real one. Snoozes and the times printed follow; the plug-in&apos;s own delays and the samples of this machine do not.</source>
        <translation>Wie viele Sekunden des Szenarios in einer wirklichen vergehen. Zurückstellungen und ausgegebene Zeiten folgen dem; die eigenen Fristen des Plug-ins und die Messwerte dieses Rechners nicht.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Start the scenario again whenever it has ended.</source>
        <translation>Das Szenario nach jedem Ende von vorn beginnen.</translation>
    </message>
    <message>
        <source>Save a picture of the dashboard, also without a window. The suffix names the format.</source>
        <translation>Ein Bild der Übersicht speichern, auch ohne Fenster. Die Dateiendung bestimmt das Format.</translation>
    </message>
    <message>
        <source>When to take it, in seconds of the scenario. Without this the scenario decides, or it is taken at the end.</source>
        <translation>Wann es aufgenommen wird, in Sekunden des Szenarios. Ohne diese Angabe entscheidet das Szenario, sonst wird es am Ende aufgenommen.</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Keep the operational log in this SQLite file. Without it the log is kept among the user&apos;s data, or only in memory when there is no window.</source>
        <translation>Das Betriebsprotokoll in dieser SQLite-Datei führen. Ohne diese Angabe liegt es bei den Daten des Benutzers, ohne Fenster nur im Speicher.</translation>
    </message>
    <message>
        <source>Load this plug-in file instead of the one that was built with this program.</source>
        <translation>Diese Plug-in-Datei laden statt der mit diesem Programm gebauten.</translation>
    </message>
    <message>
        <source>--screenshot-at: expected --screenshot FILE as well.</source>
        <translation>--screenshot-at: erwartet: auch --screenshot DATEI.</translation>
    </message>
    <message>
        <source>--%1: expected a number greater than 0 and up to %2, found &quot;%3&quot;.</source>
        <translation>--%1: erwartet: eine Zahl größer als 0 und bis %2, gefunden: „%3“.</translation>
    </message>
    <message>
        <source>Show the site of this site-server instead of one in this program. The scenario is then watch unless --scenario is given, and only what clients and their users do is taken from it; its ids are checked with --site.</source>
        <translation>Den Standort dieses site-servers zeigen statt eines Standorts in diesem Programm. Das Szenario ist dann watch, wenn --scenario nichts anderes sagt, und nur was Clients und ihre Benutzer tun, wird ihm entnommen; seine Kennungen werden anhand von --site geprüft.</translation>
    </message>
    <message>
        <source>ws://host:port</source>
        <translation>ws://Rechner:Port</translation>
    </message>
    <message>
        <source>Give that server the token that is in this file.</source>
        <translation>Diesem Server das Kennwort nennen, das in dieser Datei steht.</translation>
    </message>
    <message>
        <source>Keep the snoozes of the site in this SQLite file, for the next time. Without it they end with the program.</source>
        <translation>Die Zurückstellungen des Standorts für das nächste Mal in dieser SQLite-Datei aufbewahren. Ohne sie enden sie mit dem Programm.</translation>
    </message>
    <message>
        <source>Show this QML file instead of the dashboard, with the same properties.</source>
        <translation>Diese QML-Datei statt der Übersicht zeigen, mit denselben Eigenschaften.</translation>
    </message>
    <message>
        <source>--page: expected a QML file, found &quot;%1&quot;.</source>
        <translation>--page: erwartet: eine QML-Datei, gefunden: „%1“.</translation>
    </message>
    <message>
        <source>--server: expected an address such as ws://127.0.0.1:8765, found &quot;%1&quot;.</source>
        <translation>--server: erwartet: eine Adresse wie ws://127.0.0.1:8765, gefunden: „%1“.</translation>
    </message>
    <message>
        <source>--%1: expected without --server.</source>
        <translation>--%1: erwartet: nur ohne --server.</translation>
    </message>
    <message>
        <source>Decides which cameras a storm takes, and in which order. The same seed plays the same storm.</source>
        <translation>Entscheidet, welche Kameras ein Sturm trifft und in welcher Reihenfolge. Dieselbe Zahl ergibt denselben Sturm.</translation>
    </message>
    <message>
        <source>--seed: expected a whole number from 0 to 4294967295, found &quot;%1&quot;.</source>
        <translation>--seed: erwartet: eine ganze Zahl von 0 bis 4294967295, gefunden: „%1“.</translation>
    </message>
    <message>
        <source>Write everything that the plug-in is given to this new file, to be replayed.</source>
        <translation>Alles, was das Plug-in bekommt, in diese neue Datei schreiben, um es wiederzugeben.</translation>
    </message>
    <message>
        <source>Give the plug-in what such a file tells, instead of a site and a scenario. --speed max does so as fast as possible. The error list is printed in the end, and compared with the recorded one.</source>
        <translation>Dem Plug-in geben, was eine solche Datei erzählt, statt eines Standorts und eines Szenarios. --speed max tut das so schnell wie möglich. Die Fehlerliste wird am Ende ausgegeben und mit der aufgezeichneten verglichen.</translation>
    </message>
    <message>
        <source>--%1: expected without --replay.</source>
        <translation>--%1: erwartet: nur ohne --replay.</translation>
    </message>
    <message>
        <source>Without a window: print text, or json with one object a line for programs.</source>
        <translation>Ohne Fenster: text ausgeben, oder json mit einem Objekt je Zeile für Programme.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Without a window: end with exit code 0 although errors are listed in the end.</source>
        <translation>Ohne Fenster: mit dem Rückgabewert 0 enden, auch wenn am Ende Fehler in der Liste stehen.</translation>
    </message>
    <message>
        <source>Offer figures for monitoring, as OpenMetrics text at http://127.0.0.1:PORT/metrics. With 0 a free port is chosen. The address is printed on standard error.</source>
        <translation>Kennzahlen zur Überwachung anbieten, als OpenMetrics-Text unter http://127.0.0.1:PORT/metrics. Mit 0 wird ein freier Port gewählt. Die Adresse wird auf der Standardfehlerausgabe ausgegeben.</translation>
    </message>
    <message>
        <source>port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>What is shown:</source>
        <translation>Was gezeigt wird:</translation>
    </message>
    <message>
        <source>Site server:</source>
        <translation>Standort-Server:</translation>
    </message>
    <message>
        <source>Files that are written:</source>
        <translation>Dateien, die geschrieben werden:</translation>
    </message>
    <message>
        <source>For scripts and monitoring:</source>
        <translation>Für Skripte und Überwachung:</translation>
    </message>
    <message>
        <source>Others:</source>
        <translation>Weitere:</translation>
    </message>
    <message>
        <source>Usage: workbench [options]
</source>
        <translation>Aufruf: workbench [Optionen]
</translation>
    </message>
    <message>
        <source>Runs the system-monitor plug-in in a stand-in for its host: with a site of
recording stations and cameras, a scenario of what happens there, and this
machine&apos;s own load.
</source>
        <translation>Führt das Plug-in zur Systemüberwachung in einem Ersatz für sein
Wirtsprogramm aus: mit einem Standort aus Aufzeichnungsstationen und Kameras,
einem Szenario der Ereignisse und der Auslastung dieses Rechners.
</translation>
    </message>
    <message>
        <source>Exit codes:
  0  all went well
  1  errors are listed at the end of a run without a window
  2  an option or a file is wrong
  3  the work could not be done
</source>
        <translation>Rückgabewerte:
  0  alles ging gut
  1  am Ende eines Laufs ohne Fenster stehen Fehler in der Liste
  2  eine Option oder eine Datei ist falsch
  3  die Arbeit war nicht möglich
</translation>
    </message>
    <message>
        <source>--format: expected text or json, found &quot;%1&quot;.</source>
        <translation>--format: erwartet: text oder json, gefunden: „%1“.</translation>
    </message>
    <message>
        <source>--metrics: expected a port from 0 to 65535, found &quot;%1&quot;.</source>
        <translation>--metrics: erwartet: ein Port von 0 bis 65535, gefunden: „%1“.</translation>
    </message>
    <message>
        <source>Examples:
  workbench
      show the dashboard with the bundled site and scenario
  workbench --headless --scenario everything --speed 6
      print every kind of happening, six times as fast
  workbench --site large --scenario flap
      let ten thousand cameras flap for a minute
  workbench --headless --screenshot picture.png
      save a picture of the dashboard as well
  workbench --server ws://127.0.0.1:8765
      show the site of a site-server
  workbench --headless --format json --ignore-errors
      print one JSON object a line for a program to read
</source>
        <translation>Beispiele:
  workbench
      die Übersicht mit dem mitgelieferten Standort und Szenario zeigen
  workbench --headless --scenario everything --speed 6
      jede Art von Ereignis ausgeben, sechsmal so schnell
  workbench --site large --scenario flap
      zehntausend Kameras eine Minute lang flattern lassen
  workbench --headless --screenshot bild.png
      auch ein Bild der Übersicht speichern
  workbench --server ws://127.0.0.1:8765
      den Standort eines site-server zeigen
  workbench --headless --format json --ignore-errors
      ein JSON-Objekt je Zeile ausgeben, für ein Programm
</translation>
    </message>
    <message>
        <source>--%1: expected --server URL as well.</source>
        <translation>--%1: erwartet: auch --server URL.</translation>
    </message>
    <message>
        <source>What happens at the site: a JSON file, or the name of a bundled one (default, everything, flap, storm, watch).</source>
        <translation>Was am Standort geschieht: eine JSON-Datei oder der Name eines mitgelieferten Szenarios (default, everything, flap, storm, watch).</translation>
    </message>
    <message>
        <source>Without a window: end with exit code 3 when there has been no connection to that server for so long after the start. Without this it is waited for.</source>
        <translation>Ohne Fenster: mit dem Rückgabewert 3 enden, wenn so lange nach dem Start keine Verbindung zu diesem Server besteht. Ohne diese Angabe wird auf ihn gewartet.</translation>
    </message>
</context>
<context>
    <name>PluginHost</name>
    <message>
        <source>%1: cannot be loaded as a plug-in: %2</source>
        <translation>%1: kann nicht als Plug-in geladen werden: %2</translation>
    </message>
    <message>
        <source>%1: expected a plug-in with the interface &quot;%2&quot;, found &quot;%3&quot;</source>
        <translation>%1: erwartet: ein Plug-in mit der Schnittstelle „%2“, gefunden: „%3“</translation>
    </message>
    <message>
        <source>%1: expected a plug-in id in the metadata</source>
        <translation>%1: erwartet: eine Plug-in-Kennung in den Metadaten</translation>
    </message>
    <message>
        <source>%1: its object is no plug-in of this host</source>
        <translation>%1: das Objekt ist kein Plug-in für dieses Programm</translation>
    </message>
    <message>
        <source>%1: the plug-in failed to initialise</source>
        <translation>%1: das Plug-in konnte nicht initialisiert werden</translation>
    </message>
</context>
<context>
    <name>PluginSurface</name>
    <message>
        <source>The plug-in has no error list.</source>
        <translation>Das Plug-in hat keine Fehlerliste.</translation>
    </message>
    <message>
        <source>The plug-in has no signal %1.</source>
        <translation>Das Plug-in hat kein Signal %1.</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>RemoteServerLink</name>
    <message>
        <source>the server does not answer</source>
        <translation>der Server antwortet nicht</translation>
    </message>
    <message>
        <source>the server has closed the connection</source>
        <translation>der Server hat die Verbindung beendet</translation>
    </message>
    <message>
        <source>expected a welcome first</source>
        <translation>erwartet: zuerst ein Willkommen</translation>
    </message>
    <message>
        <source>message: expected text, found binary data</source>
        <translation>Nachricht: erwartet: Text, gefunden: Binärdaten</translation>
    </message>
    <message>
        <source>message: expected one welcome, found another</source>
        <translation>Nachricht: erwartet: ein einziges Willkommen, gefunden: noch eines</translation>
    </message>
</context>
<context>
    <name>ReplayRun</name>
    <message>
        <source>%1: line %2: expected a change that fits the topology</source>
        <translation>%1: Zeile %2: erwartet: eine Änderung, die zur Topologie passt</translation>
    </message>
    <message>
        <source>The journal was cut off; its %1 whole entries were replayed.</source>
        <translation>Das Journal ist abgeschnitten; seine %1 ganzen Einträge wurden wiedergegeben.</translation>
    </message>
    <message>
        <source>%1 entries were replayed; the list is the recorded one.</source>
        <translation>%1 Einträge wurden wiedergegeben; die Liste ist die aufgezeichnete.</translation>
    </message>
    <message>
        <source>%1 entries were replayed; the list differs from the recorded one:</source>
        <translation>%1 Einträge wurden wiedergegeben; die Liste weicht von der aufgezeichneten ab:</translation>
    </message>
</context>
<context>
    <name>RtspOptions</name>
    <message>
        <source>the answer is no RTSP</source>
        <translation>die Antwort ist kein RTSP</translation>
    </message>
    <message>
        <source>the answer is that to another request</source>
        <translation>die Antwort gehört zu einer anderen Anfrage</translation>
    </message>
    <message>
        <source>RTSP status %1</source>
        <translation>RTSP-Status %1</translation>
    </message>
</context>
<context>
    <name>RunProgress</name>
    <message>
        <source>%1 of %2 s of the scenario</source>
        <translation>%1 von %2 s des Szenarios</translation>
    </message>
    <message>
        <source>waiting for the error list to come to rest</source>
        <translation>warten, bis die Fehlerliste zur Ruhe kommt</translation>
    </message>
    <message>
        <source>waiting for the server</source>
        <translation>warten auf den Server</translation>
    </message>
    <message>
        <source>%1 of %2 entries of the journal</source>
        <translation>%1 von %2 Einträgen des Journals</translation>
    </message>
</context>
<context>
    <name>ScenarioFile</name>
    <message>
        <source>one of %1</source>
        <translation>eines von %1</translation>
    </message>
    <message>
        <source>the id of a camera of the site</source>
        <translation>die Kennung einer Kamera des Standorts</translation>
    </message>
    <message>
        <source>the id of a station of the site</source>
        <translation>die Kennung einer Station des Standorts</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>the id of a volume of station &quot;%1&quot;</source>
        <translation>die Kennung eines Volumes der Station „%1“</translation>
    </message>
    <message>
        <source>a station that supports monitoring, other than this machine</source>
        <translation>eine Station, die die Überwachung unterstützt und nicht dieser Rechner ist</translation>
    </message>
    <message>
        <source>the id of a recording group of station &quot;%1&quot;</source>
        <translation>die Kennung einer Aufzeichnungsgruppe der Station „%1“</translation>
    </message>
    <message>
        <source>the id of a camera or station of the site</source>
        <translation>die Kennung einer Kamera oder Station des Standorts</translation>
    </message>
</context>
<context>
    <name>ScenarioRun</name>
    <message>
        <source>Metrics are at %1</source>
        <translation>Kennzahlen stehen unter %1</translation>
    </message>
</context>
<context>
    <name>ServerGate</name>
    <message>
        <source>the server has %1 clients already</source>
        <translation>der Server hat bereits %1 Clients</translation>
    </message>
    <message>
        <source>too many connections wait for a hello</source>
        <translation>zu viele Verbindungen warten auf eine Begrüßung</translation>
    </message>
</context>
<context>
    <name>ServerOptions</name>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Keep the snoozes in this SQLite file, so that they outlive the server. Without it they end with the server.</source>
        <translation>Die Zurückstellungen in dieser SQLite-Datei aufbewahren, sodass sie den Server überdauern. Ohne sie enden sie mit dem Server.</translation>
    </message>
    <message>
        <source>Where clients connect: an address of this machine and a port, 0 for any free one. Other than on a loopback address, this needs --token-file.</source>
        <translation>Wohin sich Clients verbinden: eine Adresse dieses Rechners und ein Port, 0 für irgendeinen freien. Außer bei einer Loopback-Adresse ist dazu --token-file nötig.</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>Adresse:Port</translation>
    </message>
    <message>
        <source>Turn away clients that do not give the token that is in this file: 16 to 1024 characters in one line. It travels as it is; see docs/site-protocol.md for encryption.</source>
        <translation>Clients abweisen, die nicht das Kennwort nennen, das in dieser Datei steht: 16 bis 1024 Zeichen in einer Zeile. Es wird unverschlüsselt übertragen; zur Verschlüsselung siehe docs/site-protocol.md.</translation>
    </message>
    <message>
        <source>--listen: expected an address and a port, such as 127.0.0.1:8765 or [::1]:8765, found &quot;%1&quot;.</source>
        <translation>--listen: erwartet: eine Adresse und ein Port wie 127.0.0.1:8765 oder [::1]:8765, gefunden: „%1“.</translation>
    </message>
    <message>
        <source>--listen: expected --token-file FILE as well, since %1 can be reached from other machines.</source>
        <translation>--listen: erwartet: auch --token-file FILE, weil %1 von anderen Rechnern aus erreichbar ist.</translation>
    </message>
    <message>
        <source>Let happen at the site what a scenario tells: a JSON file, or the name of a bundled one (default, everything, flap, storm). What it tells of clients and their users is left out. Without this nothing happens but what clients ask for.</source>
        <translation>Am Standort geschehen lassen, was ein Szenario erzählt: eine JSON-Datei oder der Name eines mitgelieferten (default, everything, flap, storm). Was es von Clients und ihren Benutzern erzählt, bleibt weg. Ohne dies geschieht nur, worum Clients bitten.</translation>
    </message>
    <message>
        <source>What is served:</source>
        <translation>Was bereitgestellt wird:</translation>
    </message>
    <message>
        <source>To whom:</source>
        <translation>Für wen:</translation>
    </message>
    <message>
        <source>Others:</source>
        <translation>Weitere:</translation>
    </message>
    <message>
        <source>Usage: site-server [options]
</source>
        <translation>Aufruf: site-server [Optionen]
</translation>
    </message>
    <message>
        <source>Serves a simulated video-surveillance site to Workbenches: the states of its
stations, cameras, volumes and recordings, and the snoozes, which all its
clients share. It runs until it is ended.
</source>
        <translation>Stellt Workbenches einen simulierten Standort der Videoüberwachung bereit: die
Zustände seiner Stationen, Kameras, Volumes und Aufzeichnungen und die
Zurückstellungen, die alle Clients teilen. Läuft, bis es beendet wird.
</translation>
    </message>
    <message>
        <source>Examples:
  site-server --store snoozes.sqlite
      serve the bundled site on this machine
  workbench --server ws://127.0.0.1:8765
      show it, in another terminal
</source>
        <translation>Beispiele:
  site-server --store snoozes.sqlite
      den mitgelieferten Standort auf diesem Rechner bereitstellen
  workbench --server ws://127.0.0.1:8765
      ihn zeigen, in einem anderen Terminal
</translation>
    </message>
    <message>
        <source>Exit codes:
  2  an option or a file is wrong
  3  the work could not be done
</source>
        <translation>Rückgabewerte:
  2  eine Option oder eine Datei ist falsch
  3  die Arbeit war nicht möglich
</translation>
    </message>
</context>
<context>
    <name>SiteFile</name>
    <message>
        <source>an id without &quot;/&quot;</source>
        <translation>eine Kennung ohne „/“</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>an id that is used once</source>
        <translation>eine nur einmal verwendete Kennung</translation>
    </message>
    <message>
        <source>&quot;%1&quot; as at %2</source>
        <translation>„%1“ wie bei %2</translation>
    </message>
    <message>
        <source>an id other than that of this machine</source>
        <translation>eine andere Kennung als die dieses Rechners</translation>
    </message>
    <message>
        <source>an id with &quot;#&quot; for the number</source>
        <translation>eine Kennung mit „#“ für die Nummer</translation>
    </message>
    <message>
        <source>%1 stations and cameras at most</source>
        <translation>höchstens %1 Stationen und Kameras</translation>
    </message>
    <message>
        <source>one more</source>
        <translation>eine mehr</translation>
    </message>
</context>
<context>
    <name>SnoozeStore</name>
    <message>
        <source>the file is damaged: %1</source>
        <translation>die Datei ist beschädigt: %1</translation>
    </message>
    <message>
        <source>an SQLite file of another kind</source>
        <translation>eine SQLite-Datei anderer Art</translation>
    </message>
    <message>
        <source>a file of version %1</source>
        <translation>eine Datei der Version %1</translation>
    </message>
    <message>
        <source>%1: expected a file of snoozes that can be written, found: %2</source>
        <translation>%1: erwartet: eine beschreibbare Datei mit Zurückstellungen, gefunden: %2</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1: kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>StandardOutput</name>
    <message>
        <source>The output cannot be written.</source>
        <translation>Die Ausgabe kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>StationWatch</name>
    <message>
        <source>the answer cannot be used: %1</source>
        <translation>die Antwort ist nicht brauchbar: %1</translation>
    </message>
</context>
<context>
    <name>StormReader</name>
    <message>
        <source>one of %1</source>
        <translation>eines von %1</translation>
    </message>
    <message>
        <source>a station with cameras</source>
        <translation>eine Station mit Kameras</translation>
    </message>
    <message>
        <source>one without</source>
        <translation>eine ohne</translation>
    </message>
    <message>
        <source>at most %1 changes in all</source>
        <translation>höchstens %1 Änderungen insgesamt</translation>
    </message>
    <message>
        <source>nothing beside &quot;rate&quot;</source>
        <translation>nichts neben „rate“</translation>
    </message>
    <message>
        <source>a duration</source>
        <translation>eine Dauer</translation>
    </message>
</context>
<context>
    <name>WindowRun</name>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Picture saved as %1</source>
        <translation>Bild gespeichert als %1</translation>
    </message>
    <message>
        <source>The server refuses this client: %1</source>
        <translation>Der Server weist diesen Client ab: %1</translation>
    </message>
    <message>
        <source>%1 does not answer: %2</source>
        <translation>%1 antwortet nicht: %2</translation>
    </message>
    <message>
        <source>%1 answers</source>
        <translation>%1 antwortet</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>--loop: expected a window.</source>
        <translation>--loop: erwartet: ein Fenster.</translation>
    </message>
    <message>
        <source>%1: expected a journal of plug-in %2, found one of %3</source>
        <translation>%1: erwartet: ein Journal des Plug-ins %2, gefunden: eines von %3</translation>
    </message>
    <message>
        <source>--format: expected --headless as well.</source>
        <translation>--format: erwartet: auch --headless.</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message>
        <source>--connect-timeout: expected --headless as well.</source>
        <translation>--connect-timeout: erwartet: auch --headless.</translation>
    </message>
</context>
<context>
    <name>site-server</name>
    <message>
        <source>--listen: %1, port %2: %3</source>
        <translation>--listen: %1, Port %2: %3</translation>
    </message>
    <message>
        <source>listening on %1</source>
        <translation>wartet auf Verbindungen an %1</translation>
    </message>
    <message>
        <source>%1 does not answer: %2</source>
        <translation>%1 antwortet nicht: %2</translation>
    </message>
    <message>
        <source>%1 answers</source>
        <translation>%1 antwortet</translation>
    </message>
</context>
</TS>
