<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>AnimateMenu</name>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>Medium öffnen...</translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation>Videosteuerung...</translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation>Farbanpassung...</translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation>Untertitel laden...</translation>
    </message>
    <message>
        <source>Subtitle Setting...</source>
        <translation>Untertiteleinstellungen...</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Einstellungen...</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Feedback</translation>
    </message>
    <message>
        <source>Forum</source>
        <translation>Forum</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
</context>
<context>
    <name>DropRule</name>
    <message>
        <source>&quot;%1&quot; is not a file on this computer.</source>
        <translation>„%1“ ist keine Datei auf diesem Computer.</translation>
    </message>
    <message>
        <source>%1 of them are not files on this computer, the first is &quot;%2&quot;.</source>
        <translation>%1 davon sind keine Dateien auf diesem Computer, die erste ist „%2“.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>Die Datei „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>%1 files do not exist, the first is &quot;%2&quot;.</source>
        <translation>%1 Dateien gibt es nicht, die erste ist „%2“.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; can&apos;t be read.</source>
        <translation>Die Datei „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1 files can&apos;t be read, the first is &quot;%2&quot;.</source>
        <translation>%1 Dateien können nicht gelesen werden, die erste ist „%2“.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be read.</source>
        <translation>Der Ordner „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1 folders can&apos;t be read, the first is &quot;%2&quot;.</source>
        <translation>%1 Ordner können nicht gelesen werden, der erste ist „%2“.</translation>
    </message>
    <message>
        <source>There is nothing in the folder &quot;%1&quot; that can be played.</source>
        <translation>Im Ordner „%1“ ist nichts, was abgespielt werden kann.</translation>
    </message>
    <message>
        <source>There is nothing in %1 folders that can be played, the first is &quot;%2&quot;.</source>
        <translation>In %1 Ordnern ist nichts, was abgespielt werden kann, der erste ist „%2“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a media file.</source>
        <translation>„%1“ ist keine Mediendatei.</translation>
    </message>
    <message>
        <source>%1 of them are not media files, the first is &quot;%2&quot;.</source>
        <translation>%1 davon sind keine Mediendateien, die erste ist „%2“.</translation>
    </message>
    <message>
        <source>The subtitle file &quot;%1&quot; can be added while a film plays.</source>
        <translation>Die Untertiteldatei „%1“ kann hinzugefügt werden, während ein Film läuft.</translation>
    </message>
    <message>
        <source>%1 subtitle files can be added while a film plays, the first is &quot;%2&quot;.</source>
        <translation>%1 Untertiteldateien können hinzugefügt werden, während ein Film läuft, die erste ist „%2“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and what follows was left out.</source>
        <translation>„%1“ und alles danach wurde weggelassen.</translation>
    </message>
    <message>
        <source>&quot;%2&quot; and what follows was left out.</source>
        <translation>„%2“ und alles danach wurde weggelassen.</translation>
    </message>
</context>
<context>
    <name>ErrorNote</name>
    <message>
        <source>Your device does not support hardware decoding for H.265 4K videos, and we&apos;ve automatically switched to the software decoding mode, which might possibly cause unsmooth playback.</source>
        <translation>Ihr Gerät unterstützt die Hardware-Dekodierung von H.265-4K-Videos nicht. Es wurde automatisch auf Software-Dekodierung umgeschaltet; die Wiedergabe kann daher ruckeln.</translation>
    </message>
    <message>
        <source>Your computer hardware configuration does not support hardware decoding for 4K UHD Blu-rays.</source>
        <translation>Die Hardware Ihres Computers unterstützt keine Hardware-Dekodierung von 4K-UHD-Blu-rays.</translation>
    </message>
    <message>
        <source>Invalid custom shader, please check and try again.</source>
        <translation>Ungültiger eigener Shader. Bitte prüfen und erneut versuchen.</translation>
    </message>
</context>
<context>
    <name>LanguageManager</name>
    <message>
        <source>Language name of this translation</source>
        <extracomment>The name of the language that this translation is for, in that language.</extracomment>
        <translation>Deutsch</translation>
    </message>
</context>
<context>
    <name>MenuCase</name>
    <message>
        <source>Quorin Player 6 can play back the BDAV discs in Simple mode only, but you can switch titles from the Playlist.</source>
        <translation>Quorin Player 6 kann BDAV-Discs nur im einfachen Modus abspielen, Sie können die Titel aber in der Wiedergabeliste wechseln.</translation>
    </message>
