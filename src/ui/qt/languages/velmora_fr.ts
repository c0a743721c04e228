<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CaptureSaving</name>
    <message>
        <source>The capture could not be saved in
%1

%2

Choose another folder or name.</source>
        <translation>La capture n’a pas pu être enregistrée dans
%1

%2

Veuillez choisir un autre dossier ou un autre nom.</translation>
    </message>
    <message>
        <source>Save capture</source>
        <translation>Enregistrer la capture</translation>
    </message>
    <message>
        <source>Captures (*.pcapng)</source>
        <translation>Captures de trames (*.pcapng)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>DesktopDialogs</name>
    <message>
        <source>The system tells nothing of adapters: the list is looked up twice a second.</source>
        <translation>Le système ne signale pas les adaptateurs : la liste est consultée deux fois par seconde.</translation>
    </message>
</context>
<context>
    <name>DesktopFiles</name>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 n’existe plus.</translation>
    </message>
    <message>
        <source>No program opens %1.</source>
        <translation>Aucun programme n’ouvre %1.</translation>
    </message>
</context>
<context>
    <name>DesktopServer</name>
    <message>
        <source>Plug in the adapter, then click Setup.</source>
        <translation>Branchez l’adaptateur, puis cliquez sur « Configurer ».</translation>
    </message>
</context>
<context>
    <name>DesktopTexts</name>
    <message>
        <source>From the next start on, the texts of the display are in this language: %1. The file as it was is kept as
%2</source>
        <translation>À partir du prochain démarrage, les textes de l’écran seront dans cette langue : %1. Le fichier précédent est conservé sous
%2</translation>
    </message>
    <message>
        <source>The texts could not be taken over: %1</source>
        <translation>Les textes n’ont pas pu être repris : %1</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>%1 is called %2 there, which the Organiser can type.</source>
        <translation>%1 s’y appelle %2, que l’Organiser peut taper.</translation>
    </message>
    <message>
        <source>%1 is in the download folder already.</source>
        <translation>%1 est déjà dans le dossier de réception.</translation>
    </message>
    <message>
        <source>%1 is a folder; only files are copied.</source>
        <translation>%1 est un dossier ; seuls les fichiers sont copiés.</translation>
    </message>
    <message>
        <source>%1 has more than 16 MB and was not copied.</source>
        <translation>%1 dépasse 16 Mo et n’a pas été copié.</translation>
    </message>
    <message>
        <source>%1 was not copied: the download folder is not there.</source>
        <translation>%1 n’a pas été copié : le dossier de réception est introuvable.</translation>
    </message>
    <message>
        <source>%1 was not copied: %2</source>
        <translation>%1 n’a pas été copié : %2</translation>
    </message>
    <message>
        <source>&amp;Replace it</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>&amp;Copy as %1</source>
        <translation>&amp;Copier sous le nom %1</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>Skip &amp;all</source>
        <translation>&amp;Tout ignorer</translation>
    </message>
    <message>
        <source>%1 is in the download folder now.</source>
        <translation>%1 est maintenant dans le dossier de réception.</translation>
    </message>
    <message>
        <source>%1 files are in the download folder now.</source>
        <translation>%1 fichiers sont maintenant dans le dossier de réception.</translation>
    </message>
    <message>
        <source>There are %1 more such files.</source>
        <translation>Il y a encore %1 fichiers de ce genre.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Regarder dans :</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nom du fichier :</translation>
    </message>
    <message>
        <source>&amp;File name:</source>
        <translation>Nom du &amp;fichier :</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Fichiers de type :</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Dossier :</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Choisir</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Créer un nouveau dossier</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nouveau dossier</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barre latérale</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Afficher les fichiers &amp;cachés</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Rechercher un dossier</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Emplacements récents</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 existe déjà.
Le remplacer ?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Fichier introuvable.
Veuillez vérifier le nom du fichier.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Dossier introuvable.
Veuillez vérifier le nom du dossier.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Modifié le</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Couper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>C&amp;opier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;ller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
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
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
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
        <translation>Maj</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Entrée</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Couper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>C&amp;opier</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copier l’adresse du &amp;lien</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;ller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
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
        <translation>%1 n’est pas un dossier que l’on puisse choisir</translation>
    </message>
</context>
<context>
    <name>velmora::frmAbout</name>
    <message>
        <source>About Velmora</source>
        <translation>À propos de Velmora</translation>
    </message>
    <message>
        <source>Copy details puts a report of a fault onto the clipboard: what runs here, with which settings, and what passed over the line last. It names files, and has none of their contents.</source>
        <translation>« Copier les détails » place dans le presse-papiers un rapport d’erreur : ce qui tourne ici, avec quels réglages, et ce qui est passé en dernier sur la ligne. Il nomme des fichiers, mais ne contient rien d’eux.</translation>
    </message>
    <message>
        <source>&amp;Copy details</source>
        <translation>&amp;Copier les détails</translation>
    </message>
    <message>
        <source>Save ca&amp;pture…</source>
        <translation>Enregistrer la ca&amp;pture…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>The report is on the clipboard: paste it into your mail.</source>
        <translation>Le rapport est dans le presse-papiers : collez-le dans votre message.</translation>
    </message>
    <message>
        <source>The report is on the clipboard: paste it into your mail, and attach the capture.</source>
        <translation>Le rapport est dans le presse-papiers : collez-le dans votre message et joignez la capture.</translation>
    </message>
    <message>
        <source>The last minute of the line, without the contents of files, is in %1.</source>
        <translation>La dernière minute de la ligne, sans le contenu des fichiers, se trouve dans %1.</translation>
    </message>
