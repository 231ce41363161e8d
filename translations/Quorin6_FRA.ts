<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>AnimateMenu</name>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>Ouvrir un média...</translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation>Contrôle vidéo...</translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation>Réglage des couleurs...</translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation>Charger des sous-titres...</translation>
    </message>
    <message>
        <source>Subtitle Setting...</source>
        <translation>Paramètres des sous-titres...</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Paramètres...</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>Forum</source>
        <translation>Forum</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
</context>
<context>
    <name>AudioPage</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (non connecté)</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>Aucun périphérique</translation>
    </message>
</context>
<context>
    <name>Display3DPage</name>
    <message>
        <source>Oops! 3D playback support is only available on Windows 8/10 for now.</source>
        <translation>Oups ! La lecture 3D n’est disponible que sous Windows 8/10 pour le moment.</translation>
    </message>
    <message>
        <source>Oops! The selected device does not support this mode yet. Quorin Player 6 will revert to the previous setting.</source>
        <translation>Le périphérique choisi ne prend pas encore ce mode en charge. Quorin Player 6 revient au réglage précédent.</translation>
    </message>
    <message>
        <source>Oops! There are multiple displays detected. To use HDMI 1.4 3D output, we suggest that you keep only one display.</source>
        <translation>Plusieurs écrans ont été détectés. Pour la sortie 3D HDMI 1.4, nous vous conseillons de n&apos;en garder qu&apos;un.</translation>
    </message>
</context>
<context>
    <name>DropRule</name>
    <message>
        <source>&quot;%1&quot; is not a file on this computer.</source>
        <translation>« %1 » n’est pas un fichier de cet ordinateur.</translation>
    </message>
    <message>
        <source>%1 of them are not files on this computer, the first is &quot;%2&quot;.</source>
        <translation>%1 d’entre eux ne sont pas des fichiers de cet ordinateur, le premier est « %2 ».</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>Le fichier « %1 » n’existe pas.</translation>
    </message>
    <message>
        <source>%1 files do not exist, the first is &quot;%2&quot;.</source>
        <translation>%1 fichiers n’existent pas, le premier est « %2 ».</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; can&apos;t be read.</source>
        <translation>Le fichier « %1 » ne peut pas être lu.</translation>
    </message>
    <message>
        <source>%1 files can&apos;t be read, the first is &quot;%2&quot;.</source>
        <translation>%1 fichiers ne peuvent pas être lus, le premier est « %2 ».</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be read.</source>
        <translation>Le dossier « %1 » ne peut pas être lu.</translation>
    </message>
    <message>
        <source>%1 folders can&apos;t be read, the first is &quot;%2&quot;.</source>
        <translation>%1 dossiers ne peuvent pas être lus, le premier est « %2 ».</translation>
    </message>
    <message>
        <source>There is nothing in the folder &quot;%1&quot; that can be played.</source>
        <translation>Le dossier « %1 » ne contient rien qui puisse être lu.</translation>
    </message>
    <message>
        <source>There is nothing in %1 folders that can be played, the first is &quot;%2&quot;.</source>
        <translation>%1 dossiers ne contiennent rien qui puisse être lu, le premier est « %2 ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a media file.</source>
        <translation>« %1 » n’est pas un fichier multimédia.</translation>
    </message>
    <message>
        <source>%1 of them are not media files, the first is &quot;%2&quot;.</source>
        <translation>%1 d’entre eux ne sont pas des fichiers multimédias, le premier est « %2 ».</translation>
    </message>
    <message>
        <source>The subtitle file &quot;%1&quot; can be added while a film plays.</source>
        <translation>Le fichier de sous-titres « %1 » peut être ajouté pendant la lecture d’un film.</translation>
    </message>
    <message>
        <source>%1 subtitle files can be added while a film plays, the first is &quot;%2&quot;.</source>
        <translation>%1 fichiers de sous-titres peuvent être ajoutés pendant la lecture d’un film, le premier est « %2 ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and what follows was left out.</source>
        <translation>« %1 » et la suite ont été laissés de côté.</translation>
    </message>
    <message>
        <source>&quot;%2&quot; and what follows was left out.</source>
        <translation>« %2 » et la suite ont été laissés de côté.</translation>
    </message>
</context>
<context>
    <name>ErrorNote</name>
    <message>
        <source>Your device does not support hardware decoding for H.265 4K videos, and we&apos;ve automatically switched to the software decoding mode, which might possibly cause unsmooth playback.</source>
        <translation>Votre appareil ne prend pas en charge le décodage matériel des vidéos H.265 4K. Le décodage logiciel a été activé automatiquement ; la lecture peut manquer de fluidité.</translation>
    </message>
    <message>
        <source>Your computer hardware configuration does not support hardware decoding for 4K UHD Blu-rays.</source>
        <translation>La configuration matérielle de votre ordinateur ne prend pas en charge le décodage matériel des Blu-ray UHD 4K.</translation>
    </message>
    <message>
        <source>Invalid custom shader, please check and try again.</source>
        <translation>Shader personnalisé non valide. Vérifiez-le et réessayez.</translation>
    </message>
