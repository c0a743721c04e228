<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CaptureSaving</name>
    <message>
        <source>The capture could not be saved in
%1

%2

Choose another folder or name.</source>
        <translation>Der Mitschnitt konnte nicht gespeichert werden in
%1

%2

Bitte einen anderen Ordner oder Namen wählen.</translation>
    </message>
    <message>
        <source>Save capture</source>
        <translation>Mitschnitt speichern</translation>
    </message>
    <message>
        <source>Captures (*.pcapng)</source>
        <translation>Mitschnitte (*.pcapng)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>Core</name>
    <message>
        <source>COM%1 is available</source>
        <translation>COM%1 ist frei</translation>
    </message>
    <message>
        <source>COM%1 is used (modem)</source>
        <translation>COM%1 ist belegt (Modem)</translation>
    </message>
    <message>
        <source>COM%1 is used (device)</source>
        <translation>COM%1 ist belegt (Gerät)</translation>
    </message>
    <message>
        <source>COM%1 is in use</source>
        <translation>COM%1 wird benutzt</translation>
    </message>
    <message>
        <source>COM%1 is not accessible</source>
        <translation>COM%1 ist nicht zugänglich</translation>
    </message>
    <message>
        <source>COM%1 reports error</source>
        <translation>COM%1 meldet einen Fehler</translation>
    </message>
    <message>
        <source>Port %1 is used by a modem!</source>
        <translation>Der Anschluss %1 wird von einem Modem benutzt!</translation>
    </message>
    <message>
        <source>Port %1 is used by a device!</source>
        <translation>Der Anschluss %1 wird von einem Gerät benutzt!</translation>
    </message>
    <message>
        <source>Port %1 is in use by another application!</source>
        <translation>Der Anschluss %1 wird von einem anderen Programm benutzt!</translation>
    </message>
    <message>
        <source>Port %1 is not accessible!</source>
        <translation>Der Anschluss %1 ist nicht zugänglich!</translation>
    </message>
    <message>
        <source>Port %1 open error!</source>
        <translation>Der Anschluss %1 lässt sich nicht öffnen!</translation>
    </message>
    <message>
        <source>No port selected!</source>
        <translation>Kein Anschluss gewählt!</translation>
    </message>
    <message>
        <source>%1 does not exist; is the adapter plugged in, and is it the right port?</source>
        <translation>%1 gibt es nicht; ist der Adapter eingesteckt, und ist es der richtige Anschluss?</translation>
    </message>
    <message>
        <source>%1 has no serial hardware behind it; choose another port.</source>
        <translation>Hinter %1 steckt keine serielle Schnittstelle; bitte einen anderen Anschluss wählen.</translation>
    </message>
    <message>
        <source>%1 does not respond; is the adapter still plugged in?</source>
        <translation>%1 antwortet nicht; ist der Adapter noch eingesteckt?</translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation>%1 ist kein serieller Anschluss.</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>%1 lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: error %2.</source>
        <translation>%1 lässt sich nicht öffnen: Fehler %2.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 lässt sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>%1 does not take these line settings; choose another speed.</source>
        <translation>%1 nimmt diese Einstellungen nicht an; bitte eine andere Geschwindigkeit wählen.</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 wird von einem anderen Programm benutzt.</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>%1 wird von %2 benutzt.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; the group may not open it either.</source>
        <translation>Keine Berechtigung, %1 zu öffnen (Benutzer %2, Gruppe %3); auch die Gruppe darf es nicht.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; %4 is in that group, so something else forbids it.</source>
        <translation>Keine Berechtigung, %1 zu öffnen (Benutzer %2, Gruppe %3); %4 ist in der Gruppe, also verbietet es etwas anderes.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; %4 is in that group from the next login on: log out and in again.</source>
        <translation>Keine Berechtigung, %1 zu öffnen (Benutzer %2, Gruppe %3); %4 ist von der nächsten Anmeldung an in der Gruppe: bitte ab- und wieder anmelden.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; %4 is not in that group: run &quot;%5&quot;, then log out and in again.</source>
        <translation>Keine Berechtigung, %1 zu öffnen (Benutzer %2, Gruppe %3); %4 ist nicht in der Gruppe: „%5“ ausführen, dann ab- und wieder anmelden.</translation>
    </message>
    <message>
        <source>Velmora goes on when it is plugged in again.</source>
        <translation>Velmora macht weiter, sobald er wieder eingesteckt ist.</translation>
    </message>
    <message>
        <source>Velmora goes on when it is awake again.</source>
        <translation>Velmora macht weiter, sobald der Computer wieder wach ist.</translation>
    </message>
    <message>
        <source>%1: The computer goes to sleep.</source>
        <translation>%1: Der Computer geht in den Ruhezustand.</translation>
    </message>
    <message>
        <source>%1: The port failed.</source>
        <translation>%1: Der Anschluss ist ausgefallen.</translation>
    </message>
    <message>
        <source>%1: The line was cut or the device failed</source>
        <translation>%1: Die Leitung wurde unterbrochen, oder das Gerät ist ausgefallen</translation>
    </message>
    <message>
        <source>The transfer is lost.</source>
        <translation>Die Übertragung ist verloren.</translation>
    </message>
    <message>
        <source>Bytes come that make no frame.</source>
        <translation>Es kommen Bytes, die keinen Rahmen ergeben.</translation>
    </message>
    <message>
        <source>Nothing has come for a minute.</source>
        <translation>Seit einer Minute ist nichts gekommen.</translation>
    </message>
    <message>
        <source>Stop the server; Check cable in Setup finds out why.</source>
        <translation>Den Server stoppen; „Kabel prüfen“ unter „Einrichten“ findet heraus, warum.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>The folder is used, but could not be saved for the next start: %1</source>
        <translation>Der Ordner wird benutzt, konnte aber nicht für den nächsten Start gespeichert werden: %1</translation>
    </message>
    <message>
        <source>%1 has less than 100 bytes and is replaced by the default file; it is kept as %2</source>
        <translation>%1 hat weniger als 100 Bytes und wird durch die Standarddatei ersetzt; aufbewahrt als %2</translation>
    </message>
    <message>
        <source>The guide is not installed: it should be in %1. On Debian and Ubuntu it comes with the package velmora-doc, on Windows with the installer.</source>
        <translation>Das Handbuch ist nicht installiert: es sollte in %1 liegen. Unter Debian und Ubuntu kommt es mit dem Paket velmora-doc, unter Windows mit dem Installationsprogramm.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>vollständig</translation>
    </message>
    <message>
        <source>complete, 1 formula changed</source>
        <translation>vollständig, 1 Formel geändert</translation>
    </message>
    <message>
        <source>incomplete: %9</source>
        <translation>unvollständig: %9</translation>
    </message>
    <message>
        <source>refused: %9</source>
        <translation>abgelehnt: %9</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>läuft</translation>
    </message>
    <message>
        <source>under way, %1 %, %2 left</source>
        <translation>läuft, %1 %, noch %2</translation>
    </message>
    <message>
        <source>under way, %1 %</source>
        <translation>läuft, %1 %</translation>
    </message>
    <message>
        <source>record too long</source>
        <translation>Datensatz zu lang</translation>
    </message>
    <message>
        <source>disk full</source>
        <translation>Datenträger voll</translation>
    </message>
    <message>
        <source>file exists</source>
        <translation>Datei vorhanden</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>Datei nicht vorhanden</translation>
    </message>
    <message>
        <source>invalid request</source>
        <translation>ungültige Anforderung</translation>
    </message>
    <message>
        <source>file in use</source>
        <translation>Datei in Benutzung</translation>
    </message>
    <message>
        <source>end of file</source>
        <translation>Ende der Datei</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>nicht möglich</translation>
    </message>
    <message>
        <source>record too long (%1)</source>
        <translation>Datensatz zu lang (%1)</translation>
    </message>
    <message>
        <source>disk full (%1)</source>
        <translation>Datenträger voll (%1)</translation>
    </message>
    <message>
        <source>file exists (%1)</source>
        <translation>Datei vorhanden (%1)</translation>
    </message>
    <message>
        <source>no such file (%1)</source>
        <translation>Datei nicht vorhanden (%1)</translation>
    </message>
    <message>
        <source>invalid request (%1)</source>
        <translation>ungültige Anforderung (%1)</translation>
    </message>
    <message>
        <source>file in use (%1)</source>
        <translation>Datei in Benutzung (%1)</translation>
    </message>
    <message>
        <source>end of file (%1)</source>
        <translation>Ende der Datei (%1)</translation>
    </message>
    <message>
        <source>not possible (%1)</source>
        <translation>nicht möglich (%1)</translation>
    </message>
    <message>
        <source>Earlier copy: %1</source>
        <translation>Frühere Fassung: %1</translation>
    </message>
    <message>
        <source>Velmora is free software under the MIT licence: use it, copy it, change it and pass it on. It comes without any warranty.</source>
        <translation>Velmora ist freie Software unter der MIT-Lizenz: Sie darf benutzt, kopiert, geändert und weitergegeben werden. Eine Gewährleistung gibt es nicht.</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliotheken</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Orte</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Einstellungen: %1</translation>
    </message>
    <message>
        <source>Download folder: %1</source>
        <translation>Empfangsordner: %1</translation>
    </message>
    <message>
        <source>Earlier copies: %1</source>
        <translation>Frühere Fassungen: %1</translation>
    </message>
    <message>
        <source>List of transfers: %1</source>
        <translation>Liste der Übertragungen: %1</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>gut</translation>
    </message>
    <message>
        <source>note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>FAULT</source>
        <translation>FEHLER</translation>
    </message>
    <message>
        <source>The check was stopped.</source>
        <translation>Die Prüfung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>%1 is there and may be opened.</source>
        <translation>%1 ist da und darf geöffnet werden.</translation>
    </message>
    <message>
        <source>%1, driver %2.</source>
        <translation>%1, Treiber %2.</translation>
    </message>
    <message>
        <source>The device does not tell what it is set to.</source>
        <translation>Das Gerät sagt nicht, worauf es eingestellt ist.</translation>
    </message>
    <message>
        <source>The system does not tell what is behind the port.</source>
        <translation>Das System sagt nicht, was hinter dem Anschluss steckt.</translation>
    </message>
    <message>
        <source>The device has no modem lines.</source>
        <translation>Das Gerät hat keine Steuerleitungen.</translation>
    </message>
    <message>
        <source>No line is on: nothing is connected or switched on, or the cable has only three wires.</source>
        <translation>Keine Steuerleitung ist an: nichts ist angeschlossen oder eingeschaltet, oder das Kabel hat nur drei Adern.</translation>
    </message>
    <message>
        <source>%1 on: something is connected and switched on at the other end.</source>
        <translation>%1 an: am anderen Ende ist etwas angeschlossen und eingeschaltet.</translation>
    </message>
    <message>
        <source>What is sent does not come back.</source>
        <translation>Was gesendet wird, kommt nicht zurück.</translation>
    </message>
    <message>
        <source>What is sent comes back.</source>
        <translation>Was gesendet wird, kommt zurück.</translation>
    </message>
    <message>
        <source>%1 bytes came that make no frame.</source>
        <translation>%1 Bytes kamen, die keinen Rahmen ergeben.</translation>
    </message>
    <message>
        <source>The Organiser is heard.</source>
        <translation>Der Organiser ist zu hören.</translation>
    </message>
    <message>
        <source>Nothing comes.</source>
        <translation>Es kommt nichts.</translation>
    </message>
    <message>
        <source>Something answers AT with OK.</source>
        <translation>Etwas antwortet auf AT mit OK.</translation>
    </message>
    <message>
        <source>Nothing answers AT.</source>
        <translation>Nichts antwortet auf AT.</translation>
    </message>
    <message>
        <source>No frames come at other rates either.</source>
        <translation>Auch mit anderen Geschwindigkeiten kommen keine Rahmen.</translation>
    </message>
    <message>
        <source>Other parities do not help.</source>
        <translation>Andere Paritäten helfen nicht.</translation>
    </message>
    <message>
        <source>The device has no parity to be tried.</source>
        <translation>Das Gerät hat keine Parität, die sich erproben ließe.</translation>
    </message>
    <message>
        <source>The link comes up: %1 of %2 requests were answered.</source>
        <translation>Die Verbindung kommt zustande: %1 von %2 Anfragen wurden beantwortet.</translation>
    </message>
    <message>
        <source>The line is well.</source>
        <translation>Die Leitung ist in Ordnung.</translation>
    </message>
    <message>
        <source>There is no such port.</source>
        <translation>Diesen Anschluss gibt es nicht.</translation>
    </message>
    <message>
        <source>Plug the adapter in, or choose another port.</source>
        <translation>Den Adapter einstecken oder einen anderen Anschluss wählen.</translation>
    </message>
    <message>
        <source>This login may not open the port.</source>
        <translation>Diese Anmeldung darf den Anschluss nicht öffnen.</translation>
    </message>
    <message>
        <source>Join the group that owns the device, and log in again.</source>
        <translation>Der Gruppe beitreten, der das Gerät gehört, und neu anmelden.</translation>
    </message>
    <message>
        <source>Another program has the port open.</source>
        <translation>Ein anderes Programm hat den Anschluss geöffnet.</translation>
    </message>
    <message>
        <source>End that program, or stop the server, and check again.</source>
        <translation>Dieses Programm beenden oder den Server stoppen, dann erneut prüfen.</translation>
    </message>
    <message>
        <source>The device does not take the rate, or keeps other settings than it was given.</source>
        <translation>Das Gerät nimmt die Geschwindigkeit nicht an oder behält andere Einstellungen als verlangt.</translation>
    </message>
    <message>
        <source>Use another adapter, or install the driver that belongs to its chip.</source>
        <translation>Einen anderen Adapter verwenden oder den Treiber installieren, der zum Chip gehört.</translation>
    </message>
    <message>
        <source>The device fails: its driver reports errors, or it went away.</source>
        <translation>Das Gerät fällt aus: sein Treiber meldet Fehler, oder es ist verschwunden.</translation>
    </message>
    <message>
        <source>Plug the adapter in again, directly at the computer, and try another one.</source>
        <translation>Den Adapter neu einstecken, direkt am Computer, und einen anderen versuchen.</translation>
    </message>
    <message>
        <source>Nothing comes, and the adapter&apos;s chip is a copy that its driver refuses.</source>
        <translation>Es kommt nichts, und der Chip des Adapters ist ein Nachbau, den der Treiber ablehnt.</translation>
    </message>
    <message>
        <source>Use an adapter with a genuine chip, or install an older driver.</source>
        <translation>Einen Adapter mit echtem Chip verwenden oder einen älteren Treiber installieren.</translation>
    </message>
    <message>
        <source>Everything that is sent comes back, at every rate: pins 2 and 3 are joined.</source>
        <translation>Alles Gesendete kommt zurück, mit jeder Geschwindigkeit: die Stifte 2 und 3 sind verbunden.</translation>
    </message>
    <message>
        <source>The adapter and the cable are well as far as the joint; remove it and connect the Organiser.</source>
        <translation>Adapter und Kabel sind bis zu dieser Verbindung in Ordnung; sie entfernen und den Organiser anschließen.</translation>
    </message>
    <message>
        <source>What is sent comes back, and nothing else does.</source>
        <translation>Was gesendet wird, kommt zurück, und sonst nichts.</translation>
    </message>
    <message>
        <source>Something on the line repeats every byte; check that the cable ends at the Organiser, and that its wires do not touch.</source>
        <translation>Etwas auf der Leitung wiederholt jedes Byte; prüfen, ob das Kabel am Organiser endet und seine Adern sich nicht berühren.</translation>
    </message>
    <message>
        <source>A modem is on the line, not an Organiser: it answers AT.</source>
        <translation>An der Leitung ist ein Modem, kein Organiser: es antwortet auf AT.</translation>
    </message>
    <message>
        <source>Connect the Organiser&apos;s cable to this port, or choose the port that it is connected to.</source>
        <translation>Das Kabel des Organisers an diesen Anschluss stecken oder den Anschluss wählen, an dem es steckt.</translation>
    </message>
    <message>
        <source>The Organiser speaks at another rate than the server.</source>
        <translation>Der Organiser spricht mit einer anderen Geschwindigkeit als der Server.</translation>
    </message>
    <message>
        <source>Set BAUD in the Organiser&apos;s COMMS/SETUP menu to the server&apos;s rate, or the server to the Organiser&apos;s.</source>
        <translation>BAUD im Menü COMMS/SETUP des Organisers auf die Geschwindigkeit des Servers stellen, oder den Server auf die des Organisers.</translation>
    </message>
    <message>
        <source>The Organiser uses another parity or number of bits than the server.</source>
        <translation>Der Organiser verwendet eine andere Parität oder Zahl von Bits als der Server.</translation>
    </message>
    <message>
        <source>Set PARITY to NONE, BITS to 8 and STOP to 1 in the Organiser&apos;s COMMS/SETUP menu.</source>
        <translation>Im Menü COMMS/SETUP des Organisers PARITY auf NONE, BITS auf 8 und STOP auf 1 stellen.</translation>
    </message>
    <message>
        <source>The Organiser speaks, but not the protocol of the server.</source>
        <translation>Der Organiser spricht, aber nicht das Protokoll des Servers.</translation>
    </message>
    <message>
        <source>Set PROTOCOL to PSION in the Organiser&apos;s COMMS/SETUP menu.</source>
        <translation>PROTOCOL im Menü COMMS/SETUP des Organisers auf PSION stellen.</translation>
    </message>
    <message>
        <source>Only nulls come: the line is held low.</source>
        <translation>Es kommen nur Nullen: die Leitung liegt fest auf Null.</translation>
    </message>
    <message>
        <source>Check the plug for bent or touching pins, and try another cable.</source>
        <translation>Den Stecker auf verbogene oder sich berührende Stifte prüfen und ein anderes Kabel versuchen.</translation>
    </message>
    <message>
        <source>The line is interrupted again and again while bytes come.</source>
        <translation>Die Leitung wird immer wieder unterbrochen, während Bytes kommen.</translation>
    </message>
    <message>
        <source>Push the plugs home at both ends; if that does not help, try another cable.</source>
        <translation>Die Stecker an beiden Enden fest einstecken; hilft das nicht, ein anderes Kabel versuchen.</translation>
    </message>
    <message>
        <source>Bytes arrive damaged.</source>
        <translation>Bytes kommen beschädigt an.</translation>
    </message>
    <message>
        <source>Use a shorter cable away from power supplies, check its ground wire, or set a lower rate on both sides.</source>
        <translation>Ein kürzeres Kabel fern von Netzteilen verwenden, seine Masseader prüfen oder auf beiden Seiten eine kleinere Geschwindigkeit wählen.</translation>
    </message>
    <message>
        <source>The Organiser answers, but not every time.</source>
        <translation>Der Organiser antwortet, aber nicht jedes Mal.</translation>
    </message>
    <message>
        <source>Push the plugs home at both ends, and plug the adapter in directly at the computer.</source>
        <translation>Die Stecker an beiden Enden fest einstecken und den Adapter direkt an den Computer stecken.</translation>
    </message>
    <message>
        <source>The Organiser&apos;s answers come too late for the server.</source>
        <translation>Die Antworten des Organisers kommen für den Server zu spät.</translation>
    </message>
    <message>
        <source>Plug the adapter in directly at the computer, and leave out hubs, networks and radio links on the way.</source>
        <translation>Den Adapter direkt an den Computer stecken, ohne Hubs, Netze und Funkstrecken dazwischen.</translation>
    </message>
    <message>
        <source>The Organiser calls, but does not hear what is sent to it.</source>
        <translation>Der Organiser ruft an, hört aber nicht, was ihm gesendet wird.</translation>
    </message>
    <message>
        <source>Check the wire from pin 3 of the computer&apos;s plug to the Organiser, and that PARITY is NONE there; try another cable.</source>
        <translation>Die Ader von Stift 3 des Computersteckers zum Organiser prüfen, und ob dort PARITY auf NONE steht; ein anderes Kabel versuchen.</translation>
    </message>
    <message>
        <source>Nothing comes, and no line of the plug is on.</source>
        <translation>Es kommt nichts, und keine Leitung des Steckers ist an.</translation>
    </message>
    <message>
        <source>Plug the cable in at both ends, and switch the Organiser on.</source>
        <translation>Das Kabel an beiden Enden einstecken und den Organiser einschalten.</translation>
    </message>
    <message>
        <source>Nothing comes from the Organiser.</source>
        <translation>Vom Organiser kommt nichts.</translation>
    </message>
    <message>
        <source>Start a transfer on the Organiser; if it says that it waits, check the cable: join pins 2 and 3 at the Organiser&apos;s end and check again.</source>
        <translation>Auf dem Organiser eine Übertragung starten; wenn er wartet, das Kabel prüfen: am Ende des Organisers die Stifte 2 und 3 verbinden und erneut prüfen.</translation>
    </message>
    <message>
        <source>%7 of %8</source>
        <translation>%7 von %8</translation>
    </message>
    <message>
        <source>%8 bytes/s</source>
        <translation>%8 Bytes/s</translation>
    </message>
    <message>
        <source>and %8 more</source>
        <translation>und %8 weitere</translation>
    </message>
    <message>
        <source>The Organiser uses %8 baud.</source>
        <translation>Der Organiser verwendet %8 Baud.</translation>
    </message>
    <message>
        <source>the runtime libraries of GCC: GPL 3 with the GCC Runtime Library Exception</source>
        <translation>die Laufzeitbibliotheken von GCC: GPL 3 mit der GCC Runtime Library Exception</translation>
    </message>
    <message>
        <source>the runtime of mingw-w64: public domain and permissive licences</source>
        <translation>die Laufzeit von mingw-w64: gemeinfrei und freizügige Lizenzen</translation>
    </message>
    <message>
        <source>the GNU C library: LGPL 2.1 or later</source>
        <translation>die GNU-C-Bibliothek: LGPL 2.1 oder neuer</translation>
    </message>
    <message>
        <source>%1: LGPL 2.1 or later</source>
        <translation>%1: LGPL 2.1 oder neuer</translation>
    </message>
    <message>
        <source>Their texts are in the folder licences beside the program.</source>
        <translation>Ihre Texte liegen im Ordner licences neben dem Programm.</translation>
    </message>
    <message>
        <source>%8 baud</source>
        <translation>%8 Baud</translation>
    </message>
    <message>
        <source>The device is set to %8 baud.</source>
        <translation>Das Gerät ist auf %8 Baud eingestellt.</translation>
    </message>
    <message>
        <source>The Organiser uses %7 baud, and the server %8 baud.</source>
        <translation>Der Organiser verwendet %7 Baud, der Server %8 Baud.</translation>
    </message>
    <message>
        <source>The port %1 is lost.</source>
        <translation>Der Anschluss %1 ist verloren.</translation>
    </message>
    <message>
        <source>The server was stopped by the Organiser.</source>
        <translation>Der Organiser hat den Server angehalten.</translation>
    </message>
    <message>
        <source>Save of %1: %9</source>
        <translation>Speichern von %1: %9</translation>
    </message>
    <message>
        <source>Load of %1: %9</source>
        <translation>Laden von %1: %9</translation>
    </message>
    <message>
        <source>Request: %9</source>
        <translation>Anforderung: %9</translation>
    </message>
    <message>
        <source>the link ended</source>
        <translation>die Verbindung endete</translation>
    </message>
    <message>
        <source>complete, %8 formulas changed</source>
        <translation>vollständig, %8 Formeln geändert</translation>
    </message>
    <message>
        <source>%8</source>
        <translation>%8</translation>
    </message>
    <message>
        <source>%7.%8 s</source>
        <translation>%7,%8 s</translation>
    </message>
    <message>
        <source>%1: =%2 comes back as =%3, and saved again, as =%4</source>
        <translation>%1: =%2 kommt als =%3 zurück, und noch einmal gespeichert als =%4</translation>
    </message>
    <message>
        <source>%1: =%2 comes back as =%3, which cannot be saved</source>
        <translation>%1: =%2 kommt als =%3 zurück, und das kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>%1: =%2 comes back as =%3</source>
        <translation>%1: =%2 kommt als =%3 zurück</translation>
    </message>
    <message>
        <source>%1: =%2 cannot be saved: %9</source>
        <translation>%1: =%2 kann nicht gespeichert werden: %9</translation>
    </message>
    <message>
        <source>it cannot be converted</source>
        <translation>sie lässt sich nicht umwandeln</translation>
    </message>
    <message>
        <source>more than 255 arguments</source>
        <translation>mehr als 255 Argumente</translation>
    </message>
    <message>
        <source>too many parentheses</source>
        <translation>zu viele Klammern</translation>
    </message>
    <message>
        <source>the formula is too deep</source>
        <translation>die Formel ist zu tief verschachtelt</translation>
    </message>
    <message>
        <source>the formula&apos;s calls are nested too deep</source>
        <translation>die Aufrufe der Formel sind zu tief verschachtelt</translation>
    </message>