</context>
<context>
    <name>velmora::frmCableCheck</name>
    <message>
        <source>Velmora Check Cable</source>
        <translation>Velmora – Vérifier le câble</translation>
    </message>
    <message>
        <source>%1 at %2. Start a transfer on the Organiser, so that it calls; the check takes up to a minute and changes nothing there.</source>
        <translation>%1 à %2. Lancez un transfert sur l’Organiser pour qu’il appelle ; la vérification dure une minute au plus et n’y change rien.</translation>
    </message>
    <message>
        <source>Steps of the check</source>
        <translation>Étapes de la vérification</translation>
    </message>
    <message>
        <source>The check goes on</source>
        <translation>La vérification est en cours</translation>
    </message>
    <message>
        <source>Cop&amp;y the result</source>
        <translation>Co&amp;pier le résultat</translation>
    </message>
    <message>
        <source>One line for the clipboard, for whoever is asked for help.</source>
        <translation>Une ligne pour le presse-papiers, pour la personne à qui l’on demande de l’aide.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Check a&amp;gain</source>
        <translation>&amp;Vérifier à nouveau</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
</context>
<context>
    <name>velmora::frmDebug</name>
    <message>
        <source>Velmora PLP Monitor</source>
        <translation>Velmora – Moniteur PLP</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>&amp;Save log as…</source>
        <translation>&amp;Enregistrer le journal sous…</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy &amp;all</source>
        <translation>&amp;Tout copier</translation>
    </message>
    <message>
        <source>Select a&amp;ll</source>
        <translation>Tout &amp;sélectionner</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Rechercher…</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>Rechercher le sui&amp;vant</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>Rechercher le &amp;précédent</translation>
    </message>
    <message>
        <source>Save ca&amp;pture…</source>
        <translation>Enregistrer la &amp;capture…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>&amp;Rechercher :</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>Show what?</source>
        <translation>Que montrer ?</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Au choix</translation>
    </message>
    <message>
        <source>Auto-detected</source>
        <translation>Détecté automatiquement</translation>
    </message>
    <message>
        <source>Follow the e&amp;nd</source>
        <translation>Suivre la fi&amp;n</translation>
    </message>
    <message>
        <source>&amp;Log to disk</source>
        <translation>&amp;Enregistrer sur disque</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>Effa&amp;cer</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Enregistrer le journal</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Fichiers texte (*.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The log could not be saved in
%1

%2

Choose another folder or name.</source>
        <translation>Le journal n’a pas pu être enregistré dans
%1

%2

Veuillez choisir un autre dossier ou un autre nom.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Ligne %1 sur %2</translation>
    </message>
    <message>
        <source>Line %1 of %2, from the beginning again</source>
        <translation>Ligne %1 sur %2, reprise au début</translation>
    </message>
    <message>
        <source>Line %1 of %2, from the end again</source>
        <translation>Ligne %1 sur %2, reprise à la fin</translation>
    </message>
    <message>
        <source>&amp;Hide idle polling</source>
        <translation>&amp;Masquer les appels à vide</translation>
    </message>
    <message>
        <source>Leave out what passes while nothing happens. It is kept, shown again when asked for, and saved.</source>
        <translation>Laisser de côté ce qui passe quand il ne se passe rien. C’est conservé, réaffiché sur demande et enregistré.</translation>
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
        <translation>Fenêtre de débogage</translation>
    </message>
    <message>
        <source>Double-click to show or hide the protocol monitor</source>
        <translation>Double-cliquer pour afficher ou masquer le moniteur de protocole</translation>
    </message>
    <message>
        <source>Organiser display</source>
        <translation>Écran de l’Organiser</translation>
    </message>
    <message>
        <source>Organiser display line %1</source>
        <translation>Écran de l’Organiser, ligne %1</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Octets</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Reçus</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Envoyés</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Démarrer</translation>
    </message>
    <message>
        <source>Start or stop the server</source>
        <translation>Démarrer ou arrêter le serveur</translation>
    </message>
    <message>
        <source>Set&amp;up…</source>
        <translation>&amp;Configurer…</translation>
    </message>
    <message>
        <source>Choose the serial port, its speed and the file type</source>
        <translation>Choisir le port série, sa vitesse et le type de fichier</translation>
    </message>
    <message>
        <source>&amp;Folder…</source>
        <translation>D&amp;ossier…</translation>
    </message>
    <message>
        <source>Choose the folder that files are saved to and loaded from</source>
        <translation>Choisir le dossier où les fichiers sont enregistrés et lus</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Masquer</translation>
    </message>
    <message>
        <source>Minimise the window; the server goes on</source>
        <translation>Réduire la fenêtre ; le serveur continue</translation>
    </message>
    <message>
        <source>Shut &amp;down</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Stop the server and end the program</source>
        <translation>Arrêter le serveur et quitter le programme</translation>
    </message>
    <message>
        <source>&amp;Transfers…</source>
        <translation>&amp;Transferts…</translation>
    </message>
    <message>
        <source>Show what was saved and loaded (Ctrl+T)</source>
        <translation>Montrer ce qui a été enregistré et lu (Ctrl+T)</translation>
    </message>
    <message>
        <source>What Velmora is made of, where its files are, and a report of a fault</source>
        <translation>De quoi Velmora est fait, où sont ses fichiers, et un rapport d’erreur</translation>
    </message>
    <message>
        <source>&amp;Open folder</source>
        <translation>Ou&amp;vrir le dossier</translation>
    </message>
    <message>
        <source>Open the folder that files are saved to and loaded from</source>
        <translation>Ouvrir le dossier où les fichiers sont enregistrés et lus</translation>
    </message>
    <message>
        <source>Download folder</source>
        <translation>Dossier de réception</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Configurer</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Transferts</translation>
    </message>
    <message>
        <source>About Velmora</source>
        <translation>À propos de Velmora</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>A&amp;rrêter</translation>
    </message>
</context>
<context>
    <name>velmora::frmSetup</name>
    <message>
        <source>Velmora Setup</source>
        <translation>Velmora – Configuration</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port série</translation>
    </message>
    <message>
        <source>Other port</source>
        <translation>Autre port</translation>
    </message>
    <message>
        <source>Port number</source>
        <translation>Numéro du port</translation>
    </message>
    <message>
        <source>chec&amp;k</source>
        <translation>&amp;vérifier</translation>
    </message>
    <message>
        <source>Serial devices that are present</source>
        <translation>Périphériques série présents</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message>
        <source>Check ca&amp;ble…</source>
        <translation>Vérifier le câ&amp;ble…</translation>
    </message>
    <message>
        <source>Finds out why nothing comes from the Organiser.</source>
        <translation>Cherche pourquoi rien ne vient de l’Organiser.</translation>
    </message>
    <message>
        <source>Baud</source>
        <translation>Débit (bauds)</translation>
    </message>
    <message>
        <source>The Organiser knows none but the other rates.</source>
        <translation>L’Organiser ne connaît que les autres vitesses.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>&amp;Autostart</source>
        <translation>&amp;Démarrage automatique</translation>
    </message>
    <message>
        <source>&amp;Transfer data-files as</source>
        <translation>&amp;Transférer les fichiers de données en</translation>
    </message>
    <message>
        <source>&amp;Worksheets (WKS)</source>
        <translation>&amp;Feuilles de calcul (WKS)</translation>
    </message>
    <message>
        <source>Testing the ports...</source>
        <translation>Test des ports…</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>No serial device is present</source>
        <translation>Aucun périphérique série présent</translation>
    </message>
    <message>
        <source>Devices that are present</source>
        <translation>Périphériques présents</translation>
    </message>
    <message>
        <source>%1 may not be opened</source>
        <translation>%1 ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>%1 may not be opened: join the group &quot;%2&quot; and log in again</source>
        <translation>%1 ne peut pas être ouvert : rejoignez le groupe « %2 » et reconnectez-vous</translation>
    </message>
    <message>
        <source>ODB (tab-delimited)</source>
        <translation>ODB (tabulations)</translation>
    </message>
    <message>
        <source>TXT (tab-delimited)</source>
        <translation>TXT (tabulations)</translation>
    </message>
    <message>
        <source>CSV (comma)</source>
        <translation>CSV (virgule)</translation>
    </message>
    <message>
        <source>CSV (semicolon)</source>
        <translation>CSV (point-virgule)</translation>
    </message>
    <message>
        <source>as the Organiser&apos;s own</source>
        <translation>comme celles de l’Organiser</translation>
    </message>
    <message>
        <source>for spreadsheet programs</source>
        <translation>pour les tableurs</translation>
    </message>
    <message>
        <source>as they are</source>
        <translation>tels quels</translation>
    </message>
    <message>
        <source>Te&amp;xts of the display</source>
        <translation>Te&amp;xtes de l’écran</translation>
    </message>
</context>
<context>
    <name>velmora::frmTransfers</name>
    <message>
        <source>Velmora Transfers</source>
        <translation>Velmora – Transferts</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Transferts</translation>
    </message>
    <message>
        <source>Nothing was transferred yet.</source>
        <translation>Rien n’a encore été transféré.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Show in its folder</source>
        <translation>Mo&amp;ntrer dans son dossier</translation>
    </message>
    <message>
        <source>Open the &amp;earlier copy</source>
        <translation>Ouvrir la v&amp;ersion antérieure</translation>
    </message>
    <message>
        <source>Copy the &amp;path</source>
        <translation>Copier le &amp;chemin</translation>
    </message>
    <message>
        <source>Copy the &amp;details</source>
        <translation>Copier les &amp;détails</translation>
    </message>
</context>
</TS>
