// Enumerations that cross the boundary between the player and the engine library.
//
// The values are fixed: both sides are built apart and only the numbers cross.
#pragma once

namespace libvp {

// Notes of the engine that are no failure of the running play. Values outside this list are legal and
// are only logged.
enum VD_ErrorCallbackType : int {
    VD_Error_None = 0,
    VD_Error_HevcHardwareUnsupported = 13017, // H.265 4K: software decoding has taken over, the play goes on
    VD_Error_UhdHardwareUnsupported = 13018,  // 4K UHD Blu-ray: hardware decoding is needed and missing
    VD_Error_ShaderInvalid = 20005            // the custom shader did not compile and is off
};

// Why a source could not be played, first argument of IVDPlayCallback::OnPlayBackFailed().
enum VD_PlayError : int {
    VD_PlayError_None = 0,
    VD_PlayError_NotFound = 1,       // nothing stands at the path, or no such title
    VD_PlayError_NoAccess = 2,       // it may not be read, or is no file, folder or disc
    VD_PlayError_UnknownFormat = 3,  // no media, or a list of other files
    VD_PlayError_NoStream = 4,       // media, but nothing in it can be decoded
    VD_PlayError_DiscUnreadable = 5, // no disc structure, or one that cannot be read
    VD_PlayError_TimedOut = 6,       // no answer in time
    VD_PlayError_Broken = 7,         // the source ended with an error while it played
    VD_PlayError_NoEngine = 8        // playback could not be set up
};

// What happened in an optical drive. 2 and 4 both mean that the disc is gone.
enum VD_OPTRA_DISC_NOTIFY_TYPE : int {
    VD_Disc_Unknown = 0,
    VD_Disc_Arrived = 1, // a disc is in, whatever is on it
    VD_Disc_Removed = 2, // by hand, or with its drive
    VD_Disc_Ready = 3,   // follows Arrived once the disc can be read
    VD_Disc_Ejected = 4  // by operation 103 of IVDPlayTool
};

// Why a drive or its disc could not be used.
enum VD_OPTRA_DISC_ERROR_TYPE : int {
    VD_DiscError_None = 0,
    VD_DiscError_Unreadable = 1,
    VD_DiscError_NoMedia = 2,
    VD_DiscError_Protected = 3
};

// Life of one seek, as the transport bar follows it.
enum VD_SeekState : int {
    VD_Seek_Begin = 0, // a seek has been taken up; the shown position is not the target yet
    VD_Seek_End = 1,   // the first picture at the target is shown
    VD_Seek_Failed = 2 // the source cannot be sought there; the position is as before
};

// Media class of a source, offset 4 of vdFileInfo.
enum VD_MediaClass : int { VD_Media_File = 0, VD_Media_Dvd = 1, VD_Media_BluRay = 2 };

// Source form of a source, offset 8 of vdFileInfo.
enum VD_SourceForm : int {
    VD_Source_ImageDvd = 10,
    VD_Source_ImageBluRay = 11,
    VD_Source_FolderDvd = 12,
    VD_Source_FolderBluRay = 13,
    VD_Source_DiscDvd = 14,
    VD_Source_DiscBluRay = 15,
    VD_Source_File = 16,
    VD_Source_AudioFile = 17
};

// Bits of vdFileInfo::flags. On a file the low 16 bits tell the resolution class and bits 16 to 30 the codec.
enum VD_SourceFlag : unsigned {
    VD_Flag_Uhd = 0x00000001u,     // Blu-ray: Ultra HD disc
    VD_Flag_Bdav = 0x00000002u,    // Blu-ray: recorded disc without menus
    VD_Flag_File4K = 0x00000001u,  // file: at least 3840 pixels wide or 2160 high
    VD_Flag_FileHevc = 0x00010000u // file: the video is H.265
};

// Dynamic range value of IVDPlayCallback::OnDynamicRange.
enum VD_DynamicRange : int { VD_Range_Sdr = 0, VD_Range_Hdr = 1, VD_Range_HdrToSdr = 2 };

// Item type of IVDFileItem.
enum VD_ItemType : int { VD_Item_Default = -1, VD_Item_File = 0, VD_Item_Folder = 1, VD_Item_Disc = 2 };

// Keys of IVDPlay::statistic(). They describe the open source; an unknown key answers 0.
enum VD_Statistic : int {
    VD_Stat_MediaClass = 0, // VD_MediaClass
    VD_Stat_SourceForm = 1, // VD_SourceForm
    VD_Stat_AudioOnly = 2,  // 0 or 1; a still cover picture does not count as video
    VD_Stat_Flags = 3,      // VD_SourceFlag bits
    VD_Stat_Width = 4,      // pixels
    VD_Stat_Height = 5,     // pixels
    VD_Stat_DecodedFrames = 6,
    VD_Stat_DroppedFrames = 7,
    VD_Stat_HardwareDecoding = 8 // 0 or 1
};

// Disc type of VDDiscDisplayInfo.
enum VD_DiscType : int {
    VD_DiscType_Empty = 0,
    VD_DiscType_Data = 1,
    VD_DiscType_Dvd = 2,
    VD_DiscType_BluRay = 3,
    VD_DiscType_Uhd = 4
};

// Output connection of an audio device.
enum VD_AudioConnection : int {
    VD_Connection_None = 0,
    VD_Connection_Analog = 1,
    VD_Connection_Optical = 2, // S/PDIF, optical or coaxial
    VD_Connection_Hdmi = 3,
    VD_Connection_DisplayPort = 4
};

// Bits of VDAudioDevice::capability: compressed formats that the device takes as they are.
enum VD_AudioCapability : unsigned {
    VD_Capability_AC3 = 1u,
    VD_Capability_DTS = 2u,
    VD_Capability_TrueHD = 4u
};

// Disc menu commands of IVDPlay::menuCommand().
enum VD_MenuCommand : int {
    VD_Menu_Right = 2,
    VD_Menu_Up = 3,
    VD_Menu_Enter = 4,
    VD_Menu_Show = 6, // value 1.0: top menu, value 0: pop-up menu
    VD_Menu_Left = 9,
    VD_Menu_Down = 10
};

// Format of a VDPicture.
enum VD_PictureFormat : int { VD_Picture_Rgba = 0, VD_Picture_Jpeg = 1 };

// Picture modes of IVDPlayTool::setViewMode().
enum VD_ViewMode : int {
    VD_View_Default = 0,  // the source's own ratio, whole picture
    VD_View_Original = 1, // one source pixel on one screen pixel
    VD_View_4_3 = 2,
    VD_View_FitWindow = 3, // stretched to the surface
    VD_View_16_9 = 4,
    VD_View_FillWindow = 5, // the source's own ratio, cut to fill the surface
    VD_View_Custom = 6,     // pixel ratio, zoom and shift of operations 20 to 22
    VD_View_2_35 = 7
};

// Value of a stream field in IVDPlayOptions that asks for the choice of the last time this source was open.
constexpr int VD_ResumeChoice = 0xFFFFF;
// Value of a stream field that asks for the source's default.
constexpr int VD_DefaultChoice = -1;
// Value of IVDPlay::setSubtitleTrack() and of the subtitle field that means no subtitles.
constexpr int VD_NoSubtitle = -2;

} // namespace libvp
