<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>AnimateMenu</name>
    <message>
        <source>Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitle Setting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ErrorNote</name>
    <message>
        <source>Your device does not support hardware decoding for H.265 4K videos, and we&apos;ve automatically switched to the software decoding mode, which might possibly cause unsmooth playback.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your computer hardware configuration does not support hardware decoding for 4K UHD Blu-rays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid custom shader, please check and try again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LanguageManager</name>
    <message>
        <source>Language name of this translation</source>
        <extracomment>The name of the language that this translation is for, in that language.</extracomment>
        <translation>简体中文</translation>
    </message>
</context>
<context>
    <name>MenuCase</name>
    <message>
        <source>Quorin Player 6 can play back the BDAV discs in Simple mode only, but you can switch titles from the Playlist.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModeSelectView</name>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PC Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In a window, with mouse and keyboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TV Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full screen, with a remote control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remember my choice and don&apos;t ask again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How do you want to watch?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can change this later in the settings.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NormalAboutDLg</name>
    <message>
        <source>User interface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formats and codecs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DVD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blu-ray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Media library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Music tags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foundations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>built on %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NormalColorAdjustDlg</name>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Adjust</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NormalDialogFrame</name>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NormalLastPositionLabel</name>
    <message>
        <source>Last playback at</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NormalLoadingDlg</name>
    <message>
        <source>Loading ...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NormalMessageBox</name>
    <message>
        <source>Don&apos;t show again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NormalMessageBoxFactory</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NormalStartView</name>
    <message>
        <source>Drop a film, a folder or a disc image here to play it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NormalTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NormalTvshowAutoPlayLabel</name>
    <message>
        <source>Play Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not this time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up Next: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NormalVideoControlDlg</name>
    <message>
        <source>Video Control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical Shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixel Ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NormalWaitingDlg</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlayFailure</name>
    <message>
        <source>Quorin does not support your UHD drive, please check the supported drives here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More Info...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Oops! This disc is not supported yet. Please try again at a later time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to play back the disc.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A live Internet is required to play back the disc, please check your network and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An unknown error happened, please update to the newest version at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playback failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This source can&apos;t be played. It may be damaged, protected or of an unknown format.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Open file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eject the selected disc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always on top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mute on/off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous Chapter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next Chapter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play/pause movie playback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Playback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Increase audio volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decrease audio volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fast Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Subtitle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filp vertically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filp horizontally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Smart View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Displays the playback menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pop-up menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Navigate up in menus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Navigate down in menus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Navigate left in menus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Navigate right in menus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accepts the selected menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CW</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CCW</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File error: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QPlayer</name>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScreenshotWriter</name>
    <message>
        <source>There is no picture to save.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The snapshot could not be saved: the folder &quot;%1&quot; does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The snapshot could not be saved: the folder &quot;%1&quot; is not writable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The snapshot could not be saved: there is no free space in the folder &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The snapshot could not be saved in the folder &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