</context>
<context>
    <name>DesktopDialogs</name>
    <message>
        <source>The system tells nothing of adapters: the list is looked up twice a second.</source>
        <translation>Das System meldet keine Adapter: Die Liste wird zweimal pro Sekunde nachgesehen.</translation>
    </message>
</context>
<context>
    <name>DesktopFiles</name>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>No program opens %1.</source>
        <translation>Kein Programm öffnet %1.</translation>
    </message>
</context>
<context>
    <name>DesktopServer</name>
    <message>
        <source>Plug in the adapter, then click Setup.</source>
        <translation>Adapter einstecken, dann auf „Einrichten“ klicken.</translation>
    </message>
</context>
<context>
    <name>DesktopTexts</name>
    <message>
        <source>From the next start on, the texts of the display are in this language: %1. The file as it was is kept as
%2</source>
        <translation>Vom nächsten Start an sind die Texte der Anzeige in dieser Sprache: %1. Die bisherige Datei ist aufbewahrt als
%2</translation>
    </message>
    <message>
        <source>The texts could not be taken over: %1</source>
        <translation>Die Texte konnten nicht übernommen werden: %1</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>%1 is called %2 there, which the Organiser can type.</source>
        <translation>%1 heißt dort %2, was der Organiser eingeben kann.</translation>
    </message>
    <message>
        <source>%1 is in the download folder already.</source>
        <translation>%1 ist schon im Empfangsordner.</translation>
    </message>
    <message>
        <source>%1 is a folder; only files are copied.</source>
        <translation>%1 ist ein Ordner; nur Dateien werden kopiert.</translation>
    </message>
    <message>
        <source>%1 has more than 16 MB and was not copied.</source>
        <translation>%1 hat mehr als 16 MB und wurde nicht kopiert.</translation>
    </message>
    <message>
        <source>%1 was not copied: the download folder is not there.</source>
        <translation>%1 wurde nicht kopiert: Der Empfangsordner ist nicht da.</translation>
    </message>
    <message>
        <source>%1 was not copied: %2</source>
        <translation>%1 wurde nicht kopiert: %2</translation>
    </message>
    <message>
        <source>&amp;Replace it</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>&amp;Copy as %1</source>
        <translation>&amp;Kopieren als %1</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>Ü&amp;berspringen</translation>
    </message>
    <message>
        <source>Skip &amp;all</source>
        <translation>&amp;Alle überspringen</translation>
    </message>
    <message>
        <source>%1 is in the download folder now.</source>
        <translation>%1 ist jetzt im Empfangsordner.</translation>
    </message>
    <message>
        <source>%1 files are in the download folder now.</source>
        <translation>%1 Dateien sind jetzt im Empfangsordner.</translation>
    </message>
    <message>
        <source>There are %1 more such files.</source>
        <translation>Es gibt noch %1 solche Dateien.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Suchen in:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Datei&amp;name:</translation>
    </message>
    <message>
        <source>&amp;File name:</source>
        <translation>&amp;Dateiname:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Dateityp:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Auswählen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Übergeordneter Ordner</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Neuen Ordner anlegen</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Neuer Ordner</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>&amp;Versteckte Dateien anzeigen</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Ordner suchen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Zuletzt besucht</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ist schon vorhanden.
