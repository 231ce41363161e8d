<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>AnimateMenu</name>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>Abrir medio...</translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation>Control de vídeo...</translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation>Ajuste de color...</translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation>Cargar subtítulos...</translation>
    </message>
    <message>
        <source>Subtitle Setting...</source>
        <translation>Ajustes de subtítulos...</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Ajustes...</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Forum</source>
        <translation>Foro</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
</context>
<context>
    <name>AudioPage</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (no conectado)</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>Ningún dispositivo</translation>
    </message>
</context>
<context>
    <name>Display3DPage</name>
    <message>
        <source>Oops! 3D playback support is only available on Windows 8/10 for now.</source>
        <translation>¡Vaya! Por ahora, la reproducción 3D solo está disponible en Windows 8/10.</translation>
    </message>
    <message>
        <source>Oops! The selected device does not support this mode yet. Quorin Player 6 will revert to the previous setting.</source>
        <translation>El dispositivo seleccionado aún no admite este modo. Quorin Player 6 volverá al ajuste anterior.</translation>
    </message>
    <message>
        <source>Oops! There are multiple displays detected. To use HDMI 1.4 3D output, we suggest that you keep only one display.</source>
        <translation>Se han detectado varias pantallas. Para usar la salida 3D HDMI 1.4 le recomendamos dejar solo una.</translation>
    </message>
</context>
<context>
    <name>DropRule</name>
    <message>
        <source>&quot;%1&quot; is not a file on this computer.</source>
        <translation>&quot;%1&quot; no es un archivo de este equipo.</translation>
    </message>
    <message>
        <source>%1 of them are not files on this computer, the first is &quot;%2&quot;.</source>
        <translation>%1 de ellos no son archivos de este equipo; el primero es &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>El archivo &quot;%1&quot; no existe.</translation>
    </message>
    <message>
        <source>%1 files do not exist, the first is &quot;%2&quot;.</source>
        <translation>%1 archivos no existen; el primero es &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; can&apos;t be read.</source>
        <translation>No se puede leer el archivo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>%1 files can&apos;t be read, the first is &quot;%2&quot;.</source>
        <translation>No se pueden leer %1 archivos; el primero es &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be read.</source>
        <translation>No se puede leer la carpeta &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>%1 folders can&apos;t be read, the first is &quot;%2&quot;.</source>
        <translation>No se pueden leer %1 carpetas; la primera es &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>There is nothing in the folder &quot;%1&quot; that can be played.</source>
        <translation>En la carpeta &quot;%1&quot; no hay nada que se pueda reproducir.</translation>
    </message>
    <message>
        <source>There is nothing in %1 folders that can be played, the first is &quot;%2&quot;.</source>
        <translation>En %1 carpetas no hay nada que se pueda reproducir; la primera es &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a media file.</source>
        <translation>&quot;%1&quot; no es un archivo multimedia.</translation>
    </message>
    <message>
        <source>%1 of them are not media files, the first is &quot;%2&quot;.</source>
        <translation>%1 de ellos no son archivos multimedia; el primero es &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The subtitle file &quot;%1&quot; can be added while a film plays.</source>
        <translation>El archivo de subtítulos &quot;%1&quot; se puede añadir mientras se reproduce una película.</translation>
    </message>
    <message>
        <source>%1 subtitle files can be added while a film plays, the first is &quot;%2&quot;.</source>
        <translation>%1 archivos de subtítulos se pueden añadir mientras se reproduce una película; el primero es &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and what follows was left out.</source>
        <translation>Se ha omitido &quot;%1&quot; y lo que sigue.</translation>
    </message>
    <message>
        <source>&quot;%2&quot; and what follows was left out.</source>
        <translation>Se ha omitido &quot;%2&quot; y lo que sigue.</translation>
    </message>
</context>
<context>
    <name>ErrorNote</name>
    <message>
        <source>Your device does not support hardware decoding for H.265 4K videos, and we&apos;ve automatically switched to the software decoding mode, which might possibly cause unsmooth playback.</source>
        <translation>Su equipo no admite la decodificación por hardware de vídeos H.265 4K. Hemos cambiado automáticamente a la decodificación por software, por lo que la reproducción podría no ser fluida.</translation>
    </message>
    <message>
        <source>Your computer hardware configuration does not support hardware decoding for 4K UHD Blu-rays.</source>
        <translation>La configuración de hardware de su equipo no admite la decodificación por hardware de Blu-ray UHD 4K.</translation>
    </message>
    <message>
        <source>Invalid custom shader, please check and try again.</source>
        <translation>El sombreador personalizado no es válido. Compruébelo e inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>FileAssociationList</name>
    <message>
        <source>Please write each extension as *.mkv and separate them by semicolons.</source>
        <translation>Escriba cada extensión como *.mkv y sepárelas con punto y coma.</translation>
    </message>
    <message>
        <source>Oops! This file extension is not supported yet.</source>
        <translation>Esta extensión de archivo aún no es compatible.</translation>
    </message>
