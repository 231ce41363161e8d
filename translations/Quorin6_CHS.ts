<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>AnimateMenu</name>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>打开媒体...</translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation>视频控制...</translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation>色彩调整...</translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation>加载字幕...</translation>
    </message>
    <message>
        <source>Subtitle Setting...</source>
        <translation>字幕设置...</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>设置...</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>反馈</translation>
    </message>
    <message>
        <source>Forum</source>
        <translation>论坛</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
</context>
<context>
    <name>AudioPage</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1（未连接）</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>无设备</translation>
    </message>
</context>
<context>
    <name>Display3DPage</name>
    <message>
        <source>Oops! 3D playback support is only available on Windows 8/10 for now.</source>
        <translation>抱歉！目前仅在 Windows 8/10 上支持 3D 播放。</translation>
    </message>
    <message>
        <source>Oops! The selected device does not support this mode yet. Quorin Player 6 will revert to the previous setting.</source>
        <translation>抱歉！所选设备尚不支持此模式。Quorin Player 6 将恢复为之前的设置。</translation>
    </message>
    <message>
        <source>Oops! There are multiple displays detected. To use HDMI 1.4 3D output, we suggest that you keep only one display.</source>
        <translation>检测到多个显示器。要使用 HDMI 1.4 3D 输出，建议只保留一个显示器。</translation>
    </message>
</context>
<context>
    <name>DropRule</name>
    <message>
        <source>&quot;%1&quot; is not a file on this computer.</source>
        <translation>“%1”不是这台电脑上的文件。</translation>
    </message>
    <message>
        <source>%1 of them are not files on this computer, the first is &quot;%2&quot;.</source>
        <translation>其中 %1 个不是这台电脑上的文件，第一个是“%2”。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>文件“%1”不存在。</translation>
    </message>
    <message>
        <source>%1 files do not exist, the first is &quot;%2&quot;.</source>
        <translation>%1 个文件不存在，第一个是“%2”。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; can&apos;t be read.</source>
        <translation>无法读取文件“%1”。</translation>
    </message>
    <message>
        <source>%1 files can&apos;t be read, the first is &quot;%2&quot;.</source>
        <translation>无法读取 %1 个文件，第一个是“%2”。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be read.</source>
        <translation>无法读取文件夹“%1”。</translation>
    </message>
    <message>
        <source>%1 folders can&apos;t be read, the first is &quot;%2&quot;.</source>
        <translation>无法读取 %1 个文件夹，第一个是“%2”。</translation>
    </message>
    <message>
        <source>There is nothing in the folder &quot;%1&quot; that can be played.</source>
        <translation>文件夹“%1”中没有可播放的内容。</translation>
    </message>
    <message>
        <source>There is nothing in %1 folders that can be played, the first is &quot;%2&quot;.</source>
        <translation>%1 个文件夹中没有可播放的内容，第一个是“%2”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a media file.</source>
        <translation>“%1”不是媒体文件。</translation>
    </message>
    <message>
        <source>%1 of them are not media files, the first is &quot;%2&quot;.</source>
        <translation>其中 %1 个不是媒体文件，第一个是“%2”。</translation>
    </message>
    <message>
        <source>The subtitle file &quot;%1&quot; can be added while a film plays.</source>
        <translation>播放影片时才能添加字幕文件“%1”。</translation>
    </message>
    <message>
        <source>%1 subtitle files can be added while a film plays, the first is &quot;%2&quot;.</source>
        <translation>播放影片时才能添加 %1 个字幕文件，第一个是“%2”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and what follows was left out.</source>
        <translation>“%1”及其后的内容已略去。</translation>
    </message>
    <message>
        <source>&quot;%2&quot; and what follows was left out.</source>
        <translation>“%2”及其后的内容已略去。</translation>
    </message>
</context>
<context>
    <name>ErrorNote</name>
    <message>
        <source>Your device does not support hardware decoding for H.265 4K videos, and we&apos;ve automatically switched to the software decoding mode, which might possibly cause unsmooth playback.</source>
        <translation>您的设备不支持 H.265 4K 视频的硬件解码，已自动切换到软件解码模式，播放可能会不够流畅。</translation>
    </message>
    <message>
        <source>Your computer hardware configuration does not support hardware decoding for 4K UHD Blu-rays.</source>
        <translation>您的电脑硬件配置不支持 4K UHD 蓝光的硬件解码。</translation>
    </message>
    <message>
        <source>Invalid custom shader, please check and try again.</source>
        <translation>自定义着色器无效，请检查后重试。</translation>
    </message>
