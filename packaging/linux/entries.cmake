# What stands in the desktop entry and in the file manager's menu, for those who install them and for the player,
# which writes them for one user.
#
# The base name of entry and icon is the one that the program tells the desktop (ApplicationInfoManager).
set(desktop_name quorin-player-6)
set(command_name quorin-player)

set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/platform/mediatypes.txt")
file(STRINGS "${CMAKE_SOURCE_DIR}/src/platform/mediatypes.txt" types REGEX "^[a-z]")
list(JOIN types "|" types)
string(REPLACE "|" ";" desktop_types "${types};")
# Without the discs, which are no files.
string(REGEX REPLACE "x-content/[^|]*[|]?" "" file_types "${types}")
string(REPLACE "|" ";" file_types "${file_types};")
string(REPLACE ";;" ";" file_types "${file_types}")

# The verb in menus, in the languages of the entry.
set(verb_names "Name=Play with Quorin Player 6
Name[de]=Mit Quorin Player 6 wiedergeben
Name[es]=Reproducir con Quorin Player 6
Name[fr]=Lire avec Quorin Player 6
Name[ja]=Quorin Player 6 で再生
Name[zh_CN]=用 Quorin Player 6 播放
Name[zh_TW]=用 Quorin Player 6 播放")