</context>
<context>
    <name>FolderEdit</name>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
</context>
<context>
    <name>FolderProbe</name>
    <message>
        <source>This folder does not exist.</source>
        <translation>Esta carpeta no existe.</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>Esto no es una carpeta.</translation>
    </message>
    <message>
        <source>This folder cannot be read.</source>
        <translation>No se puede leer esta carpeta.</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>No se puede escribir en esta carpeta.</translation>
    </message>
    <message>
        <source>This folder does not answer.</source>
        <translation>Esta carpeta no responde.</translation>
    </message>
</context>
<context>
    <name>HotKeysPage</name>
    <message>
        <source>Press Enter on a row and then the new key. Delete takes the key away.</source>
        <translation>Pulse Intro en una fila y después la tecla nueva. Supr quita la tecla.</translation>
    </message>
    <message>
        <source>%1 was the key of &quot;%2&quot;, which has none now.</source>
        <translation>%1 era la tecla de &quot;%2&quot;, que ahora no tiene ninguna.</translation>
    </message>
</context>
<context>
    <name>KeySequenceEditWidget</name>
    <message>
        <source>New key</source>
        <translation>Tecla nueva</translation>
    </message>
</context>
<context>
    <name>LanguageManager</name>
    <message>
        <source>Language name of this translation</source>
        <extracomment>The name of the language that this translation is for, in that language.</extracomment>
        <translation>Español</translation>
    </message>
</context>
<context>
    <name>LibraryPage</name>
    <message>
        <source>Are you sure to clear and rebuild your library?</source>
        <translation>¿Seguro que desea vaciar y reconstruir la biblioteca?</translation>
    </message>
    <message>
        <source>Rebuild</source>
        <translation>Reconstruir</translation>
    </message>
</context>
<context>
    <name>MenuCase</name>
    <message>
        <source>Quorin Player 6 can play back the BDAV discs in Simple mode only, but you can switch titles from the Playlist.</source>
        <translation>Quorin Player 6 solo puede reproducir los discos BDAV en modo simple, pero puede cambiar de título desde la lista de reproducción.</translation>
    </message>
</context>
<context>
    <name>ModeSelectView</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>PC Mode</source>
        <translation>Modo PC</translation>
    </message>
    <message>
        <source>In a window, with mouse and keyboard</source>
        <translation>En una ventana, con ratón y teclado</translation>
    </message>
    <message>
        <source>TV Mode</source>
        <translation>Modo TV</translation>
    </message>
    <message>
        <source>Full screen, with a remote control</source>
        <translation>A pantalla completa, con mando a distancia</translation>
    </message>
    <message>
        <source>Remember my choice and don&apos;t ask again</source>
        <translation>Recordar mi elección y no volver a preguntar</translation>
    </message>
    <message>
        <source>How do you want to watch?</source>
        <translation>¿Cómo desea ver el contenido?</translation>
    </message>
    <message>
        <source>You can change this later in the settings.</source>
        <translation>Puede cambiarlo más adelante en los ajustes.</translation>
    </message>
</context>
<context>
    <name>NormalAboutDLg</name>
    <message>
        <source>User interface</source>
        <translation>Interfaz de usuario</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Reproducción</translation>
    </message>
    <message>
        <source>Formats and codecs</source>
        <translation>Formatos y códecs</translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>Blu-ray</source>
        <translation>Blu-ray</translation>
    </message>
    <message>
        <source>Media library</source>
        <translation>Biblioteca multimedia</translation>
    </message>
    <message>
        <source>Music tags</source>
        <translation>Etiquetas de música</translation>
    </message>
    <message>
        <source>Foundations</source>
        <translation>Bases</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>built on %1</source>
        <translation>compilado el %1</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliotecas</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later</source>
        <translation>Software libre bajo la Licencia Pública General de GNU, versión 3 o posterior</translation>
    </message>
</context>
<context>
    <name>NormalColorAdjustDlg</name>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Suave</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Brillante</translation>
    </message>
    <message>
        <source>Color Adjust</source>
        <translation>Ajuste de color</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
</context>
<context>
    <name>NormalDialogFrame</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>NormalKeyConflictTipsDialog</name>
    <message>
        <source>The hotkey you just chose was previously used for another action. That one has been rendered useless.</source>
        <translation>La tecla elegida se usaba para otra acción, que se ha quedado sin tecla.</translation>
    </message>
</context>
<context>
    <name>NormalLastPositionLabel</name>
    <message>
        <source>Last playback at</source>
        <translation>Última reproducción en</translation>
    </message>
</context>
<context>
    <name>NormalLoadingDlg</name>
    <message>
        <source>Loading ...</source>
        <translation>Cargando...</translation>
    </message>