</context>
<context>
    <name>FileAssociationList</name>
    <message>
        <source>Please write each extension as *.mkv and separate them by semicolons.</source>
        <translation>Écrivez chaque extension sous la forme *.mkv, séparées par des points-virgules.</translation>
    </message>
    <message>
        <source>Oops! This file extension is not supported yet.</source>
        <translation>Cette extension de fichier n&apos;est pas encore prise en charge.</translation>
    </message>
</context>
<context>
    <name>FolderEdit</name>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
</context>
<context>
    <name>FolderProbe</name>
    <message>
        <source>This folder does not exist.</source>
        <translation>Ce dossier n&apos;existe pas.</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>Ce n&apos;est pas un dossier.</translation>
    </message>
    <message>
        <source>This folder cannot be read.</source>
        <translation>Ce dossier ne peut pas être lu.</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>Impossible d&apos;écrire dans ce dossier.</translation>
    </message>
    <message>
        <source>This folder does not answer.</source>
        <translation>Ce dossier ne répond pas.</translation>
    </message>
</context>
<context>
    <name>HotKeysPage</name>
    <message>
        <source>Press Enter on a row and then the new key. Delete takes the key away.</source>
        <translation>Appuyez sur Entrée sur une ligne, puis sur la nouvelle touche. Suppr retire la touche.</translation>
    </message>
    <message>
        <source>%1 was the key of &quot;%2&quot;, which has none now.</source>
        <translation>%1 était la touche de &quot;%2&quot;, qui n&apos;en a plus.</translation>
    </message>
</context>
<context>
    <name>KeySequenceEditWidget</name>
    <message>
        <source>New key</source>
        <translation>Nouvelle touche</translation>
    </message>
</context>
<context>
    <name>LanguageManager</name>
    <message>
        <source>Language name of this translation</source>
        <extracomment>The name of the language that this translation is for, in that language.</extracomment>
        <translation>Français</translation>
    </message>
</context>
<context>
    <name>LibraryPage</name>
    <message>
        <source>Are you sure to clear and rebuild your library?</source>
        <translation>Voulez-vous vraiment vider et reconstruire votre bibliothèque ?</translation>
    </message>
    <message>
        <source>Rebuild</source>
        <translation>Reconstruire</translation>
    </message>
</context>
<context>
    <name>MenuCase</name>
    <message>
        <source>Quorin Player 6 can play back the BDAV discs in Simple mode only, but you can switch titles from the Playlist.</source>
        <translation>Quorin Player 6 ne peut lire les disques BDAV qu’en mode simple, mais vous pouvez changer de titre depuis la liste de lecture.</translation>
    </message>
</context>
<context>
    <name>ModeSelectView</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>PC Mode</source>
        <translation>Mode PC</translation>
    </message>
    <message>
        <source>In a window, with mouse and keyboard</source>
        <translation>Dans une fenêtre, avec souris et clavier</translation>
    </message>
    <message>
        <source>TV Mode</source>
        <translation>Mode TV</translation>
    </message>
    <message>
        <source>Full screen, with a remote control</source>
        <translation>En plein écran, avec une télécommande</translation>
    </message>
    <message>
        <source>Remember my choice and don&apos;t ask again</source>
        <translation>Mémoriser mon choix et ne plus demander</translation>
    </message>
    <message>
        <source>How do you want to watch?</source>
        <translation>Comment souhaitez-vous regarder ?</translation>
    </message>
    <message>
        <source>You can change this later in the settings.</source>
        <translation>Vous pourrez modifier ce choix plus tard dans les paramètres.</translation>
    </message>
</context>
<context>
    <name>NormalAboutDLg</name>
    <message>
        <source>User interface</source>
        <translation>Interface utilisateur</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Formats and codecs</source>
        <translation>Formats et codecs</translation>
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
        <translation>Médiathèque</translation>
    </message>
    <message>
        <source>Music tags</source>
        <translation>Étiquettes musicales</translation>
    </message>
    <message>
        <source>Foundations</source>
        <translation>Fondations</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
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
        <translation>compilé le %1</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliothèques</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later</source>
        <translation>Logiciel libre sous licence publique générale GNU, version 3 ou ultérieure</translation>
    </message>
</context>
<context>
    <name>NormalColorAdjustDlg</name>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Doux</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Lumineux</translation>
    </message>
    <message>
        <source>Color Adjust</source>
        <translation>Réglage des couleurs</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
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
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>NormalKeyConflictTipsDialog</name>
    <message>
        <source>The hotkey you just chose was previously used for another action. That one has been rendered useless.</source>
        <translation>La touche choisie servait à une autre action, qui n&apos;en a plus.</translation>
    </message>
</context>
<context>
    <name>NormalLastPositionLabel</name>
    <message>
        <source>Last playback at</source>
        <translation>Dernière lecture à</translation>
    </message>