</context>
<context>
    <name>ModeSelectView</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>PC Mode</source>
        <translation>PC-Modus</translation>
    </message>
    <message>
        <source>In a window, with mouse and keyboard</source>
        <translation>Im Fenster, mit Maus und Tastatur</translation>
    </message>
    <message>
        <source>TV Mode</source>
        <translation>TV-Modus</translation>
    </message>
    <message>
        <source>Full screen, with a remote control</source>
        <translation>Im Vollbild, mit Fernbedienung</translation>
    </message>
    <message>
        <source>Remember my choice and don&apos;t ask again</source>
        <translation>Auswahl merken und nicht mehr fragen</translation>
    </message>
    <message>
        <source>How do you want to watch?</source>
        <translation>Wie möchten Sie schauen?</translation>
    </message>
    <message>
        <source>You can change this later in the settings.</source>
        <translation>Sie können dies später in den Einstellungen ändern.</translation>
    </message>
</context>
<context>
    <name>NormalAboutDLg</name>
    <message>
        <source>User interface</source>
        <translation>Benutzeroberfläche</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Formats and codecs</source>
        <translation>Formate und Codecs</translation>
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
        <translation>Medienbibliothek</translation>
    </message>
    <message>
        <source>Music tags</source>
        <translation>Musik-Tags</translation>
    </message>
    <message>
        <source>Foundations</source>
        <translation>Grundlagen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>built on %1</source>
        <translation>erstellt am %1</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliotheken</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later</source>
        <translation>Freie Software unter der GNU General Public License, Version 3 oder später</translation>
    </message>
</context>
<context>
    <name>NormalColorAdjustDlg</name>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Weich</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Color Adjust</source>
        <translation>Farbanpassung</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
</context>
<context>
    <name>NormalDialogFrame</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>NormalLastPositionLabel</name>
    <message>
        <source>Last playback at</source>
        <translation>Zuletzt abgespielt bis</translation>
    </message>
</context>
<context>
    <name>NormalLoadingDlg</name>
    <message>
        <source>Loading ...</source>
        <translation>Wird geladen ...</translation>
    </message>
</context>
<context>
    <name>NormalMainWindow</name>
    <message>
        <source>Failure initializing playback device, please update your video card and sound card drivers. Contact us if that does not fix the problem.</source>
        <translation>Das Wiedergabegerät konnte nicht initialisiert werden. Bitte aktualisieren Sie die Treiber Ihrer Grafik- und Soundkarte. Kontaktieren Sie uns, falls das Problem weiterhin besteht.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Media Files (%1)</source>
        <translation>Mediendateien (%1)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>Medium öffnen...</translation>
    </message>
    <message>
        <source>Subtitle Files (%1)</source>
        <translation>Untertiteldateien (%1)</translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation>Videosteuerung...</translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation>Farbanpassung...</translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation>Untertitel laden...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
</context>
<context>
    <name>NormalMessageBox</name>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Nicht mehr anzeigen</translation>
    </message>
</context>
<context>
    <name>NormalMessageBoxFactory</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>NormalMetaView</name>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Kapitel</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
</context>
<context>
    <name>NormalOperateBar</name>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
</context>
<context>
    <name>NormalPlaySpeedBar</name>
    <message>
        <source>Normal Speed</source>
        <translation>Normale Geschwindigkeit</translation>
    </message>
</context>
<context>
    <name>NormalStartView</name>
    <message>
        <source>Drop a film, a folder or a disc image here to play it.</source>
        <translation>Ziehen Sie einen Film, einen Ordner oder ein Disc-Abbild hierher, um die Wiedergabe zu starten.</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>Medium öffnen...</translation>
    </message>
    <message>
        <source>Recently Played</source>
        <translation>Zuletzt abgespielt</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Clear the list of recently played files</source>
        <translation>Liste der zuletzt abgespielten Dateien leeren</translation>
    </message>
    <message>
        <source>Drop to play</source>
        <translation>Loslassen zum Abspielen</translation>
    </message>
</context>
<context>
    <name>NormalTipLabel</name>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Slow motion %1x</source>
        <translation>Zeitlupe %1x</translation>
    </message>
    <message>
        <source>Fast forward</source>
        <translation>Schnellvorlauf</translation>
    </message>
    <message>
        <source>Fast forward %1x</source>
        <translation>Schnellvorlauf %1x</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Rücklauf</translation>
    </message>
    <message>
        <source>Rewind %1x</source>
        <translation>Rücklauf %1x</translation>
    </message>
</context>
<context>
    <name>NormalTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
</context>
<context>
    <name>NormalTvshowAutoPlayLabel</name>
    <message>
        <source>Play Now</source>
        <translation>Jetzt abspielen</translation>
    </message>
    <message>
        <source>Not this time</source>
        <translation>Diesmal nicht</translation>
    </message>
    <message>
        <source>Up Next: </source>
        <translation>Als Nächstes: </translation>
    </message>