Ersetzen?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Datei nicht gefunden.
Bitte den Dateinamen prüfen.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Ordner nicht gefunden.
Bitte den Ordnernamen prüfen.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Geändert am</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Wieder&amp;herstellen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Wieder&amp;herstellen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Adresse des Verweises kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>velmora::DeviceList</name>
    <message>
        <source>Serial devices that are present</source>
        <translation>Vorhandene serielle Geräte</translation>
    </message>
    <message>
        <source>No serial device is present</source>
        <translation>Kein serielles Gerät vorhanden</translation>
    </message>
    <message>
        <source>Devices that are present</source>
        <translation>Vorhandene Geräte</translation>
    </message>
    <message>
        <source>%1 may not be opened</source>
        <translation>%1 darf nicht geöffnet werden</translation>
    </message>
    <message>
        <source>%1 may not be opened: join the group &quot;%2&quot; and log in again</source>
        <translation>%1 darf nicht geöffnet werden: der Gruppe „%2“ beitreten und neu anmelden</translation>
    </message>
</context>
<context>
    <name>velmora::FolderDialog</name>
    <message>
        <source>%1 is no folder to choose</source>
        <translation>%1 ist kein Ordner, der sich wählen lässt</translation>
    </message>
    <message>
        <source>&amp;Path:</source>
        <translation>&amp;Pfad:</translation>
    </message>
    <message>
        <source>&amp;New folder</source>
        <translation>&amp;Neuer Ordner</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>No folder can be made in %1</source>
        <translation>In %1 lässt sich kein Ordner anlegen</translation>
    </message>
