<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CaptureSaving</name>
    <message>
        <source>The capture could not be saved in
%1

%2

Choose another folder or name.</source>
        <translation>No se pudo guardar la captura en
%1

%2

Elija otra carpeta u otro nombre.</translation>
    </message>
    <message>
        <source>Save capture</source>
        <translation>Guardar captura</translation>
    </message>
    <message>
        <source>Captures (*.pcapng)</source>
        <translation>Capturas (*.pcapng)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>Core</name>
    <message>
        <source>COM%1 is available</source>
        <translation>COM%1 está libre</translation>
    </message>
    <message>
        <source>COM%1 is used (modem)</source>
        <translation>COM%1 está ocupado (módem)</translation>
    </message>
    <message>
        <source>COM%1 is used (device)</source>
        <translation>COM%1 está ocupado (dispositivo)</translation>
    </message>
    <message>
        <source>COM%1 is in use</source>
        <translation>COM%1 está en uso</translation>
    </message>
    <message>
        <source>COM%1 is not accessible</source>
        <translation>COM%1 no es accesible</translation>
    </message>
    <message>
        <source>COM%1 reports error</source>
        <translation>COM%1 da un error</translation>
    </message>
    <message>
        <source>Port %1 is used by a modem!</source>
        <translation>¡El puerto %1 lo usa un módem!</translation>
    </message>
    <message>
        <source>Port %1 is used by a device!</source>
        <translation>¡El puerto %1 lo usa un dispositivo!</translation>
    </message>
    <message>
        <source>Port %1 is in use by another application!</source>
        <translation>¡El puerto %1 lo usa otra aplicación!</translation>
    </message>
    <message>
        <source>Port %1 is not accessible!</source>
        <translation>¡El puerto %1 no es accesible!</translation>
    </message>
    <message>
        <source>Port %1 open error!</source>
        <translation>¡Error al abrir el puerto %1!</translation>
    </message>
    <message>
        <source>No port selected!</source>
        <translation>¡Ningún puerto elegido!</translation>
    </message>
    <message>
        <source>%1 does not exist; is the adapter plugged in, and is it the right port?</source>
        <translation>%1 no existe; ¿está conectado el adaptador y es el puerto correcto?</translation>
    </message>
    <message>
        <source>%1 has no serial hardware behind it; choose another port.</source>
        <translation>Detrás de %1 no hay ningún puerto serie; elija otro.</translation>
    </message>
    <message>
        <source>%1 does not respond; is the adapter still plugged in?</source>
        <translation>%1 no responde; ¿sigue conectado el adaptador?</translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation>%1 no es un puerto serie.</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>%1 no se puede abrir.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: error %2.</source>
        <translation>%1 no se puede abrir: error %2.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 no se puede abrir: %2</translation>
    </message>
    <message>
        <source>%1 does not take these line settings; choose another speed.</source>
        <translation>%1 no acepta estos ajustes; elija otra velocidad.</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 lo usa otro programa.</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>%1 lo usa %2.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; the group may not open it either.</source>
        <translation>Sin permiso para abrir %1 (usuario %2, grupo %3); el grupo tampoco lo tiene.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; %4 is in that group, so something else forbids it.</source>
        <translation>Sin permiso para abrir %1 (usuario %2, grupo %3); %4 está en el grupo, así que otra cosa lo impide.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; %4 is in that group from the next login on: log out and in again.</source>
        <translation>Sin permiso para abrir %1 (usuario %2, grupo %3); %4 estará en el grupo desde la próxima sesión: cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>No permission to open %1, which belongs to user %2 and group %3; %4 is not in that group: run &quot;%5&quot;, then log out and in again.</source>
        <translation>Sin permiso para abrir %1 (usuario %2, grupo %3); %4 no está en el grupo: ejecute «%5» y vuelva a iniciar sesión.</translation>
    </message>
    <message>
        <source>Velmora goes on when it is plugged in again.</source>
        <translation>Velmora seguirá cuando vuelva a estar conectado.</translation>
    </message>
    <message>
        <source>Velmora goes on when it is awake again.</source>
        <translation>Velmora seguirá cuando el equipo despierte.</translation>
    </message>
    <message>
        <source>%1: The computer goes to sleep.</source>
        <translation>%1: El equipo se va a suspender.</translation>
    </message>
    <message>
        <source>%1: The port failed.</source>
        <translation>%1: El puerto ha fallado.</translation>
    </message>
    <message>
        <source>%1: The line was cut or the device failed</source>
        <translation>%1: La línea se cortó o el dispositivo falló</translation>
    </message>
    <message>
        <source>The transfer is lost.</source>
        <translation>La transferencia se ha perdido.</translation>
    </message>
    <message>
        <source>Bytes come that make no frame.</source>
        <translation>Llegan bytes que no forman ninguna trama.</translation>
    </message>
    <message>
        <source>Nothing has come for a minute.</source>
        <translation>No ha llegado nada desde hace un minuto.</translation>
    </message>
    <message>
        <source>Stop the server; Check cable in Setup finds out why.</source>
        <translation>Detenga el servidor; «Comprobar cable», en la configuración, averigua por qué.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>No se pudieron guardar los ajustes: %1</translation>
    </message>
    <message>
        <source>The folder is used, but could not be saved for the next start: %1</source>
        <translation>La carpeta se usa, pero no se pudo guardar para el próximo inicio: %1</translation>
    </message>
    <message>
        <source>%1 has less than 100 bytes and is replaced by the default file; it is kept as %2</source>
        <translation>%1 tiene menos de 100 bytes y se sustituye por el archivo predeterminado; se conserva como %2</translation>
    </message>
    <message>
        <source>The guide is not installed: it should be in %1. On Debian and Ubuntu it comes with the package velmora-doc, on Windows with the installer.</source>
        <translation>La guía no está instalada: debería estar en %1. En Debian y Ubuntu viene con el paquete velmora-doc; en Windows, con el instalador.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sentido</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>save</source>
        <translation>guardado</translation>
    </message>
    <message>
        <source>load</source>
        <translation>lectura</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>completa</translation>
    </message>
    <message>
        <source>complete, 1 formula changed</source>
        <translation>completa, 1 fórmula cambiada</translation>
    </message>
    <message>
        <source>incomplete: %9</source>
        <translation>incompleta: %9</translation>
    </message>
    <message>
        <source>refused: %9</source>
        <translation>rechazada: %9</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>en curso</translation>
    </message>
    <message>
        <source>under way, %1 %, %2 left</source>
        <translation>en curso, %1 %, quedan %2</translation>
    </message>
    <message>
        <source>under way, %1 %</source>
        <translation>en curso, %1 %</translation>
    </message>
    <message>
        <source>record too long</source>
        <translation>registro demasiado largo</translation>
    </message>
    <message>
        <source>disk full</source>
        <translation>disco lleno</translation>
    </message>
    <message>
        <source>file exists</source>
        <translation>el archivo existe</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>no existe el archivo</translation>
    </message>
    <message>
        <source>invalid request</source>
        <translation>petición no válida</translation>
    </message>
    <message>
        <source>file in use</source>
        <translation>archivo en uso</translation>
    </message>
    <message>
        <source>end of file</source>
        <translation>fin del archivo</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>no es posible</translation>
    </message>
    <message>
        <source>record too long (%1)</source>
        <translation>registro demasiado largo (%1)</translation>
    </message>
    <message>
        <source>disk full (%1)</source>
        <translation>disco lleno (%1)</translation>
    </message>
    <message>
        <source>file exists (%1)</source>
        <translation>el archivo existe (%1)</translation>
    </message>
    <message>
        <source>no such file (%1)</source>
        <translation>no existe el archivo (%1)</translation>
    </message>
    <message>
        <source>invalid request (%1)</source>
        <translation>petición no válida (%1)</translation>
    </message>
    <message>
        <source>file in use (%1)</source>
        <translation>archivo en uso (%1)</translation>
    </message>
    <message>
        <source>end of file (%1)</source>
        <translation>fin del archivo (%1)</translation>
    </message>
    <message>
        <source>not possible (%1)</source>
        <translation>no es posible (%1)</translation>
    </message>
    <message>
        <source>Earlier copy: %1</source>
        <translation>Copia anterior: %1</translation>
    </message>
    <message>
        <source>Velmora is free software under the MIT licence: use it, copy it, change it and pass it on. It comes without any warranty.</source>
        <translation>Velmora es software libre con licencia MIT: se puede usar, copiar, modificar y distribuir. Se entrega sin ninguna garantía.</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliotecas</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Lugares</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>Ajustes: %1</translation>
    </message>
    <message>
        <source>Download folder: %1</source>
        <translation>Carpeta de descarga: %1</translation>
    </message>
    <message>
        <source>Earlier copies: %1</source>
        <translation>Copias anteriores: %1</translation>
    </message>
    <message>
        <source>List of transfers: %1</source>
        <translation>Lista de transferencias: %1</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>bien</translation>
    </message>
    <message>
        <source>note</source>
        <translation>nota</translation>
    </message>
    <message>
        <source>FAULT</source>
        <translation>FALLO</translation>
    </message>
    <message>
        <source>The check was stopped.</source>
        <translation>La comprobación se ha interrumpido.</translation>
    </message>
    <message>
        <source>%1 is there and may be opened.</source>
        <translation>%1 está presente y se puede abrir.</translation>
    </message>
    <message>
        <source>%1, driver %2.</source>
        <translation>%1, controlador %2.</translation>
    </message>
    <message>
        <source>The device does not tell what it is set to.</source>
        <translation>El dispositivo no dice cómo está ajustado.</translation>
    </message>
    <message>
        <source>The system does not tell what is behind the port.</source>
        <translation>El sistema no dice qué hay detrás del puerto.</translation>
    </message>
    <message>
        <source>The device has no modem lines.</source>
        <translation>El dispositivo no tiene líneas de módem.</translation>
    </message>
    <message>
        <source>No line is on: nothing is connected or switched on, or the cable has only three wires.</source>
        <translation>Ninguna línea está activa: no hay nada conectado o encendido, o el cable solo tiene tres hilos.</translation>
    </message>
    <message>
        <source>%1 on: something is connected and switched on at the other end.</source>
        <translation>%1 activo: hay algo conectado y encendido en el otro extremo.</translation>
    </message>
    <message>
        <source>What is sent does not come back.</source>
        <translation>Lo que se envía no vuelve.</translation>
    </message>
    <message>
        <source>What is sent comes back.</source>
        <translation>Lo que se envía vuelve.</translation>
    </message>
    <message>
        <source>%1 bytes came that make no frame.</source>
        <translation>Llegaron %1 bytes que no forman ninguna trama.</translation>
    </message>
    <message>
        <source>The Organiser is heard.</source>
        <translation>Se oye al Organiser.</translation>
    </message>
    <message>
        <source>Nothing comes.</source>
        <translation>No llega nada.</translation>
    </message>
    <message>
        <source>Something answers AT with OK.</source>
        <translation>Algo responde OK a AT.</translation>
    </message>
    <message>
        <source>Nothing answers AT.</source>
        <translation>Nada responde a AT.</translation>
    </message>
    <message>
        <source>No frames come at other rates either.</source>
        <translation>Tampoco llegan tramas a otras velocidades.</translation>
    </message>
    <message>
        <source>Other parities do not help.</source>
        <translation>Otras paridades no ayudan.</translation>
    </message>
    <message>
        <source>The device has no parity to be tried.</source>
        <translation>El dispositivo no tiene paridad que probar.</translation>
    </message>
    <message>
        <source>The link comes up: %1 of %2 requests were answered.</source>
        <translation>El enlace se establece: se respondieron %1 de %2 peticiones.</translation>
    </message>
    <message>
        <source>The line is well.</source>
        <translation>La línea está bien.</translation>
    </message>
    <message>
        <source>There is no such port.</source>
        <translation>No existe ese puerto.</translation>
    </message>
    <message>
        <source>Plug the adapter in, or choose another port.</source>
        <translation>Conecte el adaptador o elija otro puerto.</translation>
    </message>
    <message>
        <source>This login may not open the port.</source>
        <translation>Esta sesión no puede abrir el puerto.</translation>
    </message>
    <message>
        <source>Join the group that owns the device, and log in again.</source>
        <translation>Únase al grupo dueño del dispositivo y vuelva a iniciar sesión.</translation>
    </message>
    <message>
        <source>Another program has the port open.</source>
        <translation>Otro programa tiene abierto el puerto.</translation>
    </message>
    <message>
        <source>End that program, or stop the server, and check again.</source>
        <translation>Cierre ese programa o detenga el servidor y compruebe de nuevo.</translation>
    </message>
    <message>
        <source>The device does not take the rate, or keeps other settings than it was given.</source>
        <translation>El dispositivo no acepta la velocidad o conserva otros ajustes que los pedidos.</translation>
    </message>
    <message>
        <source>Use another adapter, or install the driver that belongs to its chip.</source>
        <translation>Use otro adaptador o instale el controlador de su chip.</translation>
    </message>
    <message>
        <source>The device fails: its driver reports errors, or it went away.</source>
        <translation>El dispositivo falla: su controlador da errores o ha desaparecido.</translation>
    </message>
    <message>
        <source>Plug the adapter in again, directly at the computer, and try another one.</source>
        <translation>Vuelva a conectar el adaptador directamente al equipo y pruebe otro.</translation>
    </message>
    <message>
        <source>Nothing comes, and the adapter&apos;s chip is a copy that its driver refuses.</source>
        <translation>No llega nada, y el chip del adaptador es una copia que el controlador rechaza.</translation>
    </message>
    <message>
        <source>Use an adapter with a genuine chip, or install an older driver.</source>
        <translation>Use un adaptador con chip original o instale un controlador más antiguo.</translation>
    </message>
    <message>
        <source>Everything that is sent comes back, at every rate: pins 2 and 3 are joined.</source>
        <translation>Todo lo que se envía vuelve, a cualquier velocidad: las patillas 2 y 3 están unidas.</translation>
    </message>
    <message>
        <source>The adapter and the cable are well as far as the joint; remove it and connect the Organiser.</source>
        <translation>El adaptador y el cable están bien hasta el puente; quítelo y conecte el Organiser.</translation>
    </message>
    <message>
        <source>What is sent comes back, and nothing else does.</source>
        <translation>Lo que se envía vuelve, y nada más.</translation>
    </message>
    <message>
        <source>Something on the line repeats every byte; check that the cable ends at the Organiser, and that its wires do not touch.</source>
        <translation>Algo en la línea repite cada byte; compruebe que el cable acaba en el Organiser y que sus hilos no se tocan.</translation>
    </message>
    <message>
        <source>A modem is on the line, not an Organiser: it answers AT.</source>
        <translation>En la línea hay un módem, no un Organiser: responde a AT.</translation>
    </message>
    <message>
        <source>Connect the Organiser&apos;s cable to this port, or choose the port that it is connected to.</source>
        <translation>Conecte el cable del Organiser a este puerto o elija el puerto al que está conectado.</translation>
    </message>
    <message>
        <source>The Organiser speaks at another rate than the server.</source>
        <translation>El Organiser habla a otra velocidad que el servidor.</translation>
    </message>
    <message>
        <source>Set BAUD in the Organiser&apos;s COMMS/SETUP menu to the server&apos;s rate, or the server to the Organiser&apos;s.</source>
        <translation>Ponga BAUD, en el menú COMMS/SETUP del Organiser, a la velocidad del servidor, o el servidor a la del Organiser.</translation>
    </message>
    <message>
        <source>The Organiser uses another parity or number of bits than the server.</source>
        <translation>El Organiser usa otra paridad u otro número de bits que el servidor.</translation>
    </message>
    <message>
        <source>Set PARITY to NONE, BITS to 8 and STOP to 1 in the Organiser&apos;s COMMS/SETUP menu.</source>
        <translation>En el menú COMMS/SETUP del Organiser ponga PARITY en NONE, BITS en 8 y STOP en 1.</translation>
    </message>
    <message>
        <source>The Organiser speaks, but not the protocol of the server.</source>
        <translation>El Organiser habla, pero no el protocolo del servidor.</translation>
    </message>
    <message>
        <source>Set PROTOCOL to PSION in the Organiser&apos;s COMMS/SETUP menu.</source>
        <translation>Ponga PROTOCOL en PSION en el menú COMMS/SETUP del Organiser.</translation>
    </message>
    <message>
        <source>Only nulls come: the line is held low.</source>
        <translation>Solo llegan ceros: la línea está fija a nivel bajo.</translation>
    </message>
    <message>
        <source>Check the plug for bent or touching pins, and try another cable.</source>
        <translation>Mire si el conector tiene patillas dobladas o que se tocan, y pruebe otro cable.</translation>
    </message>
    <message>
        <source>The line is interrupted again and again while bytes come.</source>
        <translation>La línea se interrumpe una y otra vez mientras llegan bytes.</translation>
    </message>
    <message>
        <source>Push the plugs home at both ends; if that does not help, try another cable.</source>
        <translation>Encaje bien los conectores en ambos extremos; si no ayuda, pruebe otro cable.</translation>
    </message>
    <message>
        <source>Bytes arrive damaged.</source>
        <translation>Llegan bytes dañados.</translation>
    </message>
    <message>
        <source>Use a shorter cable away from power supplies, check its ground wire, or set a lower rate on both sides.</source>
        <translation>Use un cable más corto, lejos de las fuentes de alimentación, revise su hilo de masa o baje la velocidad en ambos lados.</translation>
    </message>
    <message>
        <source>The Organiser answers, but not every time.</source>
        <translation>El Organiser responde, pero no siempre.</translation>
    </message>
    <message>
        <source>Push the plugs home at both ends, and plug the adapter in directly at the computer.</source>
        <translation>Encaje bien los conectores en ambos extremos y conecte el adaptador directamente al equipo.</translation>
    </message>
    <message>
        <source>The Organiser&apos;s answers come too late for the server.</source>
        <translation>Las respuestas del Organiser llegan demasiado tarde para el servidor.</translation>
    </message>
    <message>
        <source>Plug the adapter in directly at the computer, and leave out hubs, networks and radio links on the way.</source>
        <translation>Conecte el adaptador directamente al equipo, sin concentradores, redes ni enlaces de radio por medio.</translation>
    </message>
    <message>
        <source>The Organiser calls, but does not hear what is sent to it.</source>
        <translation>El Organiser llama, pero no oye lo que se le envía.</translation>
    </message>
    <message>
        <source>Check the wire from pin 3 of the computer&apos;s plug to the Organiser, and that PARITY is NONE there; try another cable.</source>
        <translation>Revise el hilo de la patilla 3 del conector del equipo al Organiser, y que allí PARITY esté en NONE; pruebe otro cable.</translation>
    </message>
    <message>
        <source>Nothing comes, and no line of the plug is on.</source>
        <translation>No llega nada, y ninguna línea del conector está activa.</translation>
    </message>
    <message>
        <source>Plug the cable in at both ends, and switch the Organiser on.</source>
        <translation>Conecte el cable por ambos extremos y encienda el Organiser.</translation>
    </message>
    <message>
        <source>Nothing comes from the Organiser.</source>
        <translation>No llega nada del Organiser.</translation>
    </message>
    <message>
        <source>Start a transfer on the Organiser; if it says that it waits, check the cable: join pins 2 and 3 at the Organiser&apos;s end and check again.</source>
        <translation>Inicie una transferencia en el Organiser; si se queda esperando, revise el cable: una las patillas 2 y 3 en el extremo del Organiser y compruebe de nuevo.</translation>
    </message>
    <message>
        <source>%7 of %8</source>
        <translation>%7 de %8</translation>
    </message>
    <message>
        <source>%8 bytes/s</source>
        <translation>%8 bytes/s</translation>
    </message>
    <message>
        <source>and %8 more</source>
        <translation>y %8 más</translation>
    </message>
    <message>
        <source>The Organiser uses %8 baud.</source>
        <translation>El Organiser usa %8 baudios.</translation>
    </message>
    <message>
        <source>the runtime libraries of GCC: GPL 3 with the GCC Runtime Library Exception</source>
        <translation>las bibliotecas de ejecución de GCC: GPL 3 con la GCC Runtime Library Exception</translation>
    </message>
    <message>
        <source>the runtime of mingw-w64: public domain and permissive licences</source>
        <translation>el entorno de ejecución de mingw-w64: dominio público y licencias permisivas</translation>
    </message>
    <message>
        <source>the GNU C library: LGPL 2.1 or later</source>
        <translation>la biblioteca C de GNU: LGPL 2.1 o posterior</translation>
    </message>
    <message>
        <source>%1: LGPL 2.1 or later</source>
        <translation>%1: LGPL 2.1 o posterior</translation>
    </message>
    <message>
        <source>Their texts are in the folder licences beside the program.</source>
        <translation>Sus textos están en la carpeta licences junto al programa.</translation>
    </message>
    <message>
        <source>%8 baud</source>
        <translation>%8 baudios</translation>
    </message>
    <message>
        <source>The device is set to %8 baud.</source>
        <translation>El dispositivo está ajustado a %8 baudios.</translation>
    </message>
    <message>
        <source>The Organiser uses %7 baud, and the server %8 baud.</source>
        <translation>El Organiser usa %7 baudios y el servidor %8 baudios.</translation>
    </message>
    <message>
        <source>The port %1 is lost.</source>
        <translation>Se ha perdido el puerto %1.</translation>
    </message>
    <message>
        <source>The server was stopped by the Organiser.</source>
        <translation>El Organiser ha detenido el servidor.</translation>
    </message>
    <message>
        <source>Save of %1: %9</source>
        <translation>Guardado de %1: %9</translation>
    </message>
    <message>
        <source>Load of %1: %9</source>
        <translation>Lectura de %1: %9</translation>
    </message>
    <message>
        <source>Request: %9</source>
        <translation>Petición: %9</translation>
    </message>
    <message>
        <source>the link ended</source>
        <translation>el enlace terminó</translation>
    </message>
    <message>
        <source>complete, %8 formulas changed</source>
        <translation>completa, %8 fórmulas cambiadas</translation>
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
        <translation>%1: =%2 vuelve como =%3 y, guardada otra vez, como =%4</translation>
    </message>
    <message>
        <source>%1: =%2 comes back as =%3, which cannot be saved</source>
        <translation>%1: =%2 vuelve como =%3, que no se puede guardar</translation>
    </message>
    <message>
        <source>%1: =%2 comes back as =%3</source>
        <translation>%1: =%2 vuelve como =%3</translation>
    </message>
    <message>
        <source>%1: =%2 cannot be saved: %9</source>
        <translation>%1: =%2 no se puede guardar: %9</translation>
    </message>
    <message>
        <source>it cannot be converted</source>
        <translation>no se puede convertir</translation>
    </message>
    <message>
        <source>more than 255 arguments</source>
        <translation>más de 255 argumentos</translation>
    </message>
    <message>
        <source>too many parentheses</source>
        <translation>demasiados paréntesis</translation>
    </message>
    <message>
        <source>the formula is too deep</source>
        <translation>la fórmula es demasiado profunda</translation>
    </message>
    <message>
        <source>the formula&apos;s calls are nested too deep</source>
        <translation>las llamadas de la fórmula están anidadas a demasiada profundidad</translation>
    </message>
