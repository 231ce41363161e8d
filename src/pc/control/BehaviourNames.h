// Names under which use of the player's controls is counted.
#pragma once

namespace BehaviourNames {

inline constexpr char FastUsed[] = "FastUsed";
inline constexpr char RewindUsed[] = "RewindUsed";
inline constexpr char LastChapterUsed[] = "LastChapterUsed";
inline constexpr char NextChapterUsed[] = "NextChapterUsed";
inline constexpr char FrameOperateUsed[] = "FrameOperateUsed";
inline constexpr char ShaderUsed[] = "ShaderUsed";
// Value of each of them.
inline constexpr char Used[] = "true";

} // namespace BehaviourNames