</context>
<context>
    <name>NormalVideoControlDlg</name>
    <message>
        <source>Video Control</source>
        <translation>Videosteuerung</translation>
    </message>
    <message>
        <source>Zoom Amount</source>
        <translation>Zoomfaktor</translation>
    </message>
    <message>
        <source>Vertical Shift</source>
        <translation>Vertikale Verschiebung</translation>
    </message>
    <message>
        <source>Pixel Ratio</source>
        <translation>Pixelverhältnis</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
</context>
<context>
    <name>NormalWaitingDlg</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>PlayFailure</name>
    <message>
        <source>Quorin does not support your UHD drive, please check the supported drives here.</source>
        <translation>Quorin unterstützt Ihr UHD-Laufwerk nicht. Die unterstützten Laufwerke finden Sie hier.</translation>
    </message>
    <message>
        <source>More Info...</source>
        <translation>Weitere Informationen...</translation>
    </message>
    <message>
        <source>Oops! This disc is not supported yet. Please try again at a later time.</source>
        <translation>Hoppla! Diese Disc wird noch nicht unterstützt. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Failed to play back the disc.</source>
        <translation>Die Disc konnte nicht abgespielt werden.</translation>
    </message>
    <message>
        <source>A live Internet is required to play back the disc, please check your network and try again.</source>
        <translation>Zum Abspielen dieser Disc ist eine Internetverbindung erforderlich. Bitte prüfen Sie Ihr Netzwerk und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>An unknown error happened, please update to the newest version at</source>
        <translation>Ein unbekannter Fehler ist aufgetreten. Bitte aktualisieren Sie auf die neueste Version unter</translation>
    </message>
    <message>
        <source>Playback failed.</source>
        <translation>Wiedergabe fehlgeschlagen.</translation>
    </message>
    <message>
        <source>This source can&apos;t be played. It may be damaged, protected or of an unknown format.</source>
        <translation>Diese Quelle kann nicht abgespielt werden. Sie ist möglicherweise beschädigt, geschützt oder hat ein unbekanntes Format.</translation>
    </message>
    <message>
        <source>There is no such file, folder or title.</source>
        <translation>Diese Datei, diesen Ordner oder diesen Titel gibt es nicht.</translation>
    </message>
    <message>
        <source>This source may not be read, or is neither a file nor a folder nor a disc.</source>
        <translation>Diese Quelle darf nicht gelesen werden oder ist weder Datei noch Ordner noch Disc.</translation>
    </message>
    <message>
        <source>There is nothing in this source that can be played.</source>
        <translation>In dieser Quelle ist nichts, was abgespielt werden kann.</translation>
    </message>
    <message>
        <source>There is no disc in this source, or none that can be read.</source>
        <translation>In dieser Quelle ist keine Disc oder keine lesbare.</translation>
    </message>
    <message>
        <source>This source does not answer.</source>
        <translation>Diese Quelle antwortet nicht.</translation>
    </message>
    <message>
        <source>This source ended with an error while it played.</source>
        <translation>Diese Quelle endete beim Abspielen mit einem Fehler.</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Open file</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Feedback senden</translation>
    </message>
    <message>
        <source>Eject the selected disc</source>
        <translation>Ausgewählte Disc auswerfen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Always on top</source>
        <translation>Immer im Vordergrund</translation>
    </message>
    <message>
        <source>Mute on/off</source>
        <translation>Ton ein/aus</translation>
    </message>
    <message>
        <source>Previous Chapter</source>
        <translation>Vorheriges Kapitel</translation>
    </message>
    <message>
        <source>Next Chapter</source>
        <translation>Nächstes Kapitel</translation>
    </message>
    <message>
        <source>Play/pause movie playback</source>
        <translation>Wiedergabe/Pause</translation>
    </message>
    <message>
        <source>Stop Playback</source>
        <translation>Wiedergabe beenden</translation>
    </message>
    <message>
        <source>Increase audio volume</source>
        <translation>Lautstärke erhöhen</translation>
    </message>
    <message>
        <source>Decrease audio volume</source>
        <translation>Lautstärke verringern</translation>
    </message>
    <message>
        <source>Fast Forward</source>
        <translation>Schnellvorlauf</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Rücklauf</translation>
    </message>
    <message>
        <source>Switch Audio</source>
        <translation>Tonspur wechseln</translation>
    </message>
    <message>
        <source>Switch Subtitle</source>
        <translation>Untertitel wechseln</translation>
    </message>
    <message>
        <source>Filp vertically</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Filp horizontally</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>File Information</source>
        <translation>Dateiinformationen</translation>
    </message>
    <message>
        <source>Show Information</source>
        <translation>Informationen anzeigen</translation>
    </message>
    <message>
        <source>Open Smart View</source>
        <translation>Smart View öffnen</translation>
    </message>
    <message>
        <source>Displays the playback menu</source>
        <translation>Wiedergabemenü anzeigen</translation>
    </message>
    <message>
        <source>Pop-up menu</source>
        <translation>Pop-up-Menü</translation>
    </message>
    <message>
        <source>Top menu</source>
        <translation>Hauptmenü</translation>
    </message>
    <message>
        <source>Navigate up in menus</source>
        <translation>In Menüs nach oben</translation>
    </message>
    <message>
        <source>Navigate down in menus</source>
        <translation>In Menüs nach unten</translation>
    </message>
    <message>
        <source>Navigate left in menus</source>
        <translation>In Menüs nach links</translation>
    </message>
    <message>
        <source>Navigate right in menus</source>
        <translation>In Menüs nach rechts</translation>
    </message>
    <message>
        <source>Accepts the selected menu</source>
        <translation>Ausgewähltes Menü bestätigen</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>Schnappschuss aufnehmen</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Nächstes Bild</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Vorheriges Bild</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Sec</source>
        <translation>Sek.</translation>
    </message>
    <message>
        <source>CW</source>
        <translation>im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>CCW</source>
        <translation>gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>File error: </source>
        <translation>Dateifehler: </translation>
    </message>
