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
    <name>LanguageManager</name>
    <message>
        <source>Language name of this translation</source>
        <extracomment>The name of the language that this translation is for, in that language.</extracomment>
        <translation>Français</translation>
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
</TS>
