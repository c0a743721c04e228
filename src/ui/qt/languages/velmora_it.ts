<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>CaptureSaving</name>
    <message>
        <source>The capture could not be saved in
%1

%2

Choose another folder or name.</source>
        <translation>Impossibile salvare la cattura in
%1

%2

Scegliere un’altra cartella o un altro nome.</translation>
    </message>
    <message>
        <source>Save capture</source>
        <translation>Salva cattura</translation>
    </message>
    <message>
        <source>Captures (*.pcapng)</source>
        <translation>Catture (*.pcapng)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
</context>
<context>
    <name>Core</name>
    <message>
        <source>COM%1 is available</source>
        <translation>COM%1 è libera</translation>
    </message>
    <message>
        <source>COM%1 is used (modem)</source>
        <translation>COM%1 è occupata (modem)</translation>
    </message>
    <message>
        <source>COM%1 is used (device)</source>
        <translation>COM%1 è occupata (dispositivo)</translation>
    </message>
    <message>
        <source>COM%1 is in use</source>
        <translation>COM%1 è in uso</translation>
    </message>
    <message>
        <source>COM%1 is not accessible</source>
        <translation>COM%1 non è accessibile</translation>
    </message>
    <message>
        <source>COM%1 reports error</source>
        <translation>COM%1 segnala un errore</translation>
    </message>
    <message>
        <source>Port %1 is used by a modem!</source>
        <translation>La porta %1 è usata da un modem!</translation>
    </message>
    <message>
        <source>Port %1 is used by a device!</source>
        <translation>La porta %1 è usata da un dispositivo!</translation>
    </message>
    <message>
        <source>Port %1 is in use by another application!</source>
        <translation>La porta %1 è usata da un’altra applicazione!</translation>
    </message>
    <message>
        <source>Port %1 is not accessible!</source>
        <translation>La porta %1 non è accessibile!</translation>
    </message>
    <message>
        <source>Port %1 open error!</source>
        <translation>Errore nell’apertura della porta %1!</translation>
    </message>
    <message>
        <source>No port selected!</source>
        <translation>Nessuna porta scelta!</translation>
    </message>
    <message>
        <source>%1 does not exist; is the adapter plugged in, and is it the right port?</source>
        <translation>%1 non esiste; l’adattatore è collegato, ed è la porta giusta?</translation>
    </message>
    <message>
        <source>%1 has no serial hardware behind it; choose another port.</source>
        <translation>Dietro %1 non c’è una porta seriale; sceglierne un’altra.</translation>
    </message>
    <message>
        <source>%1 does not respond; is the adapter still plugged in?</source>
        <translation>%1 non risponde; l’adattatore è ancora collegato?</translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation>%1 non è una porta seriale.</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>%1 non si può aprire.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: error %2.</source>
        <translation>%1 non si può aprire: errore %2.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 non si può aprire: %2</translation>
    </message>
    <message>
        <source>%1 does not take these line settings; choose another speed.</source>
        <translation>%1 non accetta queste impostazioni; scegliere un’altra velocità.</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 è usato da un altro programma.</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>%1 è usato da %2.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; the group may not open it either.</source>
        <translation>Nessun permesso di aprire %1 (utente %2, gruppo %3); non l’ha nemmeno il gruppo.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; %4 is in that group, so something else forbids it.</source>
        <translation>Nessun permesso di aprire %1 (utente %2, gruppo %3); %4 è nel gruppo, quindi lo vieta qualcos’altro.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; %4 is in that group from the next login on: log out and in again.</source>
        <translation>Nessun permesso di aprire %1 (utente %2, gruppo %3); %4 è nel gruppo dal prossimo accesso: uscire e accedere di nuovo.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; %4 is not in that group: run &quot;%5&quot;, then log out and in again.</source>
        <translation>Nessun permesso di aprire %1 (utente %2, gruppo %3); %4 non è nel gruppo: eseguire «%5», poi accedere di nuovo.</translation>
    </message>
    <message>
        <source>Velmora goes on when it is plugged in again.</source>
        <translation>Velmora prosegue appena è di nuovo collegato.</translation>
    </message>
    <message>
        <source>Velmora goes on when it is awake again.</source>
        <translation>Velmora prosegue al risveglio del computer.</translation>
    </message>
    <message>
        <source>%1: The computer goes to sleep.</source>
        <translation>%1: Il computer va in sospensione.</translation>
    </message>
    <message>
        <source>%1: The port failed.</source>
        <translation>%1: La porta non funziona più.</translation>
    </message>
    <message>
        <source>%1: The line was cut or the device failed</source>
        <translation>%1: La linea è stata interrotta o il dispositivo non funziona più</translation>
    </message>
    <message>
        <source>The transfer is lost.</source>
        <translation>Il trasferimento è perduto.</translation>
    </message>
    <message>
        <source>Bytes come that make no frame.</source>
        <translation>Arrivano byte che non formano nessuna trama.</translation>
    </message>
    <message>
        <source>Nothing has come for a minute.</source>
        <translation>Da un minuto non è arrivato nulla.</translation>
    </message>
    <message>
        <source>Stop the server; Check cable in Setup finds out why.</source>
        <translation>Arrestare il server; «Verifica cavo» nella configurazione ne cerca il motivo.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>Impossibile salvare le impostazioni: %1</translation>
    </message>
    <message>
        <source>The folder is used, but could not be saved for the next start: %1</source>
        <translation>La cartella viene usata, ma non si è potuta salvare per il prossimo avvio: %1</translation>
    </message>
    <message>
        <source>%1 has less than 100 bytes and is replaced by the default file; it is kept as %2</source>
        <translation>%1 ha meno di 100 byte e viene sostituito dal file predefinito; è conservato come %2</translation>
    </message>
    <message>
        <source>The guide is not installed: it should be in %1. On Debian and Ubuntu it comes with the package velmora-doc, on Windows with the installer.</source>
        <translation>La guida non è installata: dovrebbe essere in %1. Su Debian e Ubuntu è nel pacchetto velmora-doc, su Windows nel programma di installazione.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direzione</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Esito</translation>
    </message>
    <message>
        <source>save</source>
        <translation>salvataggio</translation>
    </message>
    <message>
        <source>load</source>
        <translation>lettura</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>completo</translation>
    </message>
    <message>
        <source>complete, 1 formula changed</source>
        <translation>completo, 1 formula cambiata</translation>
    </message>
    <message>
        <source>incomplete: %9</source>
        <translation>incompleto: %9</translation>
    </message>
    <message>
        <source>refused: %9</source>
        <translation>rifiutato: %9</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>in corso</translation>
    </message>
    <message>
        <source>under way, %1 %, %2 left</source>
        <translation>in corso, %1 %, restano %2</translation>
    </message>
    <message>
        <source>under way, %1 %</source>
        <translation>in corso, %1 %</translation>
    </message>
    <message>
        <source>record too long</source>
        <translation>record troppo lungo</translation>
    </message>
    <message>
        <source>disk full</source>
        <translation>disco pieno</translation>
    </message>
    <message>
        <source>file exists</source>
        <translation>il file esiste</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>file inesistente</translation>
    </message>
    <message>
        <source>invalid request</source>
        <translation>richiesta non valida</translation>
    </message>
    <message>
        <source>file in use</source>
        <translation>file in uso</translation>
    </message>
    <message>
        <source>end of file</source>
        <translation>fine del file</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>non possibile</translation>
    </message>
    <message>
        <source>record too long (%1)</source>
        <translation>record troppo lungo (%1)</translation>
    </message>
    <message>
        <source>disk full (%1)</source>
        <translation>disco pieno (%1)</translation>
    </message>
    <message>
        <source>file exists (%1)</source>
        <translation>il file esiste (%1)</translation>
    </message>
    <message>
        <source>no such file (%1)</source>
        <translation>file inesistente (%1)</translation>
    </message>
    <message>
        <source>invalid request (%1)</source>
        <translation>richiesta non valida (%1)</translation>
    </message>
    <message>
        <source>file in use (%1)</source>
        <translation>file in uso (%1)</translation>
    </message>
    <message>
        <source>end of file (%1)</source>
        <translation>fine del file (%1)</translation>
    </message>
    <message>
        <source>not possible (%1)</source>
        <translation>non possibile (%1)</translation>
    </message>
    <message>
        <source>Earlier copy: %1</source>
        <translation>Copia precedente: %1</translation>
    </message>
    <message>
        <source>Velmora is free software under the MIT licence: use it, copy it, change it and pass it on. It comes without any warranty.</source>
        <translation>Velmora è software libero con licenza MIT: si può usare, copiare, modificare e distribuire. È fornito senza alcuna garanzia.</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Librerie</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Posizioni</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Impostazioni: %1</translation>
    </message>
    <message>
        <source>Download folder: %1</source>
        <translation>Cartella di ricezione: %1</translation>
    </message>
    <message>
        <source>Earlier copies: %1</source>
        <translation>Copie precedenti: %1</translation>
    </message>
    <message>
        <source>List of transfers: %1</source>
        <translation>Elenco dei trasferimenti: %1</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>bene</translation>
    </message>
    <message>
        <source>note</source>
        <translation>nota</translation>
    </message>
    <message>
        <source>FAULT</source>
        <translation>GUASTO</translation>
    </message>
    <message>
        <source>The check was stopped.</source>
        <translation>La verifica è stata interrotta.</translation>
    </message>
    <message>
        <source>%1 is there and may be opened.</source>
        <translation>%1 c’è e si può aprire.</translation>
    </message>
    <message>
        <source>%1, driver %2.</source>
        <translation>%1, driver %2.</translation>
    </message>
    <message>
        <source>The device does not tell what it is set to.</source>
        <translation>Il dispositivo non dice come è impostato.</translation>
    </message>
    <message>
        <source>The system does not tell what is behind the port.</source>
        <translation>Il sistema non dice che cosa c’è dietro la porta.</translation>
    </message>
    <message>
        <source>The device has no modem lines.</source>
        <translation>Il dispositivo non ha linee modem.</translation>
    </message>
    <message>
        <source>No line is on: nothing is connected or switched on, or the cable has only three wires.</source>
        <translation>Nessuna linea è attiva: non c’è nulla di collegato o acceso, o il cavo ha solo tre fili.</translation>
    </message>
    <message>
        <source>%1 on: something is connected and switched on at the other end.</source>
        <translation>%1 attivo: all’altro capo c’è qualcosa di collegato e acceso.</translation>
    </message>
    <message>
        <source>What is sent does not come back.</source>
        <translation>Ciò che si invia non torna indietro.</translation>
    </message>
    <message>
        <source>What is sent comes back.</source>
        <translation>Ciò che si invia torna indietro.</translation>
    </message>
    <message>
        <source>%1 bytes came that make no frame.</source>
        <translation>Sono arrivati %1 byte che non formano nessuna trama.</translation>
    </message>
    <message>
        <source>The Organiser is heard.</source>
        <translation>L’Organiser si sente.</translation>
    </message>
    <message>
        <source>Nothing comes.</source>
        <translation>Non arriva nulla.</translation>
    </message>
    <message>
        <source>Something answers AT with OK.</source>
        <translation>Qualcosa risponde OK ad AT.</translation>
    </message>
    <message>
        <source>Nothing answers AT.</source>
        <translation>Nulla risponde ad AT.</translation>
    </message>
    <message>
        <source>No frames come at other rates either.</source>
        <translation>Non arrivano trame nemmeno ad altre velocità.</translation>
    </message>
    <message>
        <source>Other parities do not help.</source>
        <translation>Altre parità non aiutano.</translation>
    </message>
    <message>
        <source>The device has no parity to be tried.</source>
        <translation>Il dispositivo non ha parità da provare.</translation>
    </message>
    <message>
        <source>The link comes up: %1 of %2 requests were answered.</source>
        <translation>Il collegamento si stabilisce: %1 richieste su %2 hanno avuto risposta.</translation>
    </message>
    <message>
        <source>The line is well.</source>
        <translation>La linea va bene.</translation>
    </message>
    <message>
        <source>There is no such port.</source>
        <translation>Questa porta non esiste.</translation>
    </message>
    <message>
        <source>Plug the adapter in, or choose another port.</source>
        <translation>Collegare l’adattatore o scegliere un’altra porta.</translation>
    </message>
    <message>
        <source>This login may not open the port.</source>
        <translation>Questo accesso non può aprire la porta.</translation>
    </message>
    <message>
        <source>Join the group that owns the device, and log in again.</source>
        <translation>Entrare nel gruppo a cui appartiene il dispositivo e accedere di nuovo.</translation>
    </message>
    <message>
        <source>Another program has the port open.</source>
        <translation>Un altro programma tiene aperta la porta.</translation>
    </message>
    <message>
        <source>End that program, or stop the server, and check again.</source>
        <translation>Chiudere quel programma o arrestare il server, e verificare di nuovo.</translation>
    </message>
    <message>
        <source>The device does not take the rate, or keeps other settings than it was given.</source>
        <translation>Il dispositivo non accetta la velocità o mantiene impostazioni diverse da quelle date.</translation>
    </message>
    <message>
        <source>Use another adapter, or install the driver that belongs to its chip.</source>
        <translation>Usare un altro adattatore o installare il driver del suo chip.</translation>
    </message>
    <message>
        <source>The device fails: its driver reports errors, or it went away.</source>
        <translation>Il dispositivo non funziona: il driver segnala errori, o è scomparso.</translation>
    </message>
    <message>
        <source>Plug the adapter in again, directly at the computer, and try another one.</source>
        <translation>Ricollegare l’adattatore direttamente al computer e provarne un altro.</translation>
    </message>
    <message>
        <source>Nothing comes, and the adapter&apos;s chip is a copy that its driver refuses.</source>
        <translation>Non arriva nulla, e il chip dell’adattatore è una copia che il driver rifiuta.</translation>
    </message>
    <message>
        <source>Use an adapter with a genuine chip, or install an older driver.</source>
        <translation>Usare un adattatore con un chip originale o installare un driver più vecchio.</translation>
    </message>
    <message>
        <source>Everything that is sent comes back, at every rate: pins 2 and 3 are joined.</source>
        <translation>Tutto ciò che si invia torna indietro, a ogni velocità: i piedini 2 e 3 sono uniti.</translation>
    </message>
    <message>
        <source>The adapter and the cable are well as far as the joint; remove it and connect the Organiser.</source>
        <translation>L’adattatore e il cavo vanno bene fino al ponticello; toglierlo e collegare l’Organiser.</translation>
    </message>
    <message>
        <source>What is sent comes back, and nothing else does.</source>
        <translation>Ciò che si invia torna indietro, e nient’altro.</translation>
    </message>
    <message>
        <source>Something on the line repeats every byte; check that the cable ends at the Organiser, and that its wires do not touch.</source>
        <translation>Qualcosa sulla linea ripete ogni byte; controllare che il cavo finisca all’Organiser e che i fili non si tocchino.</translation>
    </message>
    <message>
        <source>A modem is on the line, not an Organiser: it answers AT.</source>
        <translation>Sulla linea c’è un modem, non un Organiser: risponde ad AT.</translation>
    </message>
    <message>
        <source>Connect the Organiser&apos;s cable to this port, or choose the port that it is connected to.</source>
        <translation>Collegare il cavo dell’Organiser a questa porta o scegliere la porta a cui è collegato.</translation>
    </message>
    <message>
        <source>The Organiser speaks at another rate than the server.</source>
        <translation>L’Organiser parla a una velocità diversa dal server.</translation>
    </message>
    <message>
        <source>Set BAUD in the Organiser&apos;s COMMS/SETUP menu to the server&apos;s rate, or the server to the Organiser&apos;s.</source>
        <translation>Impostare BAUD nel menu COMMS/SETUP dell’Organiser alla velocità del server, o il server a quella dell’Organiser.</translation>
    </message>
    <message>
        <source>The Organiser uses another parity or number of bits than the server.</source>
        <translation>L’Organiser usa una parità o un numero di bit diversi dal server.</translation>
    </message>
    <message>
        <source>Set PARITY to NONE, BITS to 8 and STOP to 1 in the Organiser&apos;s COMMS/SETUP menu.</source>
        <translation>Nel menu COMMS/SETUP dell’Organiser impostare PARITY su NONE, BITS su 8 e STOP su 1.</translation>
    </message>
    <message>
        <source>The Organiser speaks, but not the protocol of the server.</source>
        <translation>L’Organiser parla, ma non il protocollo del server.</translation>
    </message>
    <message>
        <source>Set PROTOCOL to PSION in the Organiser&apos;s COMMS/SETUP menu.</source>
        <translation>Impostare PROTOCOL su PSION nel menu COMMS/SETUP dell’Organiser.</translation>
    </message>
    <message>
        <source>Only nulls come: the line is held low.</source>
        <translation>Arrivano solo zeri: la linea è tenuta bassa.</translation>
    </message>
    <message>
        <source>Check the plug for bent or touching pins, and try another cable.</source>
        <translation>Controllare che nel connettore non ci siano piedini piegati o a contatto, e provare un altro cavo.</translation>
    </message>
    <message>
        <source>The line is interrupted again and again while bytes come.</source>
        <translation>La linea si interrompe di continuo mentre arrivano byte.</translation>
    </message>
    <message>
        <source>Push the plugs home at both ends; if that does not help, try another cable.</source>
        <translation>Inserire a fondo i connettori ai due capi; se non basta, provare un altro cavo.</translation>
    </message>
    <message>
        <source>Bytes arrive damaged.</source>
        <translation>I byte arrivano danneggiati.</translation>
    </message>
    <message>
        <source>Use a shorter cable away from power supplies, check its ground wire, or set a lower rate on both sides.</source>
        <translation>Usare un cavo più corto, lontano dagli alimentatori, controllarne il filo di massa o scegliere una velocità più bassa da entrambe le parti.</translation>
    </message>
    <message>
        <source>The Organiser answers, but not every time.</source>
        <translation>L’Organiser risponde, ma non ogni volta.</translation>
    </message>
    <message>
        <source>Push the plugs home at both ends, and plug the adapter in directly at the computer.</source>
        <translation>Inserire a fondo i connettori ai due capi e collegare l’adattatore direttamente al computer.</translation>
    </message>
    <message>
        <source>The Organiser&apos;s answers come too late for the server.</source>
        <translation>Le risposte dell’Organiser arrivano troppo tardi per il server.</translation>
    </message>
    <message>
        <source>Plug the adapter in directly at the computer, and leave out hubs, networks and radio links on the way.</source>
        <translation>Collegare l’adattatore direttamente al computer, senza hub, reti o collegamenti radio in mezzo.</translation>
    </message>
    <message>
        <source>The Organiser calls, but does not hear what is sent to it.</source>
        <translation>L’Organiser chiama, ma non sente ciò che gli viene inviato.</translation>
    </message>
    <message>
        <source>Check the wire from pin 3 of the computer&apos;s plug to the Organiser, and that PARITY is NONE there; try another cable.</source>
        <translation>Controllare il filo dal piedino 3 del connettore del computer all’Organiser, e che lì PARITY sia NONE; provare un altro cavo.</translation>
    </message>
    <message>
        <source>Nothing comes, and no line of the plug is on.</source>
        <translation>Non arriva nulla, e nessuna linea del connettore è attiva.</translation>
    </message>
    <message>
        <source>Plug the cable in at both ends, and switch the Organiser on.</source>
        <translation>Collegare il cavo ai due capi e accendere l’Organiser.</translation>
    </message>
    <message>
        <source>Nothing comes from the Organiser.</source>
        <translation>Dall’Organiser non arriva nulla.</translation>
    </message>
    <message>
        <source>Start a transfer on the Organiser; if it says that it waits, check the cable: join pins 2 and 3 at the Organiser&apos;s end and check again.</source>
        <translation>Avviare un trasferimento sull’Organiser; se resta in attesa, controllare il cavo: unire i piedini 2 e 3 dal lato dell’Organiser e verificare di nuovo.</translation>
    </message>
    <message>
        <source>%7 of %8</source>
        <translation>%7 di %8</translation>
    </message>
    <message>
        <source>%8 bytes/s</source>
        <translation>%8 byte/s</translation>
    </message>
    <message>
        <source>and %8 more</source>
        <translation>e altre %8</translation>
    </message>
    <message>
        <source>The Organiser uses %8 baud.</source>
        <translation>L’Organiser usa %8 baud.</translation>
    </message>
    <message>
        <source>the runtime libraries of GCC: GPL 3 with the GCC Runtime Library Exception</source>
        <translation>le librerie di esecuzione di GCC: GPL 3 con la GCC Runtime Library Exception</translation>
    </message>
    <message>
        <source>the runtime of mingw-w64: public domain and permissive licences</source>
        <translation>il runtime di mingw-w64: pubblico dominio e licenze permissive</translation>
    </message>
    <message>
        <source>the GNU C library: LGPL 2.1 or later</source>
        <translation>la libreria C di GNU: LGPL 2.1 o successiva</translation>
    </message>
    <message>
        <source>%1: LGPL 2.1 or later</source>
        <translation>%1: LGPL 2.1 o successiva</translation>
    </message>
    <message>
        <source>Their texts are in the folder licences beside the program.</source>
        <translation>I loro testi sono nella cartella licences accanto al programma.</translation>
    </message>
    <message>
        <source>%8 baud</source>
        <translation>%8 baud</translation>
    </message>
    <message>
        <source>The device is set to %8 baud.</source>
        <translation>Il dispositivo è impostato a %8 baud.</translation>
    </message>
    <message>
        <source>The Organiser uses %7 baud, and the server %8 baud.</source>
        <translation>L’Organiser usa %7 baud, e il server %8 baud.</translation>
    </message>
    <message>
        <source>The port %1 is lost.</source>
        <translation>La porta %1 è perduta.</translation>
    </message>
    <message>
        <source>The server was stopped by the Organiser.</source>
        <translation>L’Organiser ha fermato il server.</translation>
    </message>
    <message>
        <source>Save of %1: %9</source>
        <translation>Salvataggio di %1: %9</translation>
    </message>
    <message>
        <source>Load of %1: %9</source>
        <translation>Lettura di %1: %9</translation>
    </message>
    <message>
        <source>Request: %9</source>
        <translation>Richiesta: %9</translation>
    </message>
    <message>
        <source>the link ended</source>
        <translation>il collegamento è terminato</translation>
    </message>
    <message>
        <source>complete, %8 formulas changed</source>
        <translation>completo, %8 formule cambiate</translation>
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
        <translation>%1: =%2 torna come =%3 e, salvata di nuovo, come =%4</translation>
    </message>
    <message>
        <source>%1: =%2 comes back as =%3, which cannot be saved</source>
        <translation>%1: =%2 torna come =%3, che non si può salvare</translation>
    </message>
    <message>
        <source>%1: =%2 comes back as =%3</source>
        <translation>%1: =%2 torna come =%3</translation>
    </message>
    <message>
        <source>%1: =%2 cannot be saved: %9</source>
        <translation>%1: =%2 non si può salvare: %9</translation>
    </message>
    <message>
        <source>it cannot be converted</source>
        <translation>non si può convertire</translation>
    </message>
    <message>
        <source>more than 255 arguments</source>
        <translation>più di 255 argomenti</translation>
    </message>
    <message>
        <source>too many parentheses</source>
        <translation>troppe parentesi</translation>
    </message>
    <message>
        <source>the formula is too deep</source>
        <translation>la formula è troppo profonda</translation>
    </message>
    <message>
        <source>the formula&apos;s calls are nested too deep</source>
        <translation>le chiamate della formula sono annidate troppo in profondità</translation>
    </message>
