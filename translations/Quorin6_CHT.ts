<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>AnimateMenu</name>
    <message>
        <source>Menu</source>
        <translation>選單</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>開啟媒體...</translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation>視訊控制...</translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation>色彩調整...</translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation>載入字幕...</translation>
    </message>
    <message>
        <source>Subtitle Setting...</source>
        <translation>字幕設定...</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>檢查更新</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>意見回饋</translation>
    </message>
    <message>
        <source>Forum</source>
        <translation>論壇</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
</context>
<context>
    <name>AudioPage</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1（未連接）</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>無裝置</translation>
    </message>
</context>
<context>
    <name>Display3DPage</name>
    <message>
        <source>Oops! 3D playback support is only available on Windows 8/10 for now.</source>
        <translation>抱歉！目前僅在 Windows 8/10 上支援 3D 播放。</translation>
    </message>
    <message>
        <source>Oops! The selected device does not support this mode yet. Quorin Player 6 will revert to the previous setting.</source>
        <translation>抱歉！所選裝置尚不支援此模式。Quorin Player 6 將恢復為之前的設定。</translation>
    </message>
    <message>
        <source>Oops! There are multiple displays detected. To use HDMI 1.4 3D output, we suggest that you keep only one display.</source>
        <translation>偵測到多個顯示器。若要使用 HDMI 1.4 3D 輸出，建議只保留一個顯示器。</translation>
    </message>
</context>
<context>
    <name>DropRule</name>
    <message>
        <source>&quot;%1&quot; is not a file on this computer.</source>
        <translation>「%1」不是這台電腦上的檔案。</translation>
    </message>
    <message>
        <source>%1 of them are not files on this computer, the first is &quot;%2&quot;.</source>
        <translation>其中 %1 個不是這台電腦上的檔案，第一個是「%2」。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>檔案「%1」不存在。</translation>
    </message>
    <message>
        <source>%1 files do not exist, the first is &quot;%2&quot;.</source>
        <translation>%1 個檔案不存在，第一個是「%2」。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; can&apos;t be read.</source>
        <translation>無法讀取檔案「%1」。</translation>
    </message>
    <message>
        <source>%1 files can&apos;t be read, the first is &quot;%2&quot;.</source>
        <translation>無法讀取 %1 個檔案，第一個是「%2」。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be read.</source>
        <translation>無法讀取資料夾「%1」。</translation>
    </message>
    <message>
        <source>%1 folders can&apos;t be read, the first is &quot;%2&quot;.</source>
        <translation>無法讀取 %1 個資料夾，第一個是「%2」。</translation>
    </message>
    <message>
        <source>There is nothing in the folder &quot;%1&quot; that can be played.</source>
        <translation>資料夾「%1」中沒有可播放的內容。</translation>
    </message>
    <message>
        <source>There is nothing in %1 folders that can be played, the first is &quot;%2&quot;.</source>
        <translation>%1 個資料夾中沒有可播放的內容，第一個是「%2」。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a media file.</source>
        <translation>「%1」不是媒體檔案。</translation>
    </message>
    <message>
        <source>%1 of them are not media files, the first is &quot;%2&quot;.</source>
        <translation>其中 %1 個不是媒體檔案，第一個是「%2」。</translation>
    </message>
    <message>
        <source>The subtitle file &quot;%1&quot; can be added while a film plays.</source>
        <translation>播放影片時才能加入字幕檔案「%1」。</translation>
    </message>
    <message>
        <source>%1 subtitle files can be added while a film plays, the first is &quot;%2&quot;.</source>
        <translation>播放影片時才能加入 %1 個字幕檔案，第一個是「%2」。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and what follows was left out.</source>
        <translation>「%1」及其後的內容已略去。</translation>
    </message>
    <message>
        <source>&quot;%2&quot; and what follows was left out.</source>
        <translation>「%2」及其後的內容已略去。</translation>
    </message>
</context>
<context>
    <name>ErrorNote</name>
    <message>
        <source>Your device does not support hardware decoding for H.265 4K videos, and we&apos;ve automatically switched to the software decoding mode, which might possibly cause unsmooth playback.</source>
        <translation>您的裝置不支援 H.265 4K 影片的硬體解碼，已自動切換為軟體解碼模式，播放可能會不夠流暢。</translation>
    </message>
    <message>
        <source>Your computer hardware configuration does not support hardware decoding for 4K UHD Blu-rays.</source>
        <translation>您的電腦硬體配置不支援 4K UHD 藍光的硬體解碼。</translation>
    </message>
    <message>
        <source>Invalid custom shader, please check and try again.</source>
        <translation>自訂著色器無效，請檢查後再試一次。</translation>
    </message>
