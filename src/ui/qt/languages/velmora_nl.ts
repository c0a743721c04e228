<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>CaptureSaving</name>
    <message>
        <source>The capture could not be saved in
%1

%2

Choose another folder or name.</source>
        <translation>De opname kon niet worden opgeslagen in
%1

%2

Kies een andere map of naam.</translation>
    </message>
    <message>
        <source>Save capture</source>
        <translation>Opname opslaan</translation>
    </message>
    <message>
        <source>Captures (*.pcapng)</source>
        <translation>Opnamen (*.pcapng)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle bestanden (*)</translation>
    </message>
</context>
<context>
    <name>DesktopDialogs</name>
    <message>
        <source>The system tells nothing of adapters: the list is looked up twice a second.</source>
        <translation>Het systeem meldt geen adapters: de lijst wordt twee keer per seconde nagekeken.</translation>
    </message>
</context>
<context>
    <name>DesktopFiles</name>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 is er niet meer.</translation>
    </message>
    <message>
        <source>No program opens %1.</source>
        <translation>Geen enkel programma opent %1.</translation>
    </message>
</context>
<context>
    <name>DesktopServer</name>
    <message>
        <source>Plug in the adapter, then click Setup.</source>
        <translation>Sluit de adapter aan en klik op ‘Instellen’.</translation>
    </message>
</context>
<context>
    <name>DesktopTexts</name>
    <message>
        <source>From the next start on, the texts of the display are in this language: %1. The file as it was is kept as
%2</source>
        <translation>Vanaf de volgende start zijn de teksten van het scherm in deze taal: %1. Het vorige bestand is bewaard als
%2</translation>
    </message>
    <message>
        <source>The texts could not be taken over: %1</source>
        <translation>De teksten konden niet worden overgenomen: %1</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>%1 is called %2 there, which the Organiser can type.</source>
        <translation>%1 heet daar %2, wat de Organiser kan typen.</translation>
    </message>
    <message>
        <source>%1 is in the download folder already.</source>
        <translation>%1 staat al in de downloadmap.</translation>
    </message>
    <message>
        <source>%1 is a folder; only files are copied.</source>
        <translation>%1 is een map; alleen bestanden worden gekopieerd.</translation>
    </message>
    <message>
        <source>%1 has more than 16 MB and was not copied.</source>
        <translation>%1 is groter dan 16 MB en is niet gekopieerd.</translation>
    </message>
    <message>
        <source>%1 was not copied: the download folder is not there.</source>
        <translation>%1 is niet gekopieerd: de downloadmap is er niet.</translation>
    </message>
    <message>
        <source>%1 was not copied: %2</source>
        <translation>%1 is niet gekopieerd: %2</translation>
    </message>
    <message>
        <source>&amp;Replace it</source>
        <translation>Ve&amp;rvangen</translation>
    </message>
    <message>
        <source>&amp;Copy as %1</source>
        <translation>&amp;Kopiëren als %1</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Overslaan</translation>
    </message>
    <message>
        <source>Skip &amp;all</source>
        <translation>&amp;Alles overslaan</translation>
    </message>
    <message>
        <source>%1 is in the download folder now.</source>
        <translation>%1 staat nu in de downloadmap.</translation>
    </message>
    <message>
        <source>%1 files are in the download folder now.</source>
        <translation>%1 bestanden staan nu in de downloadmap.</translation>
    </message>
    <message>
        <source>There are %1 more such files.</source>
        <translation>Er zijn nog %1 zulke bestanden.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Zoeken in:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Bestands&amp;naam:</translation>
    </message>
    <message>
        <source>&amp;File name:</source>
        <translation>&amp;Bestandsnaam:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Bestandstype:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Map:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Openen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Op&amp;slaan</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Kiezen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vooruit</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Bovenliggende map</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Nieuwe map maken</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nieuwe map</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nieuwe map</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Lijstweergave</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Detailweergave</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Zijbalk</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle bestanden (*)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>He&amp;rnoemen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Verwijderen</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Verbor&amp;gen bestanden tonen</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Map zoeken</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Recente locaties</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Deze computer</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 bestaat al.