</context>
<context>
    <name>NormalLoadingDlg</name>
    <message>
        <source>Loading ...</source>
        <translation>Chargement...</translation>
    </message>
</context>
<context>
    <name>NormalMainWindow</name>
    <message>
        <source>Failure initializing playback device, please update your video card and sound card drivers. Contact us if that does not fix the problem.</source>
        <translation>Échec de l’initialisation du périphérique de lecture. Mettez à jour les pilotes de vos cartes graphique et son. Si le problème persiste, contactez-nous.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Media Files (%1)</source>
        <translation>Fichiers multimédias (%1)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>Ouvrir un média...</translation>
    </message>
    <message>
        <source>Subtitle Files (%1)</source>
        <translation>Fichiers de sous-titres (%1)</translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation>Contrôle vidéo...</translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation>Réglage des couleurs...</translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation>Charger des sous-titres...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Paramètres...</translation>
    </message>
    <message>
        <source>To add to the library, please specify the library type for the directory.</source>
        <translation>Pour l&apos;ajouter à la bibliothèque, indiquez le type de bibliothèque du dossier.</translation>
    </message>
    <message>
        <source>Movies &amp; TV Shows</source>
        <translation>Films et séries</translation>
    </message>
    <message>
        <source>Adult</source>
        <translation>Adulte</translation>
    </message>
    <message>
        <source>Feedback can&apos;t be sent: this version of the program has no address for it.</source>
        <translation>Impossible d&apos;envoyer des commentaires : cette version du programme n&apos;a pas d&apos;adresse pour cela.</translation>
    </message>
</context>
<context>
    <name>NormalMessageBox</name>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Ne plus afficher</translation>
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
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>NormalMetaView</name>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Sous-titres</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Chapitre</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
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
        <translation>Volume</translation>
    </message>
</context>
<context>
    <name>NormalPlaySpeedBar</name>
    <message>
        <source>Normal Speed</source>
        <translation>Vitesse normale</translation>
    </message>
</context>
<context>
    <name>NormalPlaylistSwitch</name>
    <message>
        <source>Close the playlist</source>
        <translation>Fermer la liste de lecture</translation>
    </message>
    <message>
        <source>Open the playlist</source>
        <translation>Ouvrir la liste de lecture</translation>
    </message>
</context>
<context>
    <name>NormalPlaylistView</name>
    <message>
        <source>Playlist</source>
        <translation>Liste de lecture</translation>
    </message>
    <message>
        <source>Media Files (%1)</source>
        <translation>Fichiers multimédias (%1)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>AddFile...</source>
        <translation>Ajouter un fichier...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>Ajouter un dossier...</translation>
    </message>
</context>
<context>
    <name>NormalPreviewView</name>
    <message>
        <source>Smart Preview</source>
        <translation>Aperçu intelligent</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>There are no preview pictures for this source.</source>
        <translation>Aucune image d’aperçu n’est disponible pour cette source.</translation>
    </message>