</context>
<context>
    <name>DesktopDialogs</name>
    <message>
        <source>The system tells nothing of adapters: the list is looked up twice a second.</source>
        <translation>Il sistema non segnala gli adattatori: l’elenco viene controllato due volte al secondo.</translation>
    </message>
</context>
<context>
    <name>DesktopFiles</name>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 non esiste più.</translation>
    </message>
    <message>
        <source>No program opens %1.</source>
        <translation>Nessun programma apre %1.</translation>
    </message>
</context>
<context>
    <name>DesktopServer</name>
    <message>
        <source>Plug in the adapter, then click Setup.</source>
        <translation>Collegare l’adattatore, poi fare clic su «Configura».</translation>
    </message>
</context>
<context>
    <name>DesktopTexts</name>
    <message>
        <source>From the next start on, the texts of the display are in this language: %1. The file as it was is kept as
%2</source>
        <translation>Dal prossimo avvio i testi dello schermo saranno in questa lingua: %1. Il file precedente è conservato come
%2</translation>
    </message>
    <message>
        <source>The texts could not be taken over: %1</source>
        <translation>Impossibile riprendere i testi: %1</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>%1 is called %2 there, which the Organiser can type.</source>
        <translation>%1 lì si chiama %2, che l’Organiser può digitare.</translation>
    </message>
    <message>
        <source>%1 is in the download folder already.</source>
        <translation>%1 è già nella cartella di ricezione.</translation>
    </message>
    <message>
        <source>%1 is a folder; only files are copied.</source>
        <translation>%1 è una cartella; si copiano solo i file.</translation>
    </message>
    <message>
        <source>%1 has more than 16 MB and was not copied.</source>
        <translation>%1 supera i 16 MB e non è stato copiato.</translation>
    </message>
    <message>
        <source>%1 was not copied: the download folder is not there.</source>
        <translation>%1 non è stato copiato: la cartella di ricezione non c’è.</translation>
    </message>
    <message>
        <source>%1 was not copied: %2</source>
        <translation>%1 non è stato copiato: %2</translation>
    </message>
    <message>
        <source>&amp;Replace it</source>
        <translation>So&amp;stituisci</translation>
    </message>
    <message>
        <source>&amp;Copy as %1</source>
        <translation>&amp;Copia come %1</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Ignora</translation>
    </message>
    <message>
        <source>Skip &amp;all</source>
        <translation>Ignora &amp;tutti</translation>
    </message>
    <message>
        <source>%1 is in the download folder now.</source>
        <translation>%1 è ora nella cartella di ricezione.</translation>
    </message>
    <message>
        <source>%1 files are in the download folder now.</source>
        <translation>%1 file sono ora nella cartella di ricezione.</translation>
    </message>
    <message>
        <source>There are %1 more such files.</source>
        <translation>Ci sono altri %1 file come questi.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Cerca in:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nome file:</translation>
    </message>
    <message>
        <source>&amp;File name:</source>
        <translation>Nome &amp;file:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Tipo di file:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Cartella:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Apri</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Scegli</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Cartella superiore</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Crea nuova cartella</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nuova cartella</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nuova cartella</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Elenco</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra laterale</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rinomina</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostra file nas&amp;costi</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Trova cartella</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Posizioni recenti</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Questo computer</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 esiste già.
