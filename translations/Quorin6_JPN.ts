<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>AnimateMenu</name>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>メディアを開く...</translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation>映像コントロール...</translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation>色調整...</translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation>字幕を読み込む...</translation>
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
        <translation>アップデートを確認</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>フィードバック</translation>
    </message>
    <message>
        <source>Forum</source>
        <translation>フォーラム</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
</context>
<context>
    <name>AudioPage</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (未接続)</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>デバイスなし</translation>
    </message>
</context>
<context>
    <name>Display3DPage</name>
    <message>
        <source>Oops! 3D playback support is only available on Windows 8/10 for now.</source>
        <translation>申し訳ありません。3D 再生は現在 Windows 8/10 でのみ対応しています。</translation>
    </message>
    <message>
        <source>Oops! The selected device does not support this mode yet. Quorin Player 6 will revert to the previous setting.</source>
        <translation>選択したデバイスはこのモードに対応していません。Quorin Player 6 は以前の設定に戻ります。</translation>
    </message>
    <message>
        <source>Oops! There are multiple displays detected. To use HDMI 1.4 3D output, we suggest that you keep only one display.</source>
        <translation>複数のディスプレイが検出されました。HDMI 1.4 の 3D 出力を使うには、ディスプレイを 1 台にすることをお勧めします。</translation>
    </message>
</context>
<context>
    <name>DropRule</name>
    <message>
        <source>&quot;%1&quot; is not a file on this computer.</source>
        <translation>「%1」はこのコンピューター上のファイルではありません。</translation>
    </message>
    <message>
        <source>%1 of them are not files on this computer, the first is &quot;%2&quot;.</source>
        <translation>%1 個はこのコンピューター上のファイルではありません。最初のものは「%2」です。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>ファイル「%1」は存在しません。</translation>
    </message>
    <message>
        <source>%1 files do not exist, the first is &quot;%2&quot;.</source>
        <translation>%1 個のファイルは存在しません。最初のものは「%2」です。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; can&apos;t be read.</source>
        <translation>ファイル「%1」を読み取れません。</translation>
    </message>
    <message>
        <source>%1 files can&apos;t be read, the first is &quot;%2&quot;.</source>
        <translation>%1 個のファイルを読み取れません。最初のものは「%2」です。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be read.</source>
        <translation>フォルダー「%1」を読み取れません。</translation>
    </message>
    <message>
        <source>%1 folders can&apos;t be read, the first is &quot;%2&quot;.</source>
        <translation>%1 個のフォルダーを読み取れません。最初のものは「%2」です。</translation>
    </message>
    <message>
        <source>There is nothing in the folder &quot;%1&quot; that can be played.</source>
        <translation>フォルダー「%1」には再生できるものがありません。</translation>
    </message>
    <message>
        <source>There is nothing in %1 folders that can be played, the first is &quot;%2&quot;.</source>
        <translation>%1 個のフォルダーには再生できるものがありません。最初のものは「%2」です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a media file.</source>
        <translation>「%1」はメディアファイルではありません。</translation>
    </message>
    <message>
        <source>%1 of them are not media files, the first is &quot;%2&quot;.</source>
        <translation>%1 個はメディアファイルではありません。最初のものは「%2」です。</translation>
    </message>
    <message>
        <source>The subtitle file &quot;%1&quot; can be added while a film plays.</source>
        <translation>字幕ファイル「%1」は映画の再生中に追加できます。</translation>
    </message>
    <message>
        <source>%1 subtitle files can be added while a film plays, the first is &quot;%2&quot;.</source>
        <translation>%1 個の字幕ファイルは映画の再生中に追加できます。最初のものは「%2」です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and what follows was left out.</source>
        <translation>「%1」とそれ以降は省略されました。</translation>
    </message>
    <message>
        <source>&quot;%2&quot; and what follows was left out.</source>
        <translation>「%2」とそれ以降は省略されました。</translation>
    </message>
</context>
<context>
    <name>ErrorNote</name>
    <message>
        <source>Your device does not support hardware decoding for H.265 4K videos, and we&apos;ve automatically switched to the software decoding mode, which might possibly cause unsmooth playback.</source>
        <translation>お使いのデバイスは H.265 4K 動画のハードウェアデコードに対応していないため、自動的にソフトウェアデコードに切り替えました。再生がなめらかでない場合があります。</translation>
    </message>
    <message>
        <source>Your computer hardware configuration does not support hardware decoding for 4K UHD Blu-rays.</source>
        <translation>お使いのコンピューターは 4K UHD ブルーレイのハードウェアデコードに対応していません。</translation>
    </message>
    <message>
        <source>Invalid custom shader, please check and try again.</source>
        <translation>カスタムシェーダーが無効です。確認してもう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>FileAssociationList</name>
    <message>
        <source>Please write each extension as *.mkv and separate them by semicolons.</source>
        <translation>拡張子は *.mkv の形式で入力し、セミコロンで区切ってください。</translation>
    </message>
    <message>
        <source>Oops! This file extension is not supported yet.</source>
        <translation>このファイル拡張子にはまだ対応していません。</translation>
    </message>