Vervangen?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Bestand niet gevonden.
Controleer de bestandsnaam.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Map niet gevonden.
Controleer de naam van de map.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Gewijzigd op</translation>
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
        <translation>&amp;Ongedaan maken</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Op&amp;nieuw</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>K&amp;nippen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiëren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Plakken</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles selecteren</translation>
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
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nee</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerpen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Negeren</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Enter</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ongedaan maken</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Op&amp;nieuw</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>K&amp;nippen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiëren</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Linkadres kopiëren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Plakken</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles selecteren</translation>
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
        <translation>%1 is geen map die gekozen kan worden</translation>
    </message>
</context>
<context>
    <name>velmora::frmAbout</name>
    <message>
        <source>About Velmora</source>
        <translation>Over Velmora</translation>
    </message>
    <message>
        <source>Copy details puts a report of a fault onto the clipboard: what runs here, with which settings, and what passed over the line last. It names files, and has none of their contents.</source>
        <translation>‘Details kopiëren’ zet een foutrapport op het klembord: wat hier draait, met welke instellingen, en wat er het laatst over de lijn ging. Het noemt bestanden, maar bevat niets van hun inhoud.</translation>
    </message>
    <message>
        <source>&amp;Copy details</source>
        <translation>Details &amp;kopiëren</translation>
    </message>
    <message>
        <source>Save ca&amp;pture…</source>
        <translation>&amp;Opname opslaan…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>The report is on the clipboard: paste it into your mail.</source>
        <translation>Het rapport staat op het klembord: plak het in uw e-mail.</translation>
    </message>
    <message>
        <source>The report is on the clipboard: paste it into your mail, and attach the capture.</source>
        <translation>Het rapport staat op het klembord: plak het in uw e-mail en voeg de opname bij.</translation>
    </message>
    <message>
        <source>The last minute of the line, without the contents of files, is in %1.</source>
        <translation>De laatste minuut van de lijn, zonder de inhoud van bestanden, staat in %1.</translation>
    </message>
</context>
<context>
    <name>velmora::frmCableCheck</name>
    <message>
        <source>Velmora Check Cable</source>
        <translation>Velmora – Kabel testen</translation>
    </message>
    <message>
        <source>%1 at %2. Start a transfer on the Organiser, so that it calls; the check takes up to a minute and changes nothing there.</source>
        <translation>%1 met %2. Start een overdracht op de Organiser, zodat hij oproept; de test duurt hoogstens een minuut en verandert daar niets.</translation>
    </message>
    <message>
        <source>Steps of the check</source>
        <translation>Stappen van de test</translation>
    </message>
    <message>
        <source>The check goes on</source>
        <translation>De test loopt</translation>
    </message>
    <message>
        <source>Cop&amp;y the result</source>
        <translation>Resultaat &amp;kopiëren</translation>
    </message>
    <message>
        <source>One line for the clipboard, for whoever is asked for help.</source>
        <translation>Eén regel voor het klembord, voor wie om hulp wordt gevraagd.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Sluiten</translation>
    </message>
    <message>
        <source>Check a&amp;gain</source>
        <translation>&amp;Opnieuw testen</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>S&amp;toppen</translation>
    </message>