</context>
<context>
    <name>FileAssociationList</name>
    <message>
        <source>Please write each extension as *.mkv and separate them by semicolons.</source>
        <translation>请将每个扩展名写成 *.mkv 的形式，并用分号分隔。</translation>
    </message>
    <message>
        <source>Oops! This file extension is not supported yet.</source>
        <translation>抱歉！尚不支持此文件扩展名。</translation>
    </message>
</context>
<context>
    <name>FolderEdit</name>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
</context>
<context>
    <name>FolderProbe</name>
    <message>
        <source>This folder does not exist.</source>
        <translation>此文件夹不存在。</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>这不是文件夹。</translation>
    </message>
    <message>
        <source>This folder cannot be read.</source>
        <translation>无法读取此文件夹。</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>无法写入此文件夹。</translation>
    </message>
    <message>
        <source>This folder does not answer.</source>
        <translation>此文件夹没有响应。</translation>
    </message>
</context>
<context>
    <name>HotKeysPage</name>
    <message>
        <source>Press Enter on a row and then the new key. Delete takes the key away.</source>
        <translation>在一行上按 Enter，然后按新按键。Delete 清除按键。</translation>
    </message>
    <message>
        <source>%1 was the key of &quot;%2&quot;, which has none now.</source>
        <translation>%1 原为“%2”的按键，该操作现在没有按键。</translation>
    </message>
</context>
<context>
    <name>KeySequenceEditWidget</name>
    <message>
        <source>New key</source>
        <translation>新按键</translation>
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
    <name>LibraryPage</name>
    <message>
        <source>Are you sure to clear and rebuild your library?</source>
        <translation>确定要清空并重建媒体库吗？</translation>
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
        <translation>Quorin Player 6 只能以简单模式播放 BDAV 光盘，但您可以从播放列表中切换标题。</translation>
    </message>
</context>
<context>
    <name>ModeSelectView</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>PC Mode</source>
        <translation>PC 模式</translation>
    </message>
    <message>
        <source>In a window, with mouse and keyboard</source>
        <translation>窗口模式，使用鼠标和键盘</translation>
    </message>
    <message>
        <source>TV Mode</source>
        <translation>TV 模式</translation>
    </message>
    <message>
        <source>Full screen, with a remote control</source>
        <translation>全屏，使用遥控器</translation>
    </message>
    <message>
        <source>Remember my choice and don&apos;t ask again</source>
        <translation>记住我的选择，不再询问</translation>
    </message>
    <message>
        <source>How do you want to watch?</source>
        <translation>您想如何观看？</translation>
    </message>
    <message>
        <source>You can change this later in the settings.</source>
        <translation>您可以稍后在设置中更改。</translation>
    </message>
</context>
<context>
    <name>NormalAboutDLg</name>
    <message>
        <source>User interface</source>
        <translation>用户界面</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Formats and codecs</source>
        <translation>格式与编解码器</translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>Blu-ray</source>
        <translation>蓝光</translation>
    </message>
    <message>
        <source>Media library</source>
        <translation>媒体库</translation>
    </message>
    <message>
        <source>Music tags</source>
        <translation>音乐标签</translation>
    </message>
    <message>
        <source>Foundations</source>
        <translation>基础组件</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>built on %1</source>
        <translation>构建于 %1</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>库</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later</source>
        <translation>基于 GNU 通用公共许可证第 3 版或更高版本的自由软件</translation>
    </message>
</context>
<context>
    <name>NormalColorAdjustDlg</name>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
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
        <translation>色彩调整</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比度</translation>
    </message>
</context>
<context>
    <name>NormalDialogFrame</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>NormalKeyConflictTipsDialog</name>
    <message>
        <source>The hotkey you just chose was previously used for another action. That one has been rendered useless.</source>
        <translation>您刚选择的热键之前用于另一操作，该操作的热键已失效。</translation>
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
        <translation>正在加载...</translation>
    </message>
