// Every key of the settings file, once. PC_ marks what PC mode brought in (the playback keys among them serve
// TV mode as well), TV_ what only TV mode uses. The spelling of a key is part of the file's format.
#pragma once

namespace SettingsKeys {

// Start and identity
inline constexpr char launchModeVersion6[] = "launchModeVersion6";
inline constexpr char Version[] = "Version";
inline constexpr char PC_FirstOpenProcess[] = "PC_FirstOpenProcess";
inline constexpr char PC_FirstPlay[] = "PC_FirstPlay";
inline constexpr char PC_Played[] = "PC_Played";
inline constexpr char PC_AddPlan[] = "PC_AddPlan";
// The reader of PC_AddPlan tests for this spelling.
inline constexpr char PC_ADDPLAN[] = "PC_ADDPLAN";
inline constexpr char PC_Language[] = "PC_Language";
inline constexpr char PC_CheckUpdate[] = "PC_CheckUpdate";

// Behaviour of the program
inline constexpr char PC_AutoPlay[] = "PC_AutoPlay";
inline constexpr char PC_PausePlay[] = "PC_PausePlay";
inline constexpr char PC_ShowProgress[] = "PC_ShowProgress";
inline constexpr char PC_RememberPosition[] = "PC_RememberPosition";
inline constexpr char PC_DisableScreenSaver[] = "PC_DisableScreenSaver";
inline constexpr char PC_MultipleInstance[] = "PC_MultipleInstance";
inline constexpr char PC_LogPath[] = "PC_LogPath";
inline constexpr char PC_PlayStateTip[] = "PC_PlayStateTip";
inline constexpr char PC_ShowMeta[] = "PC_ShowMeta";
inline constexpr char PC_AlwaysOnTop[] = "PC_AlwaysOnTop";

// Window
inline constexpr char PC_WindowSize[] = "PC_WindowSize";
inline constexpr char PC_LastWindowSize[] = "PC_LastWindowSize";
inline constexpr char PC_LastWindowPos[] = "PC_LastWindowPos";
inline constexpr char PC_MaxSize[] = "PC_MaxSize";
inline constexpr char PC_FullScreen[] = "PC_FullScreen";
inline constexpr char TV_crtScreenRect[] = "TV_crtScreenRect";

// Discs
inline constexpr char PC_BDPlayMode[] = "PC_BDPlayMode";
inline constexpr char PC_DVDPlayMode[] = "PC_DVDPlayMode";
inline constexpr char PC_MenuLanguage[] = "PC_MenuLanguage";
inline constexpr char PC_AudioLanguage[] = "PC_AudioLanguage";
inline constexpr char PC_SubtitleLanguage[] = "PC_SubtitleLanguage";
inline constexpr char PC_RegionCode[] = "PC_RegionCode";
inline constexpr char PC_EnableBD[] = "PC_EnableBD";
inline constexpr char PC_SkipFBI[] = "PC_SkipFBI";
inline constexpr char PC_JumpToMenu[] = "PC_JumpToMenu";
inline constexpr char PC_BDAVRemindShowAgain[] = "PC_BDAVRemindShowAgain";
inline constexpr char PC_BackupPath[] = "PC_BackupPath";

// Video
inline constexpr char PC_EnableHardware[] = "PC_EnableHardware";
inline constexpr char PC_HardWareNotSupportDontShowAgain[] = "PC_HardWareNotSupportDontShowAgain";
inline constexpr char PC_EnableHDR[] = "PC_EnableHDR";
inline constexpr char PC_HDRMode[] = "PC_HDRMode";
inline constexpr char PC_ColorMode[] = "PC_ColorMode";
inline constexpr char PC_SDRMode[] = "PC_SDRMode";
inline constexpr char PC_SDRValue[] = "PC_SDRValue";
inline constexpr char PC_Brightness[] = "PC_Brightness";
inline constexpr char PC_Contrast[] = "PC_Contrast";
inline constexpr char PC_Saturation[] = "PC_Saturation";
inline constexpr char PC_Deinterlace[] = "PC_Deinterlace";
inline constexpr char PC_PixelRatio[] = "PC_PixelRatio";
inline constexpr char PC_ZoomAmount[] = "PC_ZoomAmount";
inline constexpr char PC_VerticalShift[] = "PC_VerticalShift";
// Path of the shader that the user has chosen.
inline constexpr char PC_CustomShader[] = "PC_CustomShader";
// Sound goes to the automatic device, unchanged: nothing needs to be known of devices before a source plays.
inline constexpr char PC_AudioAutomatic[] = "PC_AudioAutomatic";

// 3D
inline constexpr char PC_3DEngine[] = "PC_3DEngine";
inline constexpr char PC_PlayIn3D[] = "PC_PlayIn3D";
inline constexpr char PC_ConvertTo3D[] = "PC_ConvertTo3D";
inline constexpr char PC_MoveDirection[] = "PC_MoveDirection";
inline constexpr char PC_3DMode[] = "PC_3DMode";
inline constexpr char PC_3DSourceType[] = "PC_3DSourceType";

// Audio
inline constexpr char AudioSpeaker[] = "AudioSpeaker";
inline constexpr char AudioPassthrough[] = "AudioPassthrough";
inline constexpr char PC_DefaultAudioDeviceName[] = "PC_DefaultAudioDeviceName";
inline constexpr char PC_PassThrough[] = "PC_PassThrough";
inline constexpr char PC_PassThroughButtonEnable[] = "PC_PassThroughButtonEnable";
inline constexpr char PC_AC3[] = "PC_AC3";
inline constexpr char PC_DTS[] = "PC_DTS";
inline constexpr char PC_TrueHD[] = "PC_TrueHD";
inline constexpr char PC_Speaker[] = "PC_Speaker";
inline constexpr char PC_VolumeAmplification[] = "PC_VolumeAmplification";
inline constexpr char PC_AudioOffset[] = "PC_AudioOffset";
inline constexpr char PC_VolumeCount[] = "PC_VolumeCount";
inline constexpr char PC_VolumeMute[] = "PC_VolumeMute";
inline constexpr char PC_Codec[] = "PC_Codec";
inline constexpr char AudioR_CMPT_DTS[] = "AudioR_CMPT_DTS";
inline constexpr char AudioR_CMPT_Dolby[] = "AudioR_CMPT_Dolby";
inline constexpr char AudioR_CMPT_TrueHD_DTSHD[] = "AudioR_CMPT_TrueHD_DTSHD";

// Subtitles
inline constexpr char PC_Font[] = "PC_Font";
inline constexpr char PC_Charset[] = "PC_Charset";
inline constexpr char PC_FontSize[] = "PC_FontSize";
inline constexpr char PC_FontPosition[] = "PC_FontPosition";
inline constexpr char PC_OverrideAss[] = "PC_OverrideAss";
inline constexpr char PC_Bold[] = "PC_Bold";
inline constexpr char PC_Italic[] = "PC_Italic";
inline constexpr char PC_OutLine[] = "PC_OutLine";
inline constexpr char PC_FontColor[] = "PC_FontColor";
inline constexpr char PC_OutLineColor[] = "PC_OutLineColor";
inline constexpr char PC_SubtitleOffset[] = "PC_SubtitleOffset";
inline constexpr char PC_LanguageMode[] = "PC_LanguageMode";
inline constexpr char PC_SubtitlePath[] = "PC_SubtitlePath";

// Snapshots
inline constexpr char PC_SnapShotPath[] = "PC_SnapShotPath";
inline constexpr char PC_SnapShotType[] = "PC_SnapShotType";
inline constexpr char PC_SaveToDipboard[] = "PC_SaveToDipboard";

// Queue and browsing
inline constexpr char PC_Playlist[] = "PC_Playlist";
inline constexpr char PC_PlaylistLoopType[] = "PC_PlaylistLoopType";
inline constexpr char PC_PlaylistSortType[] = "PC_PlaylistSortType";
inline constexpr char PC_AddLastFolder[] = "PC_AddLastFolder";
inline constexpr char PC_NavIndex[] = "PC_NavIndex";
inline constexpr char PC_NavComputerIndex[] = "PC_NavComputerIndex";
inline constexpr char PC_NavComputerPath[] = "PC_NavComputerPath";
inline constexpr char PC_SelectViewSplitterSize[] = "PC_SelectViewSplitterSize";
inline constexpr char TV_smartViewTimeSpace[] = "TV_smartViewTimeSpace";
inline constexpr char TV_smartViewColumnCount[] = "TV_smartViewColumnCount";

// Library
inline constexpr char PC_MediaServerSortOrder[] = "PC_MediaServerSortOrder";
inline constexpr char PC_MediaServerSortMethod[] = "PC_MediaServerSortMethod";
inline constexpr char PC_EnableAdultContent[] = "PC_EnableAdultContent";

// Network
inline constexpr char PC_ProxyEnable[] = "PC_ProxyEnable";
inline constexpr char PC_ProxyType[] = "PC_ProxyType";
inline constexpr char PC_ProxyHost[] = "PC_ProxyHost";
inline constexpr char PC_ProxyPort[] = "PC_ProxyPort";
inline constexpr char PC_ProxyUserName[] = "PC_ProxyUserName";
inline constexpr char PC_ProxyPasswd[] = "PC_ProxyPasswd";
inline constexpr char PC_ProxySystemHost[] = "PC_ProxySystemHost";
inline constexpr char PC_ProxySystemPort[] = "PC_ProxySystemPort";

// Campaigns
inline constexpr char PC_2019_ChristmasClicked[] = "PC_2019_ChristmasClicked";
inline constexpr char PC_2019_ChristmasCloseClicked[] = "PC_2019_ChristmasCloseClicked";
inline constexpr char PC_2019_ChristmasLastDate[] = "PC_2019_ChristmasLastDate";

// Arrays and the keys of their entries
inline constexpr char TV_keyMap[] = "TV_keyMap";
inline constexpr char PC_keyMap[] = "PC_keyMap";
inline constexpr char HotKey_Key[] = "HotKey_Key";
inline constexpr char HotKey_Value[] = "HotKey_Value";
inline constexpr char PlayHistory[] = "PlayHistory";
inline constexpr char PlayDisplayText[] = "PlayDisplayText";
inline constexpr char PlayPath[] = "PlayPath";
inline constexpr char PlayType[] = "PlayType";
inline constexpr char FileAssociation[] = "FileAssociation";
inline constexpr char FileType[] = "FileType";
inline constexpr char EnableFileAssociation[] = "EnableFileAssociation";

// Maps from a source path
inline constexpr char PC_LastPositionMap[] = "PC_LastPositionMap";
inline constexpr char PC_LastPositionAudioIndexMap[] = "PC_LastPositionAudioIndexMap";
inline constexpr char PC_LastPositionSubMap[] = "PC_LastPositionSubMap";
inline constexpr char PC_LastPositionPixmapMap[] = "PC_LastPositionPixmapMap";
inline constexpr char PC_PosterMap[] = "PC_PosterMap";

} // namespace SettingsKeys