</context>
<context>
    <name>QPlayer</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>RecentCard</name>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Last playback at %1</source>
        <translation>Zuletzt abgespielt bis %1</translation>
    </message>
</context>
<context>
    <name>ScreenshotWriter</name>
    <message>
        <source>There is no picture to save.</source>
        <translation>Es gibt kein Bild zum Speichern.</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: the folder &quot;%1&quot; does not exist.</source>
        <translation>Der Schnappschuss konnte nicht gespeichert werden: Der Ordner „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: the folder &quot;%1&quot; is not writable.</source>
        <translation>Der Schnappschuss konnte nicht gespeichert werden: Der Ordner „%1“ ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: there is no free space in the folder &quot;%1&quot;.</source>
        <translation>Der Schnappschuss konnte nicht gespeichert werden: Im Ordner „%1“ ist kein Speicherplatz frei.</translation>
    </message>
    <message>
        <source>The snapshot could not be saved in the folder &quot;%1&quot;.</source>
        <translation>Der Schnappschuss konnte nicht im Ordner „%1“ gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>ThreeDMenu</name>
    <message>
        <source>Auto Detect</source>
        <translation>Automatisch erkennen</translation>
    </message>
    <message>
        <source>Side by Side</source>
        <translation>Nebeneinander</translation>
    </message>
    <message>
        <source>Top / Bottom</source>
        <translation>Oben / unten</translation>
    </message>
    <message>
        <source>Play 3D Media in 3D</source>
        <translation>3D-Medien in 3D wiedergeben</translation>
    </message>
    <message>
        <source>Convert 2D Media to 3D</source>
        <translation>2D-Medien in 3D umwandeln</translation>
    </message>
    <message>
        <source>3D Source Format</source>
        <translation>3D-Quellformat</translation>
    </message>
    <message>
        <source>More 3D Settings</source>
        <translation>Weitere 3D-Einstellungen</translation>
    </message>
    <message>
        <source>Oops! 3D playback support is only available on Windows 8/10 for now.</source>
        <translation>Hoppla! 3D-Wiedergabe wird derzeit nur unter Windows 8/10 unterstützt.</translation>
    </message>
</context>
<context>
    <name>TvPlayingWidget</name>
    <message>
        <source>Playback Failed!</source>
        <translation>Wiedergabe fehlgeschlagen!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Failure initializing playback device, please update your video card and sound card drivers. Contact us if that does not fix the problem.</source>
        <translation>Das Wiedergabegerät konnte nicht initialisiert werden. Bitte aktualisieren Sie die Treiber Ihrer Grafik- und Soundkarte. Kontaktieren Sie uns, falls das Problem weiterhin besteht.</translation>
    </message>
    <message>
        <source>This source can&apos;t be played. It may be damaged, protected or of an unknown format.</source>
        <translation>Diese Quelle kann nicht abgespielt werden. Sie ist möglicherweise beschädigt, geschützt oder hat ein unbekanntes Format.</translation>
    </message>
</context>
<context>
    <name>TvStartWidget</name>
    <message>
        <source>Ready to play</source>
        <translation>Bereit zur Wiedergabe</translation>
    </message>
    <message>
        <source>Open a film with the player to watch it here.</source>
        <translation>Öffnen Sie einen Film mit dem Player, um ihn hier anzusehen.</translation>
    </message>
</context>
</TS>