</context>
<context>
    <name>FileAssociationList</name>
    <message>
        <source>Please write each extension as *.mkv and separate them by semicolons.</source>
        <translation>請將每個副檔名寫成 *.mkv 的形式，並以分號分隔。</translation>
    </message>
    <message>
        <source>Oops! This file extension is not supported yet.</source>
        <translation>抱歉！尚不支援此副檔名。</translation>
    </message>
</context>
<context>
    <name>FolderEdit</name>
    <message>
        <source>Browse...</source>
        <translation>瀏覽...</translation>
    </message>
</context>
<context>
    <name>FolderProbe</name>
    <message>
        <source>This folder does not exist.</source>
        <translation>此資料夾不存在。</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>這不是資料夾。</translation>
    </message>
    <message>
        <source>This folder cannot be read.</source>
        <translation>無法讀取此資料夾。</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>無法寫入此資料夾。</translation>
    </message>
    <message>
        <source>This folder does not answer.</source>
        <translation>此資料夾沒有回應。</translation>
    </message>
</context>
<context>
    <name>HotKeysPage</name>
    <message>
        <source>Press Enter on a row and then the new key. Delete takes the key away.</source>
        <translation>在一列上按 Enter，然後按新按鍵。Delete 清除按鍵。</translation>
    </message>
    <message>
        <source>%1 was the key of &quot;%2&quot;, which has none now.</source>
        <translation>%1 原為「%2」的按鍵，該操作現在沒有按鍵。</translation>
    </message>
</context>
<context>
    <name>KeySequenceEditWidget</name>
    <message>
        <source>New key</source>
        <translation>新按鍵</translation>
    </message>
</context>
<context>
    <name>LanguageManager</name>
    <message>
        <source>Language name of this translation</source>
        <extracomment>The name of the language that this translation is for, in that language.</extracomment>
        <translation>繁體中文</translation>
    </message>
</context>
<context>
    <name>LibraryPage</name>
    <message>
        <source>Are you sure to clear and rebuild your library?</source>
        <translation>確定要清除並重建媒體庫嗎？</translation>
    </message>
    <message>
        <source>Rebuild</source>
        <translation>重建</translation>
    </message>
</context>
<context>
    <name>MenuCase</name>
    <message>
        <source>Quorin Player 6 can play back the BDAV discs in Simple mode only, but you can switch titles from the Playlist.</source>
        <translation>Quorin Player 6 僅能以簡單模式播放 BDAV 光碟，但您可以從播放清單切換標題。</translation>
    </message>
</context>
<context>
    <name>ModeSelectView</name>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>PC Mode</source>
        <translation>PC 模式</translation>
    </message>
    <message>
        <source>In a window, with mouse and keyboard</source>
        <translation>視窗模式，使用滑鼠和鍵盤</translation>
    </message>
    <message>
        <source>TV Mode</source>
        <translation>TV 模式</translation>
    </message>
    <message>
        <source>Full screen, with a remote control</source>
        <translation>全螢幕，使用遙控器</translation>
    </message>
    <message>
        <source>Remember my choice and don&apos;t ask again</source>
        <translation>記住我的選擇，不再詢問</translation>
    </message>
    <message>
        <source>How do you want to watch?</source>
        <translation>您想如何觀看？</translation>
    </message>
    <message>
        <source>You can change this later in the settings.</source>
        <translation>您可以稍後在設定中變更。</translation>
    </message>
</context>
<context>
    <name>NormalAboutDLg</name>
    <message>
        <source>User interface</source>
        <translation>使用者介面</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Formats and codecs</source>
        <translation>格式與編解碼器</translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>Blu-ray</source>
        <translation>藍光</translation>
    </message>
    <message>
        <source>Media library</source>
        <translation>媒體櫃</translation>
    </message>
    <message>
        <source>Music tags</source>
        <translation>音樂標籤</translation>
    </message>
    <message>
        <source>Foundations</source>
        <translation>基礎元件</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>built on %1</source>
        <translation>建置於 %1</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>程式庫</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later</source>
        <translation>採用 GNU 通用公共授權條款第 3 版或更新版本的自由軟體</translation>
    </message>
</context>
<context>
    <name>NormalColorAdjustDlg</name>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>柔和</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>明亮</translation>
    </message>
    <message>
        <source>Color Adjust</source>
        <translation>色彩調整</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>飽和度</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>對比度</translation>
    </message>
</context>
<context>
    <name>NormalDialogFrame</name>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>NormalKeyConflictTipsDialog</name>
    <message>
        <source>The hotkey you just chose was previously used for another action. That one has been rendered useless.</source>
        <translation>您剛選擇的快速鍵先前用於另一操作，該操作的快速鍵已失效。</translation>
    </message>
</context>
<context>
    <name>NormalLastPositionLabel</name>
    <message>
        <source>Last playback at</source>
        <translation>上次播放至</translation>
    </message>