Sostituirlo?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
File non trovato.
Verificare il nome del file.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Cartella non trovata.
Verificare il nome della cartella.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Ultima modifica</translation>
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
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
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
        <translation>Salva</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Scarta</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignora</translation>
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
        <translation>Maiusc</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Invio</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copia indirizzo del co&amp;llegamento</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
</context>
<context>
    <name>velmora::DeviceList</name>
    <message>
        <source>Serial devices that are present</source>
        <translation>Dispositivi seriali presenti</translation>
    </message>
    <message>
        <source>No serial device is present</source>
        <translation>Nessun dispositivo seriale presente</translation>
    </message>
    <message>
        <source>Devices that are present</source>
        <translation>Dispositivi presenti</translation>
    </message>
    <message>
        <source>%1 may not be opened</source>
        <translation>%1 non può essere aperto</translation>
    </message>
    <message>
        <source>%1 may not be opened: join the group &quot;%2&quot; and log in again</source>
        <translation>%1 non può essere aperto: entrare nel gruppo «%2» e accedere di nuovo</translation>
    </message>
</context>
<context>
    <name>velmora::FolderDialog</name>
    <message>
        <source>%1 is no folder to choose</source>
        <translation>%1 non è una cartella che si possa scegliere</translation>
    </message>
    <message>
        <source>&amp;Path:</source>
        <translation>&amp;Percorso:</translation>
    </message>
    <message>
        <source>&amp;New folder</source>
        <translation>&amp;Nuova cartella</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nuova cartella</translation>
    </message>
    <message>
        <source>No folder can be made in %1</source>
        <translation>Impossibile creare una cartella in %1</translation>
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
        <translation>&amp;Mostra</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