</context>
<context>
    <name>NormalMainWindow</name>
    <message>
        <source>Failure initializing playback device, please update your video card and sound card drivers. Contact us if that does not fix the problem.</source>
        <translation>初始化播放设备失败，请更新显卡和声卡驱动程序。如果问题仍未解决，请联系我们。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Media Files (%1)</source>
        <translation>媒体文件 (%1)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>打开媒体...</translation>
    </message>
    <message>
        <source>Subtitle Files (%1)</source>
        <translation>字幕文件 (%1)</translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation>视频控制...</translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation>色彩调整...</translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation>加载字幕...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>设置...</translation>
    </message>
    <message>
        <source>To add to the library, please specify the library type for the directory.</source>
        <translation>要添加到媒体库，请指定该目录的媒体库类型。</translation>
    </message>
    <message>
        <source>Movies &amp; TV Shows</source>
        <translation>电影和电视剧</translation>
    </message>
    <message>
        <source>Adult</source>
        <translation>成人</translation>
    </message>
    <message>
        <source>Feedback can&apos;t be sent: this version of the program has no address for it.</source>
        <translation>无法发送反馈：此版本的程序没有反馈地址。</translation>
    </message>
</context>
<context>
    <name>NormalMessageBox</name>
    <message>
        <source>Don&apos;t show again</source>
        <translation>不再显示</translation>
    </message>
</context>
<context>
    <name>NormalMessageBoxFactory</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
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
        <translation>视频</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>章节</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
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
        <translation>关闭播放列表</translation>
    </message>
    <message>
        <source>Open the playlist</source>
        <translation>打开播放列表</translation>
    </message>
</context>
<context>
    <name>NormalPlaylistView</name>
    <message>
        <source>Playlist</source>
        <translation>播放列表</translation>
    </message>
    <message>
        <source>Media Files (%1)</source>
        <translation>媒体文件 (%1)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>AddFile...</source>
        <translation>添加文件...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>添加文件夹...</translation>
    </message>
</context>
<context>
    <name>NormalPreviewView</name>
    <message>
        <source>Smart Preview</source>
        <translation>智能预览</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>There are no preview pictures for this source.</source>
        <translation>此来源没有预览图片。</translation>
    </message>
