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
    <name>velmora::FolderDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1 is no folder to choose</source>
        <translation>%1 non è una cartella che si possa scegliere</translation>
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
        <source>Serial devices that are present</source>
        <translation>Dispositivi seriali presenti</translation>
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