</context>
<context>
    <name>DesktopDialogs</name>
    <message>
        <source>The system tells nothing of adapters: the list is looked up twice a second.</source>
        <translation>El sistema no avisa de los adaptadores: la lista se consulta dos veces por segundo.</translation>
    </message>
</context>
<context>
    <name>DesktopFiles</name>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 ya no existe.</translation>
    </message>
    <message>
        <source>No program opens %1.</source>
        <translation>Ningún programa abre %1.</translation>
    </message>
</context>
<context>
    <name>DesktopServer</name>
    <message>
        <source>Plug in the adapter, then click Setup.</source>
        <translation>Conecte el adaptador y haga clic en «Configurar».</translation>
    </message>
</context>
<context>
    <name>DesktopTexts</name>
    <message>
        <source>From the next start on, the texts of the display are in this language: %1. The file as it was is kept as
%2</source>
        <translation>A partir del próximo inicio, los textos de la pantalla estarán en este idioma: %1. El archivo anterior se conserva como
%2</translation>
    </message>
    <message>
        <source>The texts could not be taken over: %1</source>
        <translation>No se pudieron tomar los textos: %1</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>%1 is called %2 there, which the Organiser can type.</source>
        <translation>%1 se llama allí %2, que el Organiser puede escribir.</translation>
    </message>
    <message>
        <source>%1 is in the download folder already.</source>
        <translation>%1 ya está en la carpeta de descarga.</translation>
    </message>
    <message>
        <source>%1 is a folder; only files are copied.</source>
        <translation>%1 es una carpeta; solo se copian archivos.</translation>
    </message>
    <message>
        <source>%1 has more than 16 MB and was not copied.</source>
        <translation>%1 tiene más de 16 MB y no se ha copiado.</translation>
    </message>
    <message>
        <source>%1 was not copied: the download folder is not there.</source>
        <translation>%1 no se ha copiado: no existe la carpeta de descarga.</translation>
    </message>
    <message>
        <source>%1 was not copied: %2</source>
        <translation>%1 no se ha copiado: %2</translation>
    </message>
    <message>
        <source>&amp;Replace it</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>&amp;Copy as %1</source>
        <translation>&amp;Copiar como %1</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Omitir</translation>
    </message>
    <message>
        <source>Skip &amp;all</source>
        <translation>Omitir &amp;todos</translation>
    </message>
    <message>
        <source>%1 is in the download folder now.</source>
        <translation>%1 está ahora en la carpeta de descarga.</translation>
    </message>
    <message>
        <source>%1 files are in the download folder now.</source>
        <translation>%1 archivos están ahora en la carpeta de descarga.</translation>
    </message>
    <message>
        <source>There are %1 more such files.</source>
        <translation>Hay %1 archivos más como estos.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Buscar en:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nombre de archivo:</translation>
    </message>
    <message>
        <source>&amp;File name:</source>
        <translation>No&amp;mbre de archivo:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Archivos de tipo:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Carpeta:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Elegir</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Carpeta superior</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Crear carpeta nueva</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>Carpeta &amp;nueva</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Carpeta nueva</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Cambia&amp;r nombre</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostrar archivos &amp;ocultos</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Buscar carpeta</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Lugares recientes</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Mi equipo</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ya existe.