</context>
<context>
    <name>velmora::TransferTable</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>velmora::TrayIcon</name>
    <message>
        <source>S&amp;how</source>
        <translation>&amp;Anzeigen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>velmora::frmAbout</name>
    <message>
        <source>About Velmora</source>
        <translation>Über Velmora</translation>
    </message>
    <message>
        <source>Copy details puts a report of a fault onto the clipboard: what runs here, with which settings, and what passed over the line last. It names files, and has none of their contents.</source>
        <translation>„Details kopieren“ legt einen Fehlerbericht in die Zwischenablage: was hier läuft, mit welchen Einstellungen, und was zuletzt über die Leitung ging. Er nennt Dateien, enthält aber nichts aus ihnen.</translation>
    </message>
    <message>
        <source>&amp;Copy details</source>
        <translation>Details &amp;kopieren</translation>
    </message>
    <message>
        <source>Save ca&amp;pture…</source>
        <translation>&amp;Mitschnitt speichern…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The report is on the clipboard: paste it into your mail.</source>
        <translation>Der Bericht ist in der Zwischenablage: bitte in die E-Mail einfügen.</translation>
    </message>
    <message>
        <source>The report is on the clipboard: paste it into your mail, and attach the capture.</source>
        <translation>Der Bericht ist in der Zwischenablage: bitte in die E-Mail einfügen und den Mitschnitt anhängen.</translation>
    </message>
    <message>
        <source>The last minute of the line, without the contents of files, is in %1.</source>
        <translation>Die letzte Minute der Leitung, ohne die Inhalte von Dateien, steht in %1.</translation>
    </message>
