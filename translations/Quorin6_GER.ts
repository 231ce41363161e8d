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
    <name>AudioPage</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (nicht verbunden)</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>Kein Gerät</translation>
    </message>
</context>
<context>
    <name>Display3DPage</name>
    <message>
        <source>Oops! 3D playback support is only available on Windows 8/10 for now.</source>
        <translation>Hoppla! 3D-Wiedergabe wird derzeit nur unter Windows 8/10 unterstützt.</translation>
    </message>
    <message>
        <source>Oops! The selected device does not support this mode yet. Quorin Player 6 will revert to the previous setting.</source>
        <translation>Das ausgewählte Gerät unterstützt diesen Modus noch nicht. Quorin Player 6 kehrt zur vorherigen Einstellung zurück.</translation>
    </message>
    <message>
        <source>Oops! There are multiple displays detected. To use HDMI 1.4 3D output, we suggest that you keep only one display.</source>
        <translation>Es wurden mehrere Bildschirme erkannt. Für die 3D-Ausgabe über HDMI 1.4 empfehlen wir, nur einen Bildschirm zu verwenden.</translation>
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
    <name>FileAssociationList</name>
    <message>
        <source>Please write each extension as *.mkv and separate them by semicolons.</source>
        <translation>Bitte schreiben Sie jede Endung als *.mkv und trennen Sie sie durch Semikolons.</translation>
    </message>
    <message>
        <source>Oops! This file extension is not supported yet.</source>
        <translation>Diese Dateiendung wird noch nicht unterstützt.</translation>
    </message>
</context>
<context>
    <name>FolderEdit</name>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
</context>
<context>
    <name>FolderProbe</name>
    <message>
        <source>This folder does not exist.</source>
        <translation>Dieser Ordner existiert nicht.</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>Das ist kein Ordner.</translation>
    </message>
    <message>
        <source>This folder cannot be read.</source>
        <translation>Dieser Ordner kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>In diesen Ordner kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>This folder does not answer.</source>
        <translation>Dieser Ordner antwortet nicht.</translation>
    </message>
</context>
<context>
    <name>HotKeysPage</name>
    <message>
        <source>Press Enter on a row and then the new key. Delete takes the key away.</source>
        <translation>Drücken Sie auf einer Zeile die Eingabetaste und dann die neue Taste. Entf nimmt die Taste weg.</translation>
    </message>
    <message>
        <source>%1 was the key of &quot;%2&quot;, which has none now.</source>
        <translation>%1 war die Taste für &quot;%2&quot;, das jetzt keine mehr hat.</translation>
    </message>
</context>
<context>
    <name>KeySequenceEditWidget</name>
    <message>
        <source>New key</source>
        <translation>Neue Taste</translation>
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
    <name>LibraryPage</name>
    <message>
        <source>Are you sure to clear and rebuild your library?</source>
        <translation>Möchten Sie Ihre Bibliothek wirklich leeren und neu aufbauen?</translation>
    </message>
    <message>
        <source>Rebuild</source>
        <translation>Neu aufbauen</translation>
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
    <name>NormalKeyConflictTipsDialog</name>
    <message>
        <source>The hotkey you just chose was previously used for another action. That one has been rendered useless.</source>
        <translation>Die gewählte Taste war bereits einer anderen Aktion zugeordnet. Diese Zuordnung ist jetzt aufgehoben.</translation>
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
    <message>
        <source>Settings...</source>
        <translation>Einstellungen...</translation>
    </message>
    <message>
        <source>To add to the library, please specify the library type for the directory.</source>
        <translation>Um das Verzeichnis zur Bibliothek hinzuzufügen, geben Sie bitte dessen Bibliothekstyp an.</translation>
    </message>
    <message>
        <source>Movies &amp; TV Shows</source>
        <translation>Filme und Serien</translation>
    </message>
    <message>
        <source>Adult</source>
        <translation>Erwachsene</translation>
    </message>
    <message>
        <source>Feedback can&apos;t be sent: this version of the program has no address for it.</source>
        <translation>Feedback kann nicht gesendet werden: Diese Version des Programms hat keine Adresse dafür.</translation>
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
    <name>NormalPlaylistSwitch</name>
    <message>
        <source>Close the playlist</source>
        <translation>Wiedergabeliste schließen</translation>
    </message>
    <message>
        <source>Open the playlist</source>
        <translation>Wiedergabeliste öffnen</translation>
    </message>