¿Desea sustituirlo?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
No se encuentra el archivo.
Compruebe el nombre del archivo.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
No se encuentra la carpeta.
Compruebe el nombre de la carpeta.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
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
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Intro</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copiar &amp;dirección del enlace</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>velmora::DeviceList</name>
    <message>
        <source>Serial devices that are present</source>
        <translation>Dispositivos serie presentes</translation>
    </message>
    <message>
        <source>No serial device is present</source>
        <translation>No hay ningún dispositivo serie</translation>
    </message>
    <message>
        <source>Devices that are present</source>
        <translation>Dispositivos presentes</translation>
    </message>
    <message>
        <source>%1 may not be opened</source>
        <translation>%1 no se puede abrir</translation>
    </message>
    <message>
        <source>%1 may not be opened: join the group &quot;%2&quot; and log in again</source>
        <translation>%1 no se puede abrir: únase al grupo «%2» y vuelva a iniciar sesión</translation>
    </message>
</context>
<context>
    <name>velmora::FolderDialog</name>
    <message>
        <source>%1 is no folder to choose</source>
        <translation>%1 no es una carpeta que se pueda elegir</translation>
    </message>
    <message>
        <source>&amp;Path:</source>
        <translation>&amp;Ruta:</translation>
    </message>
    <message>
        <source>&amp;New folder</source>
        <translation>&amp;Nueva carpeta</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nueva carpeta</translation>
    </message>
    <message>
        <source>No folder can be made in %1</source>
        <translation>No se puede crear una carpeta en %1</translation>
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
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
</context>
<context>
    <name>velmora::frmAbout</name>
    <message>
        <source>About Velmora</source>
        <translation>Acerca de Velmora</translation>
    </message>
    <message>
        <source>Copy details puts a report of a fault onto the clipboard: what runs here, with which settings, and what passed over the line last. It names files, and has none of their contents.</source>
        <translation>«Copiar detalles» pone en el portapapeles un informe de errores: qué se ejecuta aquí, con qué ajustes y qué pasó por la línea en último lugar. Nombra archivos, pero no contiene nada de ellos.</translation>
    </message>
    <message>
        <source>&amp;Copy details</source>
        <translation>&amp;Copiar detalles</translation>
    </message>
    <message>
        <source>Save ca&amp;pture…</source>
        <translation>&amp;Guardar captura…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Ayuda</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>The report is on the clipboard: paste it into your mail.</source>
        <translation>El informe está en el portapapeles: péguelo en su correo.</translation>
    </message>
    <message>
        <source>The report is on the clipboard: paste it into your mail, and attach the capture.</source>
        <translation>El informe está en el portapapeles: péguelo en su correo y adjunte la captura.</translation>
    </message>
    <message>
        <source>The last minute of the line, without the contents of files, is in %1.</source>
        <translation>El último minuto de la línea, sin el contenido de los archivos, está en %1.</translation>
    </message>
