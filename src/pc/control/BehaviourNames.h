// Names under which use of the player's controls and of what they open is counted.
#pragma once

namespace BehaviourNames {

// The group that all of them are counted in.
inline constexpr char UserBehaviour[] = "UserBehaviour";

inline constexpr char FastUsed[] = "FastUsed";
inline constexpr char RewindUsed[] = "RewindUsed";
inline constexpr char LastChapterUsed[] = "LastChapterUsed";
inline constexpr char NextChapterUsed[] = "NextChapterUsed";
inline constexpr char FrameOperateUsed[] = "FrameOperateUsed";
inline constexpr char ShaderUsed[] = "ShaderUsed";
inline constexpr char PlaylistUsed[] = "PlaylistUsed";
// Pictures of the source were asked for: of a plain file, and of any other source.
inline constexpr char NormalFileSmartViewUsed[] = "NormalFileSmartViewUsed";
inline constexpr char OtherFileSmartViewUsed[] = "OtherFileSmartViewUsed";
// A folder joined the media library; the value is what it holds.
inline constexpr char LibraryPathAdded[] = "LibraryPathAdded";
// Value of the others.
inline constexpr char Used[] = "true";

} // namespace BehaviourNames