</context>
<context>
    <name>NormalMainWindow</name>
    <message>
        <source>Failure initializing playback device, please update your video card and sound card drivers. Contact us if that does not fix the problem.</source>
        <translation>Error al iniciar el dispositivo de reproducción. Actualice los controladores de la tarjeta gráfica y de sonido. Si el problema persiste, póngase en contacto con nosotros.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Media Files (%1)</source>
        <translation>Archivos multimedia (%1)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>Abrir medio...</translation>
    </message>
    <message>
        <source>Subtitle Files (%1)</source>
        <translation>Archivos de subtítulos (%1)</translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation>Control de vídeo...</translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation>Ajuste de color...</translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation>Cargar subtítulos...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Ajustes...</translation>
    </message>
    <message>
        <source>To add to the library, please specify the library type for the directory.</source>
        <translation>Para añadirlo a la biblioteca, indique el tipo de biblioteca del directorio.</translation>
    </message>
    <message>
        <source>Movies &amp; TV Shows</source>
        <translation>Películas y series</translation>
    </message>
    <message>
        <source>Adult</source>
        <translation>Adultos</translation>
    </message>
    <message>
        <source>Feedback can&apos;t be sent: this version of the program has no address for it.</source>
        <translation>No se pueden enviar comentarios: esta versión del programa no tiene ninguna dirección para ello.</translation>
    </message>
</context>
<context>
    <name>NormalMessageBox</name>
    <message>
        <source>Don&apos;t show again</source>
        <translation>No volver a mostrar</translation>
    </message>
</context>
<context>
    <name>NormalMessageBoxFactory</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>NormalMetaView</name>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Subtítulos</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Capítulo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
</context>
<context>
    <name>NormalOperateBar</name>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
</context>
<context>
    <name>NormalPlaySpeedBar</name>
    <message>
        <source>Normal Speed</source>
        <translation>Velocidad normal</translation>
    </message>
</context>
<context>
    <name>NormalPlaylistSwitch</name>
    <message>
        <source>Close the playlist</source>
        <translation>Cerrar la lista de reproducción</translation>
    </message>
    <message>
        <source>Open the playlist</source>
        <translation>Abrir la lista de reproducción</translation>
    </message>
</context>
<context>
    <name>NormalPlaylistView</name>
    <message>
        <source>Playlist</source>
        <translation>Lista de reproducción</translation>
    </message>
    <message>
        <source>Media Files (%1)</source>
        <translation>Archivos multimedia (%1)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>AddFile...</source>
        <translation>Añadir archivo...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>Añadir carpeta...</translation>
    </message>
</context>
<context>
    <name>NormalPreviewView</name>
    <message>
        <source>Smart Preview</source>
        <translation>Vista previa inteligente</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>There are no preview pictures for this source.</source>
        <translation>No hay imágenes de vista previa para esta fuente.</translation>
    </message>