</context>
<context>
    <name>velmora::frmCableCheck</name>
    <message>
        <source>Velmora Check Cable</source>
        <translation>Velmora: comprobar cable</translation>
    </message>
    <message>
        <source>%1 at %2. Start a transfer on the Organiser, so that it calls; the check takes up to a minute and changes nothing there.</source>
        <translation>%1 a %2. Inicie una transferencia en el Organiser para que llame; la comprobación dura hasta un minuto y no cambia nada allí.</translation>
    </message>
    <message>
        <source>Steps of the check</source>
        <translation>Pasos de la comprobación</translation>
    </message>
    <message>
        <source>The check goes on</source>
        <translation>La comprobación está en curso</translation>
    </message>
    <message>
        <source>Cop&amp;y the result</source>
        <translation>Co&amp;piar el resultado</translation>
    </message>
    <message>
        <source>One line for the clipboard, for whoever is asked for help.</source>
        <translation>Una línea para el portapapeles, para quien le vaya a ayudar.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Check a&amp;gain</source>
        <translation>&amp;Repetir</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
</context>
<context>
    <name>velmora::frmDebug</name>
    <message>
        <source>Velmora PLP Monitor</source>
        <translation>Velmora: monitor PLP</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>&amp;Save log as…</source>
        <translation>&amp;Guardar registro como…</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy &amp;all</source>
        <translation>Copiar &amp;todo</translation>
    </message>
    <message>
        <source>Select a&amp;ll</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Buscar…</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>Buscar s&amp;iguiente</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>Buscar &amp;anterior</translation>
    </message>
    <message>
        <source>Save ca&amp;pture…</source>
        <translation>Guardar &amp;captura…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>A&amp;nterior</translation>
    </message>
    <message>
        <source>Show what?</source>
        <translation>¿Qué mostrar?</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Datos</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>A elegir</translation>
    </message>
    <message>
        <source>Auto-detected</source>
        <translation>Detectado automáticamente</translation>
    </message>
    <message>
        <source>Follow the e&amp;nd</source>
        <translation>Seguir el &amp;final</translation>
    </message>
    <message>
        <source>&amp;Log to disk</source>
        <translation>Registrar en &amp;disco</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Vaciar</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Guardar registro</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Archivos de texto (*.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The log could not be saved in
%1

%2

Choose another folder or name.</source>
        <translation>No se pudo guardar el registro en
%1

%2

Elija otra carpeta u otro nombre.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No encontrado</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Línea %1 de %2</translation>
    </message>
    <message>
        <source>Line %1 of %2, from the beginning again</source>
        <translation>Línea %1 de %2, de nuevo desde el principio</translation>
    </message>
    <message>
        <source>Line %1 of %2, from the end again</source>
        <translation>Línea %1 de %2, de nuevo desde el final</translation>
    </message>
    <message>
        <source>&amp;Hide idle polling</source>
        <translation>&amp;Ocultar sondeo en reposo</translation>
    </message>
    <message>
        <source>Leave out what passes while nothing happens. It is kept, shown again when asked for, and saved.</source>
        <translation>Dejar fuera lo que pasa mientras no ocurre nada. Se conserva, se vuelve a mostrar si se desea y se guarda.</translation>
    </message>
</context>
<context>
    <name>velmora::frmMain</name>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Depurar</translation>
    </message>
    <message>
        <source>Debug window</source>
        <translation>Ventana de depuración</translation>
    </message>
    <message>
        <source>Double-click to show or hide the protocol monitor</source>
        <translation>Doble clic para mostrar u ocultar el monitor de protocolo</translation>
    </message>
    <message>
        <source>Organiser display</source>
        <translation>Pantalla del Organiser</translation>
    </message>
    <message>
        <source>Organiser display line %1</source>
        <translation>Pantalla del Organiser, línea %1</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recibidos</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviados</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Iniciar</translation>
    </message>
    <message>
        <source>Start or stop the server</source>
        <translation>Iniciar o detener el servidor</translation>
    </message>
    <message>
        <source>Set&amp;up…</source>
        <translation>&amp;Configurar…</translation>
    </message>
    <message>
        <source>Choose the serial port, its speed and the file type</source>
        <translation>Elegir el puerto serie, su velocidad y el tipo de archivo</translation>
    </message>
    <message>
        <source>&amp;Folder…</source>
        <translation>C&amp;arpeta…</translation>
    </message>
    <message>
        <source>Choose the folder that files are saved to and loaded from</source>
        <translation>Elegir la carpeta en la que se guardan y de la que se leen los archivos</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Ocultar</translation>
    </message>
    <message>
        <source>Minimise the window; the server goes on</source>
        <translation>Minimizar la ventana; el servidor sigue funcionando</translation>
    </message>
    <message>
        <source>Shut &amp;down</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Stop the server and end the program</source>
        <translation>Detener el servidor y terminar el programa</translation>
    </message>
    <message>
        <source>&amp;Transfers…</source>
        <translation>&amp;Transferencias…</translation>
    </message>
    <message>
        <source>Show what was saved and loaded (Ctrl+T)</source>
        <translation>Mostrar lo que se ha guardado y leído (Ctrl+T)</translation>
    </message>
    <message>
        <source>What Velmora is made of, where its files are, and a report of a fault</source>
        <translation>De qué se compone Velmora, dónde están sus archivos y un informe de errores</translation>
    </message>
    <message>
        <source>&amp;Open folder</source>
        <translation>A&amp;brir carpeta</translation>
    </message>
    <message>
        <source>Open the folder that files are saved to and loaded from</source>
        <translation>Abrir la carpeta en la que se guardan y de la que se leen los archivos</translation>
    </message>
    <message>
        <source>Download folder</source>
        <translation>Carpeta de descarga</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Configurar</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Transferencias</translation>
    </message>
    <message>
        <source>About Velmora</source>
        <translation>Acerca de Velmora</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>Put the window into the tray; the server goes on</source>
        <translation>Llevar la ventana a la bandeja del sistema; el servidor sigue funcionando</translation>
    </message>
</context>
<context>
    <name>velmora::frmSetup</name>
    <message>
        <source>Velmora Setup</source>
        <translation>Velmora: configuración</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Other port</source>
        <translation>Otro puerto</translation>
    </message>
    <message>
        <source>Port number</source>
        <translation>Número de puerto</translation>
    </message>
    <message>
        <source>chec&amp;k</source>
        <translation>&amp;comprobar</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source>Check ca&amp;ble…</source>
        <translation>Comprobar ca&amp;ble…</translation>
    </message>
    <message>
        <source>Finds out why nothing comes from the Organiser.</source>
        <translation>Averigua por qué no llega nada del Organiser.</translation>
    </message>
    <message>
        <source>Baud</source>
        <translation>Baudios</translation>
    </message>
    <message>
        <source>The Organiser knows none but the other rates.</source>
        <translation>El Organiser solo conoce las otras velocidades.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>&amp;Autostart</source>
        <translation>&amp;Inicio automático</translation>
    </message>
    <message>
        <source>&amp;Transfer data-files as</source>
        <translation>&amp;Transferir archivos de datos como</translation>
    </message>
    <message>
        <source>&amp;Worksheets (WKS)</source>
        <translation>&amp;Hojas de cálculo (WKS)</translation>
    </message>
    <message>
        <source>Testing the ports...</source>
        <translation>Comprobando los puertos…</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>ODB (tab-delimited)</source>
        <translation>ODB (tabuladores)</translation>
    </message>
    <message>
        <source>TXT (tab-delimited)</source>
        <translation>TXT (tabuladores)</translation>
    </message>
    <message>
        <source>CSV (comma)</source>
        <translation>CSV (coma)</translation>
    </message>
    <message>
        <source>CSV (semicolon)</source>
        <translation>CSV (punto y coma)</translation>
    </message>
    <message>
        <source>as the Organiser&apos;s own</source>
        <translation>como las del Organiser</translation>
    </message>
    <message>
        <source>for spreadsheet programs</source>
        <translation>para programas de hojas de cálculo</translation>
    </message>
    <message>
        <source>as they are</source>
        <translation>como están</translation>
    </message>
    <message>
        <source>Te&amp;xts of the display</source>
        <translation>Te&amp;xtos de la pantalla</translation>
    </message>
</context>
<context>
    <name>velmora::frmTransfers</name>
    <message>
        <source>Velmora Transfers</source>
        <translation>Velmora: transferencias</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Transferencias</translation>
    </message>
    <message>
        <source>Nothing was transferred yet.</source>
        <translation>Todavía no se ha transferido nada.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Show in its folder</source>
        <translation>&amp;Mostrar en su carpeta</translation>
    </message>
    <message>
        <source>Open the &amp;earlier copy</source>
        <translation>Abrir la copia ant&amp;erior</translation>
    </message>
    <message>
        <source>Copy the &amp;path</source>
        <translation>Copiar la &amp;ruta</translation>
    </message>
    <message>
        <source>Copy the &amp;details</source>
        <translation>Copiar los &amp;detalles</translation>
    </message>
</context>
</TS>
