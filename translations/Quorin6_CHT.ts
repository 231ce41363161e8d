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
    <name>LanguageManager</name>
    <message>
        <source>Language name of this translation</source>
        <extracomment>The name of the language that this translation is for, in that language.</extracomment>
        <translation>繁體中文</translation>
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
</TS>