</context>
<context>
    <name>NormalPlaylistView</name>
    <message>
        <source>Playlist</source>
        <translation>Wiedergabeliste</translation>
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
        <source>AddFile...</source>
        <translation>Datei hinzufügen...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>Ordner hinzufügen...</translation>
    </message>
</context>
<context>
    <name>NormalPreviewView</name>
    <message>
        <source>Smart Preview</source>
        <translation>Smarte Vorschau</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>There are no preview pictures for this source.</source>
        <translation>Für diese Quelle gibt es keine Vorschaubilder.</translation>
    </message>
</context>
<context>
    <name>NormalSettingPage</name>
    <message>
        <source>Files with these extensions open with Quorin Player 6 when they are double clicked.</source>
        <translation>Dateien mit diesen Endungen öffnen sich bei einem Doppelklick mit Quorin Player 6.</translation>
    </message>
    <message>
        <source>To change your default apps, go to Settings &gt; System &gt; Default apps.</source>
        <translation>Um Ihre Standard-Apps zu ändern, gehen Sie zu Einstellungen &gt; System &gt; Standard-Apps.</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>Systemeinstellungen</translation>
    </message>
    <message>
        <source>PC Mode</source>
        <translation>PC-Modus</translation>
    </message>
    <message>
        <source>TV Mode</source>
        <translation>TV-Modus</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Alle zurücksetzen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>The media library is not available.</source>
        <translation>Die Medienbibliothek ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Update Library</source>
        <translation>Bibliothek aktualisieren</translation>
    </message>
    <message>
        <source>Rebuild Library</source>
        <translation>Bibliothek neu aufbauen</translation>
    </message>
    <message>
        <source>Add New Directory</source>
        <translation>Neuen Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>The file associations were not changed.</source>
        <translation>Die Dateizuordnungen wurden nicht geändert.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>3D Display</source>
        <translation>3D-Anzeige</translation>
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
        <source>Blu-ray</source>
        <translation>Blu-ray</translation>
    </message>
    <message>
        <source>File Association</source>
        <translation>Dateizuordnung</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Schnappschuss</translation>
    </message>
    <message>
        <source>HotKeys</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Same as UI language</source>
        <translation>Wie Sprache der Oberfläche</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Simple Mode</source>
        <translation>Einfacher Modus</translation>
    </message>
    <message>
        <source>Menu Mode</source>
        <translation>Menümodus</translation>
    </message>
    <message>
        <source>Always match to the original video size</source>
        <translation>Immer an die Originalgröße des Videos anpassen</translation>
    </message>
    <message>
        <source>Always remember the last choice</source>
        <translation>Immer die letzte Auswahl merken</translation>
    </message>
    <message>
        <source>UI Language</source>
        <translation>Sprache der Oberfläche</translation>
    </message>
    <message>
        <source>Launch Mode</source>
        <translation>Startmodus</translation>
    </message>
    <message>
        <source>Ask me each time</source>
        <translation>Jedes Mal fragen</translation>
    </message>
    <message>
        <source>Window size</source>
        <translation>Fenstergröße</translation>
    </message>
    <message>
        <source>Log Path</source>
        <translation>Protokollordner</translation>
    </message>
    <message>
        <source>Auto play when disc inserted</source>
        <translation>Automatische Wiedergabe beim Einlegen einer Disc</translation>
    </message>
    <message>
        <source>Pause play when minimized</source>
        <translation>Wiedergabe beim Minimieren anhalten</translation>
    </message>
    <message>
        <source>Remember the last playback position</source>
        <translation>Letzte Wiedergabeposition merken</translation>
    </message>
    <message>
        <source>Disable Screensaver</source>
        <translation>Bildschirmschoner deaktivieren</translation>
    </message>
    <message>
        <source>Allow multiple instances</source>
        <translation>Mehrere Instanzen zulassen</translation>
    </message>
    <message>
        <source>Check for new version automatically</source>
        <translation>Automatisch nach neuer Version suchen</translation>
    </message>
    <message>
        <source>Show progress in taskbar</source>
        <translation>Fortschritt in der Taskleiste anzeigen</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Discs</translation>
    </message>
    <message>
        <source>DVD Playback Mode</source>
        <translation>DVD-Wiedergabemodus</translation>
    </message>
    <message>
        <source>UHD / Blu-ray Playback Mode</source>
        <translation>UHD- / Blu-ray-Wiedergabemodus</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Sprachen</translation>
    </message>
    <message>
        <source>Menu language</source>
        <translation>Menüsprache</translation>
    </message>
    <message>
        <source>Audio language</source>
        <translation>Tonsprache</translation>
    </message>
    <message>
        <source>Subtitle language</source>
        <translation>Untertitelsprache</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>Show tips for playback status</source>
        <translation>Hinweise zum Wiedergabestatus anzeigen</translation>
    </message>
    <message>
        <source>Enable the library for adult contents</source>
        <translation>Bibliothek für Erwachseneninhalte aktivieren</translation>
    </message>
    <message>
        <source>Decoding</source>
        <translation>Dekodierung</translation>
    </message>
    <message>
        <source>Enable Hardware Acceleration Decoding</source>
        <translation>Hardwarebeschleunigte Dekodierung aktivieren</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Enable HDR</source>
        <translation>HDR aktivieren</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Force HDR-&gt;SDR</source>
        <translation>HDR-&gt;SDR erzwingen</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>Tonwertabbildung</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>Einfach</translation>
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
        <translation>Leuchtdichte:</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Output Color Range </source>
        <translation>Farbbereich der Ausgabe </translation>
    </message>
    <message>
        <source>Full Color Range (0-255)</source>
        <translation>Voller Farbbereich (0-255)</translation>
    </message>
    <message>
        <source>Limited Color Range (16-235)</source>
        <translation>Begrenzter Farbbereich (16-235)</translation>
    </message>
    <message>
        <source>Enable 3D Playback Engine (effective upon next playback)</source>
        <translation>3D-Wiedergabe aktivieren (ab der nächsten Wiedergabe wirksam)</translation>
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
        <source>3D Display Device</source>
        <translation>3D-Anzeigegerät</translation>
    </message>
    <message>
        <source>Anaglyph Red/Cyan Mode</source>
        <translation>Anaglyph Rot/Cyan</translation>
    </message>
    <message>
        <source>3D-Ready HDTV (Checkerboard)</source>
        <translation>3D-Ready-HDTV (Schachbrett)</translation>
    </message>
    <message>
        <source>Micro-polarizer LCD 3D (Row-interleaved)</source>
        <translation>Mikropolarisator-LCD 3D (zeilenweise)</translation>
    </message>
    <message>
        <source>HDMI 1.4 enabled 3D TV</source>
        <translation>3D-Fernseher mit HDMI 1.4</translation>
    </message>
    <message>
        <source>Swap eye view</source>
        <translation>Ansicht der Augen tauschen</translation>
    </message>
    <message>
        <source>Left view first</source>
        <translation>Linke Ansicht zuerst</translation>
    </message>
    <message>
        <source>Right view first</source>
        <translation>Rechte Ansicht zuerst</translation>
    </message>
    <message>
        <source>Output Mode</source>
        <translation>Ausgabemodus</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Analog</source>
        <translation>Analog</translation>
    </message>
    <message>
        <source>Optical/Coax</source>
        <translation>Optisch/Koaxial</translation>
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
        <translation>Ausgabegerät</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Lautsprecher</translation>
    </message>
    <message>
        <source>Passthrough</source>
        <translation>Durchleitung</translation>
    </message>
    <message>
        <source>Enable Audio Passthrough</source>
        <translation>Audio-Durchleitung aktivieren</translation>
    </message>
    <message>
        <source>Dolby Digital(AC3) capable receiver</source>
        <translation>Receiver für Dolby Digital(AC3)</translation>
    </message>
    <message>
        <source>DTS capable receiver</source>
        <translation>Receiver für DTS</translation>
    </message>
    <message>
        <source>TrueHD/DTS-HD capable receiver</source>
        <translation>Receiver für TrueHD/DTS-HD</translation>
    </message>
    <message>
        <source>Level and timing</source>
        <translation>Pegel und Zeit</translation>
    </message>
    <message>
        <source>Volume Amplification</source>
        <translation>Lautstärkeverstärkung</translation>
    </message>
    <message>
        <source>Audio Offset</source>
        <translation>Tonversatz</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>Charset</source>
        <translation>Zeichensatz</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>OutLine Color</source>
        <translation>Konturfarbe</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Override Ass/SSA subtitles config</source>
        <translation>Einstellungen von Ass/SSA-Untertiteln überschreiben</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Subtitle Offset</source>
        <translation>Untertitelversatz</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Region A</source>
        <translation>Region A</translation>
    </message>
    <message>
        <source>Region B</source>
        <translation>Region B</translation>
    </message>
    <message>
        <source>Region C</source>
        <translation>Region C</translation>
    </message>
    <message>
        <source>Enable Blu-ray 3D playback when in Simple Mode</source>
        <translation>Blu-ray-3D-Wiedergabe im einfachen Modus aktivieren</translation>
    </message>
    <message>
        <source>Skip FBI warnings</source>
        <translation>FBI-Warnungen überspringen</translation>
    </message>
    <message>
        <source>Jump to Blu-ray menu directly</source>
        <translation>Direkt zum Blu-ray-Menü springen</translation>
    </message>
    <message>
        <source>Set File Associations</source>
        <translation>Dateizuordnungen festlegen</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Speicherort</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Save to clipboard simultaneously(you can paste it directly)</source>
        <translation>Gleichzeitig in die Zwischenablage kopieren (zum direkten Einfügen)</translation>
    </message>
    <message>
        <source>Use IE proxy</source>
        <translation>IE-Proxy verwenden</translation>
    </message>
    <message>
        <source>Use the system&apos;s proxy</source>
        <translation>Proxy des Systems verwenden</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Do not use proxy</source>
        <translation>Keinen Proxy verwenden</translation>
    </message>
    <message>
        <source>Use manual proxy</source>
        <translation>Proxy manuell angeben</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Kennwort</translation>
    </message>
    <message>
        <source>Analyze Hardware</source>
        <translation>Hardware analysieren</translation>
    </message>
    <message>
        <source>The settings are in use, but could not be written to the disk:
%1
They will be lost when the program ends, unless there is room until then.</source>
        <translation>Die Einstellungen gelten, konnten aber nicht auf den Datenträger geschrieben werden:
%1
Sie gehen mit dem Ende des Programms verloren, wenn bis dahin kein Platz frei wird.</translation>
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
    <name>PlayMenu</name>
    <message>
        <source>Open Media...</source>
        <translation>Medium öffnen...</translation>
    </message>
    <message>
        <source>Open Disc</source>
        <translation>Disc öffnen</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Kapitel</translation>
    </message>
    <message>
        <source>Top Menu</source>
        <translation>Hauptmenü</translation>
    </message>
    <message>
        <source>Pop Menu</source>
        <translation>Pop-up-Menü</translation>
    </message>
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
        <source>Playback</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Shaders</source>
        <translation>Shader</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Always on Top</source>
        <translation>Immer im Vordergrund</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Einstellungen...</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Seitenverhältnis</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>Zeilenentflechtung</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
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
        <source>Take Snapshot</source>
        <translation>Schnappschuss aufnehmen</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Fit Window</source>
        <translation>An Fenster anpassen</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Rotate 90 degree CW</source>
        <translation>Um 90 Grad nach rechts drehen</translation>
    </message>
    <message>
        <source>Rotate 90 degree CCW</source>
        <translation>Um 90 Grad nach links drehen</translation>
    </message>
    <message>
        <source>Rotate 180 degree</source>
        <translation>Um 180 Grad drehen</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Cycle Through Audio Track</source>
        <translation>Nächste Tonspur</translation>
    </message>
    <message>
        <source>Cycle Through Subtitle Track</source>
        <translation>Nächster Untertitel</translation>
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
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
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
        <source>Rewind</source>
        <translation>Rücklauf</translation>
    </message>
    <message>
        <source>Fast Forward</source>
        <translation>Schnellvorlauf</translation>
    </message>
    <message>
        <source>Normal Speed</source>
        <translation>Normale Geschwindigkeit</translation>
    </message>
    <message>
        <source>10 Sec. Backward</source>
        <translation>10 Sek. zurück</translation>
    </message>
    <message>
        <source>10 Sec. Forward</source>
        <translation>10 Sek. vor</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>Kapitel %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