</context>
<context>
    <name>velmora::frmAbout</name>
    <message>
        <source>About Velmora</source>
        <translation>Informazioni su Velmora</translation>
    </message>
    <message>
        <source>Copy details puts a report of a fault onto the clipboard: what runs here, with which settings, and what passed over the line last. It names files, and has none of their contents.</source>
        <translation>«Copia dettagli» mette negli appunti un rapporto sull’errore: che cosa è in esecuzione, con quali impostazioni, e che cosa è passato per ultimo sulla linea. Nomina i file, ma non ne riporta il contenuto.</translation>
    </message>
    <message>
        <source>&amp;Copy details</source>
        <translation>&amp;Copia dettagli</translation>
    </message>
    <message>
        <source>Save ca&amp;pture…</source>
        <translation>&amp;Salva cattura…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>The report is on the clipboard: paste it into your mail.</source>
        <translation>Il rapporto è negli appunti: incollarlo nel messaggio di posta.</translation>
    </message>
    <message>
        <source>The report is on the clipboard: paste it into your mail, and attach the capture.</source>
        <translation>Il rapporto è negli appunti: incollarlo nel messaggio di posta e allegare la cattura.</translation>
    </message>
    <message>
        <source>The last minute of the line, without the contents of files, is in %1.</source>
        <translation>L’ultimo minuto della linea, senza il contenuto dei file, è in %1.</translation>
    </message>