</context>
<context>
    <name>FolderEdit</name>
    <message>
        <source>Browse...</source>
        <translation>参照...</translation>
    </message>
</context>
<context>
    <name>FolderProbe</name>
    <message>
        <source>This folder does not exist.</source>
        <translation>このフォルダーは存在しません。</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>フォルダーではありません。</translation>
    </message>
    <message>
        <source>This folder cannot be read.</source>
        <translation>このフォルダーを読み取れません。</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>このフォルダーに書き込めません。</translation>
    </message>
    <message>
        <source>This folder does not answer.</source>
        <translation>このフォルダーは応答しません。</translation>
    </message>
</context>
<context>
    <name>HotKeysPage</name>
    <message>
        <source>Press Enter on a row and then the new key. Delete takes the key away.</source>
        <translation>行で Enter を押してから新しいキーを押します。Delete でキーを解除します。</translation>
    </message>
    <message>
        <source>%1 was the key of &quot;%2&quot;, which has none now.</source>
        <translation>%1 は「%2」のキーでした。この操作にはキーがなくなりました。</translation>
    </message>
</context>
<context>
    <name>KeySequenceEditWidget</name>
    <message>
        <source>New key</source>
        <translation>新しいキー</translation>
    </message>
</context>
<context>
    <name>LanguageManager</name>
    <message>
        <source>Language name of this translation</source>
        <extracomment>The name of the language that this translation is for, in that language.</extracomment>
        <translation>日本語</translation>
    </message>
</context>
<context>
    <name>LibraryPage</name>
    <message>
        <source>Are you sure to clear and rebuild your library?</source>
        <translation>ライブラリを消去して再構築してもよろしいですか?</translation>
    </message>
    <message>
        <source>Rebuild</source>
        <translation>再構築</translation>
    </message>
</context>
<context>
    <name>MenuCase</name>
    <message>
        <source>Quorin Player 6 can play back the BDAV discs in Simple mode only, but you can switch titles from the Playlist.</source>
        <translation>Quorin Player 6 は BDAV ディスクをシンプルモードでのみ再生できますが、プレイリストからタイトルを切り替えられます。</translation>
    </message>
</context>
<context>
    <name>ModeSelectView</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>PC Mode</source>
        <translation>PC モード</translation>
    </message>
    <message>
        <source>In a window, with mouse and keyboard</source>
        <translation>ウィンドウ表示、マウスとキーボードで操作</translation>
    </message>
    <message>
        <source>TV Mode</source>
        <translation>TV モード</translation>
    </message>
    <message>
        <source>Full screen, with a remote control</source>
        <translation>全画面、リモコンで操作</translation>
    </message>
    <message>
        <source>Remember my choice and don&apos;t ask again</source>
        <translation>選択を記憶し、今後は確認しない</translation>
    </message>
    <message>
        <source>How do you want to watch?</source>
        <translation>どのように視聴しますか？</translation>
    </message>
    <message>
        <source>You can change this later in the settings.</source>
        <translation>この選択は後で設定から変更できます。</translation>
    </message>
</context>
<context>
    <name>NormalAboutDLg</name>
    <message>
        <source>User interface</source>
        <translation>ユーザーインターフェース</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Formats and codecs</source>
        <translation>形式とコーデック</translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>Blu-ray</source>
        <translation>ブルーレイ</translation>
    </message>
    <message>
        <source>Media library</source>
        <translation>メディアライブラリ</translation>
    </message>
    <message>
        <source>Music tags</source>
        <translation>音楽タグ</translation>
    </message>
    <message>
        <source>Foundations</source>
        <translation>基盤</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>built on %1</source>
        <translation>ビルド日 %1</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>ライブラリ</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later</source>
        <translation>GNU 一般公衆ライセンス バージョン 3 以降に基づくフリーソフトウェア</translation>
    </message>
</context>
<context>
    <name>NormalColorAdjustDlg</name>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>ソフト</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>明るい</translation>
    </message>
    <message>
        <source>Color Adjust</source>
        <translation>色調整</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
</context>
<context>
    <name>NormalDialogFrame</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>NormalKeyConflictTipsDialog</name>
    <message>
        <source>The hotkey you just chose was previously used for another action. That one has been rendered useless.</source>
        <translation>選択したホットキーは別の操作で使われていました。その操作のホットキーは無効になりました。</translation>
    </message>
