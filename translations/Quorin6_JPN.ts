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
    <name>LanguageManager</name>
    <message>
        <source>Language name of this translation</source>
        <extracomment>The name of the language that this translation is for, in that language.</extracomment>
        <translation>日本語</translation>
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
</TS>