</context>
<context>
    <name>velmora::frmCableCheck</name>
    <message>
        <source>Velmora Check Cable</source>
        <translation>Velmora – Verifica cavo</translation>
    </message>
    <message>
        <source>%1 at %2. Start a transfer on the Organiser, so that it calls; the check takes up to a minute and changes nothing there.</source>
        <translation>%1 a %2. Avviare un trasferimento sull’Organiser, perché chiami; la verifica dura al massimo un minuto e non vi cambia nulla.</translation>
    </message>
    <message>
        <source>Steps of the check</source>
        <translation>Passi della verifica</translation>
    </message>
    <message>
        <source>The check goes on</source>
        <translation>La verifica è in corso</translation>
    </message>
    <message>
        <source>Cop&amp;y the result</source>
        <translation>Copia il &amp;risultato</translation>
    </message>
    <message>
        <source>One line for the clipboard, for whoever is asked for help.</source>
        <translation>Una riga per gli appunti, per chi viene chiamato in aiuto.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>Check a&amp;gain</source>
        <translation>&amp;Verifica di nuovo</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Interrompi</translation>
    </message>
</context>
<context>
    <name>velmora::frmDebug</name>
    <message>
        <source>Velmora PLP Monitor</source>
        <translation>Velmora – Monitor PLP</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>&amp;Save log as…</source>
        <translation>&amp;Salva registro con nome…</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>Copy &amp;all</source>
        <translation>Copia &amp;tutto</translation>
    </message>
    <message>
        <source>Select a&amp;ll</source>
        <translation>&amp;Seleziona tutto</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>T&amp;rova…</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>Trova s&amp;uccessivo</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>Trova &amp;precedente</translation>
    </message>
    <message>
        <source>Save ca&amp;pture…</source>
        <translation>Salva &amp;cattura…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>&amp;Trova:</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>&amp;Successivo</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Precedente</translation>
    </message>
    <message>
        <source>Show what?</source>
        <translation>Che cosa mostrare?</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Tutto</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Dati</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>A scelta</translation>
    </message>
    <message>
        <source>Auto-detected</source>
        <translation>Rilevato automaticamente</translation>
    </message>
    <message>
        <source>Follow the e&amp;nd</source>
        <translation>Segui la fi&amp;ne</translation>
    </message>
    <message>
        <source>&amp;Log to disk</source>
        <translation>Registra su &amp;disco</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Cancella</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Salva registro</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>File di testo (*.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>The log could not be saved in
%1

%2

Choose another folder or name.</source>
        <translation>Impossibile salvare il registro in
%1

%2

Scegliere un’altra cartella o un altro nome.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Non trovato</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Riga %1 di %2</translation>
    </message>
    <message>
        <source>Line %1 of %2, from the beginning again</source>
        <translation>Riga %1 di %2, di nuovo dall’inizio</translation>
    </message>
    <message>
        <source>Line %1 of %2, from the end again</source>
        <translation>Riga %1 di %2, di nuovo dalla fine</translation>
    </message>
    <message>
        <source>&amp;Hide idle polling</source>
        <translation>N&amp;ascondi l’attività a riposo</translation>
    </message>
    <message>
        <source>Leave out what passes while nothing happens. It is kept, shown again when asked for, and saved.</source>
        <translation>Tralascia ciò che passa mentre non succede nulla. Resta conservato, si può mostrare di nuovo e viene salvato.</translation>
    </message>
</context>
<context>
    <name>velmora::frmMain</name>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Debug</translation>
    </message>
    <message>
        <source>Debug window</source>
        <translation>Finestra di debug</translation>
    </message>
    <message>
        <source>Double-click to show or hide the protocol monitor</source>
        <translation>Doppio clic per mostrare o nascondere il monitor del protocollo</translation>
    </message>
    <message>
        <source>Organiser display</source>
        <translation>Schermo dell’Organiser</translation>
    </message>
    <message>
        <source>Organiser display line %1</source>
        <translation>Schermo dell’Organiser, riga %1</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Ricevuti</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Inviati</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Avvia</translation>
    </message>
    <message>
        <source>Start or stop the server</source>
        <translation>Avvia o arresta il server</translation>
    </message>
    <message>
        <source>Set&amp;up…</source>
        <translation>&amp;Configura…</translation>
    </message>
    <message>
        <source>Choose the serial port, its speed and the file type</source>
        <translation>Scegli la porta seriale, la velocità e il tipo di file</translation>
    </message>
    <message>
        <source>&amp;Folder…</source>
        <translation>Ca&amp;rtella…</translation>
    </message>
    <message>
        <source>Choose the folder that files are saved to and loaded from</source>
        <translation>Scegli la cartella in cui i file vengono salvati e da cui vengono letti</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Nascondi</translation>
    </message>
    <message>
        <source>Minimise the window; the server goes on</source>
        <translation>Riduci la finestra a icona; il server continua</translation>
    </message>
    <message>
        <source>Shut &amp;down</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>Stop the server and end the program</source>
        <translation>Arresta il server e chiudi il programma</translation>
    </message>
    <message>
        <source>&amp;Transfers…</source>
        <translation>&amp;Trasferimenti…</translation>
    </message>
    <message>
        <source>Show what was saved and loaded (Ctrl+T)</source>
        <translation>Mostra che cosa è stato salvato e letto (Ctrl+T)</translation>
    </message>
    <message>
        <source>What Velmora is made of, where its files are, and a report of a fault</source>
        <translation>Di che cosa è fatto Velmora, dove sono i suoi file e un rapporto sull’errore</translation>
    </message>
    <message>
        <source>&amp;Open folder</source>
        <translation>A&amp;pri cartella</translation>
    </message>
    <message>
        <source>Open the folder that files are saved to and loaded from</source>
        <translation>Apri la cartella in cui i file vengono salvati e da cui vengono letti</translation>
    </message>
    <message>
        <source>Download folder</source>
        <translation>Cartella di ricezione</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Configura</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Nascondi</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Trasferimenti</translation>
    </message>
    <message>
        <source>About Velmora</source>
        <translation>Informazioni su Velmora</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arresta</translation>
    </message>
    <message>
        <source>Put the window into the tray; the server goes on</source>
        <translation>Riponi la finestra nell’area di notifica; il server continua</translation>
    </message>
</context>
<context>
    <name>velmora::frmSetup</name>
    <message>
        <source>Velmora Setup</source>
        <translation>Velmora – Configurazione</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Other port</source>
        <translation>Altra porta</translation>
    </message>
    <message>
        <source>Port number</source>
        <translation>Numero della porta</translation>
    </message>
    <message>
        <source>chec&amp;k</source>
        <translation>&amp;verifica</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aggiorna</translation>
    </message>
    <message>
        <source>Check ca&amp;ble…</source>
        <translation>Verifica &amp;cavo…</translation>
    </message>
    <message>
        <source>Finds out why nothing comes from the Organiser.</source>
        <translation>Cerca il motivo per cui non arriva nulla dall’Organiser.</translation>
    </message>
    <message>
        <source>Baud</source>
        <translation>Velocità (baud)</translation>
    </message>
    <message>
        <source>The Organiser knows none but the other rates.</source>
        <translation>L’Organiser conosce soltanto le altre velocità.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>&amp;Autostart</source>
        <translation>Avvio a&amp;utomatico</translation>
    </message>
    <message>
        <source>&amp;Transfer data-files as</source>
        <translation>&amp;Trasferisci i file di dati come</translation>
    </message>
    <message>
        <source>&amp;Worksheets (WKS)</source>
        <translation>&amp;Fogli di lavoro (WKS)</translation>
    </message>
    <message>
        <source>Testing the ports...</source>
        <translation>Verifica delle porte…</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>ODB (tab-delimited)</source>
        <translation>ODB (tabulazioni)</translation>
    </message>
    <message>
        <source>TXT (tab-delimited)</source>
        <translation>TXT (tabulazioni)</translation>
    </message>
    <message>
        <source>CSV (comma)</source>
        <translation>CSV (virgola)</translation>
    </message>
    <message>
        <source>CSV (semicolon)</source>
        <translation>CSV (punto e virgola)</translation>
    </message>
    <message>
        <source>as the Organiser&apos;s own</source>
        <translation>come quelli dell’Organiser</translation>
    </message>
    <message>
        <source>for spreadsheet programs</source>
        <translation>per i programmi di foglio elettronico</translation>
    </message>
    <message>
        <source>as they are</source>
        <translation>come sono</translation>
    </message>
    <message>
        <source>Te&amp;xts of the display</source>
        <translation>Te&amp;sti dello schermo</translation>
    </message>
</context>
<context>
    <name>velmora::frmTransfers</name>
    <message>
        <source>Velmora Transfers</source>
        <translation>Velmora – Trasferimenti</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Trasferimenti</translation>
    </message>
    <message>
        <source>Nothing was transferred yet.</source>
        <translation>Non è stato ancora trasferito nulla.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Apri</translation>
    </message>
    <message>
        <source>&amp;Show in its folder</source>
        <translation>&amp;Mostra nella cartella</translation>
    </message>
    <message>
        <source>Open the &amp;earlier copy</source>
        <translation>Apri la copia pr&amp;ecedente</translation>
    </message>
    <message>
        <source>Copy the &amp;path</source>
        <translation>Copia il &amp;percorso</translation>
    </message>
    <message>
        <source>Copy the &amp;details</source>
        <translation>Copia i &amp;dettagli</translation>
    </message>
</context>
</TS>
