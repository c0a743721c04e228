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
    <name>velmora::FolderDialog</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>%1 is no folder to choose</source>
        <translation>%1 no es una carpeta que se pueda elegir</translation>
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
        <source>Serial devices that are present</source>
        <translation>Dispositivos serie presentes</translation>
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