</context>
<context>
    <name>NormalSettingPage</name>
    <message>
        <source>Files with these extensions open with Quorin Player 6 when they are double clicked.</source>
        <translation>Les fichiers portant ces extensions s&apos;ouvrent avec Quorin Player 6 par un double clic.</translation>
    </message>
    <message>
        <source>To change your default apps, go to Settings &gt; System &gt; Default apps.</source>
        <translation>Pour changer vos applications par défaut, allez dans Paramètres &gt; Système &gt; Applications par défaut.</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>Paramètres du système</translation>
    </message>
    <message>
        <source>PC Mode</source>
        <translation>Mode PC</translation>
    </message>
    <message>
        <source>TV Mode</source>
        <translation>Mode TV</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Tout réinitialiser</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler la modification</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Touche</translation>
    </message>
    <message>
        <source>The media library is not available.</source>
        <translation>La médiathèque n&apos;est pas disponible.</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vidéos</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musique</translation>
    </message>
    <message>
        <source>Update Library</source>
        <translation>Mettre à jour la bibliothèque</translation>
    </message>
    <message>
        <source>Rebuild Library</source>
        <translation>Reconstruire la bibliothèque</translation>
    </message>
    <message>
        <source>Add New Directory</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>The file associations were not changed.</source>
        <translation>Les associations de fichiers n&apos;ont pas été modifiées.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothèque</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>3D Display</source>
        <translation>Affichage 3D</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Sous-titres</translation>
    </message>
    <message>
        <source>Blu-ray</source>
        <translation>Blu-ray</translation>
    </message>
    <message>
        <source>File Association</source>
        <translation>Association de fichiers</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Capture</translation>
    </message>
    <message>
        <source>HotKeys</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Same as UI language</source>
        <translation>Comme l&apos;interface</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Simple Mode</source>
        <translation>Mode simple</translation>
    </message>
    <message>
        <source>Menu Mode</source>
        <translation>Mode menu</translation>
    </message>
    <message>
        <source>Always match to the original video size</source>
        <translation>Toujours adapter à la taille d&apos;origine de la vidéo</translation>
    </message>
    <message>
        <source>Always remember the last choice</source>
        <translation>Toujours conserver le dernier choix</translation>
    </message>
    <message>
        <source>UI Language</source>
        <translation>Langue de l&apos;interface</translation>
    </message>
    <message>
        <source>Launch Mode</source>
        <translation>Mode de démarrage</translation>
    </message>
    <message>
        <source>Ask me each time</source>
        <translation>Toujours demander</translation>
    </message>
    <message>
        <source>Window size</source>
        <translation>Taille de la fenêtre</translation>
    </message>
    <message>
        <source>Log Path</source>
        <translation>Dossier du journal</translation>
    </message>
    <message>
        <source>Auto play when disc inserted</source>
        <translation>Lecture automatique à l&apos;insertion d&apos;un disque</translation>
    </message>
    <message>
        <source>Pause play when minimized</source>
        <translation>Mettre en pause lors de la réduction</translation>
    </message>
    <message>
        <source>Remember the last playback position</source>
        <translation>Mémoriser la dernière position de lecture</translation>
    </message>
    <message>
        <source>Disable Screensaver</source>
        <translation>Désactiver l&apos;économiseur d&apos;écran</translation>
    </message>
    <message>
        <source>Allow multiple instances</source>
        <translation>Autoriser plusieurs instances</translation>
    </message>
    <message>
        <source>Check for new version automatically</source>
        <translation>Rechercher automatiquement une nouvelle version</translation>
    </message>
    <message>
        <source>Show progress in taskbar</source>
        <translation>Afficher la progression dans la barre des tâches</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Disques</translation>
    </message>
    <message>
        <source>DVD Playback Mode</source>
        <translation>Mode de lecture DVD</translation>
    </message>
    <message>
        <source>UHD / Blu-ray Playback Mode</source>
        <translation>Mode de lecture UHD / Blu-ray</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Langues</translation>
    </message>
    <message>
        <source>Menu language</source>
        <translation>Langue du menu</translation>
    </message>
    <message>
        <source>Audio language</source>
        <translation>Langue audio</translation>
    </message>
    <message>
        <source>Subtitle language</source>
        <translation>Langue des sous-titres</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Astuces</translation>
    </message>
    <message>
        <source>Show tips for playback status</source>
        <translation>Afficher l&apos;état de lecture</translation>
    </message>
    <message>
        <source>Enable the library for adult contents</source>
        <translation>Activer la bibliothèque de contenus pour adultes</translation>
    </message>
    <message>
        <source>Decoding</source>
        <translation>Décodage</translation>
    </message>
    <message>
        <source>Enable Hardware Acceleration Decoding</source>
        <translation>Activer le décodage matériel</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Enable HDR</source>
        <translation>Activer le HDR</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Force HDR-&gt;SDR</source>
        <translation>Forcer HDR-&gt;SDR</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>Mappage tonal</translation>
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
        <translation>Échelle de luminance :</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Output Color Range </source>
        <translation>Plage de couleurs de sortie </translation>
    </message>
    <message>
        <source>Full Color Range (0-255)</source>
        <translation>Plage de couleurs complète (0-255)</translation>
    </message>
    <message>
        <source>Limited Color Range (16-235)</source>
        <translation>Plage de couleurs limitée (16-235)</translation>
    </message>
    <message>
        <source>Enable 3D Playback Engine (effective upon next playback)</source>
        <translation>Activer le moteur de lecture 3D (effectif à la prochaine lecture)</translation>
    </message>
    <message>
        <source>Play 3D Media in 3D</source>
        <translation>Lire les médias 3D en 3D</translation>
    </message>
    <message>
        <source>Convert 2D Media to 3D</source>
        <translation>Convertir les médias 2D en 3D</translation>
    </message>
    <message>
        <source>3D Display Device</source>
        <translation>Périphérique d&apos;affichage 3D</translation>
    </message>
    <message>
        <source>Anaglyph Red/Cyan Mode</source>
        <translation>Anaglyphe rouge/cyan</translation>
    </message>
    <message>
        <source>3D-Ready HDTV (Checkerboard)</source>
        <translation>HDTV 3D Ready (damier)</translation>
    </message>
    <message>
        <source>Micro-polarizer LCD 3D (Row-interleaved)</source>
        <translation>LCD 3D micropolarisé (lignes entrelacées)</translation>
    </message>
    <message>
        <source>HDMI 1.4 enabled 3D TV</source>
        <translation>Téléviseur 3D HDMI 1.4</translation>
    </message>
    <message>
        <source>Swap eye view</source>
        <translation>Inverser les vues</translation>
    </message>
    <message>
        <source>Left view first</source>
        <translation>Vue gauche en premier</translation>
    </message>
    <message>
        <source>Right view first</source>
        <translation>Vue droite en premier</translation>
    </message>
    <message>
        <source>Output Mode</source>
        <translation>Mode de sortie</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Analog</source>
        <translation>Analogique</translation>
    </message>
    <message>
        <source>Optical/Coax</source>
        <translation>Optique/coaxial</translation>
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
        <translation>Périphérique de sortie</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Haut-parleurs</translation>
    </message>
    <message>
        <source>Passthrough</source>
        <translation>Passthrough</translation>
    </message>
    <message>
        <source>Enable Audio Passthrough</source>
        <translation>Activer le passthrough audio</translation>
    </message>
    <message>
        <source>Dolby Digital(AC3) capable receiver</source>
        <translation>Récepteur compatible Dolby Digital(AC3)</translation>
    </message>
    <message>
        <source>DTS capable receiver</source>
        <translation>Récepteur compatible DTS</translation>
    </message>
    <message>
        <source>TrueHD/DTS-HD capable receiver</source>
        <translation>Récepteur compatible TrueHD/DTS-HD</translation>
    </message>
    <message>
        <source>Level and timing</source>
        <translation>Niveau et synchronisation</translation>
    </message>
    <message>
        <source>Volume Amplification</source>
        <translation>Amplification du volume</translation>
    </message>
    <message>
        <source>Audio Offset</source>
        <translation>Décalage audio</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Charset</source>
        <translation>Jeu de caractères</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>OutLine Color</source>
        <translation>Couleur du contour</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italique</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>Override Ass/SSA subtitles config</source>
        <translation>Remplacer la configuration des sous-titres Ass/SSA</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Subtitle Offset</source>
        <translation>Décalage des sous-titres</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Région</translation>
    </message>
    <message>
        <source>Region A</source>
        <translation>Région A</translation>
    </message>
    <message>
        <source>Region B</source>
        <translation>Région B</translation>
    </message>
    <message>
        <source>Region C</source>
        <translation>Région C</translation>
    </message>
    <message>
        <source>Enable Blu-ray 3D playback when in Simple Mode</source>
        <translation>Activer la lecture Blu-ray 3D en mode simple</translation>
    </message>
    <message>
        <source>Skip FBI warnings</source>
        <translation>Ignorer les avertissements du FBI</translation>
    </message>
    <message>
        <source>Jump to Blu-ray menu directly</source>
        <translation>Aller directement au menu Blu-ray</translation>
    </message>
    <message>
        <source>Set File Associations</source>
        <translation>Définir les associations de fichiers</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Save to clipboard simultaneously(you can paste it directly)</source>
        <translation>Copier aussi dans le presse-papiers (à coller directement)</translation>
    </message>
    <message>
        <source>Use IE proxy</source>
        <translation>Utiliser le proxy d&apos;IE</translation>
    </message>
    <message>
        <source>Use the system&apos;s proxy</source>
        <translation>Utiliser le proxy du système</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Do not use proxy</source>
        <translation>Ne pas utiliser de proxy</translation>
    </message>
    <message>
        <source>Use manual proxy</source>
        <translation>Utiliser un proxy manuel</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Hôte</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Analyze Hardware</source>
        <translation>Analyser le matériel</translation>
    </message>
    <message>
        <source>The settings are in use, but could not be written to the disk:
%1
They will be lost when the program ends, unless there is room until then.</source>
        <translation>Les paramètres sont appliqués, mais n&apos;ont pas pu être écrits sur le disque :
%1
Ils seront perdus à la fermeture du programme, sauf si de la place se libère d&apos;ici là.</translation>
    </message>
</context>
<context>
    <name>NormalStartView</name>
    <message>
        <source>Drop a film, a folder or a disc image here to play it.</source>
        <translation>Déposez ici un film, un dossier ou une image de disque pour le lire.</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>Ouvrir un média...</translation>
    </message>
    <message>
        <source>Recently Played</source>
        <translation>Lus récemment</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Clear the list of recently played files</source>
        <translation>Effacer la liste des fichiers lus récemment</translation>
    </message>
    <message>
        <source>Drop to play</source>
        <translation>Déposez pour lire</translation>
    </message>
</context>
<context>
    <name>NormalTipLabel</name>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Slow motion %1x</source>
        <translation>Ralenti %1x</translation>
    </message>
    <message>
        <source>Fast forward</source>
        <translation>Avance rapide</translation>
    </message>
    <message>
        <source>Fast forward %1x</source>
        <translation>Avance rapide %1x</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Retour rapide</translation>
    </message>
    <message>
        <source>Rewind %1x</source>
        <translation>Retour rapide %1x</translation>
    </message>
</context>
<context>
    <name>NormalTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
</context>
<context>
    <name>NormalTvshowAutoPlayLabel</name>
    <message>
        <source>Play Now</source>
        <translation>Lire maintenant</translation>
    </message>
    <message>
        <source>Not this time</source>
        <translation>Pas cette fois</translation>
    </message>
    <message>
        <source>Up Next: </source>
        <translation>À suivre : </translation>
    </message>