</context>
<context>
    <name>NormalSettingPage</name>
    <message>
        <source>Files with these extensions open with Quorin Player 6 when they are double clicked.</source>
        <translation>Los archivos con estas extensiones se abren con Quorin Player 6 al hacer doble clic.</translation>
    </message>
    <message>
        <source>To change your default apps, go to Settings &gt; System &gt; Default apps.</source>
        <translation>Para cambiar sus aplicaciones predeterminadas, vaya a Configuración &gt; Sistema &gt; Aplicaciones predeterminadas.</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>Configuración del sistema</translation>
    </message>
    <message>
        <source>PC Mode</source>
        <translation>Modo PC</translation>
    </message>
    <message>
        <source>TV Mode</source>
        <translation>Modo TV</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Restablecer todo</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operación</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>The media library is not available.</source>
        <translation>La biblioteca multimedia no está disponible.</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>Update Library</source>
        <translation>Actualizar la biblioteca</translation>
    </message>
    <message>
        <source>Rebuild Library</source>
        <translation>Reconstruir la biblioteca</translation>
    </message>
    <message>
        <source>Add New Directory</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>The file associations were not changed.</source>
        <translation>No se cambiaron las asociaciones de archivos.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Reproducción</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Biblioteca</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>3D Display</source>
        <translation>Visualización 3D</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Subtítulos</translation>
    </message>
    <message>
        <source>Blu-ray</source>
        <translation>Blu-ray</translation>
    </message>
    <message>
        <source>File Association</source>
        <translation>Asociación de archivos</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>HotKeys</source>
        <translation>Teclas rápidas</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Same as UI language</source>
        <translation>Igual que la interfaz</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Simple Mode</source>
        <translation>Modo simple</translation>
    </message>
    <message>
        <source>Menu Mode</source>
        <translation>Modo de menú</translation>
    </message>
    <message>
        <source>Always match to the original video size</source>
        <translation>Ajustar siempre al tamaño original del vídeo</translation>
    </message>
    <message>
        <source>Always remember the last choice</source>
        <translation>Recordar siempre la última elección</translation>
    </message>
    <message>
        <source>UI Language</source>
        <translation>Idioma de la interfaz</translation>
    </message>
    <message>
        <source>Launch Mode</source>
        <translation>Modo de inicio</translation>
    </message>
    <message>
        <source>Ask me each time</source>
        <translation>Preguntar cada vez</translation>
    </message>
    <message>
        <source>Window size</source>
        <translation>Tamaño de la ventana</translation>
    </message>
    <message>
        <source>Log Path</source>
        <translation>Ruta del registro</translation>
    </message>
    <message>
        <source>Auto play when disc inserted</source>
        <translation>Reproducir automáticamente al insertar un disco</translation>
    </message>
    <message>
        <source>Pause play when minimized</source>
        <translation>Pausar al minimizar</translation>
    </message>
    <message>
        <source>Remember the last playback position</source>
        <translation>Recordar la última posición de reproducción</translation>
    </message>
    <message>
        <source>Disable Screensaver</source>
        <translation>Desactivar el salvapantallas</translation>
    </message>
    <message>
        <source>Allow multiple instances</source>
        <translation>Permitir varias instancias</translation>
    </message>
    <message>
        <source>Check for new version automatically</source>
        <translation>Buscar nuevas versiones automáticamente</translation>
    </message>
    <message>
        <source>Show progress in taskbar</source>
        <translation>Mostrar el progreso en la barra de tareas</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Discos</translation>
    </message>
    <message>
        <source>DVD Playback Mode</source>
        <translation>Modo de reproducción de DVD</translation>
    </message>
    <message>
        <source>UHD / Blu-ray Playback Mode</source>
        <translation>Modo de reproducción de UHD / Blu-ray</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Idiomas</translation>
    </message>
    <message>
        <source>Menu language</source>
        <translation>Idioma del menú</translation>
    </message>
    <message>
        <source>Audio language</source>
        <translation>Idioma del audio</translation>
    </message>
    <message>
        <source>Subtitle language</source>
        <translation>Idioma de los subtítulos</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Avisos</translation>
    </message>
    <message>
        <source>Show tips for playback status</source>
        <translation>Mostrar avisos del estado de reproducción</translation>
    </message>
    <message>
        <source>Enable the library for adult contents</source>
        <translation>Activar la biblioteca de contenido para adultos</translation>
    </message>
    <message>
        <source>Decoding</source>
        <translation>Decodificación</translation>
    </message>
    <message>
        <source>Enable Hardware Acceleration Decoding</source>
        <translation>Activar la decodificación por hardware</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Enable HDR</source>
        <translation>Activar HDR</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Force HDR-&gt;SDR</source>
        <translation>Forzar HDR-&gt;SDR</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>Mapa de tonos</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>Simple</translation>
    </message>
    <message>
        <source>Hable</source>
        <translation>Hable</translation>
    </message>
    <message>
        <source>Filmic</source>
        <translation>Filmic</translation>
    </message>
    <message>
        <source>Aces</source>
        <translation>Aces</translation>
    </message>
    <message>
        <source>Luminance Scale:</source>
        <translation>Escala de luminancia:</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Output Color Range </source>
        <translation>Rango de color de salida </translation>
    </message>
    <message>
        <source>Full Color Range (0-255)</source>
        <translation>Rango de color completo (0-255)</translation>
    </message>
    <message>
        <source>Limited Color Range (16-235)</source>
        <translation>Rango de color limitado (16-235)</translation>
    </message>
    <message>
        <source>Enable 3D Playback Engine (effective upon next playback)</source>
        <translation>Activar el motor de reproducción 3D (efectivo en la próxima reproducción)</translation>
    </message>
    <message>
        <source>Play 3D Media in 3D</source>
        <translation>Reproducir medios 3D en 3D</translation>
    </message>
    <message>
        <source>Convert 2D Media to 3D</source>
        <translation>Convertir medios 2D a 3D</translation>
    </message>
    <message>
        <source>3D Display Device</source>
        <translation>Dispositivo de visualización 3D</translation>
    </message>
    <message>
        <source>Anaglyph Red/Cyan Mode</source>
        <translation>Modo anaglifo rojo/cian</translation>
    </message>
    <message>
        <source>3D-Ready HDTV (Checkerboard)</source>
        <translation>HDTV 3D-Ready (tablero de ajedrez)</translation>
    </message>
    <message>
        <source>Micro-polarizer LCD 3D (Row-interleaved)</source>
        <translation>LCD 3D micropolarizado (filas entrelazadas)</translation>
    </message>
    <message>
        <source>HDMI 1.4 enabled 3D TV</source>
        <translation>TV 3D con HDMI 1.4</translation>
    </message>
    <message>
        <source>Swap eye view</source>
        <translation>Intercambiar vistas</translation>
    </message>
    <message>
        <source>Left view first</source>
        <translation>Vista izquierda primero</translation>
    </message>
    <message>
        <source>Right view first</source>
        <translation>Vista derecha primero</translation>
    </message>
    <message>
        <source>Output Mode</source>
        <translation>Modo de salida</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Analog</source>
        <translation>Analógica</translation>
    </message>
    <message>
        <source>Optical/Coax</source>
        <translation>Óptica/coaxial</translation>
    </message>
    <message>
        <source>HDMI</source>
        <translation>HDMI</translation>
    </message>
    <message>
        <source>DisplayPort</source>
        <translation>DisplayPort</translation>
    </message>
    <message>
        <source>Output Device</source>
        <translation>Dispositivo de salida</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Altavoces</translation>
    </message>
    <message>
        <source>Passthrough</source>
        <translation>Passthrough</translation>
    </message>
    <message>
        <source>Enable Audio Passthrough</source>
        <translation>Activar el passthrough de audio</translation>
    </message>
    <message>
        <source>Dolby Digital(AC3) capable receiver</source>
        <translation>Receptor compatible con Dolby Digital(AC3)</translation>
    </message>
    <message>
        <source>DTS capable receiver</source>
        <translation>Receptor compatible con DTS</translation>
    </message>
    <message>
        <source>TrueHD/DTS-HD capable receiver</source>
        <translation>Receptor compatible con TrueHD/DTS-HD</translation>
    </message>
    <message>
        <source>Level and timing</source>
        <translation>Nivel y tiempo</translation>
    </message>
    <message>
        <source>Volume Amplification</source>
        <translation>Amplificación del volumen</translation>
    </message>
    <message>
        <source>Audio Offset</source>
        <translation>Desfase del audio</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Charset</source>
        <translation>Juego de caracteres</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>OutLine Color</source>
        <translation>Color del contorno</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Negrita</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Cursiva</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Override Ass/SSA subtitles config</source>
        <translation>Anular la configuración de los subtítulos Ass/SSA</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>Subtitle Offset</source>
        <translation>Desfase de los subtítulos</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Región</translation>
    </message>
    <message>
        <source>Region A</source>
        <translation>Región A</translation>
    </message>
    <message>
        <source>Region B</source>
        <translation>Región B</translation>
    </message>
    <message>
        <source>Region C</source>
        <translation>Región C</translation>
    </message>
    <message>
        <source>Enable Blu-ray 3D playback when in Simple Mode</source>
        <translation>Activar la reproducción de Blu-ray 3D en el modo simple</translation>
    </message>
    <message>
        <source>Skip FBI warnings</source>
        <translation>Omitir las advertencias del FBI</translation>
    </message>
    <message>
        <source>Jump to Blu-ray menu directly</source>
        <translation>Ir directamente al menú del Blu-ray</translation>
    </message>
    <message>
        <source>Set File Associations</source>
        <translation>Establecer asociaciones de archivos</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Save to clipboard simultaneously(you can paste it directly)</source>
        <translation>Guardar también en el portapapeles (puede pegarla directamente)</translation>
    </message>
    <message>
        <source>Use IE proxy</source>
        <translation>Usar el proxy de IE</translation>
    </message>
    <message>
        <source>Use the system&apos;s proxy</source>
        <translation>Usar el proxy del sistema</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Do not use proxy</source>
        <translation>No usar proxy</translation>
    </message>
    <message>
        <source>Use manual proxy</source>
        <translation>Usar un proxy manual</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Analyze Hardware</source>
        <translation>Analizar el hardware</translation>
    </message>
    <message>
        <source>The settings are in use, but could not be written to the disk:
%1
They will be lost when the program ends, unless there is room until then.</source>
        <translation>La configuración se está usando, pero no se pudo escribir en el disco:
%1
Se perderá al cerrar el programa, a menos que antes quede espacio libre.</translation>
    </message>
</context>
<context>
    <name>NormalStartView</name>
    <message>
        <source>Drop a film, a folder or a disc image here to play it.</source>
        <translation>Arrastre aquí una película, una carpeta o una imagen de disco para reproducirla.</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>Abrir medio...</translation>
    </message>
    <message>
        <source>Recently Played</source>
        <translation>Reproducido recientemente</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Clear the list of recently played files</source>
        <translation>Borrar la lista de reproducidos recientemente</translation>
    </message>
    <message>
        <source>Drop to play</source>
        <translation>Suelte para reproducir</translation>
    </message>
</context>
<context>
    <name>NormalTipLabel</name>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Slow motion %1x</source>
        <translation>Cámara lenta %1x</translation>
    </message>
    <message>
        <source>Fast forward</source>
        <translation>Avance rápido</translation>
    </message>
    <message>
        <source>Fast forward %1x</source>
        <translation>Avance rápido %1x</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Rebobinar</translation>
    </message>
    <message>
        <source>Rewind %1x</source>
        <translation>Rebobinado %1x</translation>
    </message>
</context>
<context>
    <name>NormalTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
</context>
<context>
    <name>NormalTvshowAutoPlayLabel</name>
    <message>
        <source>Play Now</source>
        <translation>Reproducir ahora</translation>
    </message>
    <message>
        <source>Not this time</source>
        <translation>Esta vez no</translation>
    </message>
    <message>
        <source>Up Next: </source>
        <translation>A continuación: </translation>
    </message>