</context>
<context>
    <name>NormalLastPositionLabel</name>
    <message>
        <source>Last playback at</source>
        <translation>前回の再生位置</translation>
    </message>
</context>
<context>
    <name>NormalLoadingDlg</name>
    <message>
        <source>Loading ...</source>
        <translation>読み込み中...</translation>
    </message>
</context>
<context>
    <name>NormalMainWindow</name>
    <message>
        <source>Failure initializing playback device, please update your video card and sound card drivers. Contact us if that does not fix the problem.</source>
        <translation>再生デバイスの初期化に失敗しました。ビデオカードとサウンドカードのドライバーを更新してください。解決しない場合はお問い合わせください。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Media Files (%1)</source>
        <translation>メディアファイル (%1)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>メディアを開く...</translation>
    </message>
    <message>
        <source>Subtitle Files (%1)</source>
        <translation>字幕ファイル (%1)</translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation>映像コントロール...</translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation>色調整...</translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation>字幕を読み込む...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>To add to the library, please specify the library type for the directory.</source>
        <translation>ライブラリに追加するには、フォルダーのライブラリの種類を指定してください。</translation>
    </message>
    <message>
        <source>Movies &amp; TV Shows</source>
        <translation>映画とテレビ番組</translation>
    </message>
    <message>
        <source>Adult</source>
        <translation>アダルト</translation>
    </message>
    <message>
        <source>Feedback can&apos;t be sent: this version of the program has no address for it.</source>
        <translation>フィードバックを送信できません。このバージョンのプログラムには送信先が設定されていません。</translation>
    </message>
</context>
<context>
    <name>NormalMessageBox</name>
    <message>
        <source>Don&apos;t show again</source>
        <translation>今後は表示しない</translation>
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
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>NormalMetaView</name>
    <message>
        <source>Video</source>
        <translation>映像</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>チャプター</translation>
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
        <translation>標準速度</translation>
    </message>
</context>
<context>
    <name>NormalPlaylistSwitch</name>
    <message>
        <source>Close the playlist</source>
        <translation>再生リストを閉じる</translation>
    </message>
    <message>
        <source>Open the playlist</source>
        <translation>再生リストを開く</translation>
    </message>
</context>
<context>
    <name>NormalPlaylistView</name>
    <message>
        <source>Playlist</source>
        <translation>再生リスト</translation>
    </message>
    <message>
        <source>Media Files (%1)</source>
        <translation>メディアファイル (%1)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>AddFile...</source>
        <translation>ファイルを追加...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>フォルダーを追加...</translation>
    </message>
</context>
<context>
    <name>NormalPreviewView</name>
    <message>
        <source>Smart Preview</source>
        <translation>スマートプレビュー</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>枚数</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>There are no preview pictures for this source.</source>
        <translation>このソースのプレビュー画像はありません。</translation>
    </message>