</context>
<context>
    <name>NormalLoadingDlg</name>
    <message>
        <source>Loading ...</source>
        <translation>正在載入...</translation>
    </message>
</context>
<context>
    <name>NormalMainWindow</name>
    <message>
        <source>Failure initializing playback device, please update your video card and sound card drivers. Contact us if that does not fix the problem.</source>
        <translation>初始化播放裝置失敗，請更新顯示卡與音效卡驅動程式。若問題仍未解決，請與我們聯絡。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Media Files (%1)</source>
        <translation>媒體檔案 (%1)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有檔案 (*)</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>開啟媒體...</translation>
    </message>
    <message>
        <source>Subtitle Files (%1)</source>
        <translation>字幕檔案 (%1)</translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation>視訊控制...</translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation>色彩調整...</translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation>載入字幕...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>To add to the library, please specify the library type for the directory.</source>
        <translation>要新增到媒體庫，請指定該目錄的媒體庫類型。</translation>
    </message>
    <message>
        <source>Movies &amp; TV Shows</source>
        <translation>電影和電視劇</translation>
    </message>
    <message>
        <source>Adult</source>
        <translation>成人</translation>
    </message>
    <message>
        <source>Feedback can&apos;t be sent: this version of the program has no address for it.</source>
        <translation>無法傳送意見回饋：此版本的程式沒有回饋地址。</translation>
    </message>
</context>
<context>
    <name>NormalMessageBox</name>
    <message>
        <source>Don&apos;t show again</source>
        <translation>不再顯示</translation>
    </message>
</context>
<context>
    <name>NormalMessageBoxFactory</name>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>NormalMetaView</name>
    <message>
        <source>Video</source>
        <translation>視訊</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音訊</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>標題</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>章節</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
</context>
<context>
    <name>NormalOperateBar</name>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
</context>
<context>
    <name>NormalPlaySpeedBar</name>
    <message>
        <source>Normal Speed</source>
        <translation>正常速度</translation>
    </message>
</context>
<context>
    <name>NormalPlaylistSwitch</name>
    <message>
        <source>Close the playlist</source>
        <translation>關閉播放清單</translation>
    </message>
    <message>
        <source>Open the playlist</source>
        <translation>開啟播放清單</translation>
    </message>
</context>
<context>
    <name>NormalPlaylistView</name>
    <message>
        <source>Playlist</source>
        <translation>播放清單</translation>
    </message>
    <message>
        <source>Media Files (%1)</source>
        <translation>媒體檔案 (%1)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有檔案 (*)</translation>
    </message>
    <message>
        <source>AddFile...</source>
        <translation>新增檔案...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>新增資料夾...</translation>
    </message>
</context>
<context>
    <name>NormalPreviewView</name>
    <message>
        <source>Smart Preview</source>
        <translation>智慧預覽</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>縮放</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>數量</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>There are no preview pictures for this source.</source>
        <translation>此來源沒有預覽圖片。</translation>
    </message>