</context>
<context>
    <name>NormalVideoControlDlg</name>
    <message>
        <source>Video Control</source>
        <translation>Control de vídeo</translation>
    </message>
    <message>
        <source>Zoom Amount</source>
        <translation>Cantidad de zoom</translation>
    </message>
    <message>
        <source>Vertical Shift</source>
        <translation>Desplazamiento vertical</translation>
    </message>
    <message>
        <source>Pixel Ratio</source>
        <translation>Proporción de píxeles</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
</context>
<context>
    <name>NormalWaitingDlg</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>PlayFailure</name>
    <message>
        <source>Quorin does not support your UHD drive, please check the supported drives here.</source>
        <translation>Quorin no es compatible con su unidad UHD. Consulte aquí las unidades compatibles.</translation>
    </message>
    <message>
        <source>More Info...</source>
        <translation>Más información...</translation>
    </message>
    <message>
        <source>Oops! This disc is not supported yet. Please try again at a later time.</source>
        <translation>¡Vaya! Este disco aún no es compatible. Inténtelo de nuevo más adelante.</translation>
    </message>
    <message>
        <source>Failed to play back the disc.</source>
        <translation>No se pudo reproducir el disco.</translation>
    </message>
    <message>
        <source>A live Internet is required to play back the disc, please check your network and try again.</source>
        <translation>Se necesita una conexión a Internet para reproducir el disco. Compruebe la red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>An unknown error happened, please update to the newest version at</source>
        <translation>Se ha producido un error desconocido. Actualice a la versión más reciente en</translation>
    </message>
    <message>
        <source>Playback failed.</source>
        <translation>Error de reproducción.</translation>
    </message>
    <message>
        <source>This source can&apos;t be played. It may be damaged, protected or of an unknown format.</source>
        <translation>No se puede reproducir esta fuente. Puede estar dañada, protegida o tener un formato desconocido.</translation>
    </message>
    <message>
        <source>There is no such file, folder or title.</source>
        <translation>No existe ese archivo, carpeta o título.</translation>
    </message>
    <message>
        <source>This source may not be read, or is neither a file nor a folder nor a disc.</source>
        <translation>No se puede leer este origen, o no es un archivo, una carpeta ni un disco.</translation>
    </message>
    <message>
        <source>There is nothing in this source that can be played.</source>
        <translation>En este origen no hay nada que se pueda reproducir.</translation>
    </message>
    <message>
        <source>There is no disc in this source, or none that can be read.</source>
        <translation>En este origen no hay ningún disco, o no se puede leer.</translation>
    </message>
    <message>
        <source>This source does not answer.</source>
        <translation>Este origen no responde.</translation>
    </message>
    <message>
        <source>This source ended with an error while it played.</source>
        <translation>Este origen terminó con un error durante la reproducción.</translation>
    </message>
</context>
<context>
    <name>PlayMenu</name>
    <message>
        <source>Open Media...</source>
        <translation>Abrir medio...</translation>
    </message>
    <message>
        <source>Open Disc</source>
        <translation>Abrir disco</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Capítulo</translation>
    </message>
    <message>
        <source>Top Menu</source>
        <translation>Menú principal</translation>
    </message>
    <message>
        <source>Pop Menu</source>
        <translation>Menú emergente</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Subtítulos</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Reproducción</translation>
    </message>
    <message>
        <source>Shaders</source>
        <translation>Sombreadores</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Always on Top</source>
        <translation>Siempre visible</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Ajustes...</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Relación de aspecto</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>Desentrelazado</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation>Control de vídeo...</translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation>Ajuste de color...</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>Capturar imagen</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Fit Window</source>
        <translation>Ajustar a la ventana</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Rotate 90 degree CW</source>
        <translation>Girar 90 grados a la derecha</translation>
    </message>
    <message>
        <source>Rotate 90 degree CCW</source>
        <translation>Girar 90 grados a la izquierda</translation>
    </message>
    <message>
        <source>Rotate 180 degree</source>
        <translation>Girar 180 grados</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Voltear verticalmente</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Voltear horizontalmente</translation>
    </message>
    <message>
        <source>Cycle Through Audio Track</source>
        <translation>Siguiente pista de audio</translation>
    </message>
    <message>
        <source>Cycle Through Subtitle Track</source>
        <translation>Siguiente subtítulo</translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation>Cargar subtítulos...</translation>
    </message>
    <message>
        <source>Subtitle Setting...</source>
        <translation>Ajustes de subtítulos...</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Previous Chapter</source>
        <translation>Capítulo anterior</translation>
    </message>
    <message>
        <source>Next Chapter</source>
        <translation>Capítulo siguiente</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Rebobinar</translation>
    </message>
    <message>
        <source>Fast Forward</source>
        <translation>Avance rápido</translation>
    </message>
    <message>
        <source>Normal Speed</source>
        <translation>Velocidad normal</translation>
    </message>
    <message>
        <source>10 Sec. Backward</source>
        <translation>10 s atrás</translation>
    </message>
    <message>
        <source>10 Sec. Forward</source>
        <translation>10 s adelante</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>Capítulo %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
