// The parts of the library that are loaded each by itself. The numbers are those of the signals.
#pragma once

enum class LibraryRole : int { Movies = 1, Collections, TvShows, Videos, AdultContent, Music };

namespace LibraryRoles {

inline constexpr int First = int(LibraryRole::Movies);
inline constexpr int Last = int(LibraryRole::Music);
inline constexpr int Count = Last - First + 1;

[[nodiscard]] constexpr bool isRole(int role)
{
    return role >= First && role <= Last;
}

} // namespace LibraryRoles