</context>
<context>
    <name>NormalSettingPage</name>
    <message>
        <source>Files with these extensions open with Quorin Player 6 when they are double clicked.</source>
        <translation>按兩下具有這些副檔名的檔案時將使用 Quorin Player 6 開啟。</translation>
    </message>
    <message>
        <source>To change your default apps, go to Settings &gt; System &gt; Default apps.</source>
        <translation>若要變更預設應用程式，請前往「設定」&gt;「系統」&gt;「預設應用程式」。</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>系統設定</translation>
    </message>
    <message>
        <source>PC Mode</source>
        <translation>PC 模式</translation>
    </message>
    <message>
        <source>TV Mode</source>
        <translation>TV 模式</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>全部重設</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>按鍵</translation>
    </message>
    <message>
        <source>The media library is not available.</source>
        <translation>媒體庫無法使用。</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音樂</translation>
    </message>
    <message>
        <source>Update Library</source>
        <translation>更新媒體庫</translation>
    </message>
    <message>
        <source>Rebuild Library</source>
        <translation>重建媒體庫</translation>
    </message>
    <message>
        <source>Add New Directory</source>
        <translation>新增目錄</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>The file associations were not changed.</source>
        <translation>檔案關聯未變更。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>頁面</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>預設</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>媒體庫</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>視訊</translation>
    </message>
    <message>
        <source>3D Display</source>
        <translation>3D 顯示</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音訊</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Blu-ray</source>
        <translation>藍光</translation>
    </message>
    <message>
        <source>File Association</source>
        <translation>檔案關聯</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>截圖</translation>
    </message>
    <message>
        <source>HotKeys</source>
        <translation>快速鍵</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>網路</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Same as UI language</source>
        <translation>與介面語言相同</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Simple Mode</source>
        <translation>簡易模式</translation>
    </message>
    <message>
        <source>Menu Mode</source>
        <translation>選單模式</translation>
    </message>
    <message>
        <source>Always match to the original video size</source>
        <translation>一律符合視訊原始大小</translation>
    </message>
    <message>
        <source>Always remember the last choice</source>
        <translation>一律記住上次的選擇</translation>
    </message>
    <message>
        <source>UI Language</source>
        <translation>介面語言</translation>
    </message>
    <message>
        <source>Launch Mode</source>
        <translation>啟動模式</translation>
    </message>
    <message>
        <source>Ask me each time</source>
        <translation>每次詢問</translation>
    </message>
    <message>
        <source>Window size</source>
        <translation>視窗大小</translation>
    </message>
    <message>
        <source>Log Path</source>
        <translation>記錄檔路徑</translation>
    </message>
    <message>
        <source>Auto play when disc inserted</source>
        <translation>插入光碟時自動播放</translation>
    </message>
    <message>
        <source>Pause play when minimized</source>
        <translation>最小化時暫停播放</translation>
    </message>
    <message>
        <source>Remember the last playback position</source>
        <translation>記住上次播放位置</translation>
    </message>
    <message>
        <source>Disable Screensaver</source>
        <translation>停用螢幕保護程式</translation>
    </message>
    <message>
        <source>Allow multiple instances</source>
        <translation>允許多個執行個體</translation>
    </message>
    <message>
        <source>Check for new version automatically</source>
        <translation>自動檢查新版本</translation>
    </message>
    <message>
        <source>Show progress in taskbar</source>
        <translation>在工作列顯示進度</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>光碟</translation>
    </message>
    <message>
        <source>DVD Playback Mode</source>
        <translation>DVD 播放模式</translation>
    </message>
    <message>
        <source>UHD / Blu-ray Playback Mode</source>
        <translation>UHD / 藍光播放模式</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Menu language</source>
        <translation>選單語言</translation>
    </message>
    <message>
        <source>Audio language</source>
        <translation>音訊語言</translation>
    </message>
    <message>
        <source>Subtitle language</source>
        <translation>字幕語言</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Show tips for playback status</source>
        <translation>顯示播放狀態提示</translation>
    </message>
    <message>
        <source>Enable the library for adult contents</source>
        <translation>啟用成人內容媒體庫</translation>
    </message>
    <message>
        <source>Decoding</source>
        <translation>解碼</translation>
    </message>
    <message>
        <source>Enable Hardware Acceleration Decoding</source>
        <translation>啟用硬體加速解碼</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Enable HDR</source>
        <translation>啟用 HDR</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Force HDR-&gt;SDR</source>
        <translation>強制 HDR-&gt;SDR</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>色調對應</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>簡易</translation>
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
        <translation>亮度比例：</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>輸出</translation>
    </message>
    <message>
        <source>Output Color Range </source>
        <translation>輸出色彩範圍 </translation>
    </message>
    <message>
        <source>Full Color Range (0-255)</source>
        <translation>全色彩範圍 (0-255)</translation>
    </message>
    <message>
        <source>Limited Color Range (16-235)</source>
        <translation>有限色彩範圍 (16-235)</translation>
    </message>
    <message>
        <source>Enable 3D Playback Engine (effective upon next playback)</source>
        <translation>啟用 3D 播放引擎（下次播放時生效）</translation>
    </message>
    <message>
        <source>Play 3D Media in 3D</source>
        <translation>以 3D 播放 3D 媒體</translation>
    </message>
    <message>
        <source>Convert 2D Media to 3D</source>
        <translation>將 2D 媒體轉換為 3D</translation>
    </message>
    <message>
        <source>3D Display Device</source>
        <translation>3D 顯示裝置</translation>
    </message>
    <message>
        <source>Anaglyph Red/Cyan Mode</source>
        <translation>紅/青立體模式</translation>
    </message>
    <message>
        <source>3D-Ready HDTV (Checkerboard)</source>
        <translation>3D-Ready HDTV（棋盤格）</translation>
    </message>
    <message>
        <source>Micro-polarizer LCD 3D (Row-interleaved)</source>
        <translation>微偏振 LCD 3D（列交錯）</translation>
    </message>
    <message>
        <source>HDMI 1.4 enabled 3D TV</source>
        <translation>支援 HDMI 1.4 的 3D 電視</translation>
    </message>
    <message>
        <source>Swap eye view</source>
        <translation>交換左右眼視圖</translation>
    </message>
    <message>
        <source>Left view first</source>
        <translation>左視圖優先</translation>
    </message>
    <message>
        <source>Right view first</source>
        <translation>右視圖優先</translation>
    </message>
    <message>
        <source>Output Mode</source>
        <translation>輸出模式</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Analog</source>
        <translation>類比</translation>
    </message>
    <message>
        <source>Optical/Coax</source>
        <translation>光纖/同軸</translation>
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
        <translation>輸出裝置</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>喇叭</translation>
    </message>
    <message>
        <source>Passthrough</source>
        <translation>直通</translation>
    </message>
    <message>
        <source>Enable Audio Passthrough</source>
        <translation>啟用音訊直通</translation>
    </message>
    <message>
        <source>Dolby Digital(AC3) capable receiver</source>
        <translation>支援 Dolby Digital(AC3) 的接收器</translation>
    </message>
    <message>
        <source>DTS capable receiver</source>
        <translation>支援 DTS 的接收器</translation>
    </message>
    <message>
        <source>TrueHD/DTS-HD capable receiver</source>
        <translation>支援 TrueHD/DTS-HD 的接收器</translation>
    </message>
    <message>
        <source>Level and timing</source>
        <translation>音量與時間</translation>
    </message>
    <message>
        <source>Volume Amplification</source>
        <translation>音量放大</translation>
    </message>
    <message>
        <source>Audio Offset</source>
        <translation>音訊偏移</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字型</translation>
    </message>
    <message>
        <source>Charset</source>
        <translation>字元集</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>頂部</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底部</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>顏色</translation>
    </message>
    <message>
        <source>OutLine Color</source>
        <translation>外框顏色</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>粗體</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜體</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>外框</translation>
    </message>
    <message>
        <source>Override Ass/SSA subtitles config</source>
        <translation>覆寫 Ass/SSA 字幕設定</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路徑</translation>
    </message>
    <message>
        <source>Subtitle Offset</source>
        <translation>字幕偏移</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>區域</translation>
    </message>
    <message>
        <source>Region A</source>
        <translation>區域 A</translation>
    </message>
    <message>
        <source>Region B</source>
        <translation>區域 B</translation>
    </message>
    <message>
        <source>Region C</source>
        <translation>區域 C</translation>
    </message>
    <message>
        <source>Enable Blu-ray 3D playback when in Simple Mode</source>
        <translation>在簡易模式下啟用藍光 3D 播放</translation>
    </message>
    <message>
        <source>Skip FBI warnings</source>
        <translation>略過 FBI 警告</translation>
    </message>
    <message>
        <source>Jump to Blu-ray menu directly</source>
        <translation>直接跳到藍光選單</translation>
    </message>
    <message>
        <source>Set File Associations</source>
        <translation>設定檔案關聯</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Save to clipboard simultaneously(you can paste it directly)</source>
        <translation>同時儲存到剪貼簿（可直接貼上）</translation>
    </message>
    <message>
        <source>Use IE proxy</source>
        <translation>使用 IE Proxy</translation>
    </message>
    <message>
        <source>Use the system&apos;s proxy</source>
        <translation>使用系統 Proxy</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Do not use proxy</source>
        <translation>不使用 Proxy</translation>
    </message>
    <message>
        <source>Use manual proxy</source>
        <translation>使用手動 Proxy</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>主機</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>連接埠</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>使用者名稱</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>Analyze Hardware</source>
        <translation>分析硬體</translation>
    </message>
    <message>
        <source>The settings are in use, but could not be written to the disk:
%1
They will be lost when the program ends, unless there is room until then.</source>
        <translation>設定已生效，但無法寫入磁碟：
%1
如果在程式結束之前磁碟仍沒有可用空間，設定將會遺失。</translation>
    </message>
</context>
<context>
    <name>NormalStartView</name>
    <message>
        <source>Drop a film, a folder or a disc image here to play it.</source>
        <translation>將影片、資料夾或光碟映像檔拖放到此處即可播放。</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>開啟媒體...</translation>
    </message>
    <message>
        <source>Recently Played</source>
        <translation>最近播放</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Clear the list of recently played files</source>
        <translation>清除最近播放清單</translation>
    </message>
    <message>
        <source>Drop to play</source>
        <translation>放開即可播放</translation>
    </message>
</context>
<context>
    <name>NormalTipLabel</name>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Slow motion %1x</source>
        <translation>慢動作 %1 倍</translation>
    </message>
    <message>
        <source>Fast forward</source>
        <translation>快轉</translation>
    </message>
    <message>
        <source>Fast forward %1x</source>
        <translation>快轉 %1 倍</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>倒轉</translation>
    </message>
    <message>
        <source>Rewind %1x</source>
        <translation>倒轉 %1 倍</translation>
    </message>
</context>
<context>
    <name>NormalTitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>選單</translation>
    </message>
</context>
<context>
    <name>NormalTvshowAutoPlayLabel</name>
    <message>
        <source>Play Now</source>
        <translation>立即播放</translation>
    </message>
    <message>
        <source>Not this time</source>
        <translation>這次不要</translation>
    </message>
    <message>
        <source>Up Next: </source>
        <translation>接下來播放：</translation>
    </message>
