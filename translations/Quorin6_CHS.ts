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
</TS>
