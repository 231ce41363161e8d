// Lists that stand in one text: the persons of an artist's name, the genres of a tag.
#pragma once

#include <QString>
#include <QStringList>

namespace TextLists {

// Artists are parted by semicolons alone: a comma or a slash belongs to many a name.
[[nodiscard]] QStringList artists(const QString &text);
[[nodiscard]] QStringList genres(const QString &text);
[[nodiscard]] QStringList countries(const QString &text);
// One of each spelling, in the order of the alphabet without regard to case.
[[nodiscard]] QStringList distinct(const QStringList &names);

} // namespace TextLists
