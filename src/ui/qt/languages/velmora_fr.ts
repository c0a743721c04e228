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
    <name>Core</name>
    <message>
        <source>COM%1 is available</source>
        <translation>COM%1 est libre</translation>
    </message>
    <message>
        <source>COM%1 is used (modem)</source>
        <translation>COM%1 est occupé (modem)</translation>
    </message>
    <message>
        <source>COM%1 is used (device)</source>
        <translation>COM%1 est occupé (appareil)</translation>
    </message>
    <message>
        <source>COM%1 is in use</source>
        <translation>COM%1 est utilisé</translation>
    </message>
    <message>
        <source>COM%1 is not accessible</source>
        <translation>COM%1 n’est pas accessible</translation>
    </message>
    <message>
        <source>COM%1 reports error</source>
        <translation>COM%1 signale une erreur</translation>
    </message>
    <message>
        <source>Port %1 is used by a modem!</source>
        <translation>Le port %1 est utilisé par un modem !</translation>
    </message>
    <message>
        <source>Port %1 is used by a device!</source>
        <translation>Le port %1 est utilisé par un appareil !</translation>
    </message>
    <message>
        <source>Port %1 is in use by another application!</source>
        <translation>Le port %1 est utilisé par une autre application !</translation>
    </message>
    <message>
        <source>Port %1 is not accessible!</source>
        <translation>Le port %1 n’est pas accessible !</translation>
    </message>
    <message>
        <source>Port %1 open error!</source>
        <translation>Erreur à l’ouverture du port %1 !</translation>
    </message>
    <message>
        <source>No port selected!</source>
        <translation>Aucun port choisi !</translation>
    </message>
    <message>
        <source>%1 does not exist; is the adapter plugged in, and is it the right port?</source>
        <translation>%1 n’existe pas ; l’adaptateur est-il branché, et est-ce le bon port ?</translation>
    </message>
    <message>
        <source>%1 has no serial hardware behind it; choose another port.</source>
        <translation>Il n’y a pas de matériel série derrière %1 ; choisissez un autre port.</translation>
    </message>
    <message>
        <source>%1 does not respond; is the adapter still plugged in?</source>
        <translation>%1 ne répond pas ; l’adaptateur est-il encore branché ?</translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation>%1 n’est pas un port série.</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>%1 ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: error %2.</source>
        <translation>%1 ne peut pas être ouvert : erreur %2.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 ne peut pas être ouvert : %2</translation>
    </message>
    <message>
        <source>%1 does not take these line settings; choose another speed.</source>
        <translation>%1 n’accepte pas ces réglages ; choisissez une autre vitesse.</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 est utilisé par un autre programme.</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>%1 est utilisé par %2.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; the group may not open it either.</source>
        <translation>Pas le droit d’ouvrir %1 (utilisateur %2, groupe %3) ; le groupe ne l’a pas non plus.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; %4 is in that group, so something else forbids it.</source>
        <translation>Pas le droit d’ouvrir %1 (utilisateur %2, groupe %3) ; %4 est dans le groupe, autre chose l’interdit donc.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; %4 is in that group from the next login on: log out and in again.</source>
        <translation>Pas le droit d’ouvrir %1 (utilisateur %2, groupe %3) ; %4 sera dans le groupe à la prochaine session : reconnectez-vous.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; %4 is not in that group: run &quot;%5&quot;, then log out and in again.</source>
        <translation>Pas le droit d’ouvrir %1 (utilisateur %2, groupe %3) ; %4 n’est pas dans le groupe : exécutez « %5 », puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>Velmora goes on when it is plugged in again.</source>
        <translation>Velmora continuera dès qu’il sera rebranché.</translation>
    </message>
    <message>
        <source>Velmora goes on when it is awake again.</source>
        <translation>Velmora continuera au réveil de l’ordinateur.</translation>
    </message>
    <message>
        <source>%1: The computer goes to sleep.</source>
        <translation>%1 : L’ordinateur se met en veille.</translation>
    </message>
    <message>
        <source>%1: The port failed.</source>
        <translation>%1 : Le port est en panne.</translation>
    </message>
    <message>
        <source>%1: The line was cut or the device failed</source>
        <translation>%1 : La ligne a été coupée ou l’appareil est en panne</translation>
    </message>
    <message>
        <source>The transfer is lost.</source>
        <translation>Le transfert est perdu.</translation>
    </message>
    <message>
        <source>Bytes come that make no frame.</source>
        <translation>Il arrive des octets qui ne forment aucune trame.</translation>
    </message>
    <message>
        <source>Nothing has come for a minute.</source>
        <translation>Rien n’est venu depuis une minute.</translation>
    </message>
    <message>
        <source>Stop the server; Check cable in Setup finds out why.</source>
        <translation>Arrêtez le serveur ; « Vérifier le câble » dans la configuration en cherche la raison.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>Les réglages n’ont pas pu être enregistrés : %1</translation>
    </message>
    <message>
        <source>The folder is used, but could not be saved for the next start: %1</source>
        <translation>Le dossier est utilisé, mais n’a pas pu être enregistré pour le prochain démarrage : %1</translation>
    </message>
    <message>
        <source>%1 has less than 100 bytes and is replaced by the default file; it is kept as %2</source>
        <translation>%1 a moins de 100 octets et est remplacé par le fichier par défaut ; il est conservé sous %2</translation>
    </message>
    <message>
        <source>The guide is not installed: it should be in %1. On Debian and Ubuntu it comes with the package velmora-doc, on Windows with the installer.</source>
        <translation>Le guide n’est pas installé : il devrait se trouver dans %1. Sous Debian et Ubuntu, il vient avec le paquet velmora-doc, sous Windows avec le programme d’installation.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Octets</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>save</source>
        <translation>enregistrement</translation>
    </message>
    <message>
        <source>load</source>
        <translation>lecture</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>complet</translation>
    </message>
    <message>
        <source>complete, 1 formula changed</source>
        <translation>complet, 1 formule modifiée</translation>
    </message>
    <message>
        <source>incomplete: %9</source>
        <translation>incomplet : %9</translation>
    </message>
    <message>
        <source>refused: %9</source>
        <translation>refusé : %9</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>en cours</translation>
    </message>
    <message>
        <source>under way, %1 %, %2 left</source>
        <translation>en cours, %1 %, reste %2</translation>
    </message>
    <message>
        <source>under way, %1 %</source>
        <translation>en cours, %1 %</translation>
    </message>
    <message>
        <source>record too long</source>
        <translation>enregistrement trop long</translation>
    </message>
    <message>
        <source>disk full</source>
        <translation>disque plein</translation>
    </message>
    <message>
        <source>file exists</source>
        <translation>le fichier existe</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>fichier inexistant</translation>
    </message>
    <message>
        <source>invalid request</source>
        <translation>demande non valable</translation>
    </message>
    <message>
        <source>file in use</source>
        <translation>fichier utilisé</translation>
    </message>
    <message>
        <source>end of file</source>
        <translation>fin du fichier</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>impossible</translation>
    </message>
    <message>
        <source>record too long (%1)</source>
        <translation>enregistrement trop long (%1)</translation>
    </message>
    <message>
        <source>disk full (%1)</source>
        <translation>disque plein (%1)</translation>
    </message>
    <message>
        <source>file exists (%1)</source>
        <translation>le fichier existe (%1)</translation>
    </message>
    <message>
        <source>no such file (%1)</source>
        <translation>fichier inexistant (%1)</translation>
    </message>
    <message>
        <source>invalid request (%1)</source>
        <translation>demande non valable (%1)</translation>
    </message>
    <message>
        <source>file in use (%1)</source>
        <translation>fichier utilisé (%1)</translation>
    </message>
    <message>
        <source>end of file (%1)</source>
        <translation>fin du fichier (%1)</translation>
    </message>
    <message>
        <source>not possible (%1)</source>
        <translation>impossible (%1)</translation>
    </message>
    <message>
        <source>Earlier copy: %1</source>
        <translation>Version antérieure : %1</translation>
    </message>
    <message>
        <source>Velmora is free software under the MIT licence: use it, copy it, change it and pass it on. It comes without any warranty.</source>
        <translation>Velmora est un logiciel libre sous licence MIT : on peut l’utiliser, le copier, le modifier et le transmettre. Il est fourni sans aucune garantie.</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliothèques</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Emplacements</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Réglages : %1</translation>
    </message>
    <message>
        <source>Download folder: %1</source>
        <translation>Dossier de réception : %1</translation>
    </message>
    <message>
        <source>Earlier copies: %1</source>
        <translation>Versions antérieures : %1</translation>
    </message>
    <message>
        <source>List of transfers: %1</source>
        <translation>Liste des transferts : %1</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>bon</translation>
    </message>
    <message>
        <source>note</source>
        <translation>remarque</translation>
    </message>
    <message>
        <source>FAULT</source>
        <translation>DÉFAUT</translation>
    </message>
    <message>
        <source>The check was stopped.</source>
        <translation>La vérification a été interrompue.</translation>
    </message>
    <message>
        <source>%1 is there and may be opened.</source>
        <translation>%1 est là et peut être ouvert.</translation>
    </message>
    <message>
        <source>%1, driver %2.</source>
        <translation>%1, pilote %2.</translation>
    </message>
    <message>
        <source>The device does not tell what it is set to.</source>
        <translation>L’appareil ne dit pas comment il est réglé.</translation>
    </message>
    <message>
        <source>The system does not tell what is behind the port.</source>
        <translation>Le système ne dit pas ce qu’il y a derrière le port.</translation>
    </message>
    <message>
        <source>The device has no modem lines.</source>
        <translation>L’appareil n’a pas de lignes de modem.</translation>
    </message>
    <message>
        <source>No line is on: nothing is connected or switched on, or the cable has only three wires.</source>
        <translation>Aucune ligne n’est active : rien n’est branché ou allumé, ou le câble n’a que trois fils.</translation>
    </message>
    <message>
        <source>%1 on: something is connected and switched on at the other end.</source>
        <translation>%1 actif : quelque chose est branché et allumé à l’autre bout.</translation>
    </message>
    <message>
        <source>What is sent does not come back.</source>
        <translation>Ce qui est envoyé ne revient pas.</translation>
    </message>
    <message>
        <source>What is sent comes back.</source>
        <translation>Ce qui est envoyé revient.</translation>
    </message>
    <message>
        <source>%1 bytes came that make no frame.</source>
        <translation>Il est venu %1 octets qui ne forment aucune trame.</translation>
    </message>
    <message>
        <source>The Organiser is heard.</source>
        <translation>On entend l’Organiser.</translation>
    </message>
    <message>
        <source>Nothing comes.</source>
        <translation>Rien ne vient.</translation>
    </message>
    <message>
        <source>Something answers AT with OK.</source>
        <translation>Quelque chose répond OK à AT.</translation>
    </message>
    <message>
        <source>Nothing answers AT.</source>
        <translation>Rien ne répond à AT.</translation>
    </message>
    <message>
        <source>No frames come at other rates either.</source>
        <translation>Aucune trame ne vient non plus à d’autres vitesses.</translation>
    </message>
    <message>
        <source>Other parities do not help.</source>
        <translation>D’autres parités n’y changent rien.</translation>
    </message>
    <message>
        <source>The device has no parity to be tried.</source>
        <translation>L’appareil n’a pas de parité à essayer.</translation>
    </message>
    <message>
        <source>The link comes up: %1 of %2 requests were answered.</source>
        <translation>La liaison s’établit : %1 demandes sur %2 ont reçu une réponse.</translation>
    </message>
    <message>
        <source>The line is well.</source>
        <translation>La ligne va bien.</translation>
    </message>
    <message>
        <source>There is no such port.</source>
        <translation>Ce port n’existe pas.</translation>
    </message>
    <message>
        <source>Plug the adapter in, or choose another port.</source>
        <translation>Branchez l’adaptateur ou choisissez un autre port.</translation>
    </message>
    <message>
        <source>This login may not open the port.</source>
        <translation>Cette session n’a pas le droit d’ouvrir le port.</translation>
    </message>
    <message>
        <source>Join the group that owns the device, and log in again.</source>
        <translation>Rejoignez le groupe à qui appartient l’appareil, puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>Another program has the port open.</source>
        <translation>Un autre programme a ouvert le port.</translation>
    </message>
    <message>
        <source>End that program, or stop the server, and check again.</source>
        <translation>Quittez ce programme ou arrêtez le serveur, puis vérifiez à nouveau.</translation>
    </message>
    <message>
        <source>The device does not take the rate, or keeps other settings than it was given.</source>
        <translation>L’appareil n’accepte pas la vitesse ou garde d’autres réglages que ceux demandés.</translation>
    </message>
    <message>
        <source>Use another adapter, or install the driver that belongs to its chip.</source>
        <translation>Utilisez un autre adaptateur ou installez le pilote qui correspond à sa puce.</translation>
    </message>
    <message>
        <source>The device fails: its driver reports errors, or it went away.</source>
        <translation>L’appareil est en panne : son pilote signale des erreurs, ou il a disparu.</translation>
    </message>
    <message>
        <source>Plug the adapter in again, directly at the computer, and try another one.</source>
        <translation>Rebranchez l’adaptateur directement sur l’ordinateur et essayez-en un autre.</translation>
    </message>
    <message>
        <source>Nothing comes, and the adapter&apos;s chip is a copy that its driver refuses.</source>
        <translation>Rien ne vient, et la puce de l’adaptateur est une copie que le pilote refuse.</translation>
    </message>
    <message>
        <source>Use an adapter with a genuine chip, or install an older driver.</source>
        <translation>Utilisez un adaptateur à puce d’origine ou installez un pilote plus ancien.</translation>
    </message>
    <message>
        <source>Everything that is sent comes back, at every rate: pins 2 and 3 are joined.</source>
        <translation>Tout ce qui est envoyé revient, à toutes les vitesses : les broches 2 et 3 sont reliées.</translation>
    </message>
    <message>
        <source>The adapter and the cable are well as far as the joint; remove it and connect the Organiser.</source>
        <translation>L’adaptateur et le câble sont bons jusqu’à ce pont ; retirez-le et branchez l’Organiser.</translation>
    </message>
    <message>
        <source>What is sent comes back, and nothing else does.</source>
        <translation>Ce qui est envoyé revient, et rien d’autre.</translation>
    </message>
    <message>
        <source>Something on the line repeats every byte; check that the cable ends at the Organiser, and that its wires do not touch.</source>
        <translation>Quelque chose sur la ligne répète chaque octet ; vérifiez que le câble aboutit à l’Organiser et que ses fils ne se touchent pas.</translation>
    </message>
    <message>
        <source>A modem is on the line, not an Organiser: it answers AT.</source>
        <translation>Il y a un modem sur la ligne, pas un Organiser : il répond à AT.</translation>
    </message>
    <message>
        <source>Connect the Organiser&apos;s cable to this port, or choose the port that it is connected to.</source>
        <translation>Branchez le câble de l’Organiser sur ce port ou choisissez le port où il est branché.</translation>
    </message>
    <message>
        <source>The Organiser speaks at another rate than the server.</source>
        <translation>L’Organiser parle à une autre vitesse que le serveur.</translation>
    </message>
    <message>
        <source>Set BAUD in the Organiser&apos;s COMMS/SETUP menu to the server&apos;s rate, or the server to the Organiser&apos;s.</source>
        <translation>Réglez BAUD dans le menu COMMS/SETUP de l’Organiser sur la vitesse du serveur, ou le serveur sur celle de l’Organiser.</translation>
    </message>
    <message>
        <source>The Organiser uses another parity or number of bits than the server.</source>
        <translation>L’Organiser utilise une autre parité ou un autre nombre de bits que le serveur.</translation>
    </message>
    <message>
        <source>Set PARITY to NONE, BITS to 8 and STOP to 1 in the Organiser&apos;s COMMS/SETUP menu.</source>
        <translation>Dans le menu COMMS/SETUP de l’Organiser, réglez PARITY sur NONE, BITS sur 8 et STOP sur 1.</translation>
    </message>
    <message>
        <source>The Organiser speaks, but not the protocol of the server.</source>
        <translation>L’Organiser parle, mais pas le protocole du serveur.</translation>
    </message>
    <message>
        <source>Set PROTOCOL to PSION in the Organiser&apos;s COMMS/SETUP menu.</source>
        <translation>Réglez PROTOCOL sur PSION dans le menu COMMS/SETUP de l’Organiser.</translation>
    </message>
    <message>
        <source>Only nulls come: the line is held low.</source>
        <translation>Il ne vient que des zéros : la ligne est maintenue à l’état bas.</translation>
    </message>
    <message>
        <source>Check the plug for bent or touching pins, and try another cable.</source>
        <translation>Cherchez dans la fiche des broches tordues ou qui se touchent, et essayez un autre câble.</translation>
    </message>
    <message>
        <source>The line is interrupted again and again while bytes come.</source>
        <translation>La ligne est sans cesse interrompue pendant que des octets arrivent.</translation>
    </message>
    <message>
        <source>Push the plugs home at both ends; if that does not help, try another cable.</source>
        <translation>Enfoncez les fiches aux deux bouts ; si cela ne suffit pas, essayez un autre câble.</translation>
    </message>
    <message>
        <source>Bytes arrive damaged.</source>
        <translation>Des octets arrivent abîmés.</translation>
    </message>
    <message>
        <source>Use a shorter cable away from power supplies, check its ground wire, or set a lower rate on both sides.</source>
        <translation>Utilisez un câble plus court, loin des alimentations, vérifiez son fil de masse, ou choisissez une vitesse plus basse des deux côtés.</translation>
    </message>
    <message>
        <source>The Organiser answers, but not every time.</source>
        <translation>L’Organiser répond, mais pas chaque fois.</translation>
    </message>
    <message>
        <source>Push the plugs home at both ends, and plug the adapter in directly at the computer.</source>
        <translation>Enfoncez les fiches aux deux bouts et branchez l’adaptateur directement sur l’ordinateur.</translation>
    </message>
    <message>
        <source>The Organiser&apos;s answers come too late for the server.</source>
        <translation>Les réponses de l’Organiser viennent trop tard pour le serveur.</translation>
    </message>
    <message>
        <source>Plug the adapter in directly at the computer, and leave out hubs, networks and radio links on the way.</source>
        <translation>Branchez l’adaptateur directement sur l’ordinateur, sans concentrateur, réseau ni liaison radio entre les deux.</translation>
    </message>
    <message>
        <source>The Organiser calls, but does not hear what is sent to it.</source>
        <translation>L’Organiser appelle, mais n’entend pas ce qu’on lui envoie.</translation>
    </message>
    <message>
        <source>Check the wire from pin 3 of the computer&apos;s plug to the Organiser, and that PARITY is NONE there; try another cable.</source>
        <translation>Vérifiez le fil qui va de la broche 3 de la fiche de l’ordinateur à l’Organiser, et que PARITY y est sur NONE ; essayez un autre câble.</translation>
    </message>
    <message>
        <source>Nothing comes, and no line of the plug is on.</source>
        <translation>Rien ne vient, et aucune ligne de la fiche n’est active.</translation>
    </message>
    <message>
        <source>Plug the cable in at both ends, and switch the Organiser on.</source>
        <translation>Branchez le câble aux deux bouts et allumez l’Organiser.</translation>
    </message>
    <message>
        <source>Nothing comes from the Organiser.</source>
        <translation>Rien ne vient de l’Organiser.</translation>
    </message>
    <message>
        <source>Start a transfer on the Organiser; if it says that it waits, check the cable: join pins 2 and 3 at the Organiser&apos;s end and check again.</source>
        <translation>Lancez un transfert sur l’Organiser ; s’il attend, vérifiez le câble : reliez les broches 2 et 3 du côté de l’Organiser et vérifiez à nouveau.</translation>
    </message>
    <message>
        <source>%7 of %8</source>
        <translation>%7 sur %8</translation>
    </message>
    <message>
        <source>%8 bytes/s</source>
        <translation>%8 octets/s</translation>
    </message>
    <message>
        <source>and %8 more</source>
        <translation>et %8 de plus</translation>
    </message>
    <message>
        <source>The Organiser uses %8 baud.</source>
        <translation>L’Organiser utilise %8 bauds.</translation>
    </message>
    <message>
        <source>the runtime libraries of GCC: GPL 3 with the GCC Runtime Library Exception</source>
        <translation>les bibliothèques d’exécution de GCC : GPL 3 avec la GCC Runtime Library Exception</translation>
    </message>
    <message>
        <source>the runtime of mingw-w64: public domain and permissive licences</source>
        <translation>l’environnement d’exécution de mingw-w64 : domaine public et licences permissives</translation>
    </message>
    <message>
        <source>the GNU C library: LGPL 2.1 or later</source>
        <translation>la bibliothèque C de GNU : LGPL 2.1 ou ultérieure</translation>
    </message>
    <message>
        <source>%1: LGPL 2.1 or later</source>
        <translation>%1 : LGPL 2.1 ou ultérieure</translation>
    </message>
    <message>
        <source>Their texts are in the folder licences beside the program.</source>
        <translation>Leurs textes sont dans le dossier licences à côté du programme.</translation>
    </message>
    <message>
        <source>%8 baud</source>
        <translation>%8 bauds</translation>
    </message>
    <message>
        <source>The device is set to %8 baud.</source>
        <translation>L’appareil est réglé sur %8 bauds.</translation>
    </message>
    <message>
        <source>The Organiser uses %7 baud, and the server %8 baud.</source>
        <translation>L’Organiser utilise %7 bauds, et le serveur %8 bauds.</translation>
    </message>
    <message>
        <source>The port %1 is lost.</source>
        <translation>Le port %1 est perdu.</translation>
    </message>
    <message>
        <source>The server was stopped by the Organiser.</source>
        <translation>L’Organiser a arrêté le serveur.</translation>
    </message>
    <message>
        <source>Save of %1: %9</source>
        <translation>Enregistrement de %1 : %9</translation>
    </message>
    <message>
        <source>Load of %1: %9</source>
        <translation>Lecture de %1 : %9</translation>
    </message>
    <message>
        <source>Request: %9</source>
        <translation>Demande : %9</translation>
    </message>
    <message>
        <source>the link ended</source>
        <translation>la liaison s’est terminée</translation>
    </message>
    <message>
        <source>complete, %8 formulas changed</source>
        <translation>complet, %8 formules modifiées</translation>
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
        <translation>%1 : =%2 revient comme =%3 et, enregistrée de nouveau, comme =%4</translation>
    </message>
    <message>
        <source>%1: =%2 comes back as =%3, which cannot be saved</source>
        <translation>%1 : =%2 revient comme =%3, qui ne peut pas être enregistrée</translation>
    </message>
    <message>
        <source>%1: =%2 comes back as =%3</source>
        <translation>%1 : =%2 revient comme =%3</translation>
    </message>
    <message>
        <source>%1: =%2 cannot be saved: %9</source>
        <translation>%1 : =%2 ne peut pas être enregistrée : %9</translation>
    </message>
    <message>
        <source>it cannot be converted</source>
        <translation>elle ne peut pas être convertie</translation>
    </message>
    <message>
        <source>more than 255 arguments</source>
        <translation>plus de 255 arguments</translation>
    </message>
    <message>
        <source>too many parentheses</source>
        <translation>trop de parenthèses</translation>
    </message>
    <message>
        <source>the formula is too deep</source>
        <translation>la formule est trop profonde</translation>
    </message>
    <message>
        <source>the formula&apos;s calls are nested too deep</source>
        <translation>les appels de la formule sont trop imbriqués</translation>
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
    <name>velmora::DeviceList</name>
    <message>
        <source>Serial devices that are present</source>
        <translation>Périphériques série présents</translation>
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
</context>
<context>
    <name>velmora::FolderDialog</name>
    <message>
        <source>%1 is no folder to choose</source>
        <translation>%1 n’est pas un dossier que l’on puisse choisir</translation>
    </message>
    <message>
        <source>&amp;Path:</source>
        <translation>&amp;Chemin :</translation>
    </message>
    <message>
        <source>&amp;New folder</source>
        <translation>&amp;Nouveau dossier</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>No folder can be made in %1</source>
        <translation>Impossible de créer un dossier dans %1</translation>
    </message>
</context>
<context>
    <name>velmora::TransferTable</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>velmora::TrayIcon</name>
    <message>
        <source>S&amp;how</source>
        <translation>A&amp;fficher</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
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
    <message>
        <source>Put the window into the tray; the server goes on</source>
        <translation>Ranger la fenêtre dans la zone de notification ; le serveur continue</translation>
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