</context>
<context>
    <name>PlayQueueModel</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source> (Main)</source>
        <translation> (Hauptfilm)</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
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
    <name>QueueDelegate</name>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
</context>
<context>
    <name>QueueEmptyPage</name>
    <message>
        <source>The playlist is empty.</source>
        <translation>Die Wiedergabeliste ist leer.</translation>
    </message>
    <message>
        <source>Drop files or folders here, or add them with a right click.</source>
        <translation>Ziehen Sie Dateien oder Ordner hierher, oder fügen Sie sie mit einem Rechtsklick hinzu.</translation>
    </message>
</context>
<context>
    <name>QueueHead</name>
    <message>
        <source>Playlist</source>
        <translation>Wiedergabeliste</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>QueueMenus</name>
    <message>
        <source>AddFile...</source>
        <translation>Datei hinzufügen...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>Ordner hinzufügen...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove Invalid</source>
        <translation>Ungültige entfernen</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Übergeordneten Ordner öffnen</translation>
    </message>
    <message>
        <source>Sort by Name</source>
        <translation>Nach Name sortieren</translation>
    </message>
    <message>
        <source>Sort by Type</source>
        <translation>Nach Typ sortieren</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>Einmal</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>Der Reihe nach</translation>
    </message>
    <message>
        <source>Shuffle</source>
        <translation>Zufällig</translation>
    </message>
    <message>
        <source>Repeat One</source>
        <translation>Eines wiederholen</translation>
    </message>
    <message>
        <source>Repeat All</source>
        <translation>Alle wiederholen</translation>
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
    <name>SettingRowWidget</name>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>Please enter the address of the proxy.</source>
        <translation>Bitte geben Sie die Adresse des Proxys ein.</translation>
    </message>
    <message>
        <source>Please enter the address alone, as proxy.example.org or 192.168.0.1.</source>
        <translation>Bitte geben Sie nur die Adresse ein, etwa proxy.example.org oder 192.168.0.1.</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>Der Port ist eine Zahl von 1 bis 65535.</translation>
    </message>
</context>
<context>
    <name>SmartPreview</name>
    <message>
        <source>The Smart Preview feature on DVDs and Blu-rays is coming soon!</source>
        <translation>Die smarte Vorschau für DVDs und Blu-rays kommt bald!</translation>
    </message>
</context>
<context>
    <name>SubtitleCharsets</name>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
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
        <translation>Westeuropäisch</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Mitteleuropäisch</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Baltisch</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Kyrillisch</translation>
    </message>
    <message>
        <source>Cyrillic (KOI8-R)</source>
        <translation>Kyrillisch (KOI8-R)</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griechisch</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Türkisch</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebräisch</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabisch</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamesisch</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thailändisch</translation>
    </message>
    <message>
        <source>Chinese Simplified</source>
        <translation>Chinesisch (vereinfacht)</translation>
    </message>
    <message>
        <source>Chinese Traditional</source>
        <translation>Chinesisch (traditionell)</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanisch</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreanisch</translation>
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
<context>
    <name>VideoPage</name>
    <message>
        <source>The analysis could not be started.</source>
        <translation>Die Analyse konnte nicht gestartet werden.</translation>
    </message>
</context>
</TS>