</context>
<context>
    <name>NormalSettingPage</name>
    <message>
        <source>Files with these extensions open with Quorin Player 6 when they are double clicked.</source>
        <translation>これらの拡張子のファイルは、ダブルクリックすると Quorin Player 6 で開きます。</translation>
    </message>
    <message>
        <source>To change your default apps, go to Settings &gt; System &gt; Default apps.</source>
        <translation>既定のアプリを変更するには、[設定] &gt; [システム] &gt; [既定のアプリ] に移動してください。</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>システム設定</translation>
    </message>
    <message>
        <source>PC Mode</source>
        <translation>PC モード</translation>
    </message>
    <message>
        <source>TV Mode</source>
        <translation>TV モード</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>すべてリセット</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>The media library is not available.</source>
        <translation>メディアライブラリは利用できません。</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>ビデオ</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>ミュージック</translation>
    </message>
    <message>
        <source>Update Library</source>
        <translation>ライブラリを更新</translation>
    </message>
    <message>
        <source>Rebuild Library</source>
        <translation>ライブラリを再構築</translation>
    </message>
    <message>
        <source>Add New Directory</source>
        <translation>フォルダーを追加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>The file associations were not changed.</source>
        <translation>ファイルの関連付けは変更されませんでした。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>既定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>ライブラリ</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>映像</translation>
    </message>
    <message>
        <source>3D Display</source>
        <translation>3D 表示</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Blu-ray</source>
        <translation>ブルーレイ</translation>
    </message>
    <message>
        <source>File Association</source>
        <translation>ファイルの関連付け</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>スナップショット</translation>
    </message>
    <message>
        <source>HotKeys</source>
        <translation>ホットキー</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Same as UI language</source>
        <translation>表示言語と同じ</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Simple Mode</source>
        <translation>シンプルモード</translation>
    </message>
    <message>
        <source>Menu Mode</source>
        <translation>メニューモード</translation>
    </message>
    <message>
        <source>Always match to the original video size</source>
        <translation>常に元の映像サイズに合わせる</translation>
    </message>
    <message>
        <source>Always remember the last choice</source>
        <translation>常に前回の選択を記憶する</translation>
    </message>
    <message>
        <source>UI Language</source>
        <translation>表示言語</translation>
    </message>
    <message>
        <source>Launch Mode</source>
        <translation>起動モード</translation>
    </message>
    <message>
        <source>Ask me each time</source>
        <translation>毎回確認する</translation>
    </message>
    <message>
        <source>Window size</source>
        <translation>ウィンドウサイズ</translation>
    </message>
    <message>
        <source>Log Path</source>
        <translation>ログの保存先</translation>
    </message>
    <message>
        <source>Auto play when disc inserted</source>
        <translation>ディスク挿入時に自動再生</translation>
    </message>
    <message>
        <source>Pause play when minimized</source>
        <translation>最小化時に一時停止</translation>
    </message>
    <message>
        <source>Remember the last playback position</source>
        <translation>前回の再生位置を記憶する</translation>
    </message>
    <message>
        <source>Disable Screensaver</source>
        <translation>スクリーンセーバーを無効にする</translation>
    </message>
    <message>
        <source>Allow multiple instances</source>
        <translation>複数起動を許可する</translation>
    </message>
    <message>
        <source>Check for new version automatically</source>
        <translation>新しいバージョンを自動的に確認する</translation>
    </message>
    <message>
        <source>Show progress in taskbar</source>
        <translation>タスクバーに進行状況を表示</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>DVD Playback Mode</source>
        <translation>DVD 再生モード</translation>
    </message>
    <message>
        <source>UHD / Blu-ray Playback Mode</source>
        <translation>UHD / Blu-ray 再生モード</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Menu language</source>
        <translation>メニューの言語</translation>
    </message>
    <message>
        <source>Audio language</source>
        <translation>音声の言語</translation>
    </message>
    <message>
        <source>Subtitle language</source>
        <translation>字幕の言語</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>ヒント</translation>
    </message>
    <message>
        <source>Show tips for playback status</source>
        <translation>再生状態のヒントを表示する</translation>
    </message>
    <message>
        <source>Enable the library for adult contents</source>
        <translation>アダルトコンテンツのライブラリを有効にする</translation>
    </message>
    <message>
        <source>Decoding</source>
        <translation>デコード</translation>
    </message>
    <message>
        <source>Enable Hardware Acceleration Decoding</source>
        <translation>ハードウェアアクセラレーションを有効にする</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Enable HDR</source>
        <translation>HDR を有効にする</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Force HDR-&gt;SDR</source>
        <translation>HDR-&gt;SDR を強制する</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>トーンマップ</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>シンプル</translation>
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
        <translation>輝度スケール:</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>Output Color Range </source>
        <translation>出力カラーレンジ </translation>
    </message>
    <message>
        <source>Full Color Range (0-255)</source>
        <translation>フルレンジ (0-255)</translation>
    </message>
    <message>
        <source>Limited Color Range (16-235)</source>
        <translation>リミテッドレンジ (16-235)</translation>
    </message>
    <message>
        <source>Enable 3D Playback Engine (effective upon next playback)</source>
        <translation>3D 再生エンジンを有効にする (次回の再生から有効)</translation>
    </message>
    <message>
        <source>Play 3D Media in 3D</source>
        <translation>3D メディアを 3D で再生</translation>
    </message>
    <message>
        <source>Convert 2D Media to 3D</source>
        <translation>2D メディアを 3D に変換</translation>
    </message>
    <message>
        <source>3D Display Device</source>
        <translation>3D 表示デバイス</translation>
    </message>
    <message>
        <source>Anaglyph Red/Cyan Mode</source>
        <translation>アナグリフ (赤/シアン) モード</translation>
    </message>
    <message>
        <source>3D-Ready HDTV (Checkerboard)</source>
        <translation>3D-Ready HDTV (チェッカーボード)</translation>
    </message>
    <message>
        <source>Micro-polarizer LCD 3D (Row-interleaved)</source>
        <translation>マイクロポール LCD 3D (行インターリーブ)</translation>
    </message>
    <message>
        <source>HDMI 1.4 enabled 3D TV</source>
        <translation>HDMI 1.4 対応 3D テレビ</translation>
    </message>
    <message>
        <source>Swap eye view</source>
        <translation>左右の視点を入れ替える</translation>
    </message>
    <message>
        <source>Left view first</source>
        <translation>左視点を先に</translation>
    </message>
    <message>
        <source>Right view first</source>
        <translation>右視点を先に</translation>
    </message>
    <message>
        <source>Output Mode</source>
        <translation>出力モード</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Analog</source>
        <translation>アナログ</translation>
    </message>
    <message>
        <source>Optical/Coax</source>
        <translation>光/同軸</translation>
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
        <translation>出力デバイス</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>スピーカー</translation>
    </message>
    <message>
        <source>Passthrough</source>
        <translation>パススルー</translation>
    </message>
    <message>
        <source>Enable Audio Passthrough</source>
        <translation>オーディオパススルーを有効にする</translation>
    </message>
    <message>
        <source>Dolby Digital(AC3) capable receiver</source>
        <translation>Dolby Digital(AC3) 対応レシーバー</translation>
    </message>
    <message>
        <source>DTS capable receiver</source>
        <translation>DTS 対応レシーバー</translation>
    </message>
    <message>
        <source>TrueHD/DTS-HD capable receiver</source>
        <translation>TrueHD/DTS-HD 対応レシーバー</translation>
    </message>
    <message>
        <source>Level and timing</source>
        <translation>音量とタイミング</translation>
    </message>
    <message>
        <source>Volume Amplification</source>
        <translation>音量の増幅</translation>
    </message>
    <message>
        <source>Audio Offset</source>
        <translation>音声オフセット</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Charset</source>
        <translation>文字コード</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>色</translation>
    </message>
    <message>
        <source>OutLine Color</source>
        <translation>縁取りの色</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>太字</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>縁取り</translation>
    </message>
    <message>
        <source>Override Ass/SSA subtitles config</source>
        <translation>Ass/SSA 字幕の設定を上書きする</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Subtitle Offset</source>
        <translation>字幕オフセット</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>リージョン</translation>
    </message>
    <message>
        <source>Region A</source>
        <translation>リージョン A</translation>
    </message>
    <message>
        <source>Region B</source>
        <translation>リージョン B</translation>
    </message>
    <message>
        <source>Region C</source>
        <translation>リージョン C</translation>
    </message>
    <message>
        <source>Enable Blu-ray 3D playback when in Simple Mode</source>
        <translation>シンプルモードで Blu-ray 3D 再生を有効にする</translation>
    </message>
    <message>
        <source>Skip FBI warnings</source>
        <translation>FBI 警告をスキップする</translation>
    </message>
    <message>
        <source>Jump to Blu-ray menu directly</source>
        <translation>Blu-ray メニューに直接移動する</translation>
    </message>
    <message>
        <source>Set File Associations</source>
        <translation>ファイルの関連付けを設定する</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Save to clipboard simultaneously(you can paste it directly)</source>
        <translation>同時にクリップボードにも保存する (直接貼り付け可能)</translation>
    </message>
    <message>
        <source>Use IE proxy</source>
        <translation>IE のプロキシを使用する</translation>
    </message>
    <message>
        <source>Use the system&apos;s proxy</source>
        <translation>システムのプロキシを使用する</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>Do not use proxy</source>
        <translation>プロキシを使用しない</translation>
    </message>
    <message>
        <source>Use manual proxy</source>
        <translation>手動プロキシを使用する</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>ホスト</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Analyze Hardware</source>
        <translation>ハードウェアを分析</translation>
    </message>
    <message>
        <source>The settings are in use, but could not be written to the disk:
%1
They will be lost when the program ends, unless there is room until then.</source>
        <translation>設定は使用中ですが、ディスクに書き込めませんでした:
%1
プログラムの終了までに空き容量ができない場合、設定は失われます。</translation>
    </message>
</context>
<context>
    <name>NormalStartView</name>
    <message>
        <source>Drop a film, a folder or a disc image here to play it.</source>
        <translation>映画、フォルダー、ディスクイメージをここにドロップすると再生します。</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>メディアを開く...</translation>
    </message>
    <message>
        <source>Recently Played</source>
        <translation>最近再生した項目</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Clear the list of recently played files</source>
        <translation>最近再生した項目の一覧を消去</translation>
    </message>
    <message>
        <source>Drop to play</source>
        <translation>ドロップして再生</translation>
    </message>
</context>
<context>
    <name>NormalTipLabel</name>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Slow motion %1x</source>
        <translation>スロー再生 %1 倍</translation>
    </message>
    <message>
        <source>Fast forward</source>
        <translation>早送り</translation>
    </message>
    <message>
        <source>Fast forward %1x</source>
        <translation>早送り %1 倍</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>巻き戻し</translation>
    </message>
    <message>
        <source>Rewind %1x</source>
        <translation>巻き戻し %1 倍</translation>
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
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
</context>
<context>
    <name>NormalTvshowAutoPlayLabel</name>
    <message>
        <source>Play Now</source>
        <translation>今すぐ再生</translation>
    </message>
    <message>
        <source>Not this time</source>
        <translation>今回はしない</translation>
    </message>
    <message>
        <source>Up Next: </source>
        <translation>次の再生: </translation>
    </message>