</context>
<context>
    <name>NormalVideoControlDlg</name>
    <message>
        <source>Video Control</source>
        <translation>Contrôle vidéo</translation>
    </message>
    <message>
        <source>Zoom Amount</source>
        <translation>Niveau de zoom</translation>
    </message>
    <message>
        <source>Vertical Shift</source>
        <translation>Décalage vertical</translation>
    </message>
    <message>
        <source>Pixel Ratio</source>
        <translation>Rapport de pixels</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
</context>
<context>
    <name>NormalWaitingDlg</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>PlayFailure</name>
    <message>
        <source>Quorin does not support your UHD drive, please check the supported drives here.</source>
        <translation>Quorin ne prend pas en charge votre lecteur UHD. Consultez ici les lecteurs pris en charge.</translation>
    </message>
    <message>
        <source>More Info...</source>
        <translation>Plus d’informations...</translation>
    </message>
    <message>
        <source>Oops! This disc is not supported yet. Please try again at a later time.</source>
        <translation>Oups ! Ce disque n’est pas encore pris en charge. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Failed to play back the disc.</source>
        <translation>Échec de la lecture du disque.</translation>
    </message>
    <message>
        <source>A live Internet is required to play back the disc, please check your network and try again.</source>
        <translation>Une connexion Internet est nécessaire pour lire ce disque. Vérifiez votre réseau et réessayez.</translation>
    </message>
    <message>
        <source>An unknown error happened, please update to the newest version at</source>
        <translation>Une erreur inconnue s’est produite. Mettez à jour vers la dernière version sur</translation>
    </message>
    <message>
        <source>Playback failed.</source>
        <translation>Échec de la lecture.</translation>
    </message>
    <message>
        <source>This source can&apos;t be played. It may be damaged, protected or of an unknown format.</source>
        <translation>Impossible de lire cette source. Elle est peut-être endommagée, protégée ou d’un format inconnu.</translation>
    </message>
    <message>
        <source>There is no such file, folder or title.</source>
        <translation>Ce fichier, ce dossier ou ce titre n’existe pas.</translation>
    </message>
    <message>
        <source>This source may not be read, or is neither a file nor a folder nor a disc.</source>
        <translation>Cette source ne peut pas être lue, ou n’est ni un fichier, ni un dossier, ni un disque.</translation>
    </message>
    <message>
        <source>There is nothing in this source that can be played.</source>
        <translation>Cette source ne contient rien qui puisse être lu.</translation>
    </message>
    <message>
        <source>There is no disc in this source, or none that can be read.</source>
        <translation>Cette source ne contient pas de disque, ou pas de disque lisible.</translation>
    </message>
    <message>
        <source>This source does not answer.</source>
        <translation>Cette source ne répond pas.</translation>
    </message>
    <message>
        <source>This source ended with an error while it played.</source>
        <translation>La lecture de cette source s’est arrêtée sur une erreur.</translation>
    </message>
</context>
<context>
    <name>PlayMenu</name>
    <message>
        <source>Open Media...</source>
        <translation>Ouvrir un média...</translation>
    </message>
    <message>
        <source>Open Disc</source>
        <translation>Ouvrir un disque</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Chapitre</translation>
    </message>
    <message>
        <source>Top Menu</source>
        <translation>Menu principal</translation>
    </message>
    <message>
        <source>Pop Menu</source>
        <translation>Menu contextuel</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>Sous-titres</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Shaders</source>
        <translation>Shaders</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Always on Top</source>
        <translation>Toujours au premier plan</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Paramètres...</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>Format d&apos;image</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>Désentrelacement</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Pivoter de</translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation>Contrôle vidéo...</translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation>Réglage des couleurs...</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>Prendre une capture</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Fit Window</source>
        <translation>Ajuster à la fenêtre</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Rotate 90 degree CW</source>
        <translation>Pivoter de 90 degrés à droite</translation>
    </message>
    <message>
        <source>Rotate 90 degree CCW</source>
        <translation>Pivoter de 90 degrés à gauche</translation>
    </message>
    <message>
        <source>Rotate 180 degree</source>
        <translation>Pivoter de 180 degrés</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Miroir vertical</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Miroir horizontal</translation>
    </message>
    <message>
        <source>Cycle Through Audio Track</source>
        <translation>Piste audio suivante</translation>
    </message>
    <message>
        <source>Cycle Through Subtitle Track</source>
        <translation>Sous-titre suivant</translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation>Charger des sous-titres...</translation>
    </message>
    <message>
        <source>Subtitle Setting...</source>
        <translation>Paramètres des sous-titres...</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Previous Chapter</source>
        <translation>Chapitre précédent</translation>
    </message>
    <message>
        <source>Next Chapter</source>
        <translation>Chapitre suivant</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Retour rapide</translation>
    </message>
    <message>
        <source>Fast Forward</source>
        <translation>Avance rapide</translation>
    </message>
    <message>
        <source>Normal Speed</source>
        <translation>Vitesse normale</translation>
    </message>
    <message>
        <source>10 Sec. Backward</source>
        <translation>Reculer de 10 s</translation>
    </message>
    <message>
        <source>10 Sec. Forward</source>
        <translation>Avancer de 10 s</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>Chapitre %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
