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
    <name>velmora::FolderDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1 is no folder to choose</source>
        <translation>%1 ist kein Ordner, der sich wählen lässt</translation>
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
        <source>Serial devices that are present</source>
        <translation>Vorhandene serielle Geräte</translation>
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