</context>
<context>
    <name>PlayQueueModel</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source> (Main)</source>
        <translation> (Principal)</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No se encuentra</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Open file</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Enviar comentarios</translation>
    </message>
    <message>
        <source>Eject the selected disc</source>
        <translation>Expulsar el disco seleccionado</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Volver</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Always on top</source>
        <translation>Siempre visible</translation>
    </message>
    <message>
        <source>Mute on/off</source>
        <translation>Activar/desactivar silencio</translation>
    </message>
    <message>
        <source>Previous Chapter</source>
        <translation>Capítulo anterior</translation>
    </message>
    <message>
        <source>Next Chapter</source>
        <translation>Capítulo siguiente</translation>
    </message>
    <message>
        <source>Play/pause movie playback</source>
        <translation>Reproducir/pausar</translation>
    </message>
    <message>
        <source>Stop Playback</source>
        <translation>Detener la reproducción</translation>
    </message>
    <message>
        <source>Increase audio volume</source>
        <translation>Subir el volumen</translation>
    </message>
    <message>
        <source>Decrease audio volume</source>
        <translation>Bajar el volumen</translation>
    </message>
    <message>
        <source>Fast Forward</source>
        <translation>Avance rápido</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Rebobinar</translation>
    </message>
    <message>
        <source>Switch Audio</source>
        <translation>Cambiar de audio</translation>
    </message>
    <message>
        <source>Switch Subtitle</source>
        <translation>Cambiar de subtítulos</translation>
    </message>
    <message>
        <source>Filp vertically</source>
        <translation>Voltear verticalmente</translation>
    </message>
    <message>
        <source>Filp horizontally</source>
        <translation>Voltear horizontalmente</translation>
    </message>
    <message>
        <source>File Information</source>
        <translation>Información del archivo</translation>
    </message>
    <message>
        <source>Show Information</source>
        <translation>Mostrar información</translation>
    </message>
    <message>
        <source>Open Smart View</source>
        <translation>Abrir vista inteligente</translation>
    </message>
    <message>
        <source>Displays the playback menu</source>
        <translation>Mostrar el menú de reproducción</translation>
    </message>
    <message>
        <source>Pop-up menu</source>
        <translation>Menú emergente</translation>
    </message>
    <message>
        <source>Top menu</source>
        <translation>Menú principal</translation>
    </message>
    <message>
        <source>Navigate up in menus</source>
        <translation>Subir en los menús</translation>
    </message>
    <message>
        <source>Navigate down in menus</source>
        <translation>Bajar en los menús</translation>
    </message>
    <message>
        <source>Navigate left in menus</source>
        <translation>Ir a la izquierda en los menús</translation>
    </message>
    <message>
        <source>Navigate right in menus</source>
        <translation>Ir a la derecha en los menús</translation>
    </message>
    <message>
        <source>Accepts the selected menu</source>
        <translation>Aceptar el menú seleccionado</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>Capturar imagen</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Fotograma siguiente</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Fotograma anterior</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Sec</source>
        <translation>s</translation>
    </message>
    <message>
        <source>CW</source>
        <translation>a la derecha</translation>
    </message>
    <message>
        <source>CCW</source>
        <translation>a la izquierda</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanzar</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>Retroceder</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>File error: </source>
        <translation>Error de archivo: </translation>
    </message>
</context>
<context>
    <name>QPlayer</name>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
</context>
<context>
    <name>QueueDelegate</name>
    <message>
        <source>Not found</source>
        <translation>No se encuentra</translation>
    </message>
</context>
<context>
    <name>QueueEmptyPage</name>
    <message>
        <source>The playlist is empty.</source>
        <translation>La lista de reproducción está vacía.</translation>
    </message>
    <message>
        <source>Drop files or folders here, or add them with a right click.</source>
        <translation>Arrastre aquí archivos o carpetas, o añádalos con un clic derecho.</translation>
    </message>
</context>
<context>
    <name>QueueHead</name>
    <message>
        <source>Playlist</source>
        <translation>Lista de reproducción</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Iconos</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>QueueMenus</name>
    <message>
        <source>AddFile...</source>
        <translation>Añadir archivo...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>Añadir carpeta...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove Invalid</source>
        <translation>Quitar no válidos</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Quitar todo</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Abrir la carpeta contenedora</translation>
    </message>
    <message>
        <source>Sort by Name</source>
        <translation>Ordenar por nombre</translation>
    </message>
    <message>
        <source>Sort by Type</source>
        <translation>Ordenar por tipo</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>Una vez</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>En orden</translation>
    </message>
    <message>
        <source>Shuffle</source>
        <translation>Aleatorio</translation>
    </message>
    <message>
        <source>Repeat One</source>
        <translation>Repetir uno</translation>
    </message>
    <message>
        <source>Repeat All</source>
        <translation>Repetir todo</translation>
    </message>
