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
    <name>Core</name>
    <message>
        <source>COM%1 is available</source>
        <translation>COM%1 is vrij</translation>
    </message>
    <message>
        <source>COM%1 is used (modem)</source>
        <translation>COM%1 is bezet (modem)</translation>
    </message>
    <message>
        <source>COM%1 is used (device)</source>
        <translation>COM%1 is bezet (apparaat)</translation>
    </message>
    <message>
        <source>COM%1 is in use</source>
        <translation>COM%1 is in gebruik</translation>
    </message>
    <message>
        <source>COM%1 is not accessible</source>
        <translation>COM%1 is niet toegankelijk</translation>
    </message>
    <message>
        <source>COM%1 reports error</source>
        <translation>COM%1 meldt een fout</translation>
    </message>
    <message>
        <source>Port %1 is used by a modem!</source>
        <translation>Poort %1 wordt door een modem gebruikt!</translation>
    </message>
    <message>
        <source>Port %1 is used by a device!</source>
        <translation>Poort %1 wordt door een apparaat gebruikt!</translation>
    </message>
    <message>
        <source>Port %1 is in use by another application!</source>
        <translation>Poort %1 wordt door een ander programma gebruikt!</translation>
    </message>
    <message>
        <source>Port %1 is not accessible!</source>
        <translation>Poort %1 is niet toegankelijk!</translation>
    </message>
    <message>
        <source>Port %1 open error!</source>
        <translation>Poort %1 kan niet worden geopend!</translation>
    </message>
    <message>
        <source>No port selected!</source>
        <translation>Geen poort gekozen!</translation>
    </message>
    <message>
        <source>%1 does not exist; is the adapter plugged in, and is it the right port?</source>
        <translation>%1 bestaat niet; is de adapter aangesloten, en is het de juiste poort?</translation>
    </message>
    <message>
        <source>%1 has no serial hardware behind it; choose another port.</source>
        <translation>Achter %1 zit geen seriële poort; kies een andere.</translation>
    </message>
    <message>
        <source>%1 does not respond; is the adapter still plugged in?</source>
        <translation>%1 reageert niet; is de adapter nog aangesloten?</translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation>%1 is geen seriële poort.</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>%1 kan niet worden geopend.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: error %2.</source>
        <translation>%1 kan niet worden geopend: fout %2.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 kan niet worden geopend: %2</translation>
    </message>
    <message>
        <source>%1 does not take these line settings; choose another speed.</source>
        <translation>%1 neemt deze instellingen niet aan; kies een andere snelheid.</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 wordt door een ander programma gebruikt.</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>%1 wordt door %2 gebruikt.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; the group may not open it either.</source>
        <translation>Geen rechten om %1 te openen (gebruiker %2, groep %3); de groep mag het ook niet.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; %4 is in that group, so something else forbids it.</source>
        <translation>Geen rechten om %1 te openen (gebruiker %2, groep %3); %4 zit in die groep, dus iets anders verbiedt het.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; %4 is in that group from the next login on: log out and in again.</source>
        <translation>Geen rechten om %1 te openen (gebruiker %2, groep %3); %4 zit vanaf de volgende aanmelding in die groep: meld u af en weer aan.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; %4 is not in that group: run &quot;%5&quot;, then log out and in again.</source>
        <translation>Geen rechten om %1 te openen (gebruiker %2, groep %3); %4 zit niet in die groep: voer ‘%5’ uit en meld u opnieuw aan.</translation>
    </message>
    <message>
        <source>Velmora goes on when it is plugged in again.</source>
        <translation>Velmora gaat verder zodra hij weer is aangesloten.</translation>
    </message>
    <message>
        <source>Velmora goes on when it is awake again.</source>
        <translation>Velmora gaat verder zodra de computer weer wakker is.</translation>
    </message>
    <message>
        <source>%1: The computer goes to sleep.</source>
        <translation>%1: De computer gaat slapen.</translation>
    </message>
    <message>
        <source>%1: The port failed.</source>
        <translation>%1: De poort is uitgevallen.</translation>
    </message>
    <message>
        <source>%1: The line was cut or the device failed</source>
        <translation>%1: De lijn is onderbroken of het apparaat is uitgevallen</translation>
    </message>
    <message>
        <source>The transfer is lost.</source>
        <translation>De overdracht is verloren.</translation>
    </message>
    <message>
        <source>Bytes come that make no frame.</source>
        <translation>Er komen bytes die geen frame vormen.</translation>
    </message>
    <message>
        <source>Nothing has come for a minute.</source>
        <translation>Er is al een minuut niets gekomen.</translation>
    </message>
    <message>
        <source>Stop the server; Check cable in Setup finds out why.</source>
        <translation>Stop de server; ‘Kabel testen’ bij ‘Instellen’ zoekt uit waarom.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>De instellingen konden niet worden opgeslagen: %1</translation>
    </message>
    <message>
        <source>The folder is used, but could not be saved for the next start: %1</source>
        <translation>De map wordt gebruikt, maar kon niet voor de volgende start worden opgeslagen: %1</translation>
    </message>
    <message>
        <source>%1 has less than 100 bytes and is replaced by the default file; it is kept as %2</source>
        <translation>%1 heeft minder dan 100 bytes en wordt door het standaardbestand vervangen; het is bewaard als %2</translation>
    </message>
    <message>
        <source>The guide is not installed: it should be in %1. On Debian and Ubuntu it comes with the package velmora-doc, on Windows with the installer.</source>
        <translation>De handleiding is niet geïnstalleerd: ze hoort in %1 te staan. Op Debian en Ubuntu zit ze in het pakket velmora-doc, op Windows in het installatieprogramma.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richting</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duur</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Snelheid</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>save</source>
        <translation>opslaan</translation>
    </message>
    <message>
        <source>load</source>
        <translation>laden</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>volledig</translation>
    </message>
    <message>
        <source>complete, 1 formula changed</source>
        <translation>volledig, 1 formule gewijzigd</translation>
    </message>
    <message>
        <source>incomplete: %9</source>
        <translation>onvolledig: %9</translation>
    </message>
    <message>
        <source>refused: %9</source>
        <translation>geweigerd: %9</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>bezig</translation>
    </message>
    <message>
        <source>under way, %1 %, %2 left</source>
        <translation>bezig, %1 %, nog %2</translation>
    </message>
    <message>
        <source>under way, %1 %</source>
        <translation>bezig, %1 %</translation>
    </message>
    <message>
        <source>record too long</source>
        <translation>record te lang</translation>
    </message>
    <message>
        <source>disk full</source>
        <translation>schijf vol</translation>
    </message>
    <message>
        <source>file exists</source>
        <translation>bestand bestaat al</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>geen bestand met die naam</translation>
    </message>
    <message>
        <source>invalid request</source>
        <translation>ongeldige aanvraag</translation>
    </message>
    <message>
        <source>file in use</source>
        <translation>bestand in gebruik</translation>
    </message>
    <message>
        <source>end of file</source>
        <translation>einde van het bestand</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>niet mogelijk</translation>
    </message>
    <message>
        <source>record too long (%1)</source>
        <translation>record te lang (%1)</translation>
    </message>
    <message>
        <source>disk full (%1)</source>
        <translation>schijf vol (%1)</translation>
    </message>
    <message>
        <source>file exists (%1)</source>
        <translation>bestand bestaat al (%1)</translation>
    </message>
    <message>
        <source>no such file (%1)</source>
        <translation>geen bestand met die naam (%1)</translation>
    </message>
    <message>
        <source>invalid request (%1)</source>
        <translation>ongeldige aanvraag (%1)</translation>
    </message>
    <message>
        <source>file in use (%1)</source>
        <translation>bestand in gebruik (%1)</translation>
    </message>
    <message>
        <source>end of file (%1)</source>
        <translation>einde van het bestand (%1)</translation>
    </message>
    <message>
        <source>not possible (%1)</source>
        <translation>niet mogelijk (%1)</translation>
    </message>
    <message>
        <source>Earlier copy: %1</source>
        <translation>Eerdere kopie: %1</translation>
    </message>
    <message>
        <source>Velmora is free software under the MIT licence: use it, copy it, change it and pass it on. It comes without any warranty.</source>
        <translation>Velmora is vrije software onder de MIT-licentie: gebruiken, kopiëren, wijzigen en doorgeven mag. Er is geen enkele garantie.</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliotheken</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Locaties</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Instellingen: %1</translation>
    </message>
    <message>
        <source>Download folder: %1</source>
        <translation>Downloadmap: %1</translation>
    </message>
    <message>
        <source>Earlier copies: %1</source>
        <translation>Eerdere kopieën: %1</translation>
    </message>
    <message>
        <source>List of transfers: %1</source>
        <translation>Lijst van overdrachten: %1</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>goed</translation>
    </message>
    <message>
        <source>note</source>
        <translation>opmerking</translation>
    </message>
    <message>
        <source>FAULT</source>
        <translation>FOUT</translation>
    </message>
    <message>
        <source>The check was stopped.</source>
        <translation>De test is gestopt.</translation>
    </message>
    <message>
        <source>%1 is there and may be opened.</source>
        <translation>%1 is er en mag worden geopend.</translation>
    </message>
    <message>
        <source>%1, driver %2.</source>
        <translation>%1, stuurprogramma %2.</translation>
    </message>
    <message>
        <source>The device does not tell what it is set to.</source>
        <translation>Het apparaat vertelt niet hoe het is ingesteld.</translation>
    </message>
    <message>
        <source>The system does not tell what is behind the port.</source>
        <translation>Het systeem vertelt niet wat er achter de poort zit.</translation>
    </message>
    <message>
        <source>The device has no modem lines.</source>
        <translation>Het apparaat heeft geen modemlijnen.</translation>
    </message>
    <message>
        <source>No line is on: nothing is connected or switched on, or the cable has only three wires.</source>
        <translation>Geen lijn staat aan: er is niets aangesloten of ingeschakeld, of de kabel heeft maar drie draden.</translation>
    </message>
    <message>
        <source>%1 on: something is connected and switched on at the other end.</source>
        <translation>%1 aan: aan het andere eind is iets aangesloten en ingeschakeld.</translation>
    </message>
    <message>
        <source>What is sent does not come back.</source>
        <translation>Wat verzonden wordt, komt niet terug.</translation>
    </message>
    <message>
        <source>What is sent comes back.</source>
        <translation>Wat verzonden wordt, komt terug.</translation>
    </message>
    <message>
        <source>%1 bytes came that make no frame.</source>
        <translation>Er kwamen %1 bytes die geen frame vormen.</translation>
    </message>
    <message>
        <source>The Organiser is heard.</source>
        <translation>De Organiser is te horen.</translation>
    </message>
    <message>
        <source>Nothing comes.</source>
        <translation>Er komt niets.</translation>
    </message>
    <message>
        <source>Something answers AT with OK.</source>
        <translation>Iets beantwoordt AT met OK.</translation>
    </message>
    <message>
        <source>Nothing answers AT.</source>
        <translation>Niets beantwoordt AT.</translation>
    </message>
    <message>
        <source>No frames come at other rates either.</source>
        <translation>Ook met andere snelheden komen er geen frames.</translation>
    </message>
    <message>
        <source>Other parities do not help.</source>
        <translation>Andere pariteiten helpen niet.</translation>
    </message>
    <message>
        <source>The device has no parity to be tried.</source>
        <translation>Het apparaat heeft geen pariteit om te proberen.</translation>
    </message>
    <message>
        <source>The link comes up: %1 of %2 requests were answered.</source>
        <translation>De verbinding komt tot stand: %1 van %2 aanvragen werden beantwoord.</translation>
    </message>
    <message>
        <source>The line is well.</source>
        <translation>De lijn is in orde.</translation>
    </message>
    <message>
        <source>There is no such port.</source>
        <translation>Deze poort bestaat niet.</translation>
    </message>
    <message>
        <source>Plug the adapter in, or choose another port.</source>
        <translation>Sluit de adapter aan of kies een andere poort.</translation>
    </message>
    <message>
        <source>This login may not open the port.</source>
        <translation>Deze aanmelding mag de poort niet openen.</translation>
    </message>
    <message>
        <source>Join the group that owns the device, and log in again.</source>
        <translation>Word lid van de groep van het apparaat en meld u opnieuw aan.</translation>
    </message>
    <message>
        <source>Another program has the port open.</source>
        <translation>Een ander programma heeft de poort open.</translation>
    </message>
    <message>
        <source>End that program, or stop the server, and check again.</source>
        <translation>Sluit dat programma of stop de server, en test opnieuw.</translation>
    </message>
    <message>
        <source>The device does not take the rate, or keeps other settings than it was given.</source>
        <translation>Het apparaat neemt de snelheid niet aan of houdt andere instellingen dan gevraagd.</translation>
    </message>
    <message>
        <source>Use another adapter, or install the driver that belongs to its chip.</source>
        <translation>Gebruik een andere adapter of installeer het stuurprogramma van de chip.</translation>
    </message>
    <message>
        <source>The device fails: its driver reports errors, or it went away.</source>
        <translation>Het apparaat valt uit: het stuurprogramma meldt fouten, of het is verdwenen.</translation>
    </message>
    <message>
        <source>Plug the adapter in again, directly at the computer, and try another one.</source>
        <translation>Sluit de adapter opnieuw aan, direct op de computer, en probeer een andere.</translation>
    </message>
    <message>
        <source>Nothing comes, and the adapter&apos;s chip is a copy that its driver refuses.</source>
        <translation>Er komt niets, en de chip van de adapter is een kopie die het stuurprogramma weigert.</translation>
    </message>
    <message>
        <source>Use an adapter with a genuine chip, or install an older driver.</source>
        <translation>Gebruik een adapter met een echte chip of installeer een ouder stuurprogramma.</translation>
    </message>
    <message>
        <source>Everything that is sent comes back, at every rate: pins 2 and 3 are joined.</source>
        <translation>Alles wat verzonden wordt komt terug, bij elke snelheid: pen 2 en 3 zijn verbonden.</translation>
    </message>
    <message>
        <source>The adapter and the cable are well as far as the joint; remove it and connect the Organiser.</source>
        <translation>Adapter en kabel zijn goed tot aan de verbinding; verwijder die en sluit de Organiser aan.</translation>
    </message>
    <message>
        <source>What is sent comes back, and nothing else does.</source>
        <translation>Wat verzonden wordt komt terug, en niets anders.</translation>
    </message>
    <message>
        <source>Something on the line repeats every byte; check that the cable ends at the Organiser, and that its wires do not touch.</source>
        <translation>Iets op de lijn herhaalt elke byte; controleer of de kabel bij de Organiser eindigt en of de draden elkaar niet raken.</translation>
    </message>
    <message>
        <source>A modem is on the line, not an Organiser: it answers AT.</source>
        <translation>Er zit een modem op de lijn, geen Organiser: het beantwoordt AT.</translation>
    </message>
    <message>
        <source>Connect the Organiser&apos;s cable to this port, or choose the port that it is connected to.</source>
        <translation>Sluit de kabel van de Organiser op deze poort aan, of kies de poort waarop hij zit.</translation>
    </message>
    <message>
        <source>The Organiser speaks at another rate than the server.</source>
        <translation>De Organiser spreekt met een andere snelheid dan de server.</translation>
    </message>
    <message>
        <source>Set BAUD in the Organiser&apos;s COMMS/SETUP menu to the server&apos;s rate, or the server to the Organiser&apos;s.</source>
        <translation>Zet BAUD in het menu COMMS/SETUP van de Organiser op de snelheid van de server, of de server op die van de Organiser.</translation>
    </message>
    <message>
        <source>The Organiser uses another parity or number of bits than the server.</source>
        <translation>De Organiser gebruikt een andere pariteit of een ander aantal bits dan de server.</translation>
    </message>
    <message>
        <source>Set PARITY to NONE, BITS to 8 and STOP to 1 in the Organiser&apos;s COMMS/SETUP menu.</source>
        <translation>Zet in het menu COMMS/SETUP van de Organiser PARITY op NONE, BITS op 8 en STOP op 1.</translation>
    </message>
    <message>
        <source>The Organiser speaks, but not the protocol of the server.</source>
        <translation>De Organiser spreekt, maar niet het protocol van de server.</translation>
    </message>
    <message>
        <source>Set PROTOCOL to PSION in the Organiser&apos;s COMMS/SETUP menu.</source>
        <translation>Zet PROTOCOL in het menu COMMS/SETUP van de Organiser op PSION.</translation>
    </message>
    <message>
        <source>Only nulls come: the line is held low.</source>
        <translation>Er komen alleen nullen: de lijn wordt laag gehouden.</translation>
    </message>
    <message>
        <source>Check the plug for bent or touching pins, and try another cable.</source>
        <translation>Controleer de stekker op gebogen of rakende pennen, en probeer een andere kabel.</translation>
    </message>
    <message>
        <source>The line is interrupted again and again while bytes come.</source>
        <translation>De lijn wordt telkens onderbroken terwijl er bytes komen.</translation>
    </message>
    <message>
        <source>Push the plugs home at both ends; if that does not help, try another cable.</source>
        <translation>Druk de stekkers aan beide kanten goed vast; helpt dat niet, probeer een andere kabel.</translation>
    </message>
    <message>
        <source>Bytes arrive damaged.</source>
        <translation>Bytes komen beschadigd aan.</translation>
    </message>
    <message>
        <source>Use a shorter cable away from power supplies, check its ground wire, or set a lower rate on both sides.</source>
        <translation>Gebruik een kortere kabel, uit de buurt van voedingen, controleer de massadraad, of kies aan beide kanten een lagere snelheid.</translation>
    </message>
    <message>
        <source>The Organiser answers, but not every time.</source>
        <translation>De Organiser antwoordt, maar niet elke keer.</translation>
    </message>
    <message>
        <source>Push the plugs home at both ends, and plug the adapter in directly at the computer.</source>
        <translation>Druk de stekkers aan beide kanten goed vast en sluit de adapter direct op de computer aan.</translation>
    </message>
    <message>
        <source>The Organiser&apos;s answers come too late for the server.</source>
        <translation>De antwoorden van de Organiser komen te laat voor de server.</translation>
    </message>
    <message>
        <source>Plug the adapter in directly at the computer, and leave out hubs, networks and radio links on the way.</source>
        <translation>Sluit de adapter direct op de computer aan, zonder hubs, netwerken of radioverbindingen ertussen.</translation>
    </message>
    <message>
        <source>The Organiser calls, but does not hear what is sent to it.</source>
        <translation>De Organiser roept, maar hoort niet wat hem gezonden wordt.</translation>
    </message>
    <message>
        <source>Check the wire from pin 3 of the computer&apos;s plug to the Organiser, and that PARITY is NONE there; try another cable.</source>
        <translation>Controleer de draad van pen 3 van de computerstekker naar de Organiser, en of PARITY daar op NONE staat; probeer een andere kabel.</translation>
    </message>
    <message>
        <source>Nothing comes, and no line of the plug is on.</source>
        <translation>Er komt niets, en geen lijn van de stekker staat aan.</translation>
    </message>
    <message>
        <source>Plug the cable in at both ends, and switch the Organiser on.</source>
        <translation>Sluit de kabel aan beide kanten aan en zet de Organiser aan.</translation>
    </message>
    <message>
        <source>Nothing comes from the Organiser.</source>
        <translation>Er komt niets van de Organiser.</translation>
    </message>
    <message>
        <source>Start a transfer on the Organiser; if it says that it waits, check the cable: join pins 2 and 3 at the Organiser&apos;s end and check again.</source>
        <translation>Start een overdracht op de Organiser; blijft hij wachten, controleer dan de kabel: verbind pen 2 en 3 aan de kant van de Organiser en test opnieuw.</translation>
    </message>
    <message>
        <source>%7 of %8</source>
        <translation>%7 van %8</translation>
    </message>
    <message>
        <source>%8 bytes/s</source>
        <translation>%8 bytes/s</translation>
    </message>
    <message>
        <source>and %8 more</source>
        <translation>en nog %8</translation>
    </message>
    <message>
        <source>The Organiser uses %8 baud.</source>
        <translation>De Organiser gebruikt %8 baud.</translation>
    </message>
    <message>
        <source>the runtime libraries of GCC: GPL 3 with the GCC Runtime Library Exception</source>
        <translation>de runtimebibliotheken van GCC: GPL 3 met de GCC Runtime Library Exception</translation>
    </message>
    <message>
        <source>the runtime of mingw-w64: public domain and permissive licences</source>
        <translation>de runtime van mingw-w64: publiek domein en ruime licenties</translation>
    </message>
    <message>
        <source>the GNU C library: LGPL 2.1 or later</source>
        <translation>de GNU C-bibliotheek: LGPL 2.1 of later</translation>
    </message>
    <message>
        <source>%1: LGPL 2.1 or later</source>
        <translation>%1: LGPL 2.1 of later</translation>
    </message>
    <message>
        <source>Their texts are in the folder licences beside the program.</source>
        <translation>De teksten ervan staan in de map licences naast het programma.</translation>
    </message>
    <message>
        <source>%8 baud</source>
        <translation>%8 baud</translation>
    </message>
    <message>
        <source>The device is set to %8 baud.</source>
        <translation>Het apparaat is ingesteld op %8 baud.</translation>
    </message>
    <message>
        <source>The Organiser uses %7 baud, and the server %8 baud.</source>
        <translation>De Organiser gebruikt %7 baud, en de server %8 baud.</translation>
    </message>
    <message>
        <source>The port %1 is lost.</source>
        <translation>De poort %1 is verloren.</translation>
    </message>
    <message>
        <source>The server was stopped by the Organiser.</source>
        <translation>De Organiser heeft de server gestopt.</translation>
    </message>
    <message>
        <source>Save of %1: %9</source>
        <translation>Opslaan van %1: %9</translation>
    </message>
    <message>
        <source>Load of %1: %9</source>
        <translation>Laden van %1: %9</translation>
    </message>
    <message>
        <source>Request: %9</source>
        <translation>Aanvraag: %9</translation>
    </message>
    <message>
        <source>the link ended</source>
        <translation>de verbinding eindigde</translation>
    </message>
    <message>
        <source>complete, %8 formulas changed</source>
        <translation>volledig, %8 formules gewijzigd</translation>
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
        <translation>%1: =%2 komt terug als =%3, en nog eens opgeslagen als =%4</translation>
    </message>
    <message>
        <source>%1: =%2 comes back as =%3, which cannot be saved</source>
        <translation>%1: =%2 komt terug als =%3, en dat kan niet worden opgeslagen</translation>
    </message>
    <message>
        <source>%1: =%2 comes back as =%3</source>
        <translation>%1: =%2 komt terug als =%3</translation>
    </message>
    <message>
        <source>%1: =%2 cannot be saved: %9</source>
        <translation>%1: =%2 kan niet worden opgeslagen: %9</translation>
    </message>
    <message>
        <source>it cannot be converted</source>
        <translation>ze kan niet worden omgezet</translation>
    </message>
    <message>
        <source>more than 255 arguments</source>
        <translation>meer dan 255 argumenten</translation>
    </message>
    <message>
        <source>too many parentheses</source>
        <translation>te veel haakjes</translation>
    </message>
    <message>
        <source>the formula is too deep</source>
        <translation>de formule is te diep</translation>
    </message>
    <message>
        <source>the formula&apos;s calls are nested too deep</source>
        <translation>de aanroepen van de formule zijn te diep genest</translation>
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
    <name>velmora::DeviceList</name>
    <message>
        <source>Serial devices that are present</source>
        <translation>Aanwezige seriële apparaten</translation>
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
</context>
<context>
    <name>velmora::FolderDialog</name>
    <message>
        <source>%1 is no folder to choose</source>
        <translation>%1 is geen map die gekozen kan worden</translation>
    </message>
    <message>
        <source>&amp;Path:</source>
        <translation>&amp;Pad:</translation>
    </message>
    <message>
        <source>&amp;New folder</source>
        <translation>&amp;Nieuwe map</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nieuwe map</translation>
    </message>
    <message>
        <source>No folder can be made in %1</source>
        <translation>In %1 kan geen map worden gemaakt</translation>
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
        <translation>&amp;Tonen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Afsluiten</translation>
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
    <message>
        <source>Put the window into the tray; the server goes on</source>
        <translation>Het venster in het systeemvak plaatsen; de server gaat door</translation>
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