</context>
<context>
    <name>NormalSettingPage</name>
    <message>
        <source>Files with these extensions open with Quorin Player 6 when they are double clicked.</source>
        <translation>双击具有这些扩展名的文件时将使用 Quorin Player 6 打开。</translation>
    </message>
    <message>
        <source>To change your default apps, go to Settings &gt; System &gt; Default apps.</source>
        <translation>要更改默认应用，请转到“设置”&gt;“系统”&gt;“默认应用”。</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>系统设置</translation>
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
        <translation>重置</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>全部重置</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>The media library is not available.</source>
        <translation>媒体库不可用。</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音乐</translation>
    </message>
    <message>
        <source>Update Library</source>
        <translation>更新媒体库</translation>
    </message>
    <message>
        <source>Rebuild Library</source>
        <translation>重建媒体库</translation>
    </message>
    <message>
        <source>Add New Directory</source>
        <translation>添加新目录</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>The file associations were not changed.</source>
        <translation>文件关联未更改。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>媒体库</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>3D Display</source>
        <translation>3D 显示</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Blu-ray</source>
        <translation>蓝光</translation>
    </message>
    <message>
        <source>File Association</source>
        <translation>文件关联</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>截图</translation>
    </message>
    <message>
        <source>HotKeys</source>
        <translation>热键</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Same as UI language</source>
        <translation>与界面语言相同</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Simple Mode</source>
        <translation>简单模式</translation>
    </message>
    <message>
        <source>Menu Mode</source>
        <translation>菜单模式</translation>
    </message>
    <message>
        <source>Always match to the original video size</source>
        <translation>始终匹配视频原始大小</translation>
    </message>
    <message>
        <source>Always remember the last choice</source>
        <translation>始终记住上次的选择</translation>
    </message>
    <message>
        <source>UI Language</source>
        <translation>界面语言</translation>
    </message>
    <message>
        <source>Launch Mode</source>
        <translation>启动模式</translation>
    </message>
    <message>
        <source>Ask me each time</source>
        <translation>每次询问</translation>
    </message>
    <message>
        <source>Window size</source>
        <translation>窗口大小</translation>
    </message>
    <message>
        <source>Log Path</source>
        <translation>日志路径</translation>
    </message>
    <message>
        <source>Auto play when disc inserted</source>
        <translation>插入光盘时自动播放</translation>
    </message>
    <message>
        <source>Pause play when minimized</source>
        <translation>最小化时暂停播放</translation>
    </message>
    <message>
        <source>Remember the last playback position</source>
        <translation>记住上次播放位置</translation>
    </message>
    <message>
        <source>Disable Screensaver</source>
        <translation>禁用屏幕保护程序</translation>
    </message>
    <message>
        <source>Allow multiple instances</source>
        <translation>允许多个实例</translation>
    </message>
    <message>
        <source>Check for new version automatically</source>
        <translation>自动检查新版本</translation>
    </message>
    <message>
        <source>Show progress in taskbar</source>
        <translation>在任务栏显示进度</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>光盘</translation>
    </message>
    <message>
        <source>DVD Playback Mode</source>
        <translation>DVD 播放模式</translation>
    </message>
    <message>
        <source>UHD / Blu-ray Playback Mode</source>
        <translation>UHD / 蓝光播放模式</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Menu language</source>
        <translation>菜单语言</translation>
    </message>
    <message>
        <source>Audio language</source>
        <translation>音频语言</translation>
    </message>
    <message>
        <source>Subtitle language</source>
        <translation>字幕语言</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Show tips for playback status</source>
        <translation>显示播放状态提示</translation>
    </message>
    <message>
        <source>Enable the library for adult contents</source>
        <translation>启用成人内容媒体库</translation>
    </message>
    <message>
        <source>Decoding</source>
        <translation>解码</translation>
    </message>
    <message>
        <source>Enable Hardware Acceleration Decoding</source>
        <translation>启用硬件加速解码</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Enable HDR</source>
        <translation>启用 HDR</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Force HDR-&gt;SDR</source>
        <translation>强制 HDR-&gt;SDR</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>色调映射</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>简单</translation>
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
        <translation>输出</translation>
    </message>
    <message>
        <source>Output Color Range </source>
        <translation>输出色彩范围 </translation>
    </message>
    <message>
        <source>Full Color Range (0-255)</source>
        <translation>全色彩范围 (0-255)</translation>
    </message>
    <message>
        <source>Limited Color Range (16-235)</source>
        <translation>有限色彩范围 (16-235)</translation>
    </message>
    <message>
        <source>Enable 3D Playback Engine (effective upon next playback)</source>
        <translation>启用 3D 播放引擎（下次播放时生效）</translation>
    </message>
    <message>
        <source>Play 3D Media in 3D</source>
        <translation>以 3D 播放 3D 媒体</translation>
    </message>
    <message>
        <source>Convert 2D Media to 3D</source>
        <translation>将 2D 媒体转换为 3D</translation>
    </message>
    <message>
        <source>3D Display Device</source>
        <translation>3D 显示设备</translation>
    </message>
    <message>
        <source>Anaglyph Red/Cyan Mode</source>
        <translation>红/青立体模式</translation>
    </message>
    <message>
        <source>3D-Ready HDTV (Checkerboard)</source>
        <translation>3D-Ready HDTV（棋盘格）</translation>
    </message>
    <message>
        <source>Micro-polarizer LCD 3D (Row-interleaved)</source>
        <translation>微偏振 LCD 3D（行交错）</translation>
    </message>
    <message>
        <source>HDMI 1.4 enabled 3D TV</source>
        <translation>支持 HDMI 1.4 的 3D 电视</translation>
    </message>
    <message>
        <source>Swap eye view</source>
        <translation>交换左右眼视图</translation>
    </message>
    <message>
        <source>Left view first</source>
        <translation>左视图优先</translation>
    </message>
    <message>
        <source>Right view first</source>
        <translation>右视图优先</translation>
    </message>
    <message>
        <source>Output Mode</source>
        <translation>输出模式</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Analog</source>
        <translation>模拟</translation>
    </message>
    <message>
        <source>Optical/Coax</source>
        <translation>光纤/同轴</translation>
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
        <translation>输出设备</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>扬声器</translation>
    </message>
    <message>
        <source>Passthrough</source>
        <translation>直通</translation>
    </message>
    <message>
        <source>Enable Audio Passthrough</source>
        <translation>启用音频直通</translation>
    </message>
    <message>
        <source>Dolby Digital(AC3) capable receiver</source>
        <translation>支持 Dolby Digital(AC3) 的接收器</translation>
    </message>
    <message>
        <source>DTS capable receiver</source>
        <translation>支持 DTS 的接收器</translation>
    </message>
    <message>
        <source>TrueHD/DTS-HD capable receiver</source>
        <translation>支持 TrueHD/DTS-HD 的接收器</translation>
    </message>
    <message>
        <source>Level and timing</source>
        <translation>音量与时间</translation>
    </message>
    <message>
        <source>Volume Amplification</source>
        <translation>音量放大</translation>
    </message>
    <message>
        <source>Audio Offset</source>
        <translation>音频偏移</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Charset</source>
        <translation>字符集</translation>
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
        <translation>顶部</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底部</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>OutLine Color</source>
        <translation>描边颜色</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>粗体</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>描边</translation>
    </message>
    <message>
        <source>Override Ass/SSA subtitles config</source>
        <translation>覆盖 Ass/SSA 字幕设置</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Subtitle Offset</source>
        <translation>字幕偏移</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>Region A</source>
        <translation>区域 A</translation>
    </message>
    <message>
        <source>Region B</source>
        <translation>区域 B</translation>
    </message>
    <message>
        <source>Region C</source>
        <translation>区域 C</translation>
    </message>
    <message>
        <source>Enable Blu-ray 3D playback when in Simple Mode</source>
        <translation>在简单模式下启用蓝光 3D 播放</translation>
    </message>
    <message>
        <source>Skip FBI warnings</source>
        <translation>跳过 FBI 警告</translation>
    </message>
    <message>
        <source>Jump to Blu-ray menu directly</source>
        <translation>直接跳转到蓝光菜单</translation>
    </message>
    <message>
        <source>Set File Associations</source>
        <translation>设置文件关联</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Save to clipboard simultaneously(you can paste it directly)</source>
        <translation>同时保存到剪贴板（可直接粘贴）</translation>
    </message>
    <message>
        <source>Use IE proxy</source>
        <translation>使用 IE 代理</translation>
    </message>
    <message>
        <source>Use the system&apos;s proxy</source>
        <translation>使用系统代理</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Do not use proxy</source>
        <translation>不使用代理</translation>
    </message>
    <message>
        <source>Use manual proxy</source>
        <translation>使用手动代理</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>主机</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Analyze Hardware</source>
        <translation>分析硬件</translation>
    </message>
    <message>
        <source>The settings are in use, but could not be written to the disk:
%1
They will be lost when the program ends, unless there is room until then.</source>
        <translation>设置已生效，但无法写入磁盘：
%1
如果在程序结束之前磁盘仍没有可用空间，设置将会丢失。</translation>
    </message>
</context>
<context>
    <name>NormalStartView</name>
    <message>
        <source>Drop a film, a folder or a disc image here to play it.</source>
        <translation>将影片、文件夹或光盘映像拖放到此处即可播放。</translation>
    </message>
    <message>
        <source>Open Media...</source>
        <translation>打开媒体...</translation>
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
        <translation>清除最近播放列表</translation>
    </message>
    <message>
        <source>Drop to play</source>
        <translation>松开即可播放</translation>
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
        <translation>暂停</translation>
    </message>
    <message>
        <source>Slow motion %1x</source>
        <translation>慢放 %1 倍</translation>
    </message>
    <message>
        <source>Fast forward</source>
        <translation>快进</translation>
    </message>
    <message>
        <source>Fast forward %1x</source>
        <translation>快进 %1 倍</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>快退</translation>
    </message>
    <message>
        <source>Rewind %1x</source>
        <translation>快退 %1 倍</translation>
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
        <translation>还原</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
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
        <translation>这次不用</translation>
    </message>
    <message>
        <source>Up Next: </source>
        <translation>接下来播放：</translation>
    </message>