</context>
<context>
    <name>RecentCard</name>
    <message>
        <source>Not found</source>
        <translation>No se encuentra</translation>
    </message>
    <message>
        <source>Last playback at %1</source>
        <translation>Última reproducción en %1</translation>
    </message>
</context>
<context>
    <name>ScreenshotWriter</name>
    <message>
        <source>There is no picture to save.</source>
        <translation>No hay ninguna imagen que guardar.</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: the folder &quot;%1&quot; does not exist.</source>
        <translation>No se pudo guardar la captura: la carpeta «%1» no existe.</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: the folder &quot;%1&quot; is not writable.</source>
        <translation>No se pudo guardar la captura: no se puede escribir en la carpeta «%1».</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: there is no free space in the folder &quot;%1&quot;.</source>
        <translation>No se pudo guardar la captura: no queda espacio libre en la carpeta «%1».</translation>
    </message>
    <message>
        <source>The snapshot could not be saved in the folder &quot;%1&quot;.</source>
        <translation>No se pudo guardar la captura en la carpeta «%1».</translation>
    </message>
</context>
<context>
    <name>SettingRowWidget</name>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>Please enter the address of the proxy.</source>
        <translation>Introduzca la dirección del proxy.</translation>
    </message>
    <message>
        <source>Please enter the address alone, as proxy.example.org or 192.168.0.1.</source>
        <translation>Introduzca solo la dirección, como proxy.example.org o 192.168.0.1.</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>El puerto es un número del 1 al 65535.</translation>
    </message>
</context>
<context>
    <name>SmartPreview</name>
    <message>
        <source>The Smart Preview feature on DVDs and Blu-rays is coming soon!</source>
        <translation>¡La vista previa inteligente de DVD y Blu-ray llegará pronto!</translation>
    </message>
</context>
<context>
    <name>SubtitleCharsets</name>
    <message>
        <source>Auto</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Unicode (UTF-8)</source>
        <translation>Unicode (UTF-8)</translation>
    </message>
    <message>
        <source>Unicode (UTF-16)</source>
        <translation>Unicode (UTF-16)</translation>
    </message>
    <message>
        <source>Western European</source>
        <translation>Europeo occidental</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Europeo central</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Báltico</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Cirílico</translation>
    </message>
    <message>
        <source>Cyrillic (KOI8-R)</source>
        <translation>Cirílico (KOI8-R)</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griego</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turco</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebreo</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Árabe</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamita</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Tailandés</translation>
    </message>
    <message>
        <source>Chinese Simplified</source>
        <translation>Chino simplificado</translation>
    </message>
    <message>
        <source>Chinese Traditional</source>
        <translation>Chino tradicional</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonés</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coreano</translation>
    </message>
</context>
<context>
    <name>ThreeDMenu</name>
    <message>
        <source>Auto Detect</source>
        <translation>Detección automática</translation>
    </message>
    <message>
        <source>Side by Side</source>
        <translation>Lado a lado</translation>
    </message>
    <message>
        <source>Top / Bottom</source>
        <translation>Arriba / abajo</translation>
    </message>
    <message>
        <source>Play 3D Media in 3D</source>
        <translation>Reproducir medios 3D en 3D</translation>
    </message>
    <message>
        <source>Convert 2D Media to 3D</source>
        <translation>Convertir medios 2D a 3D</translation>
    </message>
    <message>
        <source>3D Source Format</source>
        <translation>Formato de la fuente 3D</translation>
    </message>
    <message>
        <source>More 3D Settings</source>
        <translation>Más ajustes 3D</translation>
    </message>
    <message>
        <source>Oops! 3D playback support is only available on Windows 8/10 for now.</source>
        <translation>¡Vaya! Por ahora, la reproducción 3D solo está disponible en Windows 8/10.</translation>
    </message>
</context>
<context>
    <name>TvPlayingWidget</name>
    <message>
        <source>Playback Failed!</source>
        <translation>¡Error de reproducción!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Failure initializing playback device, please update your video card and sound card drivers. Contact us if that does not fix the problem.</source>
        <translation>Error al iniciar el dispositivo de reproducción. Actualice los controladores de la tarjeta gráfica y de sonido. Si el problema persiste, póngase en contacto con nosotros.</translation>
    </message>
    <message>
        <source>This source can&apos;t be played. It may be damaged, protected or of an unknown format.</source>
        <translation>No se puede reproducir esta fuente. Puede estar dañada, protegida o tener un formato desconocido.</translation>
    </message>
</context>
<context>
    <name>TvStartWidget</name>
    <message>
        <source>Ready to play</source>
        <translation>Listo para reproducir</translation>
    </message>
    <message>
        <source>Open a film with the player to watch it here.</source>
        <translation>Abra una película con el reproductor para verla aquí.</translation>
    </message>
</context>
<context>
    <name>VideoPage</name>
    <message>
        <source>The analysis could not be started.</source>
        <translation>No se pudo iniciar el análisis.</translation>
    </message>
</context>
</TS>