</context>
<context>
    <name>NormalVideoControlDlg</name>
    <message>
        <source>Video Control</source>
        <translation>映像コントロール</translation>
    </message>
    <message>
        <source>Zoom Amount</source>
        <translation>ズーム量</translation>
    </message>
    <message>
        <source>Vertical Shift</source>
        <translation>垂直シフト</translation>
    </message>
    <message>
        <source>Pixel Ratio</source>
        <translation>ピクセル比</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
</context>
<context>
    <name>NormalWaitingDlg</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>PlayFailure</name>
    <message>
        <source>Quorin does not support your UHD drive, please check the supported drives here.</source>
        <translation>お使いの UHD ドライブには対応していません。対応ドライブはこちらをご確認ください。</translation>
    </message>
    <message>
        <source>More Info...</source>
        <translation>詳細情報...</translation>
    </message>
    <message>
        <source>Oops! This disc is not supported yet. Please try again at a later time.</source>
        <translation>申し訳ありません。このディスクにはまだ対応していません。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>Failed to play back the disc.</source>
        <translation>ディスクを再生できませんでした。</translation>
    </message>
    <message>
        <source>A live Internet is required to play back the disc, please check your network and try again.</source>
        <translation>このディスクの再生にはインターネット接続が必要です。ネットワークを確認してもう一度お試しください。</translation>
    </message>
    <message>
        <source>An unknown error happened, please update to the newest version at</source>
        <translation>不明なエラーが発生しました。最新バージョンに更新してください：</translation>
    </message>
    <message>
        <source>Playback failed.</source>
        <translation>再生に失敗しました。</translation>
    </message>
    <message>
        <source>This source can&apos;t be played. It may be damaged, protected or of an unknown format.</source>
        <translation>このソースは再生できません。破損しているか、保護されているか、未知の形式である可能性があります。</translation>
    </message>
    <message>
        <source>There is no such file, folder or title.</source>
        <translation>そのファイル、フォルダー、またはタイトルはありません。</translation>
    </message>
    <message>
        <source>This source may not be read, or is neither a file nor a folder nor a disc.</source>
        <translation>このソースは読み取れないか、ファイル、フォルダー、ディスクのいずれでもありません。</translation>
    </message>
    <message>
        <source>There is nothing in this source that can be played.</source>
        <translation>このソースには再生できるものがありません。</translation>
    </message>
    <message>
        <source>There is no disc in this source, or none that can be read.</source>
        <translation>このソースにディスクがないか、読み取れません。</translation>
    </message>
    <message>
        <source>This source does not answer.</source>
        <translation>このソースから応答がありません。</translation>
    </message>
    <message>
        <source>This source ended with an error while it played.</source>
        <translation>このソースは再生中にエラーで終了しました。</translation>
    </message>
</context>
<context>
    <name>PlayMenu</name>
    <message>
        <source>Open Media...</source>
        <translation>メディアを開く...</translation>
    </message>
    <message>
        <source>Open Disc</source>
        <translation>ディスクを開く</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>チャプター</translation>
    </message>
    <message>
        <source>Top Menu</source>
        <translation>トップメニュー</translation>
    </message>
    <message>
        <source>Pop Menu</source>
        <translation>ポップアップメニュー</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>映像</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Shaders</source>
        <translation>シェーダー</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全画面</translation>
    </message>
    <message>
        <source>Always on Top</source>
        <translation>常に手前に表示</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>アスペクト比</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>インターレース解除</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation>映像コントロール...</translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation>色調整...</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>スナップショットを撮る</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>既定</translation>
    </message>
    <message>
        <source>Fit Window</source>
        <translation>ウィンドウに合わせる</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Rotate 90 degree CW</source>
        <translation>右に 90 度回転</translation>
    </message>
    <message>
        <source>Rotate 90 degree CCW</source>
        <translation>左に 90 度回転</translation>
    </message>
    <message>
        <source>Rotate 180 degree</source>
        <translation>180 度回転</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>上下反転</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Cycle Through Audio Track</source>
        <translation>次の音声トラック</translation>
    </message>
    <message>
        <source>Cycle Through Subtitle Track</source>
        <translation>次の字幕</translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation>字幕を読み込む...</translation>
    </message>
    <message>
        <source>Subtitle Setting...</source>
        <translation>字幕設定...</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Previous Chapter</source>
        <translation>前のチャプター</translation>
    </message>
    <message>
        <source>Next Chapter</source>
        <translation>次のチャプター</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>巻き戻し</translation>
    </message>
    <message>
        <source>Fast Forward</source>
        <translation>早送り</translation>
    </message>
    <message>
        <source>Normal Speed</source>
        <translation>標準速度</translation>
    </message>
    <message>
        <source>10 Sec. Backward</source>
        <translation>10 秒戻る</translation>
    </message>
    <message>
        <source>10 Sec. Forward</source>
        <translation>10 秒進む</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>チャプター %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