</context>
<context>
    <name>NormalVideoControlDlg</name>
    <message>
        <source>Video Control</source>
        <translation>视频控制</translation>
    </message>
    <message>
        <source>Zoom Amount</source>
        <translation>缩放比例</translation>
    </message>
    <message>
        <source>Vertical Shift</source>
        <translation>垂直偏移</translation>
    </message>
    <message>
        <source>Pixel Ratio</source>
        <translation>像素比</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
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
        <translation>Quorin 不支持您的 UHD 光驱，请在此查看支持的光驱。</translation>
    </message>
    <message>
        <source>More Info...</source>
        <translation>更多信息...</translation>
    </message>
    <message>
        <source>Oops! This disc is not supported yet. Please try again at a later time.</source>
        <translation>抱歉！尚不支持此光盘，请以后再试。</translation>
    </message>
    <message>
        <source>Failed to play back the disc.</source>
        <translation>光盘播放失败。</translation>
    </message>
    <message>
        <source>A live Internet is required to play back the disc, please check your network and try again.</source>
        <translation>播放此光盘需要连接互联网，请检查网络后重试。</translation>
    </message>
    <message>
        <source>An unknown error happened, please update to the newest version at</source>
        <translation>发生未知错误，请更新到最新版本：</translation>
    </message>
    <message>
        <source>Playback failed.</source>
        <translation>播放失败。</translation>
    </message>
    <message>
        <source>This source can&apos;t be played. It may be damaged, protected or of an unknown format.</source>
        <translation>无法播放此来源。它可能已损坏、受到保护或格式未知。</translation>
    </message>
    <message>
        <source>There is no such file, folder or title.</source>
        <translation>没有这样的文件、文件夹或标题。</translation>
    </message>
    <message>
        <source>This source may not be read, or is neither a file nor a folder nor a disc.</source>
        <translation>无法读取此来源，或者它既不是文件，也不是文件夹或光盘。</translation>
    </message>
    <message>
        <source>There is nothing in this source that can be played.</source>
        <translation>此来源中没有可播放的内容。</translation>
    </message>
    <message>
        <source>There is no disc in this source, or none that can be read.</source>
        <translation>此来源中没有光盘，或者光盘无法读取。</translation>
    </message>
    <message>
        <source>This source does not answer.</source>
        <translation>此来源没有响应。</translation>
    </message>
    <message>
        <source>This source ended with an error while it played.</source>
        <translation>播放此来源时发生错误并中止。</translation>
    </message>
</context>
<context>
    <name>PlayMenu</name>
    <message>
        <source>Open Media...</source>
        <translation>打开媒体...</translation>
    </message>
    <message>
        <source>Open Disc</source>
        <translation>打开光盘</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>章节</translation>
    </message>
    <message>
        <source>Top Menu</source>
        <translation>主菜单</translation>
    </message>
    <message>
        <source>Pop Menu</source>
        <translation>弹出菜单</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
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
        <translation>着色器</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Always on Top</source>
        <translation>总在最前</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>设置...</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>宽高比</translation>
    </message>
    <message>
        <source>Deinterlace</source>
        <translation>去隔行</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Video Control...</source>
        <translation>视频控制...</translation>
    </message>
    <message>
        <source>Color Adjust...</source>
        <translation>色彩调整...</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>截图</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Fit Window</source>
        <translation>适合窗口</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rotate 90 degree CW</source>
        <translation>顺时针旋转 90 度</translation>
    </message>
    <message>
        <source>Rotate 90 degree CCW</source>
        <translation>逆时针旋转 90 度</translation>
    </message>
    <message>
        <source>Rotate 180 degree</source>
        <translation>旋转 180 度</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>垂直翻转</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>水平翻转</translation>
    </message>
    <message>
        <source>Cycle Through Audio Track</source>
        <translation>循环切换音轨</translation>
    </message>
    <message>
        <source>Cycle Through Subtitle Track</source>
        <translation>循环切换字幕</translation>
    </message>
    <message>
        <source>Load Subtitle...</source>
        <translation>加载字幕...</translation>
    </message>
    <message>
        <source>Subtitle Setting...</source>
        <translation>字幕设置...</translation>
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
        <translation>上一章节</translation>
    </message>
    <message>
        <source>Next Chapter</source>
        <translation>下一章节</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>快退</translation>
    </message>
    <message>
        <source>Fast Forward</source>
        <translation>快进</translation>
    </message>
    <message>
        <source>Normal Speed</source>
        <translation>正常速度</translation>
    </message>
    <message>
        <source>10 Sec. Backward</source>
        <translation>后退 10 秒</translation>
    </message>
    <message>
        <source>10 Sec. Forward</source>
        <translation>前进 10 秒</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>章节 %1</translation>
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
        <translation>标题</translation>
    </message>
    <message>
        <source> (Main)</source>
        <translation>（主标题）</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