</context>
<context>
    <name>PlayQueueModel</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source> (Main)</source>
        <translation> (Principal)</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Open file</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Envoyer des commentaires</translation>
    </message>
    <message>
        <source>Eject the selected disc</source>
        <translation>Éjecter le disque sélectionné</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Always on top</source>
        <translation>Toujours au premier plan</translation>
    </message>
    <message>
        <source>Mute on/off</source>
        <translation>Activer/désactiver le son</translation>
    </message>
    <message>
        <source>Previous Chapter</source>
        <translation>Chapitre précédent</translation>
    </message>
    <message>
        <source>Next Chapter</source>
        <translation>Chapitre suivant</translation>
    </message>
    <message>
        <source>Play/pause movie playback</source>
        <translation>Lecture/pause</translation>
    </message>
    <message>
        <source>Stop Playback</source>
        <translation>Arrêter la lecture</translation>
    </message>
    <message>
        <source>Increase audio volume</source>
        <translation>Augmenter le volume</translation>
    </message>
    <message>
        <source>Decrease audio volume</source>
        <translation>Baisser le volume</translation>
    </message>
    <message>
        <source>Fast Forward</source>
        <translation>Avance rapide</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Retour rapide</translation>
    </message>
    <message>
        <source>Switch Audio</source>
        <translation>Changer de piste audio</translation>
    </message>
    <message>
        <source>Switch Subtitle</source>
        <translation>Changer de sous-titres</translation>
    </message>
    <message>
        <source>Filp vertically</source>
        <translation>Retourner verticalement</translation>
    </message>
    <message>
        <source>Filp horizontally</source>
        <translation>Retourner horizontalement</translation>
    </message>
    <message>
        <source>File Information</source>
        <translation>Informations sur le fichier</translation>
    </message>
    <message>
        <source>Show Information</source>
        <translation>Afficher les informations</translation>
    </message>
    <message>
        <source>Open Smart View</source>
        <translation>Ouvrir la vue intelligente</translation>
    </message>
    <message>
        <source>Displays the playback menu</source>
        <translation>Afficher le menu de lecture</translation>
    </message>
    <message>
        <source>Pop-up menu</source>
        <translation>Menu contextuel</translation>
    </message>
    <message>
        <source>Top menu</source>
        <translation>Menu principal</translation>
    </message>
    <message>
        <source>Navigate up in menus</source>
        <translation>Monter dans les menus</translation>
    </message>
    <message>
        <source>Navigate down in menus</source>
        <translation>Descendre dans les menus</translation>
    </message>
    <message>
        <source>Navigate left in menus</source>
        <translation>Aller à gauche dans les menus</translation>
    </message>
    <message>
        <source>Navigate right in menus</source>
        <translation>Aller à droite dans les menus</translation>
    </message>
    <message>
        <source>Accepts the selected menu</source>
        <translation>Valider le menu sélectionné</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>Prendre une capture</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Image suivante</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Image précédente</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Pivoter de</translation>
    </message>
    <message>
        <source>Sec</source>
        <translation>s</translation>
    </message>
    <message>
        <source>CW</source>
        <translation>vers la droite</translation>
    </message>
    <message>
        <source>CCW</source>
        <translation>vers la gauche</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avancer</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>Reculer</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>File error: </source>
        <translation>Erreur de fichier : </translation>
    </message>
</context>
<context>
    <name>QPlayer</name>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
</context>
<context>
    <name>QueueDelegate</name>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
</context>
<context>
    <name>QueueEmptyPage</name>
    <message>
        <source>The playlist is empty.</source>
        <translation>La liste de lecture est vide.</translation>
    </message>
    <message>
        <source>Drop files or folders here, or add them with a right click.</source>
        <translation>Déposez ici des fichiers ou des dossiers, ou ajoutez-les par un clic droit.</translation>
    </message>
</context>
<context>
    <name>QueueHead</name>
    <message>
        <source>Playlist</source>
        <translation>Liste de lecture</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Icônes</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>QueueMenus</name>
    <message>
        <source>AddFile...</source>
        <translation>Ajouter un fichier...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>Ajouter un dossier...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove Invalid</source>
        <translation>Retirer les éléments invalides</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Tout retirer</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Ouvrir le dossier contenant</translation>
    </message>
    <message>
        <source>Sort by Name</source>
        <translation>Trier par nom</translation>
    </message>
    <message>
        <source>Sort by Type</source>
        <translation>Trier par type</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>Une fois</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>À la suite</translation>
    </message>
    <message>
        <source>Shuffle</source>
        <translation>Aléatoire</translation>
    </message>
    <message>
        <source>Repeat One</source>
        <translation>Répéter un élément</translation>
    </message>
    <message>
        <source>Repeat All</source>
        <translation>Tout répéter</translation>
    </message>