</context>
<context>
    <name>NormalVideoControlDlg</name>
    <message>
        <source>Video Control</source>
        <translation>視訊控制</translation>
    </message>
    <message>
        <source>Zoom Amount</source>
        <translation>縮放比例</translation>
    </message>
    <message>
        <source>Vertical Shift</source>
        <translation>垂直位移</translation>
    </message>
    <message>
        <source>Pixel Ratio</source>
        <translation>像素比</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
</context>
<context>
    <name>NormalWaitingDlg</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>PlayFailure</name>
    <message>
        <source>Quorin does not support your UHD drive, please check the supported drives here.</source>
        <translation>Quorin 不支援您的 UHD 光碟機，請在此查看支援的光碟機。</translation>
    </message>
    <message>
        <source>More Info...</source>
        <translation>更多資訊...</translation>
    </message>
    <message>
        <source>Oops! This disc is not supported yet. Please try again at a later time.</source>
        <translation>抱歉！尚不支援此光碟，請稍後再試。</translation>
    </message>
    <message>
        <source>Failed to play back the disc.</source>
        <translation>光碟播放失敗。</translation>
    </message>
    <message>
        <source>A live Internet is required to play back the disc, please check your network and try again.</source>
        <translation>播放此光碟需要網際網路連線，請檢查網路後再試一次。</translation>
    </message>
    <message>
        <source>An unknown error happened, please update to the newest version at</source>
        <translation>發生未知錯誤，請更新至最新版本：</translation>
    </message>
    <message>
        <source>Playback failed.</source>
        <translation>播放失敗。</translation>
    </message>
    <message>
        <source>This source can&apos;t be played. It may be damaged, protected or of an unknown format.</source>
        <translation>無法播放此來源。它可能已損毀、受到保護或格式不明。</translation>
    </message>
    <message>
        <source>There is no such file, folder or title.</source>
        <translation>沒有這樣的檔案、資料夾或標題。</translation>
    </message>
    <message>
        <source>This source may not be read, or is neither a file nor a folder nor a disc.</source>
        <translation>無法讀取此來源，或者它既不是檔案，也不是資料夾或光碟。</translation>
    </message>
    <message>
        <source>There is nothing in this source that can be played.</source>
        <translation>此來源中沒有可播放的內容。</translation>
    </message>
    <message>
        <source>There is no disc in this source, or none that can be read.</source>
        <translation>此來源中沒有光碟，或者光碟無法讀取。</translation>
    </message>
    <message>
        <source>This source does not answer.</source>
        <translation>此來源沒有回應。</translation>
    </message>
    <message>
        <source>This source ended with an error while it played.</source>
        <translation>播放此來源時發生錯誤並中止。</translation>
    </message>