</context>
<context>
    <name>QApplication</name>
    <message>
        <source>Open file</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>发送反馈</translation>
    </message>
    <message>
        <source>Eject the selected disc</source>
        <translation>弹出所选光盘</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Always on top</source>
        <translation>窗口置顶</translation>
    </message>
    <message>
        <source>Mute on/off</source>
        <translation>静音开/关</translation>
    </message>
    <message>
        <source>Previous Chapter</source>
        <translation>上一章节</translation>
    </message>
    <message>
        <source>Next Chapter</source>
        <translation>下一章节</translation>
    </message>
    <message>
        <source>Play/pause movie playback</source>
        <translation>播放/暂停</translation>
    </message>
    <message>
        <source>Stop Playback</source>
        <translation>停止播放</translation>
    </message>
    <message>
        <source>Increase audio volume</source>
        <translation>增大音量</translation>
    </message>
    <message>
        <source>Decrease audio volume</source>
        <translation>减小音量</translation>
    </message>
    <message>
        <source>Fast Forward</source>
        <translation>快进</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>快退</translation>
    </message>
    <message>
        <source>Switch Audio</source>
        <translation>切换音轨</translation>
    </message>
    <message>
        <source>Switch Subtitle</source>
        <translation>切换字幕</translation>
    </message>
    <message>
        <source>Filp vertically</source>
        <translation>垂直翻转</translation>
    </message>
    <message>
        <source>Filp horizontally</source>
        <translation>水平翻转</translation>
    </message>
    <message>
        <source>File Information</source>
        <translation>文件信息</translation>
    </message>
    <message>
        <source>Show Information</source>
        <translation>显示信息</translation>
    </message>
    <message>
        <source>Open Smart View</source>
        <translation>打开智能视图</translation>
    </message>
    <message>
        <source>Displays the playback menu</source>
        <translation>显示播放菜单</translation>
    </message>
    <message>
        <source>Pop-up menu</source>
        <translation>弹出菜单</translation>
    </message>
    <message>
        <source>Top menu</source>
        <translation>顶层菜单</translation>
    </message>
    <message>
        <source>Navigate up in menus</source>
        <translation>在菜单中向上</translation>
    </message>
    <message>
        <source>Navigate down in menus</source>
        <translation>在菜单中向下</translation>
    </message>
    <message>
        <source>Navigate left in menus</source>
        <translation>在菜单中向左</translation>
    </message>
    <message>
        <source>Navigate right in menus</source>
        <translation>在菜单中向右</translation>
    </message>
    <message>
        <source>Accepts the selected menu</source>
        <translation>确认所选菜单</translation>
    </message>
    <message>
        <source>Take Snapshot</source>
        <translation>截图</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>下一帧</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>上一帧</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Sec</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>CW</source>
        <translation>顺时针</translation>
    </message>
    <message>
        <source>CCW</source>
        <translation>逆时针</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>File error: </source>
        <translation>文件错误：</translation>
    </message>
</context>
<context>
    <name>QPlayer</name>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>QueueDelegate</name>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
</context>
<context>
    <name>QueueEmptyPage</name>
    <message>
        <source>The playlist is empty.</source>
        <translation>播放列表为空。</translation>
    </message>
    <message>
        <source>Drop files or folders here, or add them with a right click.</source>
        <translation>将文件或文件夹拖放到此处，或点击右键添加。</translation>
    </message>
</context>
<context>
    <name>QueueHead</name>
    <message>
        <source>Playlist</source>
        <translation>播放列表</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>图标</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>QueueMenus</name>
    <message>
        <source>AddFile...</source>
        <translation>添加文件...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>添加文件夹...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Remove Invalid</source>
        <translation>移除无效项</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>全部移除</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>打开所在文件夹</translation>
    </message>
    <message>
        <source>Sort by Name</source>
        <translation>按名称排序</translation>
    </message>
    <message>
        <source>Sort by Type</source>
        <translation>按类型排序</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>播放一次</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>顺序播放</translation>
    </message>
    <message>
        <source>Shuffle</source>
        <translation>随机播放</translation>
    </message>
    <message>
        <source>Repeat One</source>
        <translation>单个循环</translation>
    </message>
    <message>
        <source>Repeat All</source>
        <translation>列表循环</translation>
    </message>