</context>
<context>
    <name>RecentCard</name>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Last playback at %1</source>
        <translation>Dernière lecture à %1</translation>
    </message>
</context>
<context>
    <name>ScreenshotWriter</name>
    <message>
        <source>There is no picture to save.</source>
        <translation>Il n’y a aucune image à enregistrer.</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: the folder &quot;%1&quot; does not exist.</source>
        <translation>La capture n’a pas pu être enregistrée : le dossier « %1 » n’existe pas.</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: the folder &quot;%1&quot; is not writable.</source>
        <translation>La capture n’a pas pu être enregistrée : le dossier « %1 » n’est pas accessible en écriture.</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: there is no free space in the folder &quot;%1&quot;.</source>
        <translation>La capture n’a pas pu être enregistrée : il n’y a plus d’espace libre dans le dossier « %1 ».</translation>
    </message>
    <message>
        <source>The snapshot could not be saved in the folder &quot;%1&quot;.</source>
        <translation>La capture n’a pas pu être enregistrée dans le dossier « %1 ».</translation>
    </message>
</context>
<context>
    <name>SettingRowWidget</name>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>Please enter the address of the proxy.</source>
        <translation>Veuillez saisir l&apos;adresse du proxy.</translation>
    </message>
    <message>
        <source>Please enter the address alone, as proxy.example.org or 192.168.0.1.</source>
        <translation>Saisissez seulement l&apos;adresse, par exemple proxy.example.org ou 192.168.0.1.</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>Le port est un nombre de 1 à 65535.</translation>
    </message>
</context>
<context>
    <name>SmartPreview</name>
    <message>
        <source>The Smart Preview feature on DVDs and Blu-rays is coming soon!</source>
        <translation>L’aperçu intelligent des DVD et Blu-ray arrive bientôt !</translation>
    </message>
</context>
<context>
    <name>SubtitleCharsets</name>
    <message>
        <source>Auto</source>
        <translation>Automatique</translation>
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
        <translation>Europe occidentale</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Europe centrale</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Balte</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Cyrillique</translation>
    </message>
    <message>
        <source>Cyrillic (KOI8-R)</source>
        <translation>Cyrillique (KOI8-R)</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Grec</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turc</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hébreu</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabe</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamien</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thaï</translation>
    </message>
    <message>
        <source>Chinese Simplified</source>
        <translation>Chinois simplifié</translation>
    </message>
    <message>
        <source>Chinese Traditional</source>
        <translation>Chinois traditionnel</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonais</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coréen</translation>
    </message>
</context>
<context>
    <name>ThreeDMenu</name>
    <message>
        <source>Auto Detect</source>
        <translation>Détection automatique</translation>
    </message>
    <message>
        <source>Side by Side</source>
        <translation>Côte à côte</translation>
    </message>
    <message>
        <source>Top / Bottom</source>
        <translation>Haut / bas</translation>
    </message>
    <message>
        <source>Play 3D Media in 3D</source>
        <translation>Lire les médias 3D en 3D</translation>
    </message>
    <message>
        <source>Convert 2D Media to 3D</source>
        <translation>Convertir les médias 2D en 3D</translation>
    </message>
    <message>
        <source>3D Source Format</source>
        <translation>Format de la source 3D</translation>
    </message>
    <message>
        <source>More 3D Settings</source>
        <translation>Plus de paramètres 3D</translation>
    </message>
    <message>
        <source>Oops! 3D playback support is only available on Windows 8/10 for now.</source>
        <translation>Oups ! La lecture 3D n’est disponible que sous Windows 8/10 pour le moment.</translation>
    </message>
</context>
<context>
    <name>TvPlayingWidget</name>
    <message>
        <source>Playback Failed!</source>
        <translation>Échec de la lecture !</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Failure initializing playback device, please update your video card and sound card drivers. Contact us if that does not fix the problem.</source>
        <translation>Échec de l’initialisation du périphérique de lecture. Mettez à jour les pilotes de vos cartes graphique et son. Si le problème persiste, contactez-nous.</translation>
    </message>
    <message>
        <source>This source can&apos;t be played. It may be damaged, protected or of an unknown format.</source>
        <translation>Impossible de lire cette source. Elle est peut-être endommagée, protégée ou d’un format inconnu.</translation>
    </message>
</context>
<context>
    <name>TvStartWidget</name>
    <message>
        <source>Ready to play</source>
        <translation>Prêt à lire</translation>
    </message>
    <message>
        <source>Open a film with the player to watch it here.</source>
        <translation>Ouvrez un film avec le lecteur pour le regarder ici.</translation>
    </message>
</context>
<context>
    <name>VideoPage</name>
    <message>
        <source>The analysis could not be started.</source>
        <translation>L&apos;analyse n&apos;a pas pu être lancée.</translation>
    </message>
</context>
</TS>
