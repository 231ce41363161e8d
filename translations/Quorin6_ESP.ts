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
    <name>LanguageManager</name>
    <message>
        <source>Language name of this translation</source>
        <extracomment>The name of the language that this translation is for, in that language.</extracomment>
        <translation>Español</translation>
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
</TS>