</context>
<context>
    <name>RecentCard</name>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
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
        <translation>没有可保存的图像。</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: the folder &quot;%1&quot; does not exist.</source>
        <translation>无法保存截图：文件夹“%1”不存在。</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: the folder &quot;%1&quot; is not writable.</source>
        <translation>无法保存截图：文件夹“%1”不可写。</translation>
    </message>
    <message>
        <source>The snapshot could not be saved: there is no free space in the folder &quot;%1&quot;.</source>
        <translation>无法保存截图：文件夹“%1”没有可用空间。</translation>
    </message>
    <message>
        <source>The snapshot could not be saved in the folder &quot;%1&quot;.</source>
        <translation>无法将截图保存到文件夹“%1”。</translation>
    </message>
</context>
<context>
    <name>SettingRowWidget</name>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>Please enter the address of the proxy.</source>
        <translation>请输入代理地址。</translation>
    </message>
    <message>
        <source>Please enter the address alone, as proxy.example.org or 192.168.0.1.</source>
        <translation>请仅输入地址，例如 proxy.example.org 或 192.168.0.1。</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>端口是 1 到 65535 之间的数字。</translation>
    </message>
</context>
<context>
    <name>SmartPreview</name>
    <message>
        <source>The Smart Preview feature on DVDs and Blu-rays is coming soon!</source>
        <translation>DVD 和蓝光光盘的智能预览功能即将推出！</translation>
    </message>
</context>
<context>
    <name>SubtitleCharsets</name>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
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
        <translation>西欧</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>中欧</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>波罗的海</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>西里尔文</translation>
    </message>
    <message>
        <source>Cyrillic (KOI8-R)</source>
        <translation>西里尔文 (KOI8-R)</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>希腊文</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>土耳其文</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>希伯来文</translation>
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
        <translation>简体中文</translation>
    </message>
    <message>
        <source>Chinese Traditional</source>
        <translation>繁体中文</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日文</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韩文</translation>
    </message>
</context>
<context>
    <name>ThreeDMenu</name>
    <message>
        <source>Auto Detect</source>
        <translation>自动检测</translation>
    </message>
    <message>
        <source>Side by Side</source>
        <translation>左右并排</translation>
    </message>
    <message>
        <source>Top / Bottom</source>
        <translation>上下</translation>
    </message>
    <message>
        <source>Play 3D Media in 3D</source>
        <translation>以 3D 播放 3D 媒体</translation>
    </message>
    <message>
        <source>Convert 2D Media to 3D</source>
        <translation>将 2D 媒体转换为 3D</translation>
    </message>
    <message>
        <source>3D Source Format</source>
        <translation>3D 源格式</translation>
    </message>
    <message>
        <source>More 3D Settings</source>
        <translation>更多 3D 设置</translation>
    </message>
    <message>
        <source>Oops! 3D playback support is only available on Windows 8/10 for now.</source>
        <translation>抱歉！目前仅在 Windows 8/10 上支持 3D 播放。</translation>
    </message>
</context>
<context>
    <name>TvPlayingWidget</name>
    <message>
        <source>Playback Failed!</source>
        <translation>播放失败！</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Failure initializing playback device, please update your video card and sound card drivers. Contact us if that does not fix the problem.</source>
        <translation>初始化播放设备失败，请更新显卡和声卡驱动程序。如果问题仍未解决，请联系我们。</translation>
    </message>
    <message>
        <source>This source can&apos;t be played. It may be damaged, protected or of an unknown format.</source>
        <translation>无法播放此来源。它可能已损坏、受到保护或格式未知。</translation>
    </message>
</context>
<context>
    <name>TvStartWidget</name>
    <message>
        <source>Ready to play</source>
        <translation>准备播放</translation>
    </message>
    <message>
        <source>Open a film with the player to watch it here.</source>
        <translation>用播放器打开影片即可在此观看。</translation>
    </message>
</context>
<context>
    <name>VideoPage</name>
    <message>
        <source>The analysis could not be started.</source>
        <translation>无法启动分析。</translation>
    </message>
</context>
</TS>