</context>
<context>
    <name>PlayQueueModel</name>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source> (Main)</source>
        <translation>（本編）</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>見つかりません</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Open file</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>フィードバックを送信</translation>
    </message>
    <message>
        <source>Eject the selected disc</source>
        <translation>選択したディスクを取り出す</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>全画面表示</translation>
    </message>
    <message>
        <source>Always on top</source>
        <translation>常に手前に表示</translation>
    </message>
    <message>
        <source>Mute on/off</source>
        <translation>ミュート オン/オフ</translation>
    </message>
    <message>
        <source>Previous Chapter</source>
        <translation>前のチャプター</translation>
    </message>
    <message>
        <source>Next Chapter</source>
        <translation>次のチャプター</translation>
    </message>
    <message>
        <source>Play/pause movie playback</source>
        <translation>再生/一時停止</translation>
    </message>
    <message>
        <source>Stop Playback</source>
        <translation>再生を停止</translation>
    </message>
    <message>
        <source>Increase audio volume</source>
        <translation>音量を上げる</translation>
    </message>
    <message>
        <source>Decrease audio volume</source>
        <translation>音量を下げる</translation>
    </message>
    <message>
        <source>Fast Forward</source>
        <translation>早送り</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>巻き戻し</translation>
    </message>
    <message>
        <source>Switch Audio</source>
        <translation>音声を切り替え</translation>
    </message>
    <message>
        <source>Switch Subtitle</source>
        <translation>字幕を切り替え</translation>
    </message>
    <message>
        <source>Filp vertically</source>
        <translation>上下反転</translation>
    </message>
    <message>
        <source>Filp horizontally</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>File Information</source>
        <translation>ファイル情報</translation>
    </message>
    <message>
        <source>Show Information</source>
        <translation>情報を表示</translation>
    </message>
    <message>
        <source>Open Smart View</source>
        <translation>スマートビューを開く</translation>
    </message>
    <message>
        <source>Displays the playback menu</source>
        <translation>再生メニューを表示</translation>
    </message>
    <message>
        <source>Pop-up menu</source>
        <translation>ポップアップメニュー</translation>
    </message>
    <message>
        <source>Top menu</source>
        <translation>トップメニュー</translation>
    </message>
    <message>
        <source>Navigate up in menus</source>
        <translation>メニューを上へ移動</translation>
    </message>
    <message>
        <source>Navigate down in menus</source>
        <translation>メニューを下へ移動</translation>
    </message>
    <message>
        <source>Navigate left in menus</source>
        <translation>メニューを左へ移動</translation>
    </message>
    <message>
        <source>Navigate right in menus</source>
        <translation>メニューを右へ移動</translation>
    </message>
    <message>
        <source>Accepts the selected menu</source>
        <translation>選択したメニューを決定</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>スナップショットを撮る</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>次のフレーム</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>前のフレーム</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Sec</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>CW</source>
        <translation>時計回り</translation>
    </message>
    <message>
        <source>CCW</source>
        <translation>反時計回り</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前方へ</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>後方へ</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>File error: </source>
        <translation>ファイルエラー: </translation>
    </message>
</context>
<context>
    <name>QPlayer</name>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>QueueDelegate</name>
    <message>
        <source>Not found</source>
        <translation>見つかりません</translation>
    </message>
</context>
<context>
    <name>QueueEmptyPage</name>
    <message>
        <source>The playlist is empty.</source>
        <translation>再生リストは空です。</translation>
    </message>
    <message>
        <source>Drop files or folders here, or add them with a right click.</source>
        <translation>ここにファイルやフォルダーをドロップするか、右クリックで追加してください。</translation>
    </message>
</context>
<context>
    <name>QueueHead</name>
    <message>
        <source>Playlist</source>
        <translation>再生リスト</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>アイコン</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>QueueMenus</name>
    <message>
        <source>AddFile...</source>
        <translation>ファイルを追加...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>フォルダーを追加...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Remove Invalid</source>
        <translation>無効な項目を削除</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>すべて削除</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>保存先フォルダーを開く</translation>
    </message>
    <message>
        <source>Sort by Name</source>
        <translation>名前順に並べ替え</translation>
    </message>
    <message>
        <source>Sort by Type</source>
        <translation>種類順に並べ替え</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>1回再生</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>順次再生</translation>
    </message>
    <message>
        <source>Shuffle</source>
        <translation>シャッフル</translation>
    </message>
    <message>
        <source>Repeat One</source>
        <translation>1件リピート</translation>
    </message>
    <message>
        <source>Repeat All</source>
        <translation>すべてリピート</translation>
    </message>