</context>
<context>
    <name>PlayMenu</name>
    <message>
        <source>Open Media...</source>
        <translation>開啟媒體...</translation>
    </message>
    <message>
        <source>Open Disc</source>
        <translation>開啟光碟</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>章節</translation>
    </message>
    <message>
        <source>Top Menu</source>
        <translation>主選單</translation>
    </message>
    <message>
        <source>Pop Menu</source>
        <translation>彈出選單</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>視訊</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音訊</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Shaders</source>
        <translation>著色器</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全螢幕</translation>
    </message>
    <message>
        <source>Always on Top</source>
        <translation>總在最上層</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>資訊</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>長寬比</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>去交錯</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋轉</translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation>視訊控制...</translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation>色彩調整...</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>擷取畫面</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>預設</translation>
    </message>
    <message>
        <source>Fit Window</source>
        <translation>符合視窗</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>On</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rotate 90 degree CW</source>
        <translation>順時針旋轉 90 度</translation>
    </message>
    <message>
        <source>Rotate 90 degree CCW</source>
        <translation>逆時針旋轉 90 度</translation>
    </message>
    <message>
        <source>Rotate 180 degree</source>
        <translation>旋轉 180 度</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>垂直翻轉</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>水平翻轉</translation>
    </message>
    <message>
        <source>Cycle Through Audio Track</source>
        <translation>循環切換音軌</translation>
    </message>
    <message>
        <source>Cycle Through Subtitle Track</source>
        <translation>循環切換字幕</translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation>載入字幕...</translation>
    </message>
    <message>
        <source>Subtitle Setting...</source>
        <translation>字幕設定...</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Previous Chapter</source>
        <translation>上一章節</translation>
    </message>
    <message>
        <source>Next Chapter</source>
        <translation>下一章節</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>倒轉</translation>
    </message>
    <message>
        <source>Fast Forward</source>
        <translation>快轉</translation>
    </message>
    <message>
        <source>Normal Speed</source>
        <translation>正常速度</translation>
    </message>
    <message>
        <source>10 Sec. Backward</source>
        <translation>後退 10 秒</translation>
    </message>
    <message>
        <source>10 Sec. Forward</source>
        <translation>前進 10 秒</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>章節 %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>PlayQueueModel</name>
    <message>
        <source>Title</source>
        <translation>標題</translation>
    </message>
    <message>
        <source> (Main)</source>
        <translation>（主標題）</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>找不到</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Open file</source>
        <translation>開啟檔案</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>傳送意見回饋</translation>
    </message>
    <message>
        <source>Eject the selected disc</source>
        <translation>退出所選光碟</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>全螢幕</translation>
    </message>
    <message>
        <source>Always on top</source>
        <translation>視窗置頂</translation>
    </message>
    <message>
        <source>Mute on/off</source>
        <translation>靜音開/關</translation>
    </message>
    <message>
        <source>Previous Chapter</source>
        <translation>上一章節</translation>
    </message>
    <message>
        <source>Next Chapter</source>
        <translation>下一章節</translation>
    </message>
    <message>
        <source>Play/pause movie playback</source>
        <translation>播放/暫停</translation>
    </message>
    <message>
        <source>Stop Playback</source>
        <translation>停止播放</translation>
    </message>
    <message>
        <source>Increase audio volume</source>
        <translation>提高音量</translation>
    </message>
    <message>
        <source>Decrease audio volume</source>
        <translation>降低音量</translation>
    </message>
    <message>
        <source>Fast Forward</source>
        <translation>快轉</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>倒轉</translation>
    </message>
    <message>
        <source>Switch Audio</source>
        <translation>切換音軌</translation>
    </message>
    <message>
        <source>Switch Subtitle</source>
        <translation>切換字幕</translation>
    </message>
    <message>
        <source>Filp vertically</source>
        <translation>垂直翻轉</translation>
    </message>
    <message>
        <source>Filp horizontally</source>
        <translation>水平翻轉</translation>
    </message>
    <message>
        <source>File Information</source>
        <translation>檔案資訊</translation>
    </message>
    <message>
        <source>Show Information</source>
        <translation>顯示資訊</translation>
    </message>
    <message>
        <source>Open Smart View</source>
        <translation>開啟智慧檢視</translation>
    </message>
    <message>
        <source>Displays the playback menu</source>
        <translation>顯示播放選單</translation>
    </message>
    <message>
        <source>Pop-up menu</source>
        <translation>快顯選單</translation>
    </message>
    <message>
        <source>Top menu</source>
        <translation>頂層選單</translation>
    </message>
    <message>
        <source>Navigate up in menus</source>
        <translation>在選單中向上</translation>
    </message>
    <message>
        <source>Navigate down in menus</source>
        <translation>在選單中向下</translation>
    </message>
    <message>
        <source>Navigate left in menus</source>
        <translation>在選單中向左</translation>
    </message>
    <message>
        <source>Navigate right in menus</source>
        <translation>在選單中向右</translation>
    </message>
    <message>
        <source>Accepts the selected menu</source>
        <translation>確認所選選單</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>擷取畫面</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>下一影格</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>上一影格</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋轉</translation>
    </message>
    <message>
        <source>Sec</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>CW</source>
        <translation>順時針</translation>
    </message>
    <message>
        <source>CCW</source>
        <translation>逆時針</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前進</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>後退</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>File error: </source>
        <translation>檔案錯誤：</translation>
    </message>
</context>
<context>
    <name>QPlayer</name>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
</context>
<context>
    <name>QueueDelegate</name>
    <message>
        <source>Not found</source>
        <translation>找不到</translation>
    </message>
</context>
<context>
    <name>QueueEmptyPage</name>
    <message>
        <source>The playlist is empty.</source>
        <translation>播放清單是空的。</translation>
    </message>
    <message>
        <source>Drop files or folders here, or add them with a right click.</source>
        <translation>將檔案或資料夾拖放到此處，或按右鍵新增。</translation>
    </message>
</context>
<context>
    <name>QueueHead</name>
    <message>
        <source>Playlist</source>
        <translation>播放清單</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>圖示</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>QueueMenus</name>
    <message>
        <source>AddFile...</source>
        <translation>新增檔案...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>新增資料夾...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Remove Invalid</source>
        <translation>移除無效項目</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>全部移除</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>開啟所在資料夾</translation>
    </message>
    <message>
        <source>Sort by Name</source>
        <translation>依名稱排序</translation>
    </message>
    <message>
        <source>Sort by Type</source>
        <translation>依類型排序</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>播放一次</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>循序播放</translation>
    </message>
    <message>
        <source>Shuffle</source>
        <translation>隨機播放</translation>
    </message>
    <message>
        <source>Repeat One</source>
        <translation>單一循環</translation>
    </message>
    <message>
        <source>Repeat All</source>
        <translation>全部循環</translation>
    </message>