</context>
<context>
    <name>velmora::frmCableCheck</name>
    <message>
        <source>Velmora Check Cable</source>
        <translation>Velmora – Kabel prüfen</translation>
    </message>
    <message>
        <source>%1 at %2. Start a transfer on the Organiser, so that it calls; the check takes up to a minute and changes nothing there.</source>
        <translation>%1 mit %2. Auf dem Organiser eine Übertragung starten, damit er anruft; die Prüfung dauert bis zu einer Minute und ändert dort nichts.</translation>
    </message>
    <message>
        <source>Steps of the check</source>
        <translation>Schritte der Prüfung</translation>
    </message>
    <message>
        <source>The check goes on</source>
        <translation>Die Prüfung läuft</translation>
    </message>
    <message>
        <source>Cop&amp;y the result</source>
        <translation>Ergebnis &amp;kopieren</translation>
    </message>
    <message>
        <source>One line for the clipboard, for whoever is asked for help.</source>
        <translation>Eine Zeile für die Zwischenablage, für den, der um Hilfe gebeten wird.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Check a&amp;gain</source>
        <translation>&amp;Erneut prüfen</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
</context>
<context>
    <name>velmora::frmDebug</name>
    <message>
        <source>Velmora PLP Monitor</source>
        <translation>Velmora – PLP-Monitor</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>&amp;Save log as…</source>
        <translation>Protokoll &amp;speichern unter…</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;all</source>
        <translation>&amp;Alles kopieren</translation>
    </message>
    <message>
        <source>Select a&amp;ll</source>
        <translation>Alles a&amp;uswählen</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Suchen…</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>&amp;Rückwärts suchen</translation>
    </message>
    <message>
        <source>Save ca&amp;pture…</source>
        <translation>&amp;Mitschnitt speichern…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>S&amp;uchen:</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Show what?</source>
        <translation>Was anzeigen?</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene Wahl</translation>
    </message>
    <message>
        <source>Auto-detected</source>
        <translation>Automatisch erkannt</translation>
    </message>
    <message>
        <source>Follow the e&amp;nd</source>
        <translation>Dem &amp;Ende folgen</translation>
    </message>
    <message>
        <source>&amp;Log to disk</source>
        <translation>Auf &amp;Platte protokollieren</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Protokoll speichern</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Textdateien (*.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The log could not be saved in
%1

%2

Choose another folder or name.</source>
        <translation>Das Protokoll konnte nicht gespeichert werden in
%1

%2

Bitte einen anderen Ordner oder Namen wählen.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Zeile %1 von %2</translation>
    </message>
    <message>
        <source>Line %1 of %2, from the beginning again</source>
        <translation>Zeile %1 von %2, wieder von vorn</translation>
    </message>
    <message>
        <source>Line %1 of %2, from the end again</source>
        <translation>Zeile %1 von %2, wieder vom Ende</translation>
    </message>
    <message>
        <source>&amp;Hide idle polling</source>
        <translation>Leerlauf &amp;ausblenden</translation>
    </message>
    <message>
        <source>Leave out what passes while nothing happens. It is kept, shown again when asked for, and saved.</source>
        <translation>Auslassen, was vorbeigeht, während nichts geschieht. Es bleibt erhalten, wird auf Wunsch wieder gezeigt und mitgespeichert.</translation>
    </message>
</context>
<context>
    <name>velmora::frmMain</name>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Debug</translation>
    </message>
    <message>
        <source>Debug window</source>
        <translation>Debug-Fenster</translation>
    </message>
    <message>
        <source>Double-click to show or hide the protocol monitor</source>
        <translation>Doppelklick zeigt oder verbirgt den Protokollmonitor</translation>
    </message>
    <message>
        <source>Organiser display</source>
        <translation>Anzeige des Organisers</translation>
    </message>
    <message>
        <source>Organiser display line %1</source>
        <translation>Anzeige des Organisers, Zeile %1</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Empfangen</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>Start or stop the server</source>
        <translation>Den Server starten oder stoppen</translation>
    </message>
    <message>
        <source>Set&amp;up…</source>
        <translation>&amp;Einrichten…</translation>
    </message>
    <message>
        <source>Choose the serial port, its speed and the file type</source>
        <translation>Seriellen Anschluss, Geschwindigkeit und Dateityp wählen</translation>
    </message>
    <message>
        <source>&amp;Folder…</source>
        <translation>&amp;Ordner…</translation>
    </message>
    <message>
        <source>Choose the folder that files are saved to and loaded from</source>
        <translation>Den Ordner wählen, in den gespeichert und aus dem geladen wird</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Verbergen</translation>
    </message>
    <message>
        <source>Minimise the window; the server goes on</source>
        <translation>Das Fenster minimieren; der Server läuft weiter</translation>
    </message>
    <message>
        <source>Shut &amp;down</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Stop the server and end the program</source>
        <translation>Den Server stoppen und das Programm beenden</translation>
    </message>
    <message>
        <source>&amp;Transfers…</source>
        <translation>Über&amp;tragungen…</translation>
    </message>
    <message>
        <source>Show what was saved and loaded (Ctrl+T)</source>
        <translation>Zeigen, was gespeichert und geladen wurde (Strg+T)</translation>
    </message>
    <message>
        <source>What Velmora is made of, where its files are, and a report of a fault</source>
        <translation>Woraus Velmora besteht, wo seine Dateien liegen, und ein Fehlerbericht</translation>
    </message>
    <message>
        <source>&amp;Open folder</source>
        <translation>Ordner öff&amp;nen</translation>
    </message>
    <message>
        <source>Open the folder that files are saved to and loaded from</source>
        <translation>Den Ordner öffnen, in den gespeichert und aus dem geladen wird</translation>
    </message>
    <message>
        <source>Download folder</source>
        <translation>Empfangsordner</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Einrichten</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Verbergen</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Übertragungen</translation>
    </message>
    <message>
        <source>About Velmora</source>
        <translation>Über Velmora</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stoppen</translation>
    </message>
    <message>
        <source>Put the window into the tray; the server goes on</source>
        <translation>Das Fenster in den Infobereich legen; der Server läuft weiter</translation>
    </message>
</context>
<context>
    <name>velmora::frmSetup</name>
    <message>
        <source>Velmora Setup</source>
        <translation>Velmora – Einrichten</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>Other port</source>
        <translation>Anderer Anschluss</translation>
    </message>
    <message>
        <source>Port number</source>
        <translation>Nummer des Anschlusses</translation>
    </message>
    <message>
        <source>chec&amp;k</source>
        <translation>&amp;prüfen</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>Check ca&amp;ble…</source>
        <translation>&amp;Kabel prüfen…</translation>
    </message>
    <message>
        <source>Finds out why nothing comes from the Organiser.</source>
        <translation>Findet heraus, warum vom Organiser nichts kommt.</translation>
    </message>
    <message>
        <source>Baud</source>
        <translation>Baudrate</translation>
    </message>
    <message>
        <source>The Organiser knows none but the other rates.</source>
        <translation>Der Organiser kennt nur die anderen Geschwindigkeiten.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>&amp;Autostart</source>
        <translation>A&amp;utomatisch starten</translation>
    </message>
    <message>
        <source>&amp;Transfer data-files as</source>
        <translation>&amp;Datendateien übertragen als</translation>
    </message>
    <message>
        <source>&amp;Worksheets (WKS)</source>
        <translation>Arbeits&amp;blätter (WKS)</translation>
    </message>
    <message>
        <source>Testing the ports...</source>
        <translation>Die Anschlüsse werden geprüft…</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>ODB (tab-delimited)</source>
        <translation>ODB (mit Tabulatoren)</translation>
    </message>
    <message>
        <source>TXT (tab-delimited)</source>
        <translation>TXT (mit Tabulatoren)</translation>
    </message>
    <message>
        <source>CSV (comma)</source>
        <translation>CSV (Komma)</translation>
    </message>
    <message>
        <source>CSV (semicolon)</source>
        <translation>CSV (Semikolon)</translation>
    </message>
    <message>
        <source>as the Organiser&apos;s own</source>
        <translation>wie die des Organisers</translation>
    </message>
    <message>
        <source>for spreadsheet programs</source>
        <translation>für Tabellenprogramme</translation>
    </message>
    <message>
        <source>as they are</source>
        <translation>wie sie sind</translation>
    </message>
    <message>
        <source>Te&amp;xts of the display</source>
        <translation>Te&amp;xte der Anzeige</translation>
    </message>
</context>
<context>
    <name>velmora::frmTransfers</name>
    <message>
        <source>Velmora Transfers</source>
        <translation>Velmora – Übertragungen</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Übertragungen</translation>
    </message>
    <message>
        <source>Nothing was transferred yet.</source>
        <translation>Es wurde noch nichts übertragen.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Show in its folder</source>
        <translation>Im &amp;Ordner anzeigen</translation>
    </message>
    <message>
        <source>Open the &amp;earlier copy</source>
        <translation>Die f&amp;rühere Fassung öffnen</translation>
    </message>
    <message>
        <source>Copy the &amp;path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>Copy the &amp;details</source>
        <translation>&amp;Einzelheiten kopieren</translation>
    </message>
</context>
</TS>