</context>
<context>
    <name>RecentCard</name>
    <message>
        <source>Not found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>Last playback at %1</source>
        <translation>前回の再生位置 %1</translation>
    </message>
</context>
<context>
    <name>ScreenshotWriter</name>
    <message>
        <source>There is no picture to save.</source>
        <translation>保存する画像がありません。</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: the folder &quot;%1&quot; does not exist.</source>
        <translation>スナップショットを保存できませんでした。フォルダー「%1」が存在しません。</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: the folder &quot;%1&quot; is not writable.</source>
        <translation>スナップショットを保存できませんでした。フォルダー「%1」に書き込めません。</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: there is no free space in the folder &quot;%1&quot;.</source>
        <translation>スナップショットを保存できませんでした。フォルダー「%1」に空き容量がありません。</translation>
    </message>
    <message>
        <source>The snapshot could not be saved in the folder &quot;%1&quot;.</source>
        <translation>スナップショットをフォルダー「%1」に保存できませんでした。</translation>
    </message>
</context>
<context>
    <name>SettingRowWidget</name>
    <message>
        <source>Default</source>
        <translation>既定</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>Please enter the address of the proxy.</source>
        <translation>プロキシのアドレスを入力してください。</translation>
    </message>
    <message>
        <source>Please enter the address alone, as proxy.example.org or 192.168.0.1.</source>
        <translation>proxy.example.org や 192.168.0.1 のように、アドレスのみを入力してください。</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>ポートは 1 から 65535 までの数値です。</translation>
    </message>
</context>
<context>
    <name>SmartPreview</name>
    <message>
        <source>The Smart Preview feature on DVDs and Blu-rays is coming soon!</source>
        <translation>DVD と Blu-ray のスマートプレビュー機能は近日公開予定です！</translation>
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
        <translation>西ヨーロッパ</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>中央ヨーロッパ</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>バルト語</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>キリル文字</translation>
    </message>
    <message>
        <source>Cyrillic (KOI8-R)</source>
        <translation>キリル文字 (KOI8-R)</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>ギリシャ語</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>トルコ語</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>ヘブライ語</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>アラビア語</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>ベトナム語</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>タイ語</translation>
    </message>
    <message>
        <source>Chinese Simplified</source>
        <translation>簡体字中国語</translation>
    </message>
    <message>
        <source>Chinese Traditional</source>
        <translation>繁体字中国語</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓国語</translation>
    </message>
</context>
<context>
    <name>ThreeDMenu</name>
    <message>
        <source>Auto Detect</source>
        <translation>自動検出</translation>
    </message>
    <message>
        <source>Side by Side</source>
        <translation>サイドバイサイド</translation>
    </message>
    <message>
        <source>Top / Bottom</source>
        <translation>トップ / ボトム</translation>
    </message>
    <message>
        <source>Play 3D Media in 3D</source>
        <translation>3D メディアを 3D で再生</translation>
    </message>
    <message>
        <source>Convert 2D Media to 3D</source>
        <translation>2D メディアを 3D に変換</translation>
    </message>
    <message>
        <source>3D Source Format</source>
        <translation>3D ソース形式</translation>
    </message>
    <message>
        <source>More 3D Settings</source>
        <translation>その他の 3D 設定</translation>
    </message>
    <message>
        <source>Oops! 3D playback support is only available on Windows 8/10 for now.</source>
        <translation>申し訳ありません。3D 再生は現在 Windows 8/10 でのみ対応しています。</translation>
    </message>
</context>
<context>
    <name>TvPlayingWidget</name>
    <message>
        <source>Playback Failed!</source>
        <translation>再生に失敗しました！</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Failure initializing playback device, please update your video card and sound card drivers. Contact us if that does not fix the problem.</source>
        <translation>再生デバイスの初期化に失敗しました。ビデオカードとサウンドカードのドライバーを更新してください。解決しない場合はお問い合わせください。</translation>
    </message>
    <message>
        <source>This source can&apos;t be played. It may be damaged, protected or of an unknown format.</source>
        <translation>このソースは再生できません。破損しているか、保護されているか、未知の形式である可能性があります。</translation>
    </message>
</context>
<context>
    <name>TvStartWidget</name>
    <message>
        <source>Ready to play</source>
        <translation>再生準備完了</translation>
    </message>
    <message>
        <source>Open a film with the player to watch it here.</source>
        <translation>プレーヤーで映画を開くと、ここで視聴できます。</translation>
    </message>
</context>
<context>
    <name>VideoPage</name>
    <message>
        <source>The analysis could not be started.</source>
        <translation>分析を開始できませんでした。</translation>
    </message>
</context>
</TS>