</context>
<context>
    <name>RecentCard</name>
    <message>
        <source>Not found</source>
        <translation>找不到</translation>
    </message>
    <message>
        <source>Last playback at %1</source>
        <translation>上次播放至 %1</translation>
    </message>
</context>
<context>
    <name>ScreenshotWriter</name>
    <message>
        <source>There is no picture to save.</source>
        <translation>沒有可儲存的影像。</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: the folder &quot;%1&quot; does not exist.</source>
        <translation>無法儲存擷圖：資料夾「%1」不存在。</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: the folder &quot;%1&quot; is not writable.</source>
        <translation>無法儲存擷圖：資料夾「%1」無法寫入。</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: there is no free space in the folder &quot;%1&quot;.</source>
        <translation>無法儲存擷圖：資料夾「%1」沒有可用空間。</translation>
    </message>
    <message>
        <source>The snapshot could not be saved in the folder &quot;%1&quot;.</source>
        <translation>無法將擷圖儲存至資料夾「%1」。</translation>
    </message>
</context>
<context>
    <name>SettingRowWidget</name>
    <message>
        <source>Default</source>
        <translation>預設</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>Please enter the address of the proxy.</source>
        <translation>請輸入 Proxy 位址。</translation>
    </message>
    <message>
        <source>Please enter the address alone, as proxy.example.org or 192.168.0.1.</source>
        <translation>請僅輸入位址，例如 proxy.example.org 或 192.168.0.1。</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>連接埠是 1 到 65535 之間的數字。</translation>
    </message>
</context>
<context>
    <name>SmartPreview</name>
    <message>
        <source>The Smart Preview feature on DVDs and Blu-rays is coming soon!</source>
        <translation>DVD 與藍光光碟的智慧預覽功能即將推出！</translation>
    </message>
</context>
<context>
    <name>SubtitleCharsets</name>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
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
        <translation>西歐</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>中歐</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>波羅的海</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>西里爾文</translation>
    </message>
    <message>
        <source>Cyrillic (KOI8-R)</source>
        <translation>西里爾文 (KOI8-R)</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>希臘文</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>土耳其文</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>希伯來文</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>阿拉伯文</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>越南文</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>泰文</translation>
    </message>
    <message>
        <source>Chinese Simplified</source>
        <translation>簡體中文</translation>
    </message>
    <message>
        <source>Chinese Traditional</source>
        <translation>繁體中文</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日文</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓文</translation>
    </message>
</context>
<context>
    <name>ThreeDMenu</name>
    <message>
        <source>Auto Detect</source>
        <translation>自動偵測</translation>
    </message>
    <message>
        <source>Side by Side</source>
        <translation>左右並排</translation>
    </message>
    <message>
        <source>Top / Bottom</source>
        <translation>上下</translation>
    </message>
    <message>
        <source>Play 3D Media in 3D</source>
        <translation>以 3D 播放 3D 媒體</translation>
    </message>
    <message>
        <source>Convert 2D Media to 3D</source>
        <translation>將 2D 媒體轉換為 3D</translation>
    </message>
    <message>
        <source>3D Source Format</source>
        <translation>3D 來源格式</translation>
    </message>
    <message>
        <source>More 3D Settings</source>
        <translation>更多 3D 設定</translation>
    </message>
    <message>
        <source>Oops! 3D playback support is only available on Windows 8/10 for now.</source>
        <translation>抱歉！目前僅在 Windows 8/10 上支援 3D 播放。</translation>
    </message>
</context>
<context>
    <name>TvPlayingWidget</name>
    <message>
        <source>Playback Failed!</source>
        <translation>播放失敗！</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Failure initializing playback device, please update your video card and sound card drivers. Contact us if that does not fix the problem.</source>
        <translation>初始化播放裝置失敗，請更新顯示卡與音效卡驅動程式。若問題仍未解決，請與我們聯絡。</translation>
    </message>
    <message>
        <source>This source can&apos;t be played. It may be damaged, protected or of an unknown format.</source>
        <translation>無法播放此來源。它可能已損毀、受到保護或格式不明。</translation>
    </message>
</context>
<context>
    <name>TvStartWidget</name>
    <message>
        <source>Ready to play</source>
        <translation>準備播放</translation>
    </message>
    <message>
        <source>Open a film with the player to watch it here.</source>
        <translation>用播放器開啟影片即可在此觀看。</translation>
    </message>
</context>
<context>
    <name>VideoPage</name>
    <message>
        <source>The analysis could not be started.</source>
        <translation>無法啟動分析。</translation>
    </message>
</context>
</TS>