</context>
<context>
    <name>velmora::frmDebug</name>
    <message>
        <source>Velmora PLP Monitor</source>
        <translation>Velmora – PLP-monitor</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Logboek</translation>
    </message>
    <message>
        <source>&amp;Save log as…</source>
        <translation>&amp;Logboek opslaan als…</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiëren</translation>
    </message>
    <message>
        <source>Copy &amp;all</source>
        <translation>&amp;Alles kopiëren</translation>
    </message>
    <message>
        <source>Select a&amp;ll</source>
        <translation>Alles &amp;selecteren</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Zoeken…</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>&amp;Volgende zoeken</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>V&amp;orige zoeken</translation>
    </message>
    <message>
        <source>Save ca&amp;pture…</source>
        <translation>&amp;Opname opslaan…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Be&amp;werken</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>&amp;Zoeken:</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>Vol&amp;gende</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>V&amp;orige</translation>
    </message>
    <message>
        <source>Show what?</source>
        <translation>Wat tonen?</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Gegevens</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigen keuze</translation>
    </message>
    <message>
        <source>Auto-detected</source>
        <translation>Automatisch herkend</translation>
    </message>
    <message>
        <source>Follow the e&amp;nd</source>
        <translation>Het &amp;einde volgen</translation>
    </message>
    <message>
        <source>&amp;Log to disk</source>
        <translation>Naar &amp;schijf loggen</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leegmaken</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Logboek opslaan</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Tekstbestanden (*.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle bestanden (*)</translation>
    </message>
    <message>
        <source>The log could not be saved in
%1

%2

Choose another folder or name.</source>
        <translation>Het logboek kon niet worden opgeslagen in
%1

%2

Kies een andere map of naam.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Niet gevonden</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Regel %1 van %2</translation>
    </message>
    <message>
        <source>Line %1 of %2, from the beginning again</source>
        <translation>Regel %1 van %2, weer vanaf het begin</translation>
    </message>
    <message>
        <source>Line %1 of %2, from the end again</source>
        <translation>Regel %1 van %2, weer vanaf het einde</translation>
    </message>
    <message>
        <source>&amp;Hide idle polling</source>
        <translation>&amp;Ruststand verbergen</translation>
    </message>
    <message>
        <source>Leave out what passes while nothing happens. It is kept, shown again when asked for, and saved.</source>
        <translation>Weglaten wat er voorbijkomt terwijl er niets gebeurt. Het blijft bewaard, is weer te tonen en wordt mee opgeslagen.</translation>
    </message>
</context>
<context>
    <name>velmora::frmMain</name>
    <message>
        <source>Version</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Debug</translation>
    </message>
    <message>
        <source>Debug window</source>
        <translation>Debugvenster</translation>
    </message>
    <message>
        <source>Double-click to show or hide the protocol monitor</source>
        <translation>Dubbelklik toont of verbergt de protocolmonitor</translation>
    </message>
    <message>
        <source>Organiser display</source>
        <translation>Scherm van de Organiser</translation>
    </message>
    <message>
        <source>Organiser display line %1</source>
        <translation>Scherm van de Organiser, regel %1</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Waarschuwing</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Ontvangen</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Verzonden</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>Start or stop the server</source>
        <translation>De server starten of stoppen</translation>
    </message>
    <message>
        <source>Set&amp;up…</source>
        <translation>&amp;Instellen…</translation>
    </message>
    <message>
        <source>Choose the serial port, its speed and the file type</source>
        <translation>De seriële poort, de snelheid en het bestandstype kiezen</translation>
    </message>
    <message>
        <source>&amp;Folder…</source>
        <translation>&amp;Map…</translation>
    </message>
    <message>
        <source>Choose the folder that files are saved to and loaded from</source>
        <translation>De map kiezen waarin bestanden worden opgeslagen en waaruit ze worden geladen</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Verbergen</translation>
    </message>
    <message>
        <source>Minimise the window; the server goes on</source>
        <translation>Het venster minimaliseren; de server gaat door</translation>
    </message>
    <message>
        <source>Shut &amp;down</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>Stop the server and end the program</source>
        <translation>De server stoppen en het programma afsluiten</translation>
    </message>
    <message>
        <source>&amp;Transfers…</source>
        <translation>&amp;Overdrachten…</translation>
    </message>
    <message>
        <source>Show what was saved and loaded (Ctrl+T)</source>
        <translation>Tonen wat er is opgeslagen en geladen (Ctrl+T)</translation>
    </message>
    <message>
        <source>What Velmora is made of, where its files are, and a report of a fault</source>
        <translation>Waaruit Velmora bestaat, waar zijn bestanden staan, en een foutrapport</translation>
    </message>
    <message>
        <source>&amp;Open folder</source>
        <translation>Map op&amp;enen</translation>
    </message>
    <message>
        <source>Open the folder that files are saved to and loaded from</source>
        <translation>De map openen waarin bestanden worden opgeslagen en waaruit ze worden geladen</translation>
    </message>
    <message>
        <source>Download folder</source>
        <translation>Downloadmap</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Instellen</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Verbergen</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Overdrachten</translation>
    </message>
    <message>
        <source>About Velmora</source>
        <translation>Over Velmora</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versie %1</translation>
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
        <translation>Velmora – Instellingen</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Poort</translation>
    </message>
    <message>
        <source>Other port</source>
        <translation>Andere poort</translation>
    </message>
    <message>
        <source>Port number</source>
        <translation>Poortnummer</translation>
    </message>
    <message>
        <source>chec&amp;k</source>
        <translation>&amp;testen</translation>
    </message>
    <message>
        <source>Serial devices that are present</source>
        <translation>Aanwezige seriële apparaten</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Vernieuwen</translation>
    </message>
    <message>
        <source>Check ca&amp;ble…</source>
        <translation>Ka&amp;bel testen…</translation>
    </message>
    <message>
        <source>Finds out why nothing comes from the Organiser.</source>
        <translation>Zoekt uit waarom er niets van de Organiser komt.</translation>
    </message>
    <message>
        <source>Baud</source>
        <translation>Baudrate</translation>
    </message>
    <message>
        <source>The Organiser knows none but the other rates.</source>
        <translation>De Organiser kent alleen de andere snelheden.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>&amp;Autostart</source>
        <translation>&amp;Automatisch starten</translation>
    </message>
    <message>
        <source>&amp;Transfer data-files as</source>
        <translation>&amp;Gegevensbestanden overdragen als</translation>
    </message>
    <message>
        <source>&amp;Worksheets (WKS)</source>
        <translation>&amp;Werkbladen (WKS)</translation>
    </message>
    <message>
        <source>Testing the ports...</source>
        <translation>Poorten worden getest…</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>No serial device is present</source>
        <translation>Geen serieel apparaat aanwezig</translation>
    </message>
    <message>
        <source>Devices that are present</source>
        <translation>Aanwezige apparaten</translation>
    </message>
    <message>
        <source>%1 may not be opened</source>
        <translation>%1 mag niet worden geopend</translation>
    </message>
    <message>
        <source>%1 may not be opened: join the group &quot;%2&quot; and log in again</source>
        <translation>%1 mag niet worden geopend: word lid van de groep ‘%2’ en meld u opnieuw aan</translation>
    </message>
    <message>
        <source>ODB (tab-delimited)</source>
        <translation>ODB (met tabs)</translation>
    </message>
    <message>
        <source>TXT (tab-delimited)</source>
        <translation>TXT (met tabs)</translation>
    </message>
    <message>
        <source>CSV (comma)</source>
        <translation>CSV (komma)</translation>
    </message>
    <message>
        <source>CSV (semicolon)</source>
        <translation>CSV (puntkomma)</translation>
    </message>
    <message>
        <source>as the Organiser&apos;s own</source>
        <translation>zoals die van de Organiser</translation>
    </message>
    <message>
        <source>for spreadsheet programs</source>
        <translation>voor spreadsheetprogramma’s</translation>
    </message>
    <message>
        <source>as they are</source>
        <translation>zoals ze zijn</translation>
    </message>
    <message>
        <source>Te&amp;xts of the display</source>
        <translation>Te&amp;ksten van het scherm</translation>
    </message>
</context>
<context>
    <name>velmora::frmTransfers</name>
    <message>
        <source>Velmora Transfers</source>
        <translation>Velmora – Overdrachten</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Overdrachten</translation>
    </message>
    <message>
        <source>Nothing was transferred yet.</source>
        <translation>Er is nog niets overgedragen.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Openen</translation>
    </message>
    <message>
        <source>&amp;Show in its folder</source>
        <translation>In de &amp;map tonen</translation>
    </message>
    <message>
        <source>Open the &amp;earlier copy</source>
        <translation>De &amp;eerdere kopie openen</translation>
    </message>
    <message>
        <source>Copy the &amp;path</source>
        <translation>&amp;Pad kopiëren</translation>
    </message>
    <message>
        <source>Copy the &amp;details</source>
        <translation>&amp;Details kopiëren</translation>
    </message>
</context>
</TS>
